// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

// Makes a file that takes its place in one step when it is whole: a file that was there is replaced
// then and never half written. It is made in a hidden folder beside the place that only the user
// may open; whatever ends the program leaves at most that folder, and the next replacement beside
// it clears it away. Where the place is a symbolic link, the file that it points to is replaced.
//
// Both throw std::system_error.
class FileReplacement
{
public:
    enum class Taken { Replace, Refuse };

    // Makes an empty file with the permissions of the one to be replaced, or those of a new file.
    explicit FileReplacement(const QString& place);
    ~FileReplacement(); // removes what did not take its place
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // Where to write; the file there is to be filled, not made anew.
    const QString& GetPath() const { return path_; }
    // For a file that is needed on the way. It goes with the folder.
    QString GetHelperPath() const;

    // Call when nobody has either file open. Brings the file to the disk, then to its place, and
    // takes away the journals that the database engine keeps beside a file there. When it throws,
    // what was at the place is as it was.
    void Commit(Taken taken = Taken::Replace);

    // Removes what replacements that were broken off have left beside the place. Call where that
    // may be so, since it looks through the whole folder. Returns whether anything was there.
    static bool ClearLeftovers(const QString& place);

private:
    void MakeFile();
    void SetJournalsAside();
    void PutJournalsBack();

    QString target_;
    QString folder_;
    QString path_;
    std::unique_ptr<QLockFile> lock_; // says that a program works in the folder
};
