// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/CharacteristicModel.h"

#include <vector>

// Labels that suit many albums, in the program's language, for one that has none yet.
struct LabelSet
{
    QString name;
    std::array<QString, groupCount> groups;
    std::array<QString, labelledColumns.size()> columns; // in the order of labelledColumns
};

std::vector<LabelSet> StarterLabels();
