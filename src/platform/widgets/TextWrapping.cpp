// SPDX-License-Identifier: MIT
#include "platform/widgets/TextWrapping.h"

#include <QTextBoundaryFinder>

namespace {

constexpr qsizetype longestWord = 1000; // characters; longer than any word or address

bool HasLongRun(const QString& text)
{
    qsizetype run = 0;
    for (const QChar character : text) {
        run = character.isSpace() ? 0 : run + 1;
        if (run > longestWord)
            return true;
    }
    return false;
}

// Lines may break not only at blanks, but nearly anywhere in some scripts.
bool HasEndlessWord(const QString& text)
{
    QTextBoundaryFinder places(QTextBoundaryFinder::Line, text);
    qsizetype from = 0;
    for (qsizetype to = places.toNextBoundary(); to >= 0; to = places.toNextBoundary()) {
        if (to - from > longestWord)
            return true;
        from = to;
    }
    return false;
}

} // namespace

QTextOption::WrapMode WrapModeFor(const QString& text)
{
    return HasLongRun(text) && HasEndlessWord(text) ? QTextOption::WrapAnywhere
                                                    : QTextOption::WrapAtWordBoundaryOrAnywhere;
}
