// SPDX-License-Identifier: MIT
#include "gallery/ThumbnailStore.h"

#include "gallery/ThumbnailSize.h"
#include "platform/picture/EmbeddedThumbnail.h"
#include "platform/picture/Heap.h"
#include "platform/picture/SharedThumbnails.h"

#include <QDateTime>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <exception>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

// A third of a screen's frame: a key that comes meanwhile is handled before anyone notices.
constexpr std::chrono::milliseconds slice(5);

// After the album could not be read, because another program writes, say.
constexpr std::chrono::milliseconds pauseAfterFailure(500);

constexpr qint64 second = 1000; // milliseconds

constexpr qint64 defaultRoom = 16 << 20;
constexpr qint64 bytesOfEntry = 1 << 10; // without its image

} // namespace

ThumbnailStore::ThumbnailStore(Surroundings surroundings, QObject* parent)
    : QObject(parent), surroundings_(std::move(surroundings)), room_(defaultRoom)
{
    connect(&timer_, &QTimer::timeout, this, &ThumbnailStore::Work);
}

void ThumbnailStore::SetSide(int side)
{
    if (side == side_)
        return;
    side_ = side;
    for (Entry& entry : entries_) {
        if (entry.state == State::Sharp)
            entry.state = State::Blurred;
        entry.isChecked = false; // the desktop's store may have this size
    }
    decoding_.clear();
    TellDecoder();
}

void ThumbnailStore::Recheck()
{
    for (Entry& entry : entries_)
        entry.isChecked = false;
}

void ThumbnailStore::Want(const QStringList& files)
{
    ++wants_;
    toLookAt_.clear();
    toDecode_.clear();
    for (const QString& file : files) {
        Entry& entry = entries_[file];
        entry.lastWanted = wants_;
        if (!entry.isChecked)
            toLookAt_.push_back(file);
        else if (entry.state == State::Blurred && !IsBeingDecoded(file))
            toDecode_.push_back(file);
    }
    const std::size_t before = decoding_.size();
    std::erase_if(decoding_, [&](const Decoding& each) {
        return entries_.value(each.file).lastWanted != wants_;
    });
    if (decoding_.size() != before)
        TellDecoder();
    DropUntilThereIsRoom();
    if (!IsDone())
        timer_.start(0);
}

// Those of the present screen stay whatever they take: what is thrown away while it is seen would
// be decoded again and again.
void ThumbnailStore::DropUntilThereIsRoom()
{
    qint64 bytes = 0;
    std::vector<std::pair<int, QString>> others;
    for (auto entry = entries_.cbegin(); entry != entries_.cend(); ++entry) {
        bytes += bytesOfEntry + entry->image.sizeInBytes();
        if (entry->lastWanted != wants_)
            others.emplace_back(entry->lastWanted, entry.key());
    }
    if (bytes <= room_)
        return;
    std::ranges::sort(others);
    for (const auto& [wanted, file] : others) {
        if (bytes <= room_)
            return;
        bytes -= bytesOfEntry + entries_[file].image.sizeInBytes();
        entries_.remove(file);
    }
}

bool ThumbnailStore::IsBeingDecoded(const QString& file) const
{
    return std::ranges::any_of(decoding_, [&](const Decoding& each) { return each.file == file; });
}

bool ThumbnailStore::IsDone() const
{
    return toLookAt_.empty() && toDecode_.empty() && decoding_.empty() && toShare_.IsEmpty();
}

void ThumbnailStore::Work()
{
    if (!surroundings_.mayWork())
        return Rest();
    timer_.setInterval(0);
    try {
        WorkUntil(Clock::now() + slice);
    } catch (const std::exception&) {
        // The file stays first in its line.
        timer_.setInterval(pauseAfterFailure);
    }
    if (IsDone())
        Rest();
}

void ThumbnailStore::Rest()
{
    timer_.stop();
    toLookAt_.clear();
    toDecode_.clear();
    decoding_.clear();
    toShare_.Clear();
    pictures_.Clear();
    DropUntilThereIsRoom();
    GiveMemoryBack();
}

// What can be shown at once comes first, then what is decoded, and at last what others may use.
void ThumbnailStore::WorkUntil(Time deadline)
{
    while (!toLookAt_.empty() && Clock::now() < deadline)
        LookAtNext();
    if (Clock::now() >= deadline)
        return;
    const bool isMoreToShow = !toDecode_.empty() || !decoding_.empty();
    if (isMoreToShow ? toShare_.IsFull() : !toShare_.IsEmpty())
        return toShare_.WriteNext();
    Decode(deadline);
}

