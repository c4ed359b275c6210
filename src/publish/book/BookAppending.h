// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookOutput.h"

#include <QSize>

#include <functional>
#include <string>
#include <vector>

// Adds the pictures to a PDF file as an update of it (ISO 32000-1, 7.5.6): objects after its end,
// and a table that says which they replace. So their bytes go from file to file, where the library
// that writes the rest would hold each picture whole, and three times.
class BookAppending
{
public:
    // Writes the file that is to be updated, whose references are in a stream (7.5.8).
    BookAppending(BookOutput& output, const QByteArray& base);

    struct Picture
    {
        int object;       // the stand-in's number
        QSize size;       // pixels
        QByteArray space; // of the colours, as the file writes it
    };

    // The writer writes the JPEG to the output. Returns where it stands.
    struct Place
    {
        qint64 at;
        qint64 bytes;
    };
    Place Add(const Picture& picture, const std::function<void()>& writer);

    // After the last picture.
    void Finish();

private:
    struct Entry
    {
        int object;
        qint64 at;
    };

    BookOutput& output_;
    QByteArray trailer_; // the entries that stay as they were
    qint64 previousTable_;
    int objects_;
    std::vector<Entry> entries_;
};
