// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <deque>
#include <functional>
#include <random>
#include <vector>

namespace GeneralModule {

// The maximum number of pictures that a page of the viewer lists.
constexpr int maxListed = 30000;

// The pictures still to be shown, by their File in the album: first those linked to the paragraph,
// then those that its filter found. It shrinks as screens are filled from it. It has random numbers
// of its own, so that a copy gives the same pictures in the same order.
class PictureList
{
public:
    void Clear();
    // Begins another random order.
    void Shuffle(std::uint32_t seed) { random_.seed(seed); }
    void AddLinked(const QString& file); // before any other picture
    void Add(const QString& file);
    bool HoldsLinked(const QString& file) const;

    int Count() const { return int(upcoming_.size() + files_.size()); }
    // In list order, those picked already first.
    QStringList GetFiles() const;

    // The picture to show next, or an empty text when none is left: one picked before and not shown
    // yet, else a linked one at random while there are any, else at random or in list order. A
    // picture that isThere turns down is dropped and the next one picked. The same picture is
    // given again until it is taken.
    QString PickNext(bool atRandom, const std::function<bool(const QString&)>& isThere);
    // The picture that PickNext gave is on the screen and leaves the list.
    void TakePicked();
    // Drops a picture that is no longer in the album.
    void Remove(const QString& file);
    // Pictures to be shown again, before all others and in this order.
    void PutBack(const QStringList& files);

private:
    void Pick(bool atRandom);
    int RandomBelow(int below);

    std::deque<QString> upcoming_;
    std::vector<QString> files_;
    int linked_ = 0; // leading entries of files_ that are linked pictures
    std::mt19937 random_;
};

} // namespace GeneralModule
