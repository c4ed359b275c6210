// SPDX-License-Identifier: MIT
#include "catalogue/LastDescribed.h"

#include "core/AlbumSets.h"

#include <algorithm>

using GeneralModule::AlbumDatabase;

namespace {

struct Memory
{
    std::weak_ptr<Database> album;
    Picture picture;
};

Memory& GetMemory()
{
    static Memory memory;
    return memory;
}

bool IsGiven(const QString& value)
{
    return !value.isEmpty() && value != noValue;
}

} // namespace

std::optional<Picture> LastDescribed()
{
    const std::shared_ptr<Database> remembered = GetMemory().album.lock();
    if (!remembered || remembered != std::shared_ptr<Database>(AlbumDatabase))
        return std::nullopt;
    return GetMemory().picture;
}

void RememberDescribed(const Picture& picture)
{
    if (std::any_of(picture.values.begin(), picture.values.end(), IsGiven))
        GetMemory() = {std::shared_ptr<Database>(AlbumDatabase), picture};
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
