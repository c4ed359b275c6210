// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/CharacteristicModel.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

// What a paragraph stores for one characteristic (see PictureFilter.h), as a person changes it:
// value by value.

inline const QString anyValue = QStringLiteral("*");
inline const QString negation = QStringLiteral("!");

// One stored filter per column.
using CarValues = std::array<QString, columnCount>;

// "*" for every column.
CarValues AnyValues();

// The values and "!" of a stored filter, in their order; none when it lets every picture through.
// An empty value ends the list.
QStringList FilterTokens(const QString& filter);

bool Restricts(const QString& filter);

// As it may be stored: a "!" that no value follows is left out, and "*" stands for no value at all.
QString StorableFilter(const QString& filter);

// The tokens of a filter, for asking about many.
class HeldTokens
{
public:
    explicit HeldTokens(const QString& filter);
    bool Contain(const QString& token) const; // in any letter case

private:
    QSet<QString> folded_;
};

// Adds the value, or takes it away where the filter holds it, in any letter case. "!" turns the
// whole filter round; alone it waits for the first value. "*" resets.
QString ToggleToken(const QString& filter, const QString& token);

// For a person to read: "Anna, Paul", "not Anna, Paul", "*".
QString DescribeFilter(const QString& filter);

// What can be chosen for a column: reset, "!", the values of its table in alphabetical order with
// the special markers first, and values that the filter holds but the table no longer does, the
// first thousand of them.
struct FilterChoice
{
    QString text;
    QString token;
    bool isKnown = true;
};
std::vector<FilterChoice> FilterChoices(int column, const QString& filter);
