// SPDX-License-Identifier: MIT
// The catalogue's long work against the bare engine, and how fast the indexing window opens.
#include "../SideBySide.h"

#include "catalogue/CharacteristicModel.h"
#include "catalogue/PictureGroup.h"
#include "catalogue/PictureLoading.h"
#include "catalogue/PictureTree.h"
#include "catalogue/ValueReplacement.h"
#include "catalogue/frmEditImage.h"
#include "core/Album.h"
#include "core/AlbumSets.h"
#include "platform/data/WriteBatch.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FolderListing.h"

#include <sqlcipher/sqlite3.h>

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdlib>

using GeneralModule::AlbumDatabase;

namespace {

constexpr int files = 100'000;
constexpr int pictures = 1'000'000;
constexpr int valuesPerTable = 5'000;
constexpr int rowsPerCommit = 1000;

// A new album, open as the program's own.
class Album
{
public:
    Album()
    {
        const QString path = folder_.filePath(QStringLiteral("story.alb"));
        QFile::copy(QStringLiteral(TEMPLATE_FILE), path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        if (!GeneralModule::OpenAlbum(path))
            std::abort();
    }
    ~Album() { GeneralModule::ReleaseAlbum(); }

    QString GetFolder() const { return folder_.path(); }
    sqlite3* GetEngine() const { return AlbumDatabase->GetEngine(); }
    void Execute(const char* sql) const { AlbumDatabase->Execute(sql); }

private:
    QTemporaryDir folder_;
};

QStringList FileNames()
{
    QStringList names;
    for (int i = 0; i < files; ++i)
        names.append(QStringLiteral("holiday at the sea %1.jpg").arg(i, 6, 10, QLatin1Char('0')));
    return names;
}

void Load_Ours(benchmark::State& state)
{
    const QStringList names = FileNames();
    for (auto _ : state) {
        state.PauseTiming();
        auto album = std::make_unique<Album>();
        state.ResumeTiming();
        if (LoadPictures(album->GetFolder(), names, [](int) { return true; }) != files)
            state.SkipWithError("not all were loaded");
        state.PauseTiming();
        album.reset();
        state.ResumeTiming();
    }
}

void LoadBare(const Album& album, const QStringList& names)
{
    Statement find(album.GetEngine(), "SELECT rowid FROM Image WHERE File=?1");
    Statement insert(album.GetEngine(),
                     "INSERT INTO Image (File,Car0,Car1,Car2,Car3,Car4,Car5,Car6,Car7,Car8,Car9,"
                     "Car10,Car11,Legend) VALUES (?1,'-','-','-','-','-','-','-','-','-','-','-',"
                     "'-','')");
    const QString folder = album.GetFolder() + QLatin1Char('/');
    album.Execute("BEGIN IMMEDIATE");
    int rows = 0;
    for (const QString& name : names) {
        const QString path = folder + name;
        find.Bind(1, path);
        if (!find.Step()) {
            insert.Bind(1, path);
            insert.Run();
        }
        if (++rows % rowsPerCommit == 0) {
            album.Execute("COMMIT");
            album.Execute("BEGIN IMMEDIATE");
        }
    }
    album.Execute("COMMIT");
}

void Load_Bare(benchmark::State& state)
{
    const QStringList names = FileNames();
    for (auto _ : state) {
        state.PauseTiming();
        auto album = std::make_unique<Album>();
        state.ResumeTiming();
        LoadBare(*album, names);
        state.PauseTiming();
        album.reset();
        state.ResumeTiming();
    }
}

// The same number in 1,000 folders, against all in one.
void LoadTree_Ours(benchmark::State& state)
{
    const QStringList names = FileNames();
    constexpr int folders = 1000;
    for (auto _ : state) {
        state.PauseTiming();
        auto album = std::make_unique<Album>();
        for (int i = 0; i < folders; ++i)
            QDir(album->GetFolder()).mkpath(QString::number(i));
        for (int i = 0; i < files; ++i)
            QFile(album->GetFolder() + QStringLiteral("/%1/").arg(i % folders) + names[i])
                .open(QFile::WriteOnly);
        state.ResumeTiming();
        const auto tree =
            FindPictureFiles(album->GetFolder(), QStringLiteral("*.jpg"), [](int) { return true; });
        if (LoadPictures(tree->byFolder, [](int) { return true; }) != files)
            state.SkipWithError("not all were loaded");
        state.PauseTiming();
        album.reset();
        state.ResumeTiming();
    }
}

void LoadTree_Bare(benchmark::State& state)
{
    const QStringList names = FileNames();
    for (auto _ : state) {
        state.PauseTiming();
        auto album = std::make_unique<Album>();
        for (const QString& name : names)
            QFile(album->GetFolder() + u'/' + name).open(QFile::WriteOnly);
        state.ResumeTiming();
        if (LoadPictures(album->GetFolder(), ListFiles(album->GetFolder()).names.filter(".jpg"),
                         [](int) { return true; }) != files)
            state.SkipWithError("not all were loaded");
        state.PauseTiming();
        album.reset();
        state.ResumeTiming();
    }
}

void FillMillion(const Album& album)
{
    album.Execute("BEGIN");
    Statement image(album.GetEngine(),
                    "INSERT INTO Image (File,Legend,Car0,Car1,Car2,Car3,Car4,Car5,Car6,Car7,"
                    "Car8,Car9,Car10,Car11) VALUES (?1,'A boat on the water',?2,?3,'-','-',"
                    "'Anna','-','-','-','-','-','-','-')");
    for (int i = 0; i < pictures; ++i) {
        image.Bind(
            1,
            QStringLiteral("/home/anna/pictures/%1/holiday at the sea %2.jpg").arg(i / 500).arg(i));
        image.Bind(2, QStringLiteral("Season %1").arg(i % 4));
        image.Bind(3, i % 20 == 0 ? QStringLiteral("Lake") : QStringLiteral("Town"));
        image.Run();
    }
    album.Execute("COMMIT");
}

// Both sides replace there and back in one album; made on first use.
std::unique_ptr<Album> million;

const Album& Million()
{
    if (!million) {
        million = std::make_unique<Album>();
        FillMillion(*million);
    }
    return *million;
}

// The value that one picture in twenty has now, and the one to give them.
std::pair<QString, QString> NextValues()
{
    static bool isLake = false;
    isLake = !isLake;
    std::pair values{QStringLiteral("Lake"), QStringLiteral("Pond")};
    if (!isLake)
        std::swap(values.first, values.second);
    return values;
}

void Replace_Ours(benchmark::State& state)
{
    Million();
    int changed = 0;
    for (auto _ : state) {
        const auto [old, replacement] = NextValues();
        ReplaceValue(1, old, replacement, [&changed](int count) {
            changed = count;
            return true;
        });
    }
    state.counters["rows"] = changed;
}

void Replace_Bare(benchmark::State& state)
{
    Statement update(Million().GetEngine(), "UPDATE Image SET Car1=?2 WHERE Car1=?1");
    for (auto _ : state) {
        const auto [old, replacement] = NextValues();
        update.Bind(1, old);
        update.Bind(2, replacement);
        update.Run();
    }
    state.counters["rows"] = sqlite3_changes(Million().GetEngine());
}

// Not side by side in the album, as a person chooses them.
constexpr int described = 10'000;
constexpr int stepBetween = 7;

QString NextMood()
{
    static int number = 0;
    return QStringLiteral("Mood %1").arg(++number % 2);
}

void Describe_Ours(benchmark::State& state)
{
    Million();
    std::vector<qint32> chosen;
    for (int i = 1; i <= described; ++i)
        chosen.push_back(i * stepBetween);
    for (auto _ : state) {
        GroupChange change;
        change.values[2] = NextMood();
        ApplyToGroup(chosen, change);
    }
}

void Describe_Bare(benchmark::State& state)
{
    Statement update(Million().GetEngine(),
                     "UPDATE Image SET Car2=?1 WHERE rowid<=?2 AND rowid%?3=0");
    update.Bind(2, qint64(described * stepBetween));
    update.Bind(3, qint64(stepBetween));
    for (auto _ : state) {
        update.Bind(1, NextMood());
        update.Run();
    }
    if (sqlite3_changes(Million().GetEngine()) != described)
        state.SkipWithError("other rows were changed");
}

void FillTables(const Album& album)
{
    const WriteBatch batch(AlbumDatabase);
    for (const int column : labelledColumns) {
        Statement insert(album.GetEngine(),
                         "INSERT INTO " + ValueTableOf(column).toLatin1() + " VALUES (?1)");
        for (int i = 0; i < valuesPerTable; ++i) {
            insert.Bind(1, QStringLiteral("Value %1").arg(i));
            insert.Run();
        }
    }
    album.Execute("INSERT INTO Image (File,Legend) VALUES ('/a.jpg','')");
    album.Execute("UPDATE Image SET Car0='Value 4999', Car4='Value 2500'");
}

void OpenIndexing(benchmark::State& state)
{
    const Album album;
    FillTables(album);
    for (auto _ : state) {
        frmEditImage window;
        window.CurrentImage = QStringLiteral("/a.jpg");
        window.show();
        QCoreApplication::processEvents();
        if (window.grab().isNull())
            state.SkipWithError("nothing was painted");
        window.close();
    }
}

void RegisterPair(const char* subject, void (*ours)(benchmark::State&),
                  void (*bare)(benchmark::State&))
{
    for (const auto& [ending, body] : {std::pair("/ours", ours), std::pair("/bare", bare)})
        benchmark::RegisterBenchmark((std::string(subject) + ending).c_str(), body)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(1)
            ->Repetitions(5);
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    qputenv("XDG_DATA_HOME", QFile::encodeName(settings.path()));
    benchmark::Initialize(&argc, argv);
    RegisterPair("load 100,000 files", Load_Ours, Load_Bare);
    RegisterPair("load a tree of 100,000 files", LoadTree_Ours, LoadTree_Bare);
    RegisterPair("replace in 1,000,000 pictures", Replace_Ours, Replace_Bare);
    RegisterPair("describe 10,000 of 1,000,000 pictures", Describe_Ours, Describe_Bare);
    benchmark::RegisterBenchmark("open the indexing window on tables of 5,000 values", OpenIndexing)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Repetitions(5);
    SideBySideReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    million.reset();
    return EXIT_SUCCESS;
}
