// SPDX-License-Identifier: MIT
#include "platform/files/FolderWalk.h"

#include <QFile>

#include <cerrno>
#include <dirent.h>
#include <sys/stat.h>

namespace {

// Looking at the clock takes as long as visiting some files.
constexpr int filesBetweenLooks = 256;

} // namespace

// The system's own calls: to walk by the library's iterators, which make a path for each entry,
// takes a third longer.
class FolderWalk::Folder
{
public:
    explicit Folder(std::string path) : path_(std::move(path)), stream_(opendir(path_.c_str())) {}
    ~Folder()
    {
        if (stream_)
            closedir(stream_);
    }
    Q_DISABLE_COPY_MOVE(Folder)

    bool IsOpen() const { return stream_ != nullptr; }
    const std::string& GetPath() const { return path_; }
    std::string PathOf(const char* name) const
    {
        return path_.back() == '/' ? path_ + name : path_ + '/' + name;
    }

    // Null at the end; hasFailed tells whether it came too early.
    const dirent* Next(bool& hasFailed)
    {
        errno = 0;
        const dirent* entry = readdir(stream_);
        hasFailed = !entry && errno != 0;
        return entry;
    }

private:
    std::string path_;
    DIR* stream_;
};

FolderWalk::FolderWalk(const QString& folder, Visitor visitor)
    : visitor_(std::move(visitor)), waiting_{QFile::encodeName(folder).toStdString()}
{
}

FolderWalk::~FolderWalk() = default;

bool FolderWalk::Work(std::chrono::milliseconds time)
{
    const Clock::time_point end = Clock::now() + time;
    do {
        if (!folder_ && !EnterNext())
            return false;
        VisitEntries(end);
    } while (Clock::now() < end);
    return folder_ || !waiting_.empty();
}

bool FolderWalk::EnterNext()
{
    while (!waiting_.empty()) {
        auto folder = std::make_unique<Folder>(std::move(waiting_.back()));
        waiting_.pop_back();
        const QString path = QString::fromStdString(folder->GetPath());
        if (path.isEmpty() || path.toStdString() != folder->GetPath())
            continue;
        if (!folder->IsOpen()) {
            ++unreadable_;
            continue;
        }
        folder_ = std::move(folder);
        visitor_.enterFolder(path);
        return true;
    }
    return false;
}

void FolderWalk::VisitEntries(Clock::time_point end)
{
    bool hasFailed = false;
    int seen = 0;
    while (const dirent* entry = folder_->Next(hasFailed)) {
        Visit(*entry);
        if (++seen % filesBetweenLooks == 0 && Clock::now() >= end)
            return;
    }
    unreadable_ += hasFailed ? 1 : 0;
    folder_.reset();
}

void FolderWalk::Visit(const dirent& entry)
{
    if (entry.d_name[0] == '.')
        return;
    bool isFolder = entry.d_type == DT_DIR;
    if (entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN) {
        struct stat status = {};
        const std::string path = folder_->PathOf(entry.d_name);
        if (stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
            if (entry.d_type == DT_LNK ||
                (lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode)))
                return;
            isFolder = true;
        }
    }
    if (isFolder) {
        waiting_.push_back(folder_->PathOf(entry.d_name));
        return;
    }
    ++files_;
    visitor_.visitFile(entry.d_name);
}
