// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/DescriptionChanges.h"

#include <QString>

// What many changes come to, for a user who is to agree to them: "5 pictures: 3 legends, Person: 2
// values." and the values that are new to the tables. Throws DatabaseError.
QString ChangeText(const std::vector<DescriptionChange>& changes);

// What was done.
QString ResultText(const ChangeResult& result);
