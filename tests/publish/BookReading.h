// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTransform>

#include <vector>

// A picture as it lies in a book.
struct FoundPicture
{
    int page;
    QSize size; // pixels
    QByteArray space;
    QByteArray bytes;
    QTransform matrix;
};

struct FoundLink
{
    int from; // page
    int to;
};

// What a book's file holds, read with a library of its own.
struct FoundBook
{
    QString title;
    QStringList properties; // all that it says of itself
    QString language;
    QStringList pages; // texts, each text's end a line feed
    std::vector<FoundPicture> pictures;
    QStringList outline; // "title:page"
    std::vector<FoundLink> links;
};

FoundBook ReadBook(const QString& path);
