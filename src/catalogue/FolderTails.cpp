// SPDX-License-Identifier: MIT
#include "catalogue/FolderTails.h"

#include <algorithm>
#include <numeric>

int FolderTails::Add(const QString& folder)
{
    Parts parts;
    QString text = folder.normalized(QString::NormalizationForm_C).toCaseFolded();
    text.replace(u'\\', u'/');
    const auto names = QStringView(text).split(u'/', Qt::SkipEmptyParts);
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        auto number = numbers_.find(name->toString());
        if (number == numbers_.end())
            number = numbers_.insert(name->toString(), int(numbers_.size()));
        parts.push_back(*number);
    }
    folders_.push_back(std::move(parts));
    return int(folders_.size()) - 1;
}

void FolderTails::Sort()
{
    sorted_.resize(folders_.size());
    places_.resize(folders_.size());
    std::iota(sorted_.begin(), sorted_.end(), 0);
    std::ranges::sort(sorted_, [this](int first, int second) {
        return folders_[std::size_t(first)] < folders_[std::size_t(second)];
    });
    for (std::size_t place = 0; place < sorted_.size(); ++place)
        places_[std::size_t(sorted_[place])] = int(place);
}

int FolderTails::EqualParts(int first, int second) const
{
    const Parts& a = folders_[std::size_t(first)];
    const Parts& b = folders_[std::size_t(second)];
    const auto end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    return int(end - a.begin());
}
