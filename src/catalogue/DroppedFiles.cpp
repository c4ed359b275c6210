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

bool HaveFoldersInside(const QList<QUrl>& urls)
{
    return std::ranges::any_of(urls, [](const QUrl& url) {
        const QString path = url.toLocalFile();
        return QFileInfo(path).isDir() &&
               QDirIterator(path, QDir::Dirs | QDir::NoDotAndDotDot).hasNext();
    });
}

class Sorter
{
public:
    Sorter(bool isDeep, const std::function<bool()>& isStopped)
        : isDeep_(isDeep), isStopped_(isStopped)
    {
    }

    // None when it was stopped.
    std::optional<DroppedFiles> Sort(const QList<QUrl>& urls)
    {
        for (const QUrl& url : urls) {
            if (!isStopped_())
                Add(url);
        }
        if (isStopped_())
            return std::nullopt;
        return std::move(files_);
    }

private:
    void Add(const QUrl& url)
    {
        // A URL that is not local gives an empty path, which is no file.
        const QFileInfo info(url.toLocalFile());
        if (info.isDir() && isDeep_)
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
        const auto found =
            FindPictureFiles(folder, readablePictures, [this](int) { return !isStopped_(); });
        if (!found)
            return;
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
    bool isDeep_;
    const std::function<bool()>& isStopped_;
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

std::optional<DroppedFiles> SortDroppedFiles(const QList<QUrl>& urls, bool asksForFolders)
{
    bool isDeep = asksForFolders && HaveFoldersInside(urls);
    if (isDeep) {
        const Dialogs::Answer answer = Dialogs::Door().Ask(
            {.text = DroppedFiles::tr("Load the pictures of the folders inside, too ?"),
             .icon = Dialogs::Icon::Question,
             .buttons = Dialogs::Buttons::YesNoCancel,
             .defaultAnswer = Dialogs::Answer::Yes});
        if (answer == Dialogs::Answer::Cancel)
            return std::nullopt;
        isDeep = answer == Dialogs::Answer::Yes;
    }
    std::optional<DroppedFiles> files;
    RunLong(DroppedFiles::tr("The pictures in the folders are being looked for..."), true,
            [&](const auto& isStopped) { files = Sorter(isDeep, isStopped).Sort(urls); });
    return files;
}
