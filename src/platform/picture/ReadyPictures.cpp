// SPDX-License-Identifier: MIT
#include "platform/picture/ReadyPictures.h"

#include <QDateTime>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <exception>

namespace {

// Of decoders at work together, besides what a screen of photographs takes: a larger picture is
// decoded alone.
constexpr qint64 maxBytesTogether = 48LL << 20;

bool IsSame(const PictureRequest& one, const PictureRequest& other)
{
    return one.size == other.size && one.path == other.path;
}

qint64 BytesOf(QSize pixels)
{
    constexpr qint64 bytesPerPixel = 4;
    return pixels.width() * bytesPerPixel * pixels.height();
}

qint64 BytesOf(const PictureRequest& request)
{
    return BytesOf(request.size);
}

} // namespace

void ReadyPictures::SetRoom(QSize screen, int count)
{
    room_ = BytesOf(screen) * count;
}

ReadyPictures::FileState ReadyPictures::StateOf(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return {};
    return {file.size(), file.lastModified().toMSecsSinceEpoch(),
            file.metadataChangeTime().toMSecsSinceEpoch()};
}

ReadyPictures::Entry* ReadyPictures::Find(const PictureRequest& request)
{
    const auto entry = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& each) {
        return IsSame(each.request, request);
    });
    return entry == entries_.end() ? nullptr : &*entry;
}

// It is then the last of the entries.
ReadyPictures::Entry& ReadyPictures::FindOrAdd(const PictureRequest& request)
{
    const auto entry = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& each) {
        return IsSame(each.request, request);
    });
    if (entry != entries_.end()) {
        entries_.splice(entries_.end(), entries_, entry);
        return entries_.back();
    }
    Entry& added = entries_.emplace_back();
    added.request = request;
    added.state = StateOf(request.path);
    return added;
}

void ReadyPictures::DropChanged(const PictureRequest& request)
{
    entries_.remove_if([&](const Entry& each) {
        return IsSame(each.request, request) && StateOf(request.path) != each.state;
    });
}

void ReadyPictures::WantNothing()
{
    for (Entry& entry : entries_)
        entry.isWanted = false;
}

bool ReadyPictures::Want(const std::vector<PictureRequest>& requests)
{
    qint64 bytes = 0;
    for (const Entry& entry : entries_)
        bytes += entry.isWanted && !entry.isShown ? BytesOf(entry.request) : 0;
    for (const PictureRequest& request : requests) {
        DropChanged(request);
        const Entry* entry = Find(request);
        if (!entry || !(entry->isWanted || entry->isShown))
            bytes += BytesOf(request);
    }
    if (bytes > room_)
        return false;
    for (const PictureRequest& request : requests)
        FindOrAdd(request).isWanted = true;
    DropUntilThereIsRoom();
    return true;
}

void ReadyPictures::DropUntilThereIsRoom()
{
    qint64 bytes = 0;
    for (const Entry& entry : entries_)
        bytes += entry.isShown ? 0 : BytesOf(entry.request);
    entries_.remove_if([&](const Entry& entry) {
        const bool isDropped = bytes > room_ && !entry.isWanted && !entry.isShown;
        bytes -= isDropped ? BytesOf(entry.request) : 0;
        return isDropped;
    });
}

void ReadyPictures::DropUnwanted()
{
    entries_.remove_if([](const Entry& entry) { return !entry.isWanted && !entry.isShown; });
}

int ReadyPictures::CountToDo() const
{
    return int(std::count_if(entries_.begin(), entries_.end(),
                             [](const Entry& entry) { return entry.IsToDo(); }));
}

bool ReadyPictures::IsReady(const PictureRequest& request)
{
    const Entry* entry = Find(request);
    return entry && entry->isReady && entry->state == StateOf(request.path);
}

bool ReadyPictures::HasIdleCores() const
{
    return CountToDo() < QThread::idealThreadCount();
}

// The first pictures of what is to do, at most that many.
std::vector<ReadyPictures::Entry*> ReadyPictures::Begin(int count)
{
    std::vector<Entry*> running;
    qint64 bytes = 0;
    for (Entry& entry : entries_) {
        if (int(running.size()) >= count)
            break;
        if (!entry.IsToDo() || !BeginDecoding(entry))
            continue;
        bytes += entry.decoding->GetBytes();
        if (!running.empty() && bytes > maxBytesTogether)
            break;
        running.push_back(&entry);
    }
    return running;
}

