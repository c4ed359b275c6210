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

void Require(bool isDone)
{
    if (!isDone)
        throw std::runtime_error("the work was refused");
}

void ChangeChapters(const QString&, int step)
{
    std::mt19937 random{std::uint32_t(step)};
    const QStringList names = ChapterNames();
    const QString chosen = names.value(qsizetype(random() % std::size_t(names.size())));
    switch (random() % 6) {
    case 0:
    case 1:
        CreateChapter(QStringLiteral("New %1").arg(step), chosen);
        break;
    case 2:
        DeleteChapter(chosen);
        break;
    case 3:
        RenameChapter(FindChapter(chosen).value(), QStringLiteral("Named %1").arg(step));
        break;
    case 4:
        MoveChapterUp(chosen);
        break;
    default:
        MoveChapterDown(chosen);
    }
}

// The paragraph that was created last, when it was not saved since; 0 when there is none.
qint32 UnsavedParagraph(qint32& chapter)
{
    qint32 newest = 0;
    for (ParagraphSet->MoveFirst(); !ParagraphSet->AtEnd(); ParagraphSet->MoveNext())
        newest = ParagraphSet->Number(u"Id");
    FindById(*ParagraphSet, newest);
    chapter = ParagraphSet->Number(u"Chapter");
    for (const ParagraphLine& line : ListParagraphs(chapter)) {
        if (line.paragraph == newest)
            return 0;
    }
    return newest;
}

ParagraphDraft Edited(const ParagraphPlace& place, int step)
{
    ParagraphContent content;
    content.text = QStringLiteral("written in step %1").arg(step);
    content.values.fill(anyValue);
    return {LoadParagraph(place.paragraph), content};
}

void ChangeParagraphs(const QString&, int step)
{
    std::mt19937 random{std::uint32_t(step)};
    ParagraphPlace place;
    place.paragraph = UnsavedParagraph(place.chapter);
    if (place.paragraph != 0)
        return SaveParagraph(place, Edited(place, step));
    place.chapter = 1 + qint32(random() % 6);
    const std::vector<ParagraphLine> lines = ListParagraphs(place.chapter);
    if (lines.empty())
        return CreateFirstParagraph(place);
    place.paragraph = lines[random() % lines.size()].paragraph;
    switch (random() % 6) {
    case 0:
        CreateNextParagraph(place, Edited(place, step));
        break;
    case 1:
        DeleteParagraph(place);
        break;
    case 2:
    case 3:
        MoveParagraphDown(place);
        break;
    case 4:
        MoveParagraphUp(place);
        break;
    default:
        SaveParagraph(place, Edited(place, step));
    }
}

void Describe(const QString&, int step)
{
    std::mt19937 random{std::uint32_t(step)};
    const QString file = QStringLiteral("/p/%1.jpg").arg(1 + random() % 100);
    const std::optional<Picture> shown = ReadPicture(file);
    Picture edited = shown.value();
    switch (random() % 3) {
    case 0:
        edited.legend = QStringLiteral("described in step %1").arg(step);
        edited.values[4] = QStringLiteral("Value %1").arg(step);
        StorePicture(file, *shown, edited);
        break;
    case 1:
        SetLinked(1 + qint32(random() % 9), file, random() % 3 != 0);
        break;
    default:
        SetParam(QStringLiteral("P%1").arg(random() % 5), QString::number(step));
    }
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

// The newest state that no earlier one has replaced.
QString LastKept(const QString& album)
{
    for (const EarlierState& state : EarlierStatesOf(album)) {
        if (!state.isReplaced)
            return state.path;
    }
    return {};
}

// A state is kept, the album changes, and the state is taken back whole or in part.
void ComeAndGo(const QString&, int step)
{
    const QString album = OpenAlbumPath();
    const QString password = AlbumDatabase->GetPassword();
    switch (step % 6) {
    case 0:
        KeepState(false);
        break;
    case 1:
    case 3:
        CreateChapter(QStringLiteral("New %1").arg(step), ChapterNames().first());
        break;
    case 2:
        Require(TakeBackState(LastKept(album), password, album));
        break;
    case 4: {
        const OpenState state(LastKept(album), password);
        TakeBackChapters(state, {state.Chapters().back().id}, ReturnPlace::InPlaceOfSame);
        break;
    }
    default:
        CreateChapter(QStringLiteral("Newer %1").arg(step), ChapterNames().last());
    }
}

// A change is made, taken back and made again; one that adds no row, since the numbers of new rows
// are not taken back. It depends on the album alone, because a program that was killed has
// forgotten what could be undone.
void UndoAndRedo(const QString&, int step)
{
    {
        const UndoStep change(QStringLiteral("Change"));
        const bool isBack = step % 4 == 2;
        if (step % 2 == 0)
            Require(ReplaceValue(3, isBack ? "Cleo" : "Anna", isBack ? "Anna" : "Cleo", [](int) {
                        return true;
                    })->pictures > 0);
        else
            Require(DeleteChapter(ChapterNames().last()) == ChapterDeletion::Deleted);
    }
    Require(!Undo().isEmpty());
    Require(!Redo().isEmpty());
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
