// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookProgress.h"

#include <QSize>
#include <QString>

#include <map>
#include <set>
#include <string>
#include <vector>

// What a book's file must hold.
struct BookFacts
{
    struct Picture
    {
        QSize size; // pixels
        qint64 at;  // where its bytes begin in the file
        qint64 bytes;
    };

    qint64 bytes = 0; // of the file
    int chapters = 0;
    std::map<std::string, Picture> pictures;  // by their names in the file
    std::vector<std::set<std::string>> pages; // the pictures of each
};

// Opens a book again and compares it with what was written: the file's structure, its pages, that
// each picture has taken its stand-in's place from its first to its last byte, the outline and the
// links. Throws PublishError for
// the user to read, and BookStopped.
void CheckBook(const QString& path, const BookFacts& facts, BookProgress& progress);
