// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

// Where the files of the open album's pictures lie, in the order in which they were added, some at
// a time. Rows that come while it reads are read too.
class PicturePaths
{
public:
    struct Entry
    {
        qint32 id = 0;
        QString file;
        QString copy; // local, see core/LocalCopy.h; empty for none
    };

    PicturePaths();

    // None when all were read. Throws DatabaseError; the next call goes on.
    std::vector<Entry> ReadMore();

private:
    qint64 lastRow_;
};
