// SPDX-License-Identifier: MIT
#include "core/PictureList.h"

#include <algorithm>

namespace GeneralModule {

void PictureList::Clear()
{
    *this = PictureList();
}

void PictureList::AddLinked(const QString& file)
{
    files_.insert(files_.begin() + linked_, file);
    ++linked_;
}

void PictureList::Add(const QString& file)
{
    files_.push_back(file);
}

bool PictureList::HoldsLinked(const QString& file) const
{
    const auto end = files_.begin() + linked_;
    return std::find(files_.begin(), end, file) != end;
}

QStringList PictureList::GetFiles() const
{
    QStringList files(upcoming_.begin(), upcoming_.end());
    files.append(QStringList(files_.begin(), files_.end()));
    return files;
}

int PictureList::RandomBelow(int below)
{
    return std::uniform_int_distribution<int>(0, below - 1)(random_);
}

void PictureList::Pick(bool atRandom)
{
    int index = 0;
    if (linked_ > 0)
        index = RandomBelow(linked_);
    else if (atRandom)
        index = RandomBelow(int(files_.size()));
    upcoming_.push_back(files_[std::size_t(index)]);
    files_.erase(files_.begin() + index);
    if (linked_ > 0)
        --linked_;
}

QString PictureList::PickNext(bool atRandom, const std::function<bool(const QString&)>& isThere)
{
    while (Count() > 0) {
        if (upcoming_.empty())
            Pick(atRandom);
        if (isThere(upcoming_.front()))
            return upcoming_.front();
        upcoming_.pop_front();
    }
    return {};
}

void PictureList::TakePicked()
{
    if (!upcoming_.empty())
        upcoming_.pop_front();
}

void PictureList::Remove(const QString& file)
{
    std::erase(upcoming_, file);
    const auto endOfLinked = files_.begin() + linked_;
    linked_ -= int(std::count(files_.begin(), endOfLinked, file));
    std::erase(files_, file);
}

void PictureList::PutBack(const QStringList& files)
{
    upcoming_.insert(upcoming_.begin(), files.begin(), files.end());
}

} // namespace GeneralModule
