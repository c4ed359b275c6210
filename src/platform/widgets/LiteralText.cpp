// SPDX-License-Identifier: MIT
#include "platform/widgets/LiteralText.h"

#include <QTextDocument>

#include <algorithm>

namespace {

constexpr qsizetype longestToolTip = 2000; // characters
constexpr qsizetype longestTitle = 250;
constexpr qsizetype longestPhrase = 80;

QString Cut(const QString& text, qsizetype longest)
{
    return text.size() <= longest ? text : text.first(longest - 1) + QChar(0x2026);
}

// Control characters end a title or a line of a tool tip on some desktops.
QString WithoutControls(QString text, bool keepsLines)
{
    const auto isControl = [keepsLines](QChar character) {
        return character.category() == QChar::Other_Control && !(keepsLines && character == u'\n');
    };
    std::replace_if(text.begin(), text.end(), isControl, QChar(u' '));
    return text;
}

} // namespace

// Always markup, with the text escaped: the toolkit only guesses whether a text is plain.
QString AsToolTip(const QString& text)
{
    return text.isEmpty()
               ? text
               : Qt::convertFromPlainText(WithoutControls(Cut(text, longestToolTip), true),
                                          Qt::WhiteSpaceNormal);
}

QString AsPhrase(const QString& text)
{
    return WithoutControls(Cut(text, longestPhrase), false);
}

QString AsWindowTitle(const QString& text)
{
    return WithoutControls(Cut(text, longestTitle), false)
        .replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}
