// SPDX-License-Identifier: MIT
#pragma once

#include <QtTest>

#include <initializer_list>
#include <tuple>

// The columns and rows of a data-driven test: each row is its name and then its values.
template<typename... Values>
void AddRows(std::initializer_list<const char*> columns,
             std::initializer_list<std::tuple<const char*, Values...>> rows)
{
    auto column = columns.begin();
    (QTest::addColumn<Values>(*column++), ...);
    const auto add = [](const char* name, const Values&... values) {
        (QTest::newRow(name) << ... << values);
    };
    for (const auto& row : rows)
        std::apply(add, row);
}

// Where a test goes through a table by itself: names the row that fails, in a loop's first line.
class InRow
{
public:
    explicit InRow(const QString& name) : name_(name) {}
    ~InRow()
    {
        if (QTest::currentTestFailed())
            qInfo("in the row: %s", qPrintable(name_));
    }
    Q_DISABLE_COPY_MOVE(InRow)

private:
    QString name_;
};
