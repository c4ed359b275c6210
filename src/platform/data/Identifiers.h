// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Statement.h"

#include <QByteArray>

#include <limits>

// Valid identifiers are 1 to this. Files can hold others.
inline constexpr qint64 highestIdentifier = std::numeric_limits<qint32>::max();

// Identifiers for new rows of a numbered table: each is above all earlier ones, including those of
// deleted rows, because links to these may remain. A row whose number is out of range does not
// count. Once the highest is used up they count down from there, skipping those that a row has or
// that a field named after the table, such as ParagraphId, holds.
class NewIdentifiers
{
public:
    // Throw DatabaseError; Next throws Overflow when none is left.
    NewIdentifiers(sqlite3* engine, const QByteArray& table);
    qint64 Next();

private:
    qint64 LastGiven() const;
    qint64 Highest(const QByteArray& select) const;
    QByteArrayList LinkSelects() const;
    qint64 NextDown();

    sqlite3* engine_;
    QByteArray table_;
    qint64 last_ = 0;
    Statement isUsed_; // prepared once they count down
};
