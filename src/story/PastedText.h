// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

// Text pasted from web pages brings along a little markup, which is taken out when the user goes
// on typing.

struct PastedMarkup
{
    QString found;
    QString replacement;
};

// To be replaced one kind after the other; upper and lower case differ.
const std::array<PastedMarkup, 12>& PastedMarkups();

QString CleanPastedText(const QString& text);
