// SPDX-License-Identifier: MIT
#include "LargeAlbum.h"
#include "Measurement.h"

#include "catalogue/CharacteristicModel.h"
#include "catalogue/MovedPictures.h"
#include "catalogue/Picture.h"
#include "catalogue/PictureLoading.h"
#include "catalogue/ValueCounts.h"
#include "catalogue/ValueReplacement.h"
#include "core/AlbumSets.h"
#include "platform/data/Statement.h"
#include "story/PictureFilter.h"
#include "story/PictureSearch.h"
#include "viewer/PageContent.h"

#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>

using GeneralModule::AlbumDatabase;

namespace {

constexpr int previewed = 5'000; // as many as the editor's preview lists
const QString lake = QStringLiteral("Lake");
const QString pond = QStringLiteral("Pond");

void OpenToRead(LargeAlbum& album)
{
    album.OpenToRead();
}

void OpenToChange(LargeAlbum& album)
{
    album.OpenToChange();
}

bool GoOn(int)
{
    return true;
}

void Require(bool isDone)
{
    if (!isDone)
        qFatal("the action did nothing");
}

// The files of a bare query, up to a number.
void ListBare(const QByteArray& condition, qsizetype most)
{
    Statement query(AlbumDatabase->GetEngine(),
                    "SELECT File FROM Image WHERE " + condition + " ORDER BY rowid");
    QStringList files;
    while (files.size() < most && query.Step()) {
        const std::string_view file = query.GetUtf8(0);
        files += QString::fromUtf8(file.data(), qsizetype(file.size()));
    }
    Require(!files.isEmpty());
}

Action Previewing(const char* name, int column, const QString& value, const QString& selection,
                  const char* bare)
{
    return {name, OpenToRead,
            [=](LargeAlbum&) {
                PictureQuery query{.fileSelection = selection, .linkedTo = 1};
                if (!value.isEmpty())
                    query.values[std::size_t(column)] = value;
                PictureList list;
                BuildPictureList(query, list, previewed, [](int) {});
                Require(list.Count() > 0);
            },
            [bare](LargeAlbum&) { ListBare(bare, previewed); }};
}

Action Selecting(const char* name, const QString& folder, const QString& value, const char* bare)
{
    return {name, OpenToRead,
            [=](LargeAlbum&) {
                const FoundPictures found =
                    FindSelection(folder, value, GeneralModule::maxListed, [](int) {});
                Require(!found.failure && found.list.Count() > 0);
            },
            [bare](LargeAlbum&) { ListBare(bare, GeneralModule::maxListed); }};
}

// In the slices of idle work, without the pauses between them.
template<typename Work>
void WorkThrough(Work& work)
{
    while (work.Work(std::chrono::milliseconds(5)))
        ;
}

void FindBare(const QByteArray& condition)
{
    Statement query(AlbumDatabase->GetEngine(), "SELECT rowid FROM Image WHERE " + condition);
    std::vector<qint32> found;
    while (query.Step())
        found.push_back(qint32(query.GetInteger(0)));
    Require(!found.empty());
}

Action Finding(const char* name, const SearchTerms& terms, const QByteArray& bare)
{
    return {name, OpenToRead,
            [terms](LargeAlbum&) {
                PictureSearch search(terms);
                WorkThrough(search);
                Require(search.Count() > 0);
            },
            [bare](LargeAlbum&) { FindBare(bare); }};
}

std::vector<Action> FindActions()
{
    PictureQuery bridge;
    bridge.values[2] = QStringLiteral("Bridge");
    // Each of the fields that words are looked for in.
    QByteArray word = "File LIKE '%bridge%' OR Legend LIKE '%bridge%'";
    for (int column = 0; column < columnCount; ++column)
        word += " OR " + CarField(column).toUtf8() + " LIKE '%bridge%'";
    return {Finding("find: one value, one picture in 200", {.query = bridge}, "Car2='Bridge'"),
            Finding("find: a word", {.words = QStringLiteral("bridge")}, word),
            {"pictures of each value of a column", OpenToRead,
             [](LargeAlbum&) {
                 ValueCounts counts(2);
                 WorkThrough(counts);
                 Require(counts.CountOf(QStringLiteral("Bridge")) > 0);
             },
             [](LargeAlbum&) {
                 Statement query(AlbumDatabase->GetEngine(),
                                 "SELECT Car2, count(*) FROM Image GROUP BY Car2");
                 while (query.Step())
                     Require(query.GetInteger(1) > 0);
             }}};
}

QString NewFolder(LargeAlbum& album)
{
    return album.GetFolder() + QStringLiteral("/moved");
}

void MakeFiles(LargeAlbum& album, int count)
{
    QDir().mkpath(NewFolder(album));
    for (int i = 0; i < count; ++i) {
        QFile file(NewFolder(album) + QLatin1Char('/') + LargeAlbum::NameOf(i));
        if (!file.exists() && !file.open(QIODevice::WriteOnly))
            qFatal("the files were not made");
    }
}

Action Repointing(const char* name, const QString& folder, int (*count)(const LargeAlbum&))
{
    return {name,
            [count](LargeAlbum& album) {
                MakeFiles(album, count(album));
                album.OpenToChange();
            },
            [folder, count](LargeAlbum& album) {
                Require(RepointPictures(folder, NewFolder(album), GoOn).updated == count(album));
            }};
}

void Load(LargeAlbum& album)
{
    QStringList names;
    for (int i = 0; i < album.CountPictures() / 10; ++i)
        names += QStringLiteral("new %1.jpg").arg(i);
    Require(LoadPictures(album.GetFolder(), names, GoOn) == names.size());
}

void ReplaceBare(LargeAlbum&)
{
    sqlite3* engine = AlbumDatabase->GetEngine();
    Statement(engine, "UPDATE Image SET Car1='Pond' WHERE Car1='Lake'").Run();
    Require(sqlite3_changes(engine) > 0);
    Statement(engine, "UPDATE Paragraph SET Car1='Pond' WHERE Car1 LIKE '%Lake%'").Run();
}

std::vector<Action> PictureActions()
{
    const QString file = LargeAlbum::FolderOf(5000) + LargeAlbum::NameOf(5000);
    return {
        {"describe a picture", OpenToChange,
         [file](LargeAlbum&) {
             const Picture shown = *ReadPicture(file);
             Picture edited = shown;
             edited.values[1] = QStringLiteral("Waterfall");
             StorePicture(file, shown, edited);
         }},
        {"take a picture out", OpenToChange,
         [file](LargeAlbum&) { Require(TakeOutPicture(file, false).isEmpty()); }},
        {"count the pictures, after a drop", OpenToRead,
         [](LargeAlbum& album) { Require(CountPictures() == album.CountPictures()); }},
        {"load a tenth as many pictures", OpenToChange, Load},
        {"list the folders of all pictures", OpenToRead,
         [](LargeAlbum&) { Require(!PictureFolders().isEmpty()); },
         [](LargeAlbum& album) { ListBare("1", album.CountPictures()); }},
        Repointing("re-point the pictures of one folder", LargeAlbum::FolderOf(0),
                   [](const LargeAlbum&) { return 500; }),
        Repointing("re-point all pictures", QStringLiteral("/home/anna/pictures/"),
                   [](const LargeAlbum& album) { return album.CountPictures(); }),
    };
}

} // namespace

