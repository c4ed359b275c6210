// SPDX-License-Identifier: MIT
#include "publish/album/TravellingAlbum.h"

#include "core/AlbumSets.h"
#include "core/EarlierStates.h"
#include "platform/data/DatabaseCopy.h"
#include "platform/data/ReadLock.h"
#include "platform/files/PathRoutines.h"
#include "publish/PublishFolder.h"
#include "publish/WorkAside.h"
#include "publish/album/AlbumRewriting.h"
#include "publish/album/PictureCopying.h"
#include "publish/album/TravelPatterns.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSet>

using namespace GeneralModule;

namespace {

struct TravelTexts
{
    Q_DECLARE_TR_FUNCTIONS(TravellingAlbum)
};

// The open one, also while it is an earlier state of it.
QString AlbumItself()
{
    const QString path = AlbumDatabase->GetPath();
    QString album;
    return IsEarlierState(path, &album) ? album : path;
}

QString RealPath(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QFileInfo(path).absoluteFilePath()) : canonical;
}

class Taking
{
public:
    Taking(const TravelOptions& options, const QString& folder, const PublishProgress& progress)
        : options_(options), place_(folder), progress_(progress)
    {
    }

    PublishReport Run()
    {
        RequireElsewhere({AlbumItself()});
        std::optional<PublishFolder> folder;
        // Much may have to be removed.
        Aside([&] { folder.emplace(place_, QStringLiteral("album")); });
        const auto release = qScopeGuard([&] { Aside([&] { folder.reset(); }); });
        albumName_ = LegalName(FileNameOf(AlbumItself()));
        if (!albumName_.contains(u'.')) // else it might be called as the pictures' folder is
            albumName_ += QStringLiteral(".alb");
        albumPath_ = folder->PathFor(albumName_, {});
        RequireQuiet();
        report_.isStopped = !(Read() && Copy(*folder) && Rewrite());
        if (!report_.isStopped) {
            RequireQuiet();
            folder->PathFor(albumName_, {}); // leads to all others, so it comes last
            Aside([&] { folder->Commit(); });
        }
        return report_;
    }

private:
    bool Advance(int done)
    {
        done_ = before_ + done;
        return progress_(done_, total_);
    }

    // What cannot be stopped, without holding up the windows.
    void Aside(const std::function<void()>& work)
    {
        WorkAside(
            1, [&work](const auto&) { work(); },
            [this] {
                progress_(done_, total_);
                return true;
            });
    }

    // Nothing that is to be copied may be replaced.
    void RequireElsewhere(const QStringList& files) const
    {
        const QString inside = RealPath(place_) + u'/';
        QSet<QString> folders;
        for (const QString& file : files)
            folders.insert(QFileInfo(file).path());
        for (const QString& folder : folders) {
            if ((RealPath(folder) + u'/').startsWith(inside))
                throw PublishError(
                    TravelTexts::tr("The folder \"%1\" holds files that the album itself uses. "
                                    "Choose another folder.")
                        .arg(QDir::toNativeSeparators(place_)));
        }
    }

    // The engine would play the journal of the former copy back into the new one.
    void RequireQuiet() const
    {
        const QString former = QDir(place_).filePath(albumName_);
        for (const char* ending : {"-journal", "-wal", "-shm"}) {
            if (QFileInfo::exists(former + QLatin1String(ending)))
                throw PublishError(
                    TravelTexts::tr("The album \"%1\" is being changed, or a change of it broke "
                                    "off. Open it and close it, then try again.")
                        .arg(QDir::toNativeSeparators(former)));
        }
    }

    // The album's contents and its file as they are at one time.
    bool Read()
    {
        const ReadLock lock(*AlbumDatabase);
        const auto step = [this](int done, int all) {
            total_ = 2 * all;
            return Advance(done);
        };
        const std::optional<TravelContents> contents = ReadTravelContents(step);
        if (!contents)
            return false;
        if (options_.onlyStory && contents->paragraphs.empty())
            throw PublishError(TravelTexts::tr("The album has no story yet, so that there are no "
                                               "pictures that it shows."));
        contents_ = options_.onlyStory ? OnlyShown(*contents) : *contents;
        QStringList sources;
        for (const TravelPicture& picture : contents_.pictures)
            sources += picture.source;
        RequireElsewhere(sources);
        before_ = int(contents_.paragraphs.size());
        total_ = 2 * before_ + int(contents_.pictures.size());
        QFile file(albumPath_);
        if (!file.open(QIODevice::WriteOnly))
            throw PublishError(file.errorString());
        file.close();
        return CloneDatabaseFile(*AlbumDatabase, albumPath_, [this](int) { return Advance(0); });
    }

    bool Copy(PublishFolder& folder)
    {
        names_ = ChooseTravelNames(contents_, [this](int, int) { return Advance(0); });
        if (!names_)
            return false;
        std::vector<PictureToCopy> pictures;
        pictures.reserve(contents_.pictures.size());
        for (int i = 0; i < int(contents_.pictures.size()); ++i)
            pictures.push_back({contents_.pictures[std::size_t(i)].source, names_->NameOf(i)});
        const auto copied = CopyPictures(pictures, options_.longestEdge, folder,
                                         [this](int done, int) { return Advance(done); });
        if (!copied)
            return false;
        for (std::size_t i = 0; i < copied->size(); ++i)
            Take((*copied)[i], contents_.pictures[i].file);
        before_ += int(copied->size());
        return true;
    }

    void Take(const CopiedPicture& picture, const QString& file)
    {
        copyNames_ += picture.name;
        if (picture.result == CopyResult::Missing)
            report_.missing += file;
        else if (picture.isDamaged || picture.result == CopyResult::Unreadable)
            report_.damaged += file;
        const bool isMade = picture.result == CopyResult::Copied;
        report_.made += isMade ? 1 : 0;
        report_.pictures += isMade || picture.result == CopyResult::Kept ? 1 : 0;
    }

    bool Rewrite()
    {
        const auto troubles = RewriteAlbum({albumPath_, contents_, copyNames_, *names_},
                                           [this](int done, int) { return Advance(done); });
        QFile::setPermissions(albumPath_,
                              QFile::permissions(AlbumDatabase->GetPath()) | QFile::WriteOwner);
        report_.troubles = troubles.value_or(QStringList());
        before_ = total_;
        return troubles.has_value();
    }

    TravelOptions options_;
    QString place_;
    const PublishProgress& progress_;
    PublishReport report_;
    QString albumName_;
    QString albumPath_; // where the copy is made
    TravelContents contents_;
    std::optional<TravelNames> names_;
    QStringList copyNames_; // of the pictures, by their numbers
    int before_ = 0;        // steps of the work, before this part of it
    int done_ = 0;
    int total_ = 0;
};

} // namespace

PublishReport TakeAlbumAlong(const TravelOptions& options, const QString& folder,
                             const PublishProgress& progress)
{
    return Taking(options, folder, progress).Run();
}
