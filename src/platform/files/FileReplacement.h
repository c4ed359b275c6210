// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

// Makes a file that takes its place in one step once it is complete: a file already there is
// replaced then, never half written. It is made in a hidden folder beside the place that only the
// user can open. A killed program leaves at most that folder, which the next replacement there
// removes. Where the place is a symbolic link, the file that it points to is replaced.
//
// The constructor and Commit throw std::system_error.
class FileReplacement
{
public:
    enum class Taken { Replace, Refuse };

    // Makes an empty file with the permissions of the one to be replaced, or those of a new file.
    explicit FileReplacement(const QString& place);
    ~FileReplacement(); // removes a file that did not take its place
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // Where to write; fill the file that is there, do not create it again.
    const QString& GetPath() const { return path_; }
    // For a temporary file, which is removed with the folder.
    QString GetHelperPath() const;

    // Flushes the file to disk, which takes as long as writing it did. Call it where Commit must be
    // quick. Throws std::system_error.
    void WriteThrough() const;

    // Call when neither file is open. Flushes the file to disk, moves it to its place, and removes
    // the old file's database journals. When it throws, the place is unchanged.
    void Commit(Taken taken = Taken::Replace);

    // Removes what interrupted replacements left beside the place. Call only where that is likely,
    // since it reads the whole folder. Returns whether anything was there.
    static bool ClearLeftovers(const QString& place);

private:
    void MakeFile();
    void SetJournalsAside();
    void PutJournalsBack();

    QString target_;
    QString folder_;
    QString path_;
    std::unique_ptr<QLockFile> lock_; // shows that a program uses the folder
};
