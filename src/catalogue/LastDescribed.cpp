// SPDX-License-Identifier: MIT
#include "catalogue/LastDescribed.h"

#include "core/Album.h"
#include "core/AlbumSets.h"

#include <algorithm>

using GeneralModule::AlbumDatabase;

namespace {

struct Memory
{
    std::weak_ptr<Database> album;
    Picture picture;
    std::array<QStringList, columnCount> recent; // by labelled column
};

constexpr qsizetype maxRecent = 6; // values of a column

Memory& GetMemory()
{
    static Memory memory;
    return memory;
}

bool IsOfOpenAlbum()
{
    const std::shared_ptr<Database> remembered = GetMemory().album.lock();
    return remembered && GeneralModule::IsAlbumOpen() &&
           remembered == std::shared_ptr<Database>(AlbumDatabase);
}

bool IsGiven(const QString& value)
{
    return !value.isEmpty() && value != noValue;
}

} // namespace

std::optional<Picture> LastDescribed()
{
    if (!IsOfOpenAlbum())
        return std::nullopt;
    return GetMemory().picture;
}

QStringList RecentValues(int column)
{
    return IsOfOpenAlbum() ? GetMemory().recent[std::size_t(LabelledColumnOf(column))]
                           : QStringList();
}

void RememberDescribed(const Picture& picture)
{
    if (std::none_of(picture.values.begin(), picture.values.end(), IsGiven))
        return;
    if (!IsOfOpenAlbum())
        GetMemory() = {};
    Memory& memory = GetMemory();
    memory.album = std::shared_ptr<Database>(AlbumDatabase);
    memory.picture = picture;
    for (int column = 0; column < columnCount; ++column) {
        const QString& value = picture.values[std::size_t(column)];
        if (!IsGiven(value))
            continue;
        QStringList& recent = memory.recent[std::size_t(LabelledColumnOf(column))];
        recent.removeAll(value);
        recent.prepend(value);
        recent.resize(std::min(recent.size(), maxRecent));
    }
}

Picture WithValuesOf(const Picture& picture, const Picture& other)
{
    Picture merged = picture;
    for (std::size_t column = 0; column < merged.values.size(); ++column) {
        if (IsGiven(other.values[column]))
            merged.values[column] = other.values[column];
    }
    return merged;
}
