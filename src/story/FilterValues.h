// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/CharacteristicModel.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

// Editing what a paragraph stores for one characteristic (see PictureFilter.h), value by value.

inline const QString anyValue = QStringLiteral("*");
inline const QString negation = QStringLiteral("!");

// One stored filter per column.
using CarValues = std::array<QString, columnCount>;

// "*" for every column.
CarValues AnyValues();

// The values and "!" of a stored filter, in order; none when it accepts every picture. An empty
// value ends the list.
QStringList FilterTokens(const QString& filter);

// Removes and returns the first value of the list, with the ";" after it. A view, because removing
// from a long text itself would move the rest at every step.
QString NextToken(QStringView& values);

bool Restricts(const QString& filter);

// The filter as stored: without a "!" that no value follows, and "*" when it has no value.
QString StorableFilter(const QString& filter);

// The tokens of a filter, for many look-ups.
class HeldTokens
{
public:
    explicit HeldTokens(const QString& filter);
    bool Contain(const QString& token) const; // ignoring case

private:
    QSet<QString> folded_;
};

// Adds the value, or removes it if the filter has it, ignoring case. "!" inverts the whole filter;
// alone it waits for the first value. "*" resets.
QString ToggleToken(const QString& filter, const QString& token);

// For a person to read: "Anna, Paul", "not Anna, Paul", "*".
QString DescribeFilter(const QString& filter);

// The choices for a column: reset, "!", the values of its table in alphabetical order with the
// special markers first, and the filter's values that are no longer in the table, maximum 1,000.
struct FilterChoice
{
    QString text;
    QString token;
    bool isKnown = true;
};
std::vector<FilterChoice> FilterChoices(int column, const QString& filter);
