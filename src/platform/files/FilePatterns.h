// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text/LikePattern.h"

#include <QString>

#include <vector>

// Patterns of file names, as file lists take them: "*.jpg;*.gif". * stands for any run of
// characters and ? for any one, in either letter case; everything else stands for itself. "*.*"
// fits every name, also one without a point. Without any pattern no name fits.
class FilePatterns
{
public:
    explicit FilePatterns(const QString& patterns);

    bool Match(const QString& name) const;

private:
    std::vector<LikePattern> patterns_;
    bool matchesAll_ = false;
};
