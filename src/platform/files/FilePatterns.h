// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text/LikePattern.h"

#include <QString>
#include <QStringList>

#include <vector>

// Patterns of file names, as file lists take them: "*.jpg;*.gif". * stands for any run of
// characters and ? for any one, in either letter case; everything else stands for itself. "*.*"
// fits every name, also one without a dot. Without any pattern no name fits.
class FilePatterns
{
public:
    explicit FilePatterns(const QString& patterns);

    bool Match(const QString& name) const;

private:
    std::vector<LikePattern> patterns_;
};

// The same patterns as LIKE takes them, whether or not it regards letter case.
QString AsLikePatterns(const QString& patterns);

// What stands between the ";", and the whole text before it, because the name of a file may hold
// ";" as well. A ";" in a list of characters does not divide.
QStringList SplitPatterns(const QString& patterns);
