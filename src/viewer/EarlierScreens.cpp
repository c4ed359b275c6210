// SPDX-License-Identifier: MIT
#include "viewer/EarlierScreens.h"

#include <algorithm>

void EarlierScreens::Add(const QStringList& files)
{
    if (files.isEmpty())
        return;
    screens_.append(files);
    pictures_ += int(files.size());
}

int EarlierScreens::Remove(const QStringList& files)
{
    int removed = 0;
    for (QStringList& screen : screens_)
        removed +=
            int(screen.removeIf([&files](const QString& shown) { return files.contains(shown); }));
    screens_.removeIf([](const QStringList& screen) { return screen.isEmpty(); });
    pictures_ -= removed;
    return removed;
}

std::vector<ShownPicture> EarlierScreens::FillWithLast(PictureList& list, const ScreenShape& shape,
                                                       bool atRandom, PathOfPicture pathOf)
{
    const QStringList files = screens_.takeLast();
    pictures_ -= int(files.size());
    for (qsizetype from = 0;;) {
        PictureList rest = list;
        rest.PutBack(files.sliced(from));
        std::vector<ShownPicture> pictures = FillScreen(rest, shape, atRandom, pathOf);
        const int left = rest.Count() - list.Count();
        if (left <= 0 || from == files.size() - 1) {
            Add(files.first(from));
            list = std::move(rest);
            return pictures;
        }
        from = std::min(from + left, files.size() - 1);
    }
}
