// SPDX-License-Identifier: MIT
#include "fuzz/kill/LongWork.h"

#include "catalogue/FoundPictures.h"
#include "catalogue/MovedPictures.h"
#include "catalogue/Picture.h"
#include "catalogue/PictureLoading.h"
#include "catalogue/ValueReplacement.h"
#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "core/AlbumRepair.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/EarlierStates.h"
#include "core/Parameters.h"
#include "core/StateKeeping.h"
#include "core/StateReturn.h"
#include "core/UndoSteps.h"
#include "core/oldalbum/OldAlbumConversion.h"
#include "fuzz/kill/StepWork.h"
#include "story/ParagraphLinks.h"
#include "story/ParagraphMoves.h"
#include "support/AlbumFixture.h"

#include <QDir>
#include <QFile>

#include <random>
#include <stdexcept>

using namespace GeneralModule;

namespace {

constexpr int rows = 3000;
constexpr int movedPictures = 1500;

const QString storyName = QStringLiteral("story.alb");

// %1 numbers from 1 on, as i.
QString Numbers(int count)
{
    return QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE "
                          "i<%1) ")
        .arg(count);
}

QString Pictures(int count, const QString& path)
{
    return Numbers(count) + "INSERT INTO Image(File,Legend,Car0,Car3,Car6) SELECT " + path +
           ",'legend '||i,'-',CASE i%3 WHEN 0 THEN 'Anna' ELSE 'Bert' END,"
           "CASE i%5 WHEN 0 THEN 'anna' ELSE '-' END FROM n;";
}

// Chapters 1 to count, linked both ways.
QString Chapters(int count)
{
    return Numbers(count) + QStringLiteral("INSERT INTO Chapter(Id,Name,PreviousChapter,"
                                           "NextChapter) SELECT i,'C'||i,i-1,(i+1)%%1 FROM n;")
                                .arg(count + 1);
}

// So many in each of the first chapters, linked both ways.
QString Paragraphs(int chapters, int each)
{
    const QString insert =
        "INSERT INTO Paragraph(Id,Chapter,PreviousParagraph,NextParagraph,Text,FileSelection,Car3) "
        "SELECT i,(i-1)/%1+1,CASE i%%1 WHEN 1 THEN 0 ELSE i-1 END,CASE i%%1 WHEN 0 THEN 0 ELSE i+1 "
        "END,'text '||i,'',CASE i%4 WHEN 0 THEN 'Bert;Anna' ELSE '*' END FROM n;"
        "UPDATE Chapter SET FirstParagraph=(Id-1)*%1+1 WHERE Id<=%2;";
    return Numbers(chapters * each) + insert.arg(QString::number(each), QString::number(chapters));
}

// An album that holds what the statements say.
std::function<void(const QString&)> Prepare(const QString& sql)
{
    return [sql](const QString& folder) {
        const AlbumFixture album;
        album.Execute("BEGIN;" + sql + "COMMIT");
        ReleaseAlbum();
        if (!QFile::copy(album.GetAlbum(), folder + '/' + storyName))
            qFatal("the album cannot be copied");
    };
}

LongWork OfAlbum(const QString& name, const QString& sql,
                 std::function<void(const QString&, int)> run)
{
    LongWork work;
    work.name = name;
    work.place = storyName;
    work.prepare = Prepare(sql);
    work.run = std::move(run);
    return work;
}

LongWork Loading()
{
    QStringList names;
    for (int i = 0; i < 2 * rows; ++i)
        names += QStringLiteral("new %1.jpg").arg(i);
    LongWork work = OfAlbum("loading pictures", Pictures(300, "'/p/'||i||'.jpg'"),
                            [names](const QString&, int) {
                                LoadPictures(QDir::rootPath(), names, [](int) { return true; });
                            });
    work.commits = LongWork::Commits::OnItsWay;
    return work;
}

LongWork Repointing()
{
    LongWork work = OfAlbum("re-pointing pictures", Pictures(movedPictures, "'/gone/'||i||'.jpg'"),
                            [](const QString& folder, int) {
                                const RepointedPictures moved = RepointPictures(
                                    QStringLiteral("/gone/"), folder + "/../pictures/",
                                    [](int) { return true; });
                                Require(moved.alreadyHeld == 0);
                            });
    work.commits = LongWork::Commits::OnItsWay;
    work.prepare = [prepare = work.prepare](const QString& folder) {
        prepare(folder);
        for (int i = 1; i <= movedPictures; ++i)
            WriteFile(folder + QStringLiteral("/../pictures/%1.jpg").arg(i));
    };
    return work;
}

// With links to the pictures, and paragraphs that name their folder.
LongWork TakingFound()
{
    const QString links = Numbers(movedPictures) +
                          "INSERT INTO LinkedImages SELECT i%9,'/gone/'||i||'.jpg' FROM n;"
                          "UPDATE Paragraph SET FileSelection='/gone/*.*' WHERE Id%2=0;";
    return OfAlbum("taking found paths",
                   Pictures(movedPictures, "'/gone/'||i||'.jpg'") + Chapters(3) +
                       Paragraphs(3, 20) + links,
                   [](const QString&, int) {
                       std::vector<FoundPicture> found;
                       for (int i = 1; i <= movedPictures; ++i)
                           found.push_back({{i, QStringLiteral("/gone/%1.jpg").arg(i)},
                                            {QStringLiteral("/found/%1.jpg").arg(i)},
                                            0});
                       const auto taken = TakeFound(found, [](int) { return true; });
                       Require(taken && taken->links == movedPictures && taken->patterns > 0);
                   });
}

