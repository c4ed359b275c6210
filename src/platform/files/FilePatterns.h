// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text/LikePattern.h"

#include <QString>
#include <QStringList>

#include <vector>

// File name patterns of file lists: "*.jpg;*.gif". * stands for any run of characters and ? for any
// one; everything else stands for itself, ignoring case. "*.*" fits every name, even one without a
// dot. Without any pattern no name fits.
class FilePatterns
{
public:
    explicit FilePatterns(const QString& patterns);

    bool Match(const QString& name) const;

private:
    std::vector<LikePattern> patterns_;
};

// The same patterns for LIKE, whether or not it ignores case.
QString AsLikePatterns(const QString& patterns);

// The whole text, because a file name may contain ";", followed by its parts between the ";". A ";"
// in a list of characters does not separate.
QStringList SplitPatterns(const QString& patterns);
