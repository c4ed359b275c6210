// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Statement.h"

#include <QString>

#include <memory>
#include <vector>

// The criteria language of record sets:
//   [Field]='text'   [Field]=5   [Field] LIKE 'pattern'   NOT x   x AND y   x OR y   (x)
// NOT binds tighter than AND, AND tighter than OR; keywords in any letter case; a quote inside a
// quoted text is written twice; double quotes work too.
struct FilterNode
{
    enum class Kind { Equals, Like, Not, And, Or };

    Kind kind;
    QString field;                    // Equals, Like
    FieldValue value;                 // Equals, Like
    std::vector<FilterNode> operands; // Not: one; And, Or: two or more
};

// Throws DatabaseError BadFilter, with the text that failed, for anything else, including an empty
// text; TooComplex when it is nested too deeply or has too many comparisons.
FilterNode ParseFilter(QStringView text);

// Throws TooComplex.
[[noreturn]] void FailTooComplex(QStringView filter);
// The beginning of a filter for a message; the filter may be a megabyte long.
QString Excerpt(QStringView filter);
