// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/PicturePaths.h"

#include <QHash>

#include <chrono>
#include <vector>

// A picture whose file, and whose local copy, cannot be found.
struct MissingPicture
{
    qint32 id = 0;
    QString file; // as the album holds it
};

struct MissingFolder
{
    QString folder; // with its separator at the end
    int missing = 0;
    int pictures = 0; // of the album, with those
};

// Looks in slices which pictures of the open album are missing.
class MissingPictures
{
public:
    // Looks for about that time; false when all were looked for. Throws DatabaseError, InUse at
    // once where another program has the album locked; the next call goes on.
    bool Work(std::chrono::milliseconds time);

    int GetRead() const { return read_; }
    const std::vector<MissingPicture>& GetMissing() const { return missing_; }
    // Those with missing pictures, in the order of the pictures.
    std::vector<MissingFolder> GetFolders() const;

    // Whether a picture that is there has that path. Once all were looked for; in one of billions
    // of cases true for a path that none has.
    bool IsHeld(const QString& path) const;

private:
    void Look(const PicturePaths::Entry& entry);

    PicturePaths paths_;
    int read_ = 0;
    std::vector<MissingPicture> missing_;
    QHash<QString, int> numbers_; // of the folders
    std::vector<MissingFolder> folders_;
    std::vector<std::size_t> held_; // hashes of paths, sorted at the end
};
