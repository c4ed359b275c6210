// SPDX-License-Identifier: MIT
#include "catalogue/PatternHead.h"

#include "platform/files/PathRoutines.h"

PatternHead HeadOf(const QString& pattern)
{
    constexpr qsizetype escapedLength = 3; // "[*]"
    PatternHead head;
    QString literal;
    for (qsizetype at = 0; at < pattern.size();) {
        const QChar letter = pattern[at];
        const bool isEscaped = letter == u'[' && pattern.size() > at + 2 &&
                               pattern[at + 2] == u']' && pattern[at + 1] != u'!';
        if (!isEscaped && QStringView(u"*?#[").contains(letter))
            break;
        literal += isEscaped ? pattern[at + 1] : letter;
        at += isEscaped ? escapedLength : 1;
        if (FolderOf(literal).size() == literal.size())
            head = {literal, at};
    }
    return head;
}

QString PatternRest(QString rest, const QString& oldFolder, const QString& newFolder)
{
    if (oldFolder.endsWith(u'\\') && newFolder.endsWith(u'/'))
        rest.replace(u'\\', u'/');
    return rest;
}
