// SPDX-License-Identifier: MIT
#pragma once

#include "gallery/ThumbnailSharing.h"
#include "platform/picture/ReadyPictures.h"

#include <QHash>
#include <QImage>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>
#include <vector>

// Thumbnails of the album's pictures, as far as they are wanted: found in the desktop's store or
// embedded in the file at first, decoded afterwards. Everything is done in slices of a few
// milliseconds between which every event is handled, and nothing once the wanted ones are there.
class ThumbnailStore : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Unknown,    // not looked at yet
        Missing,    // there is no such file
        Unreadable, // it cannot be decoded
        Blurred,    // the image is the embedded one, one of another size, or null
        Sharp,
    };

    struct Surroundings
    {
        // The path from which to read the album's file. What it throws means: not now.
        std::function<QString(const QString& file)> findPath;
        // Whether thumbnails may be left in the desktop's store, for every program of the user.
        std::function<bool()> mayShare;
        // Whether anyone looks. Nothing is done while this says no, and it begins again with Want.
        std::function<bool()> mayWork;
    };

    explicit ThumbnailStore(Surroundings surroundings, QObject* parent = nullptr);

    // Thumbnails fit into a square of that side (pixels). Those of another size stay, blurred,
    // until they are wanted again.
    void SetSide(int side);
    // Besides those wanted, as many are kept as have room in so many bytes; 16 MiB at first.
    void SetRoom(qint64 bytes) { room_ = bytes; }

    // From now on these files of the album are wanted, the first one first, and no others.
    void Want(const QStringList& files);
    // Files may have changed: those that are wanted next are looked at again.
    void Recheck();
    bool IsWorking() const { return timer_.isActive(); }

    State StateOf(const QString& file) const { return entries_.value(file).state; }
    // Null where there is none yet.
    QImage Find(const QString& file) const { return entries_.value(file).image; }

signals:
    // Its state or its image.
    void Changed(const QString& file);

private:
    struct Entry
    {
        State state = State::Unknown;
        QImage image;
        QString path;
        QSize naturalSize;
        qint64 modified = 0; // milliseconds since 1970
        qint64 bytes = 0;    // of the file
        int lastWanted = 0;
        bool isChecked = false; // since the last Recheck
    };
    struct Decoding
    {
        QString file;
        PictureRequest request;
        qint64 modified = 0;
    };
    using Time = std::chrono::steady_clock::time_point;

    void Work();
    void WorkUntil(Time deadline);
    bool IsBeingDecoded(const QString& file) const;
    bool IsDone() const;
    void Rest();
    void LookAtNext();
    void LookAt(const QString& file, Entry& entry);
    bool FindFile(const QString& file, Entry& entry);
    void FindFirstImage(Entry& entry);
    void Decode(Time deadline);
    void BeginDecoding();
    bool FinishReady();
    void Finish(std::size_t number);
    void TellDecoder();
    void DropUntilThereIsRoom();
    int DecodedSide() const;

    Surroundings surroundings_;
    QHash<QString, Entry> entries_; // by file
    std::deque<QString> toLookAt_;
    std::deque<QString> toDecode_;
    std::vector<Decoding> decoding_;
    ThumbnailSharing toShare_;
    ReadyPictures pictures_;
    QTimer timer_;
    qint64 room_;
    int side_ = 0;
    int wants_ = 0;
};