// False for a picture that is decoded better when it is asked for.
bool ReadyPictures::BeginDecoding(Entry& entry)
{
    if (entry.decoding)
        return true;
    // Each of them takes memory, and few are ever wanted again.
    for (Entry& other : entries_) {
        if (!other.isWanted && !other.isShown)
            other.decoding.reset();
    }
    try {
        entry.decoding = std::make_unique<PausableDecoding>(entry.request, signal_);
        if (entry.decoding->IsPausable())
            return true;
    } catch (const std::exception&) {
        // Out of memory, which may pass until it is asked for.
    }
    entry.decoding.reset();
    entry.isLeft = true;
    return false;
}

bool ReadyPictures::Work(std::chrono::milliseconds time)
{
    const Time deadline = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < deadline) {
        const std::vector<Entry*> running = Begin(QThread::idealThreadCount());
        if (running.empty())
            return false;
        for (const Entry* entry : running)
            entry->decoding->Resume();
        WaitForOne(running, deadline);
        Hold(running);
    }
    return CountToDo() > 0;
}

void ReadyPictures::WaitForOne(const std::vector<Entry*>& running, Time deadline)
{
    std::unique_lock lock(signal_.mutex);
    signal_.changed.wait_until(lock, deadline, [&] {
        return std::any_of(running.begin(), running.end(),
                           [](const Entry* entry) { return entry->decoding->IsDone(); });
    });
}

// Returns when none of them runs any more.
void ReadyPictures::Hold(const std::vector<Entry*>& running)
{
    for (const Entry* entry : running)
        entry->decoding->Pause();
    {
        std::unique_lock lock(signal_.mutex);
        signal_.changed.wait(lock, [&] {
            return std::all_of(running.begin(), running.end(),
                               [](const Entry* entry) { return entry->decoding->IsStill(); });
        });
    }
    for (Entry* entry : running) {
        std::unique_lock lock(signal_.mutex);
        const bool isDone = entry->decoding->IsDone();
        lock.unlock();
        if (isDone)
            Finish(*entry);
    }
}

// Returns when the decoding that runs is done.
void ReadyPictures::Finish(Entry& entry)
{
    {
        std::unique_lock lock(signal_.mutex);
        signal_.changed.wait(lock, [&] { return entry.decoding->IsDone(); });
    }
    entry.image = entry.decoding->TakeImage();
    entry.decoding.reset();
    entry.isReady = true;
}

std::vector<QImage> ReadyPictures::Take(const std::vector<PictureRequest>& requests)
{
    for (Entry& entry : entries_)
        entry.isShown = false;
    std::vector<PictureRequest> missing;
    std::vector<Entry*> halfDone;
    for (const PictureRequest& request : requests) {
        DropChanged(request);
        Entry& entry = FindOrAdd(request);
        entry.isShown = true;
        if (entry.decoding)
            halfDone.push_back(&entry);
        else if (!entry.isReady)
            missing.push_back(request);
    }
    Complete(halfDone, missing);
    std::vector<QImage> images;
    images.reserve(requests.size());
    for (const PictureRequest& request : requests)
        images.push_back(Find(request)->image);
    DropUntilThereIsRoom();
    return images;
}

void ReadyPictures::Complete(const std::vector<Entry*>& halfDone,
                             const std::vector<PictureRequest>& missing)
{
    if (halfDone.empty() && missing.empty())
        return;
    for (const Entry* entry : halfDone)
        entry->decoding->Resume();
    const int idle = QThread::idealThreadCount() - int(halfDone.size() + missing.size());
    const std::vector<Entry*> others = Begin(std::max(idle, 0));
    for (const Entry* entry : others)
        entry->decoding->Resume();
    std::vector<QImage> decoded = ReadPictures(missing);
    for (std::size_t i = 0; i < missing.size(); ++i) {
        Entry& entry = *Find(missing[i]);
        entry.image = std::move(decoded[i]);
        entry.isReady = true;
    }
    for (Entry* entry : halfDone) {
        if (entry->decoding)
            Finish(*entry);
    }
    Hold(others);
}
