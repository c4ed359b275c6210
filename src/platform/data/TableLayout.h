// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

struct sqlite3;

// The fields of one table, as the album file declares them.
class TableLayout
{
public:
    struct Field
    {
        QByteArray name;  // for SQL
        QString text;     // the same, for callers
        bool isNumber;    // whole number, else text
        bool ignoresCase; // how its text compares; picture paths compare exactly
        bool isIdentity;  // assigned when a row is added
    };

    // Above the limit of engines, unless they were built for more.
    static constexpr int maxFields = 2048;

    // Throws DatabaseError NoSuchTable, or TooComplex for more fields than that.
    TableLayout(sqlite3* engine, const QString& table);

    const QByteArray& GetTable() const { return table_; }
    int Count() const { return int(fields_.size()); }
    const Field& At(int field) const { return fields_[std::size_t(field)]; }

    // Number of the field with that name, ignoring case; -1 when there is none.
    int Find(QStringView name) const;
    // Number of the field that identifies rows, -1 when there is none.
    int GetIdentity() const { return identity_; }

private:
    QByteArray table_;
    std::vector<Field> fields_;
    int identity_ = -1;
};

// An SQL name between double quotes.
QByteArray QuotedName(const QByteArray& name);
