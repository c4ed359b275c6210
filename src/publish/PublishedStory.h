// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

// A story as it is given away: plain values, read from the open album before anything is made of
// them, so that pages and books are made without it. Its texts hold neither control characters
// other than tabs and line feeds nor halves of surrogate pairs; lines end with "\n".

struct PublishedPicture
{
    QString file; // as the album knows it
    QString path; // where it is read from, absolute; there may be no file
    QString legend;
    QString text; // the paragraph's text as it reads for this picture
};

struct PublishedParagraph
{
    qint32 id = 0;
    QString text; // as it reads for the last of its pictures
    std::vector<PublishedPicture> pictures;
    int found = 0; // pictures that it chooses, also those beyond the maximum
};

struct PublishedChapter
{
    qint32 id = 0;
    QString title;
    std::vector<PublishedParagraph> paragraphs;
};

struct PublishedStory
{
    QString title;
    QLocale language; // of the words around the story; that of its texts is not known
    std::vector<PublishedChapter> chapters;
    int delay = 0;          // of a slide show, in milliseconds
    QStringList troubles{}; // what could not be read, for the user to read

    int CountPictures() const;
    // Most of its texts are written from right to left.
    bool IsRightToLeft() const;
};

constexpr int proposedMostPictures = 24; // of a paragraph

// What of the album is published.
struct StoryChoice
{
    QString title;                           // the album's name when empty
    QStringList chapters{};                  // as they are listed; all when empty
    int mostPictures = proposedMostPictures; // of each paragraph, from 0 on
};

// Called often, with the work that is done and all of it, in whatever thread it is done. Returns
// false to stop.
using PublishProgress = std::function<bool(int done, int total)>;

// The open album's story in reading order, with the pictures of each paragraph as the viewer lists
// them: the linked ones, then those that fit, in the album's order. Progress counts paragraphs;
// None when it has stopped. Moves the record sets. Throws DatabaseError, NoAlbum while no album is
// open, and PublishError for a chapter that is not there.
std::optional<PublishedStory> ReadPublishedStory(const StoryChoice& choice,
                                                 const PublishProgress& progress);

// Without control characters and halves of surrogate pairs.
QString CleanPublishedText(const QString& text);
