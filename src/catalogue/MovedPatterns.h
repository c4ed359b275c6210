// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QMap>
#include <QString>

#include <optional>

// Where the pictures of folders have gone, for file patterns that begin with a folder. To be made
// when the open album has the new paths already.
class MovedFolders
{
public:
    // moved: new paths by the old ones.
    explicit MovedFolders(const QHash<QString, QString>& moved);

    // Whether the pattern begins with a folder in which moved pictures were.
    bool Reaches(const QString& pattern) const;

    // The new place of a folder, both with the separator at the end; none where not all pictures of
    // it, and of those inside, went to one place as they stood. Throws DatabaseError.
    std::optional<QString> FollowFolder(const QString& folder) const;
    // The pattern for the new place of the folder that it begins with; none where that has none.
    // Throws DatabaseError.
    std::optional<QString> Follow(const QString& pattern) const;

private:
    QMap<QString, QString> moved_; // sorted, so that those in a folder stand together
};
