// SPDX-License-Identifier: MIT
#include "catalogue/PictureTree.h"

#include "platform/files/FilePatterns.h"
#include "platform/files/FolderListing.h"

#include <QFileInfo>
#include <QSet>

namespace {

class TreeWalk
{
public:
    TreeWalk(const QString& patterns, const std::function<bool(int)>& goesOn)
        : patterns_(patterns), goesOn_(goesOn)
    {
    }

    // False when it was stopped.
    bool Visit(const QString& folder)
    {
        const QString place = QFileInfo(folder).canonicalFilePath();
        if (place.isEmpty() || visited_.contains(place))
            return true;
        visited_.insert(place);
        const FolderListing listing = ListFiles(folder);
        AddPictureFiles(files_, folder, listing.names, patterns_);
        if (!listing.error.isEmpty())
            files_.unreadable += listing.error;
        if (!goesOn_(files_.count))
            return false;
        for (const QString& name : ListFolders(folder).names) {
            if (!Visit(PathIn(folder, name)))
                return false;
        }
        return true;
    }

    PictureFiles Take() { return std::move(files_); }

private:
    QString patterns_;
    const std::function<bool(int)>& goesOn_;
    PictureFiles files_;
    QSet<QString> visited_;
};

} // namespace

void AddPictureFiles(PictureFiles& files, const QString& folder, const QStringList& names,
                     const QString& patterns)
{
    const FilePatterns fits(patterns);
    const FilePatterns isReadable(readablePictures);
    QStringList found;
    for (const QString& name : names) {
        if (fits.Match(name))
            found += name;
        else if (isReadable.Match(name))
            ++files.otherKinds;
    }
    files.count += int(found.size());
    if (!found.isEmpty())
        files.byFolder[folder] += found;
}

std::optional<PictureFiles> FindPictureFiles(const QString& folder, const QString& patterns,
                                             const std::function<bool(int found)>& goesOn)
{
    TreeWalk walk(patterns, goesOn);
    if (!walk.Visit(folder))
        return std::nullopt;
    return walk.Take();
}
