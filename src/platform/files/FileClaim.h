// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QLockFile>
#include <QString>

#include <functional>
#include <memory>

// Tells the same user's other running copies of the program on this computer that this one has a
// file open. It does not lock the file. The claim ends with the program, however that ends.
class FileClaim
{
public:
    // onCalled runs from the event loop whenever another copy calls for this one.
    FileClaim(const QString& path, const std::function<void()>& onCalled);
    ~FileClaim();
    FileClaim(const FileClaim&) = delete;
    FileClaim& operator=(const FileClaim&) = delete;

    // False when another running copy has the file. Also true when that is unknown.
    bool IsOurs() const { return isOurs_; }

    // Asks the copy that has the file to show itself.
    void CallHolder() const;

private:
    void TakeCalls(const std::function<void()>& onCalled);

    QString call_; // a file that a caller writes into
    std::unique_ptr<QLockFile> lock_;
    std::unique_ptr<QFileSystemWatcher> watcher_;
    bool isOurs_ = true;
};