// The clean-up of an album that an older program wrote.
LongWork Opening()
{
    LongWork work = OfAlbum(
        "opening", Chapters(10) + Paragraphs(10, 300) + "UPDATE Paragraph SET FileSelection=NULL;",
        [](const QString& folder, int) { Require(OpenAlbum(folder + '/' + storyName)); });
    work.commits = LongWork::Commits::OnItsWay;
    work.album = LongWork::Album::Closed;
    work.canBeLocked = false;
    return work;
}

LongWork Repairing()
{
    LongWork work = OfAlbum("repair",
                            Chapters(40) + Paragraphs(40, 40) +
                                "UPDATE Paragraph SET NextParagraph=0, PreviousParagraph=0 WHERE "
                                "Id%7=0; UPDATE Chapter SET NextChapter=0 WHERE Id%5=0;" +
                                Pictures(rows, "'/p/'||i||'.jpg'"),
                            [](const QString&, int) { Require(!RepairAlbum().copy.isEmpty()); });
    work.hasWholeChains = false;
    return work;
}

LongWork SettingPassword(const QString& name, const QString& before, const QString& after)
{
    LongWork work = OfAlbum(name, {}, [after](const QString&, int) { SetAlbumPassword(after); });
    work.canBeLocked = false;
    const QString sql = Pictures(rows, "'/p/'||i||'.jpg'") + Chapters(5) + Paragraphs(5, 20);
    work.prepare = [prepare = Prepare(sql), before](const QString& folder) {
        prepare(folder);
        const QString album = folder + '/' + storyName;
        QFile::setPermissions(album, QFile::ReadOwner | QFile::WriteOwner);
        Require(OpenAlbum(album));
        if (!before.isEmpty())
            SetAlbumPassword(before);
        ReleaseAlbum();
    };
    return work;
}

LongWork Creating(const QString& name, bool isOver)
{
    LongWork work = OfAlbum(name, Pictures(50, "'/p/'||i"), [](const QString& folder, int) {
        Require(CreateAlbumFile(folder + '/' + storyName));
    });
    if (!isOver)
        work.prepare = [](const QString&) {};
    work.album = LongWork::Album::Closed;
    work.canBeLocked = false;
    return work;
}

LongWork Converting(const QString& oldAlbum, const QString& password)
{
    LongWork work;
    work.name = password.isEmpty() ? QStringLiteral("conversion")
                                   : QStringLiteral("conversion with a password");
    work.place = QStringLiteral("new.alb");
    work.album = LongWork::Album::Closed;
    work.canBeLocked = false;
    work.prepare = [oldAlbum](const QString& folder) {
        if (!QFile::copy(oldAlbum, folder + "/old.alb"))
            qFatal("the old album cannot be copied");
    };
    work.run = [password](const QString& folder, int) {
        OldAlbumFile old(folder + "/old.alb");
        ConvertOldAlbum(old, {.target = folder + "/new.alb", .password = password});
    };
    return work;
}

} // namespace

std::vector<LongWork> EveryLongWork(const QString& oldAlbum)
{
    std::vector<LongWork> all{Loading(), Repointing(), TakingFound(), Opening(), Repairing()};
    all.push_back(OfAlbum(
        "replacing a value", Pictures(rows, "'/p/'||i||'.jpg'") + Chapters(10) + Paragraphs(10, 40),
        [](const QString&, int) {
            Require(ReplaceValue(3, "Anna", "Cleo", [](int) { return true; })->pictures > 0);
        }));
    const auto addSteps = [&all](const QString& name, const QString& sql, auto change) {
        LongWork work = OfAlbum(name, sql, change);
        work.steps = 60;
        all.push_back(work);
    };
    addSteps("changing chapters", Chapters(40) + Paragraphs(12, 2), ChangeChapters);
    addSteps("changing paragraphs", Chapters(8) + Paragraphs(6, 4), ChangeParagraphs);
    addSteps("describing pictures", Pictures(100, "'/p/'||i||'.jpg'"), Describe);
    addSteps("keeping and taking back states",
             Chapters(6) + Paragraphs(6, 30) + Pictures(rows, "'/p/'||i||'.jpg'"), ComeAndGo);
    all.back().steps = 18;
    addSteps("undoing and redoing",
             Chapters(24) + Paragraphs(12, 30) + Pictures(rows, "'/p/'||i||'.jpg'"), UndoAndRedo);
    all.back().steps = 20;
    all.push_back(SettingPassword("setting a password", {}, newPassword));
    all.push_back(SettingPassword("changing a password", oldPassword, newPassword));
    all.push_back(SettingPassword("removing a password", oldPassword, {}));
    all.push_back(Creating("creating an album", false));
    all.push_back(Creating("creating over an album", true));
    if (!oldAlbum.isEmpty()) {
        all.push_back(Converting(oldAlbum, {}));
        all.push_back(Converting(oldAlbum, newPassword));
    }
    return all;
}
