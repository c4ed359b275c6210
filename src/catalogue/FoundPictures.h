// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/MissingSearch.h"

#include <optional>

// Of what was found for missing pictures.
struct FoundCounts
{
    int found = 0;
    int doubtful = 0;
    int notFound = 0;

    int GetAll() const { return found + doubtful + notFound; }
};
FoundCounts CountFound(const std::vector<FoundPicture>& pictures);

struct FoundTaken
{
    int pictures = 0;
    int links = 0;        // to them, made by hand
    int patterns = 0;     // of paragraphs
    int patternsLeft = 0; // that name a folder whose pictures did not all go to one place
    int alreadyHeld = 0;  // path kept, because another picture of the album has the new one
};

// Gives the pictures for which a file is chosen its path, together with the links to them, the file
// patterns of paragraphs that name their folders, and the folder chosen last: all or nothing. A
// picture whose path has changed since keeps it. None when progress returned false; then nothing is
// changed. Throws DatabaseError.
std::optional<FoundTaken> TakeFound(const std::vector<FoundPicture>& pictures,
                                    const std::function<bool(int done)>& progress);
