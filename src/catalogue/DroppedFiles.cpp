// SPDX-License-Identifier: MIT
#include "catalogue/DroppedFiles.h"

#include "catalogue/PictureTree.h"
#include "platform/files/FilePatterns.h"
#include "platform/files/FolderListing.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString albumPatterns = QStringLiteral("*.alb;*.mdb");

// A file name, and so the path of a URL, may be any bytes.
bool IsValidText(const QUrl& url)
{
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.toEncoded());
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

class Sorter
{
public:
    void Add(const QUrl& url)
    {
        // A URL that is not local gives an empty path, which is no file.
        const QFileInfo info(url.toLocalFile());
        if (info.isDir())
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

DroppedFiles SortDroppedFiles(const QList<QUrl>& urls)
{
    Sorter sorter;
    for (const QUrl& url : urls)
        sorter.Add(url);
    return sorter.Take();
}
