// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// Remembers, while one lives, that an album's password is being changed: for the next start, if the
// program is killed in between.
class RememberedPasswordChange
{
public:
    explicit RememberedPasswordChange(const QString& album);
    ~RememberedPasswordChange();
    Q_DISABLE_COPY_MOVE(RememberedPasswordChange)
};

// Removes the files that an interrupted change of the album's password left beside it, and says so.
// The album itself is either as it was before that change or as it is after it.
void ClearBrokenPasswordChange(const QString& album);

} // namespace GeneralModule
