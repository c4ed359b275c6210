// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

// Text pasted from web pages contains a little markup, which is removed when the user continues
// typing.

struct PastedMarkup
{
    QString found;
    QString replacement;
};

// Replaced in this order; case matters.
const std::array<PastedMarkup, 12>& PastedMarkups();

QString CleanPastedText(const QString& text);
