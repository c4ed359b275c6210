// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishedStory.h"

#include <QByteArray>
#include <QString>

#include <memory>

class WebPictures;

// The story's pages in HTML, made by filling the templates of the folder web, which escape all that
// comes from the album. A page asks nobody for anything, needs no server and, but for the large
// view of pictures, no script.
class WebPages
{
public:
    enum class Form {
        Folder, // a front page and a page for each chapter, with style, script and pictures beside
        Single  // all in one
    };

    // The story and its pictures must outlive it.
    WebPages(const PublishedStory& story, const WebPictures& pictures, Form form);
    ~WebPages();

    QByteArray MakeFront() const;
    QByteArray MakeChapter(std::size_t number) const;
    // In place of a picture's address it holds the name of its file between two marks.
    QByteArray MakeSingle() const;

    static QString ChapterName(const PublishedChapter& chapter); // of the page's file
    static QByteArray GetStyle();
    static QByteArray GetScript();

    // Cannot come from an album: texts of a story hold no such character.
    static constexpr char insideMark = '\x01';

private:
    class Data;

    const PublishedStory& story_;
    std::unique_ptr<Data> data_;
};
