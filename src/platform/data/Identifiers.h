// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Statement.h"

#include <QByteArray>

#include <limits>

// Identifiers that a table's rows may have: 1 to this. Files can hold others.
inline constexpr qint64 highestIdentifier = std::numeric_limits<qint32>::max();

// Identifiers for new rows of a table that numbers them: each above every one that ever was,
// deleted rows' too, because links to these may still lie about. A row whose number is out of the
// range does not count. Once the highest has been given out they go down from there, past those
// that a row has or that a field named after the table, as ParagraphId is, holds.
class NewIdentifiers
{
public:
    // Throw DatabaseError; Next throws Overflow when there is none left.
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
    Statement isUsed_; // prepared once they go down
};
