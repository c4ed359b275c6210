// SPDX-License-Identifier: MIT
#include "catalogue/DroppedFiles.h"

#include "catalogue/PictureTree.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FilePatterns.h"
#include "platform/files/FolderListing.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace {

const QString albumPatterns = QStringLiteral("*.alb;*.mdb");

// A file name, and so the path of a URL, may be any bytes.
bool IsValidText(const QUrl& url)
{
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.toEncoded());
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

bool HasFoldersInside(const QString& folder)
{
    return QDirIterator(folder, QDir::Dirs | QDir::NoDotAndDotDot).hasNext();
}

class Sorter
{
public:
    explicit Sorter(FolderDepth depth) : depth_(depth) {}

    void Add(const QUrl& url)
    {
        // A URL that is not local gives an empty path, which is no file.
        const QFileInfo info(url.toLocalFile());
        if (info.isDir() && depth_ == FolderDepth::FoldersInside)
            AddTree(QDir::toNativeSeparators(info.absoluteFilePath()));
        else if (info.isDir())
            AddFolder(QDir::toNativeSeparators(info.absoluteFilePath()));
        else if (!info.isFile() && !IsValidText(url))
            ++files_.unusable;
        else if (!info.isFile())
            ++files_.others;
        else
            AddFile(info);
    }

    DroppedFiles Take() { return std::move(files_); }

private:
    void AddFolder(const QString& folder)
    {
        const FolderListing listing = ListFiles(folder);
        for (const QString& name : listing.names) {
            if (isPicture_.Match(name))
                AddPicture(folder, name);
        }
        for (const QString& name : listing.unusable)
            files_.unusable += isPicture_.Match(name);
        if (!listing.error.isEmpty())
            files_.unreadable += listing.error;
    }

    void AddTree(const QString& folder)
    {
        const auto found = FindPictureFiles(folder, readablePictures, [](int) { return true; });
        for (auto inside = found->byFolder.begin(); inside != found->byFolder.end(); ++inside)
            files_.pictures[inside.key()] += inside.value();
        files_.pictureCount += found->count;
        files_.unreadable += found->unreadable;
    }

    void AddFile(const QFileInfo& info)
    {
        const QString name = info.fileName();
        if (isAlbum_.Match(name))
            files_.albums += QDir::toNativeSeparators(info.absoluteFilePath());
        else if (isPicture_.Match(name))
            AddPicture(QDir::toNativeSeparators(info.absolutePath()), name);
        else
            ++files_.others;
    }

    void AddPicture(const QString& folder, const QString& name)
    {
        files_.pictures[folder] += name;
        ++files_.pictureCount;
    }

    FilePatterns isAlbum_{albumPatterns};
    FilePatterns isPicture_{readablePictures};
    FolderDepth depth_;
    DroppedFiles files_;
};

} // namespace

QStringList DroppedFiles::DescribeUnusable() const
{
    QStringList lines;
    if (unusable > 0)
        lines += tr("%n file(s) left out: their names are not valid text", nullptr, unusable);
    return lines + unreadable;
}

QStringList DroppedFiles::DescribeLeftOut() const
{
    QStringList lines;
    if (others > 0)
        lines += tr("%n file(s) left out: no pictures", nullptr, others);
    return lines + DescribeUnusable();
}

std::optional<FolderDepth> AskForDepth(const QList<QUrl>& urls)
{
    if (std::ranges::none_of(urls, [](const QUrl& url) {
            return QFileInfo(url.toLocalFile()).isDir() && HasFoldersInside(url.toLocalFile());
        }))
        return FolderDepth::Folder;
    const Dialogs::Answer answer = Dialogs::Door().Ask(
        {.text = DroppedFiles::tr("Load the pictures of the folders inside, too ?"),
         .icon = Dialogs::Icon::Question,
         .buttons = Dialogs::Buttons::YesNoCancel,
         .defaultAnswer = Dialogs::Answer::Yes});
    if (answer == Dialogs::Answer::Cancel)
        return std::nullopt;
    return answer == Dialogs::Answer::Yes ? FolderDepth::FoldersInside : FolderDepth::Folder;
}

DroppedFiles SortDroppedFiles(const QList<QUrl>& urls, FolderDepth depth)
{
    Sorter sorter(depth);
    for (const QUrl& url : urls)
        sorter.Add(url);
    return sorter.Take();
}
