// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <vector>

// Compares folders by how many of their last parts are equal, without regard to case: of
// "C:\Photos\2010\Lake" and "/media/disk/2010/lake" two are. After some preparation a comparison
// takes a few steps, and the folders that are most like one stand beside each other.
class FolderTails
{
public:
    // Returns the number of the folder, the next one from 0.
    int Add(const QString& folder);

    // To be called when all folders are there.
    void Sort();

    // The place of a folder among all of them, in an order in which those whose last parts are
    // equal stand together.
    int PlaceOf(int folder) const { return places_[std::size_t(folder)]; }
    int FolderAt(int place) const { return sorted_[std::size_t(place)]; }

    // Number of equal last parts.
    int EqualParts(int first, int second) const;

private:
    using Parts = std::vector<int>; // the last one first

    QHash<QString, int> numbers_; // of the parts
    std::vector<Parts> folders_;
    std::vector<int> sorted_;
    std::vector<int> places_;
};
