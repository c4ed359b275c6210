// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The folder that a pattern of picture paths begins with, up to its last separator in front of the
// first wildcard; empty where there is none.
struct PatternHead
{
    QString folder;
    qsizetype length = 0; // in the pattern, where wildcard characters of the folder are escaped
};
PatternHead HeadOf(const QString& pattern);

// What follows a folder in a path, or in a pattern, as it is to follow another folder: with the
// separators of its system.
QString PatternRest(QString rest, const QString& oldFolder, const QString& newFolder);
