// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImageIOHandler>
#include <QSize>
#include <QString>

#include <functional>
#include <optional>

// JPEG files that a book shows unchanged (ISO 32000-1, 7.4.8): eight bits, gray or YCbCr, coded
// with Huffman tables, in one pass or progressively.

struct JpegFacts
{
    QSize size;                            // pixels, before the turn
    int components = 3;                    // 1: gray
    QImageIOHandler::Transformations turn; // that the file asks for
    QByteArray profile;                    // of the colours; empty when there is none that counts

    bool operator==(const JpegFacts&) const = default;
};

// Reads the header. None where the file is of another kind, or where viewers of books and pictures
// could disagree about its colours.
std::optional<JpegFacts> ReadJpegFacts(const QString& path);

// Gives the file away, without what programs and cameras have put into it: where it was taken, by
// which camera, the small picture of what it once was. What the pixels and colours need is copied
// byte by byte. False when the file is no longer as the facts say or does not end as it should;
// what the sink has got is then to be thrown away.
bool PassJpeg(const QString& path, const JpegFacts& facts,
              const std::function<void(QByteArrayView)>& sink);
