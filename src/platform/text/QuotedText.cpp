// SPDX-License-Identifier: MIT
#include "platform/text/QuotedText.h"

namespace {

constexpr int escapeLength = 6; // "\u0041"

} // namespace

QString QuotedText(const QString& text)
{
    QString quoted(u'"');
    for (const QChar character : text) {
        const bool isPlain = character.unicode() >= 0x20 && character.unicode() < 0x7F &&
                             character != u'"' && character != u'\\';
        quoted += isPlain ? QString(character)
                          : QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QChar(u'0'));
    }
    return quoted + u'"';
}

std::optional<QString> UnquotedText(const QString& quoted)
{
    if (quoted.size() < 2 || !quoted.startsWith(u'"') || !quoted.endsWith(u'"'))
        return std::nullopt;
    QString text;
    for (qsizetype at = 1; at < quoted.size() - 1; ++at) {
        if (quoted[at] != u'\\') {
            text += quoted[at];
            continue;
        }
        bool isNumber = false;
        const ushort unit = quoted.mid(at + 2, 4).toUShort(&isNumber, 16);
        if (quoted.mid(at, 2) != QLatin1String("\\u") || !isNumber ||
            at + escapeLength > quoted.size() - 1)
            return std::nullopt;
        text += QChar(unit);
        at += escapeLength - 1;
    }
    return text;
}
