// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

// Writes JPEG pictures that say something of themselves, byte by byte.
struct PictureTexts
{
    QByteArray xmp = {};                     // elements of an rdf:Description
    QList<QPair<int, QByteArray>> iptc = {}; // number of the data set, bytes
    QList<QPair<int, QByteArray>> exif = {}; // tag, bytes; texts with their zero
    QByteArray comment = {};
};

void WritePicture(const QString& path, const PictureTexts& texts);

// An XMP packet around the elements.
QByteArray XmpPacket(const QByteArray& elements);
QByteArray XmpCaption(const QByteArray& text, const QByteArray& language = "x-default");
QByteArray XmpKeywords(const QList<QByteArray>& keywords);
