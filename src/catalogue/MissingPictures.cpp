// SPDX-License-Identifier: MIT
#include "catalogue/MissingPictures.h"

#include "core/Album.h"
#include "core/LocalCopy.h"
#include "platform/files/PathRoutines.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <iterator>

bool MissingPictures::Work(std::chrono::milliseconds time)
{
    const GeneralModule::NoWaiting atOnce;
    const QDeadlineTimer deadline(time);
    do {
        const std::vector<PicturePaths::Entry> entries = paths_.ReadMore();
        if (entries.empty()) {
            std::ranges::sort(held_);
            return false;
        }
        for (const PicturePaths::Entry& entry : entries)
            Look(entry);
        read_ += int(entries.size());
    } while (!deadline.hasExpired());
    return true;
}

void MissingPictures::Look(const PicturePaths::Entry& entry)
{
    const QString folder = FolderOf(entry.file);
    auto number = numbers_.find(folder);
    if (number == numbers_.end()) {
        number = numbers_.insert(folder, int(folders_.size()));
        folders_.push_back({folder, 0, 0});
    }
    MissingFolder& counts = folders_[std::size_t(*number)];
    ++counts.pictures;
    if (GeneralModule::IsPictureThere(entry.file, entry.copy)) {
        held_.push_back(qHash(entry.file));
        return;
    }
    ++counts.missing;
    missing_.push_back({entry.id, entry.file});
}

std::vector<MissingFolder> MissingPictures::GetFolders() const
{
    std::vector<MissingFolder> folders;
    std::ranges::copy_if(folders_, std::back_inserter(folders),
                         [](const MissingFolder& folder) { return folder.missing > 0; });
    return folders;
}

bool MissingPictures::IsHeld(const QString& path) const
{
    return std::ranges::binary_search(held_, qHash(path));
}
