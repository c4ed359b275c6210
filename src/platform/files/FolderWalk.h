// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct dirent;

// Visits all files in a folder, in the folders in it, and so on, in slices. Hidden ones are left
// out, and so are links to folders, in which files would be met a second time.
class FolderWalk
{
public:
    struct Visitor
    {
        // Comes before the folder's files; not for one whose name is not valid text.
        std::function<void(const QString& folder)> enterFolder;
        // A name in the folder entered last, in UTF-8 where it is valid text.
        std::function<void(std::string_view name)> visitFile;
    };

    // folder: absolute, may be a link. One that is not there is an empty one that is not readable.
    FolderWalk(const QString& folder, Visitor visitor);
    ~FolderWalk();
    Q_DISABLE_COPY_MOVE(FolderWalk)

    // Walks for about that time; false when everything was visited.
    bool Work(std::chrono::milliseconds time);

    int GetFiles() const { return files_; }
    // Folders that could not be read to their end.
    int GetUnreadable() const { return unreadable_; }

private:
    using Clock = std::chrono::steady_clock;
    class Folder;

    bool EnterNext();
    void VisitEntries(Clock::time_point end);
    void Visit(const dirent& entry);

    Visitor visitor_;
    std::vector<std::string> waiting_; // paths of folders that were found, but not entered
    std::unique_ptr<Folder> folder_;   // entered last; null: visited
    int files_ = 0;
    int unreadable_ = 0;
};
