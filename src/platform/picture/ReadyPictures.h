// SPDX-License-Identifier: MIT
#pragma once

#include "platform/picture/PausableDecoding.h"
#include "platform/picture/PictureReader.h"

#include <chrono>
#include <list>
#include <memory>
#include <vector>

// Pictures in the size in which they are shown: those on show, and those decoded before they are
// asked for, a slice of time at a time. Between two slices no thread runs. A picture whose file
// changes or vanishes meanwhile is as good as not there.
class ReadyPictures
{
public:
    // Holds at most as many pixels as that many screens of this size, besides those on show.
    void SetRoom(QSize screen, int count);

    // Nothing is wanted any more. What is there stays as long as its room is not needed.
    void WantNothing();
    // Wants these in addition, after all others. False, and nothing is added, where they find no
    // room.
    bool Want(const std::vector<PictureRequest>& requests);
    // Decodes what is wanted, on all cores, for that time. True when there is more to do.
    bool Work(std::chrono::milliseconds time);
    bool IsReady(const PictureRequest& request);
    // Whether fewer pictures are to do than there are cores.
    bool HasIdleCores() const;
    void Clear() { entries_.clear(); }
    // Forgets everything that is neither wanted nor on show.
    void DropUnwanted();

    // The pictures to be shown now, null for an unreadable one; decodes what is not ready. Cores
    // that this leaves idle go on with what is wanted.
    std::vector<QImage> Take(const std::vector<PictureRequest>& requests);

private:
    struct FileState
    {
        qint64 bytes = -1;   // -1: there is no such file
        qint64 modified = 0; // both in milliseconds
        qint64 changed = 0;

        bool operator==(const FileState&) const = default;
    };

    struct Entry
    {
        PictureRequest request;
        FileState state; // of the file when it was opened
        bool isWanted = false;
        bool isShown = false;
        bool isReady = false;
        bool isLeft = false; // to be decoded only when it is asked for
        QImage image;
        std::unique_ptr<PausableDecoding> decoding;

        bool IsToDo() const { return isWanted && !isReady && !isLeft && !isShown; }
    };

    using Time = std::chrono::steady_clock::time_point;

    static FileState StateOf(const QString& path);
    Entry* Find(const PictureRequest& request);
    Entry& FindOrAdd(const PictureRequest& request);
    void DropChanged(const PictureRequest& request);
    void DropUntilThereIsRoom();
    std::vector<Entry*> Begin(int count);
    bool BeginDecoding(Entry& entry);
    void WaitForOne(const std::vector<Entry*>& running, Time deadline);
    void Hold(const std::vector<Entry*>& running);
    void Finish(Entry& entry);
    void Complete(const std::vector<Entry*>& halfDone, const std::vector<PictureRequest>& missing);
    int CountToDo() const;

    DecodingSignal signal_;    // outlives the decodings
    std::list<Entry> entries_; // in the order in which they were wanted last
    qint64 room_ = 0;          // bytes of pixels
};
