// SPDX-License-Identifier: MIT
#pragma once

#include "support/AlbumFixture.h"

#include <QByteArrayList>

#include <random>

// Does random things to the open album, all by the routines that the windows call: writes the
// story, describes pictures, loads, replaces, repairs.
class RandomAuthor
{
public:
    RandomAuthor(const AlbumFixture& album, unsigned seed);

    // One action as one step; many of them change nothing, and some fail.
    void Act();

private:
    int Below(int limit) { return int(random_() % unsigned(limit)); }
    template<typename List>
    auto AnyOf(const List& list)
    {
        return list[std::size_t(Below(int(std::size(list))))];
    }

    QString AnyText();
    QString AnyFile();
    QString AnyChapter();
    qint32 AnyParagraph();
    void ChangeChapters();
    void ChangeParagraphs();
    void Write();
    void ChangeLinks();
    void ChangePictures();
    void ChangeManyPictures();
    void ChangeFiles();
    void ChangeValues();
    void ChangeOwnFields();

    const AlbumFixture& album_;
    std::mt19937 random_;
};

// The rows of all tables of the open album, in their order and with the types of their values; not
// the note of the identifiers that were given, which never goes back.
QByteArrayList StateOfOpenAlbum();
