// SPDX-License-Identifier: MIT
// What undo costs: work on an album whose changes are logged ("ours") against the same without a
// log ("bare"), and taking a step back against making it.
#include "../SideBySide.h"

#include "catalogue/PictureLoading.h"
#include "catalogue/ValueReplacement.h"
#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/UndoHistory.h"
#include "story/ParagraphChain.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdlib>

using namespace GeneralModule;

namespace {

constexpr int files = 100'000;
constexpr int pictures = 1'000'000;
constexpr int loggedEntries = 1'000'000;
constexpr int saves = 2'000;

enum class Kept { Log, Nothing };

// A new album that is open, with a log or without.
class OpenedAlbumFile
{
public:
    explicit OpenedAlbumFile(Kept kept)
    {
        const QString path = folder_.filePath(QStringLiteral("story.alb"));
        QFile::copy(QStringLiteral(TEMPLATE_FILE), path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        Open(kept);
    }
    ~OpenedAlbumFile() { ReleaseAlbum(); }

    void Open(Kept kept)
    {
        auto album = std::make_unique<Album>(GetPath(), QString());
        if (kept == Kept::Log)
            album->history->Begin();
        SetOpenedAlbum(std::move(album));
    }
    QString GetPath() const { return folder_.filePath(QStringLiteral("story.alb")); }
    QString GetFolder() const { return folder_.path(); }
    void Execute(const QByteArray& sql) const { AlbumDatabase->Execute(sql); }

private:
    QTemporaryDir folder_;
};

void FillMillion(const OpenedAlbumFile& album)
{
    album.Execute("BEGIN");
    Statement image(AlbumDatabase->GetEngine(),
                    "INSERT INTO Image (File,Legend,Car0,Car1,Car2,Car3,Car4,Car5,Car6,Car7,"
                    "Car8,Car9,Car10,Car11) VALUES (?1,'A boat on the water','Spring',?2,'-','-',"
                    "'Anna','-','-','-','-','-','-','-')");
    for (int i = 0; i < pictures; ++i) {
        image.Bind(1,
                   QStringLiteral("/home/anna/pictures/%1/at the sea %2.jpg").arg(i / 500).arg(i));
        image.Bind(2, i % 20 == 0 ? QStringLiteral("Lake") : QStringLiteral("Town"));
        image.Run();
    }
    album.Execute("COMMIT");
}

// Made once, and left as it was made by whoever opens it.
OpenedAlbumFile& Million(Kept kept)
{
    static OpenedAlbumFile album(Kept::Nothing);
    static bool isFilled = false;
    if (!std::exchange(isFilled, true))
        FillMillion(album);
    album.Open(kept);
    return album;
}

template<Kept kept>
void Load(benchmark::State& state)
{
    QStringList names;
    for (int i = 0; i < files; ++i)
        names += QStringLiteral("holiday at the sea %1.jpg").arg(i, 6, 10, QLatin1Char('0'));
    for (auto _ : state) {
        state.PauseTiming();
        auto album = std::make_unique<OpenedAlbumFile>(kept);
        state.ResumeTiming();
        LoadPictures(album->GetFolder(), names, [](int) { return true; });
        state.PauseTiming();
        album.reset();
        state.ResumeTiming();
    }
}

void Replace(const QString& old, const QString& replacement)
{
    if (ReplaceValue(1, old, replacement, [](int) { return true; })->pictures != pictures / 20)
        std::abort();
}

const QString lake = QStringLiteral("Lake");
const QString pond = QStringLiteral("Pond");

// There and back in one run.
template<Kept kept>
void ReplaceBothWays(benchmark::State& state)
{
    Million(kept);
    for (auto _ : state) {
        Replace(lake, pond);
        Replace(pond, lake);
    }
}

void UndoReplacement(benchmark::State& state)
{
    Million(Kept::Log);
    for (auto _ : state) {
        state.PauseTiming();
        {
            const UndoStep step(QStringLiteral("Replace"));
            Replace(lake, pond);
        }
        state.ResumeTiming();
        if (Undo().isEmpty())
            state.SkipWithError("nothing was undone");
    }
}

void MakeReplacement(benchmark::State& state)
{
    Million(Kept::Log);
    for (auto _ : state) {
        {
            const UndoStep step(QStringLiteral("Replace"));
            Replace(lake, pond);
        }
        state.PauseTiming();
        Undo();
        state.ResumeTiming();
    }
}

void SaveOften(benchmark::State& state)
{
    const ParagraphPlace place{CreateChapter(QStringLiteral("One"), {}), 0};
    ParagraphPlace first = place;
    CreateFirstParagraph(first);
    ParagraphContent shown = LoadParagraph(first.paragraph);
    int number = 0;
    for (auto _ : state) {
        for (int i = 0; i < saves; ++i) {
            ParagraphContent edited = shown;
            edited.text = QStringLiteral("What we saw on day %1.").arg(++number);
            SaveParagraph(first, {shown, edited});
            shown = edited;
        }
    }
    state.counters["saves"] = saves;
}

template<Kept kept>
void Save(benchmark::State& state)
{
    const OpenedAlbumFile album(kept);
    SaveOften(state);
}

template<Kept kept>
void SaveAfterMuch(benchmark::State& state)
{
    const OpenedAlbumFile album(kept);
    album.Execute("BEGIN");
    Statement insert(AlbumDatabase->GetEngine(), "INSERT INTO Params VALUES (?1,'')");
    for (int i = 0; i < loggedEntries; ++i) {
        insert.Bind(1, qint64(i));
        insert.Run();
    }
    album.Execute("COMMIT");
    SaveOften(state);
}

template<Kept kept>
void OpenTheAlbum(benchmark::State& state)
{
    OpenedAlbumFile album(kept);
    for (auto _ : state)
        album.Open(kept);
}

void RegisterPair(const std::string& subject, void (*ours)(benchmark::State&),
                  void (*bare)(benchmark::State&), int iterations = 1)
{
    for (const auto& [ending, body] : {std::pair("/ours", ours), std::pair("/bare", bare)})
        benchmark::RegisterBenchmark((subject + ending).c_str(), body)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(iterations)
            ->Repetitions(5);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    RegisterPair("load 100,000 files", Load<Kept::Log>, Load<Kept::Nothing>);
    RegisterPair("replace 50,000 of 1,000,000, twice", ReplaceBothWays<Kept::Log>,
                 ReplaceBothWays<Kept::Nothing>);
    RegisterPair("undo that, against doing it", UndoReplacement, MakeReplacement);
    RegisterPair("save a paragraph 2,000 times", Save<Kept::Log>, Save<Kept::Nothing>);
    RegisterPair("the same after 1,000,000 changes", SaveAfterMuch<Kept::Log>,
                 SaveAfterMuch<Kept::Nothing>);
    RegisterPair("open an album", OpenTheAlbum<Kept::Log>, OpenTheAlbum<Kept::Nothing>, 50);
    RunSideBySide(argc, argv);
    ReleaseAlbum();
    return EXIT_SUCCESS;
}
