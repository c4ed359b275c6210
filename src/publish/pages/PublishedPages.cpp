// SPDX-License-Identifier: MIT
#include "publish/pages/PublishedPages.h"

#include "platform/files/FileReplacement.h"
#include "publish/PublishFolder.h"
#include "publish/pages/WebPages.h"
#include "publish/pages/WebPictures.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QHash>

#include <mutex>
#include <system_error>
#include <utility>

namespace {

constexpr int insideEdge = 960; // longest edge of a picture inside a single page, in pixels

struct PagesTexts
{
    Q_DECLARE_TR_FUNCTIONS(PublishedPages)
};

PublishReport ReportOn(const PublishedStory& story, const WebPictures& pictures)
{
    PublishReport report;
    report.troubles = story.troubles;
    pictures.AddTo(report);
    return report;
}

void RequireStory(const PublishedStory& story)
{
    if (story.chapters.empty())
        throw PublishError(
            PagesTexts::tr("There is no story to publish: the album has no chapter."));
}

void RequireWhole(bool isWritten, const QFileDevice& file)
{
    if (!isWritten)
        throw PublishError(
            PagesTexts::tr("The pages cannot be written: %1").arg(file.errorString()));
}

void WriteInFolder(PublishFolder& folder, const QString& name, const QString& version,
                   const QByteArray& bytes)
{
    QFile file(folder.PathFor(name, version));
    RequireWhole(
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush(), file);
}

// A page is made again each time, which takes no time, but written only where it has changed.
void WritePage(PublishFolder& folder, const QString& name, const QByteArray& contents)
{
    const QString version =
        QString::fromLatin1(QCryptographicHash::hash(contents, QCryptographicHash::Sha1).toHex());
    if (!folder.Keeps(name, version))
        WriteInFolder(folder, name, version, contents);
}

class FilesInFolder : public WebPictureFiles
{
public:
    explicit FilesInFolder(PublishFolder& folder) : folder_(folder) {}

    bool Keeps(const QString& name, const QString& version) override
    {
        return folder_.Keeps(name, version);
    }
    void Write(const QString& name, const QString& version, const QByteArray& bytes) override
    {
        WriteInFolder(folder_, name, version, bytes);
    }

private:
    PublishFolder& folder_;
};

// Those of a single page: they wait in a file of their own until it is known which there are, which
// the page must know.
class FilesInside : public WebPictureFiles
{
public:
    explicit FilesInside(const QString& path) : store_(path)
    {
        RequireWhole(store_.open(QIODevice::ReadWrite | QIODevice::Truncate), store_);
    }

    bool Keeps(const QString&, const QString&) override { return false; }
    void Write(const QString& name, const QString&, const QByteArray& bytes) override
    {
        const std::lock_guard lock(mutex_);
        places_.insert(name.toUtf8(), {store_.pos(), bytes.size()});
        RequireWhole(store_.write(bytes) == bytes.size(), store_);
    }

    QByteArray Read(const QByteArray& name)
    {
        const auto [position, length] = places_.value(name);
        RequireWhole(store_.seek(position), store_);
        const QByteArray bytes = store_.read(length);
        RequireWhole(bytes.size() == length, store_);
        return bytes;
    }

private:
    QFile store_;
    std::mutex mutex_;
    QHash<QByteArray, std::pair<qint64, qint64>> places_; // position and length, by name
};

// The page with its pictures in place of their names.
void WriteWithPictures(const QByteArray& page, FilesInside& pictures, QFile& file)
{
    bool isName = false;
    for (const QByteArray& part : page.split(WebPages::insideMark)) {
        const QByteArray bytes =
            isName ? "data:image/jpeg;base64," + pictures.Read(part).toBase64() : part;
        RequireWhole(file.write(bytes) == bytes.size(), file);
        isName = !isName;
    }
    RequireWhole(file.flush(), file);
}

bool WriteSinglePage(const PublishedStory& story, WebPictures& pictures,
                     const FileReplacement& replacement, const PublishProgress& progress)
{
    FilesInside files(replacement.GetHelperPath());
    if (!pictures.MakeFiles(files, progress))
        return false;
    QFile file(replacement.GetPath());
    RequireWhole(file.open(QIODevice::WriteOnly), file);
    WriteWithPictures(WebPages(story, pictures, WebPages::Form::Single).MakeSingle(), files, file);
    return true;
}

} // namespace

PublishReport PublishPages(const PublishedStory& story, const PageOptions& options,
                           const QString& folder, const PublishProgress& progress)
{
    RequireStory(story);
    PublishFolder target(folder, QStringLiteral("web"));
    WebPictures pictures(story, {options.size / 4, options.size / 2, options.size});
    FilesInFolder files(target);
    if (!pictures.MakeFiles(files, progress))
        return {.isStopped = true};
    const WebPages pages(story, pictures, WebPages::Form::Folder);
    WritePage(target, QStringLiteral("story.css"), WebPages::GetStyle());
    WritePage(target, QStringLiteral("story.js"), WebPages::GetScript());
    for (std::size_t i = 0; i < story.chapters.size(); ++i)
        WritePage(target, WebPages::ChapterName(story.chapters[i]), pages.MakeChapter(i));
    WritePage(target, QStringLiteral("index.html"), pages.MakeFront());
    target.Commit();
    return ReportOn(story, pictures);
}

PublishReport PublishSinglePage(const PublishedStory& story, const QString& target,
                                const PublishProgress& progress)
{
    RequireStory(story);
    WebPictures pictures(story, {insideEdge});
    try {
        FileReplacement replacement(target);
        if (!WriteSinglePage(story, pictures, replacement, progress))
            return {.isStopped = true};
        replacement.Commit();
    } catch (const std::system_error& error) {
        throw PublishError(PagesTexts::tr("The pages cannot be written: %1")
                               .arg(QString::fromLocal8Bit(error.what())));
    }
    return ReportOn(story, pictures);
}
