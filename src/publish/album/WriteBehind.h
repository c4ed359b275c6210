// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

#include <deque>

// Has the disk write files while the next ones are made, and waits where it falls behind, so that
// progress tells the truth about slow disks, a stop does not wait for them, and nobody who needs
// one small file on the disk waits for all of them. Does nothing on systems that cannot. Not for
// several threads.
class WriteBehind
{
public:
    // A file that is being written; what it has in its buffer comes later.
    void Continue(const QFile& file);
    // One that is complete and still open.
    void Take(const QFile& file);

private:
    struct Waiting
    {
        QString path; // open files might become too many
        qint64 bytes;
    };

    void WaitForFirst();

    std::deque<Waiting> waiting_;
    qint64 bytes_ = 0; // of those
};