std::vector<Action> CatalogueActions()
{
    std::vector<Action> actions{
        Previewing("filter: one value, one picture in 200", 2, QStringLiteral("Bridge"), {},
                   "Car2='Bridge'"),
        Previewing("filter: one value, no picture", 3, QStringLiteral("Value 0"), {},
                   "Car3='Value 0' OR Car6='Value 0' OR rowid=1"),
        Previewing("filter: a folder", 0, {}, LargeAlbum::FolderOf(5000) + QStringLiteral("*"),
                   "File GLOB '/home/anna/pictures/10/*'"),
        Selecting("selection: all pictures", {}, QStringLiteral("*"), "1"),
        Selecting("selection: a folder", LargeAlbum::FolderOf(5000) + QStringLiteral("*.*"),
                  QStringLiteral("*"), "File GLOB '/home/anna/pictures/10/*.*'"),
        Selecting("selection: not indexed", {}, QStringLiteral("-"),
                  "Car0='-' AND Car1='-' AND Car2='-' AND Car3='-'"),
        {"add a value", OpenToChange,
         [](LargeAlbum&) { Require(!AddValueToTable(1, QStringLiteral("Waterfall")).isEmpty()); }},
        {"delete a value", OpenToChange, [](LargeAlbum&) { RemoveValueFromTable(1, lake); }},
        {"replace a value, one picture in 20", OpenToChange,
         [](LargeAlbum&) { Require(ReplaceValue(1, lake, pond, GoOn)->pictures > 0); },
         ReplaceBare},
        {"replace a value that no picture has", OpenToChange,
         [](LargeAlbum&) { ReplaceValue(4, lake, pond, GoOn); }},
    };
    for (const std::vector<Action>& more : {PictureActions(), FindActions()})
        actions.insert(actions.end(), more.begin(), more.end());
    return actions;
}
