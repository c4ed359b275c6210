// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishList.h"

#include <QHash>
#include <QLockFile>
#include <QString>
#include <QStringList>

#include <memory>
#include <mutex>

class PublishMoves;

// A folder that the program publishes into, again and again. It holds a list of what was made, by
// which a later run knows what it may replace and remove; all other files in it stay untouched.
// New files are made in a hidden folder inside and take their places together in Commit. A run that
// is killed before leaves what was there; one that is killed within Commit has everything ready,
// and the next run puts the rest in place first.
class PublishFolder
{
public:
    // Makes the folder where there is none. kind: what is published, "web" or "album"; no kind
    // takes over another's folder. Throws PublishError for a folder that holds files of others or
    // is in use by another run, or one that cannot be made or written.
    PublishFolder(const QString& folder, const QString& kind);
    // Removes what was not committed, and a folder that it made.
    ~PublishFolder();
    Q_DISABLE_COPY_MOVE(PublishFolder)

    // Names are relative, "/" separates. Both of these may be called from several threads, throw
    // PublishError, and take madeFrom as a text that names source, size, time and options.

    // Whether an earlier run has made this file from just this, and it is still as it was made:
    // then it stays and need not be made.
    bool Keeps(const QString& name, const QString& madeFrom);
    // Where to write a file of that name; its folder is there. It is in place after Commit, those
    // asked for later after those asked for before: ask for the file last that leads to all others.
    // A file that is not written after all counts as not made.
    QString PathFor(const QString& name, const QString& madeFrom);

    // Puts all in place, and removes what an earlier run made and this one neither made nor kept,
    // unless somebody has changed it since. To be called once, when no file is open. Throws
    // PublishError; what was there before is then whole.
    void Commit();

private:
    void MakeFolder();
    void RequireOurs();
    void Lock();
    void RequireFree(const QString& name) const;
    std::vector<PublishedFile> NewList() const;
    void PutInPlace(const std::vector<PublishedFile>& list, PublishMoves& moves);
    QStringList StaleFiles(const std::vector<PublishedFile>& list) const;
    void ClearWork();

    QString folder_;
    QString kind_;
    QStringList madeFolders_; // the outermost one first
    QString work_;            // the hidden folder
    std::unique_ptr<QLockFile> lock_;
    QHash<QString, PublishedFile> earlier_; // by FoldedName
    bool mustFinish_ = false;               // what is in the hidden folder must not be lost
    bool isCommitted_ = false;
    std::mutex mutex_; // of what follows
    std::vector<PublishedFile> kept_;
    std::vector<PublishedFile> made_;
    QHash<QString, QString> madeNames_; // by FoldedName
};