void ThumbnailStore::LookAtNext()
{
    const QString file = toLookAt_.front();
    LookAt(file, entries_[file]);
    toLookAt_.pop_front();
    emit Changed(file);
}

void ThumbnailStore::LookAt(const QString& file, Entry& entry)
{
    if (!FindFile(file, entry)) {
        entry.state = State::Missing;
        entry.image = {};
    } else if (entry.state != State::Sharp && entry.state != State::Unreadable) {
        FindFirstImage(entry);
        if (entry.state == State::Blurred && !IsBeingDecoded(file))
            toDecode_.push_back(file);
    }
    entry.isChecked = true;
}

// False when there is none. One that has changed is as good as never seen, but its old image stays
// until there is a new one.
bool ThumbnailStore::FindFile(const QString& file, Entry& entry)
{
    const QString path = surroundings_.findPath(file);
    const QFileInfo info(path);
    if (!info.isFile())
        return false;
    const qint64 modified = info.lastModified().toMSecsSinceEpoch();
    if (entry.path != path || entry.modified != modified || entry.bytes != info.size()) {
        entry.state = State::Unknown;
        std::erase_if(decoding_, [&](const Decoding& each) { return each.file == file; });
        entry.path = path;
        entry.modified = modified;
        entry.bytes = info.size();
    } else if (entry.state == State::Missing) {
        entry.state = State::Unknown; // it is back
    }
    return true;
}

void ThumbnailStore::FindFirstImage(Entry& entry)
{
    const QString path = QFileInfo(entry.path).absoluteFilePath();
    const QImage shared = FindSharedThumbnail(path, entry.modified / second, side_);
    if (!shared.isNull()) {
        entry.image = ShrunkInto(side_, shared);
        entry.state = State::Sharp;
        return;
    }
    entry.naturalSize = ReadPictureInfo(entry.path).size;
    if (entry.naturalSize.isEmpty()) {
        entry.image = {};
        entry.state = State::Unreadable;
        return;
    }
    if (entry.image.isNull())
        entry.image = ReadEmbeddedThumbnail(entry.path, entry.naturalSize);
    entry.state = State::Blurred;
}

// One that others can use is also decoded where it may not be shared, so that both look the same.
int ThumbnailStore::DecodedSide() const
{
    const int shared = SharedSideFor(side_);
    return shared > 0 ? shared : side_;
}

void ThumbnailStore::Decode(Time deadline)
{
    while (Clock::now() < deadline) {
        BeginDecoding();
        if (decoding_.empty())
            return;
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        const bool isMoreToDo = pictures_.Work(std::max(left, std::chrono::milliseconds(1)));
        // One that cannot be decoded in slices is decoded in one go.
        if (!FinishReady() && !isMoreToDo)
            Finish(0);
    }
}

void ThumbnailStore::BeginDecoding()
{
    const std::size_t atOnce = std::size_t(QThread::idealThreadCount()) + 1;
    const std::size_t before = decoding_.size();
    while (!toDecode_.empty() && decoding_.size() < atOnce) {
        const QString file = toDecode_.front();
        toDecode_.pop_front();
        const Entry entry = entries_.value(file);
        decoding_.push_back(
            {file, {entry.path, FittedInto(DecodedSide(), entry.naturalSize)}, entry.modified});
    }
    if (decoding_.size() != before)
        TellDecoder();
}

// Exactly those are wanted that are being decoded; what was begun of others is given up.
void ThumbnailStore::TellDecoder()
{
    const int side = DecodedSide();
    pictures_.SetRoom({side, side}, QThread::idealThreadCount() + 1);
    pictures_.WantNothing();
    pictures_.Take({}); // nothing is on show there
    for (const Decoding& each : decoding_)
        pictures_.Want({each.request});
    pictures_.DropUnwanted();
}

// False when none was.
bool ThumbnailStore::FinishReady()
{
    for (std::size_t i = 0; i < decoding_.size(); ++i) {
        if (pictures_.IsReady(decoding_[i].request)) {
            Finish(i);
            return true;
        }
    }
    return false;
}

void ThumbnailStore::Finish(std::size_t number)
{
    const Decoding done = decoding_[number];
    decoding_.erase(decoding_.begin() + std::ptrdiff_t(number));
    const QImage image = pictures_.Take({done.request}).front();
    TellDecoder();
    Entry& entry = entries_[done.file];
    entry.image = image.isNull() ? QImage() : ShrunkInto(side_, image);
    entry.state = image.isNull() ? State::Unreadable : State::Sharp;
    if (!image.isNull() && surroundings_.mayShare())
        toShare_.Add(done.request.path, done.modified / second, SharedSideFor(side_), image);
    emit Changed(done.file);
}
