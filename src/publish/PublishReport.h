// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>

// Why nothing was published, for the user to read. What was there before is as it was.
class PublishError : public std::runtime_error
{
public:
    explicit PublishError(const QString& text) : std::runtime_error(text.toStdString()) {}
    QString GetText() const { return QString::fromUtf8(what()); }
};

// What came out.
struct PublishReport
{
    bool isStopped = false; // by the user: nothing has changed
    int pictures = 0;       // of the result, without those that follow
    int made = 0;           // of them, those that no earlier run had made
    // As the album names them, each once.
    QStringList missing{}; // without their file
    QStringList damaged{}; // of which no picture can be read
    QStringList troubles{};

    bool IsWhole() const { return missing.isEmpty() && damaged.isEmpty() && troubles.isEmpty(); }
};

// In words, one line for each finding; names of many pictures are cut short.
QString DescribePublishReport(const PublishReport& report);
