// SPDX-License-Identifier: MIT
// Writing in an album of 100,000 paragraphs and 1,000,000 pictures, made anew for the run: saving
// and going on against one bare commit to disk, and the preview's list against the bare query.
#include "../SideBySide.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "story/ParagraphChain.h"
#include "story/PictureFilter.h"

#include <sqlcipher/sqlite3.h>

#include <QSettings>
#include <QTemporaryDir>

#include <cstdlib>

using namespace GeneralModule;

namespace {

constexpr int pictures = 1'000'000;
constexpr int paragraphs = 100'000;
constexpr int perChapter = 1'000;
constexpr int maxPreviewed = 5'000;
constexpr int everyMatch = 200; // pictures per match: 5,000 matches

const QString longText =
    QStringLiteral("The path went down through the woods until the water lay before us. ")
        .repeated(12);

QString PathOf(int number)
{
    return QStringLiteral("/home/anna/pictures/%1/holiday at the sea %2.jpg")
        .arg(number / 500)
        .arg(number);
}

void FillPictures(sqlite3* engine)
{
    Statement image(engine,
                    "INSERT INTO Image (File,Legend,Car0,Car1,Car2,Car3,Car4,Car5,Car6,Car7,"
                    "Car8,Car9,Car10,Car11) VALUES (?1,'A boat on the water','Season',?2,'-','-',"
                    "?3,'-','-',?4,'-','-','-','-')");
    const QString match = QStringLiteral("Lake");
    const QString other = QStringLiteral("Town");
    for (int i = 0; i < pictures; ++i) {
        image.Bind(1, PathOf(i));
        image.Bind(2, i % everyMatch == 0 ? match : other);
        image.Bind(3, i % (2 * everyMatch) == 0 ? match : other);
        image.Bind(4, i % (2 * everyMatch) == everyMatch ? match : other);
        image.Run();
    }
}

void FillStory(sqlite3* engine)
{
    Statement chapter(engine, "INSERT INTO Chapter (Name,FirstParagraph,PreviousChapter,"
                              "NextChapter) VALUES (?1,?2,?3,?4)");
    Statement paragraph(engine,
                        "INSERT INTO Paragraph (Chapter,PreviousParagraph,NextParagraph,"
                        "FileSelection,Car0,Car1,Car2,Car3,Car4,Car5,Car6,Car7,Car8,Car9,Car10,"
                        "Car11,Text) VALUES (?1,?2,?3,'','*','*','*','*','*','*','*','*','*',"
                        "'*','*','*',?4)");
    const int chapters = paragraphs / perChapter;
    for (int c = 1; c <= chapters; ++c) {
        chapter.Bind(1, QStringLiteral("Chapter %1").arg(c));
        chapter.Bind(2, qint64((c - 1) * perChapter + 1));
        chapter.Bind(3, qint64(c - 1));
        chapter.Bind(4, qint64(c < chapters ? c + 1 : 0));
        chapter.Run();
    }
    paragraph.Bind(4, longText);
    for (int p = 0; p < paragraphs; ++p) {
        const bool isFirst = p % perChapter == 0;
        const bool isLast = p % perChapter == perChapter - 1;
        paragraph.Bind(1, qint64(p / perChapter + 1));
        paragraph.Bind(2, qint64(isFirst ? 0 : p));
        paragraph.Bind(3, qint64(isLast ? 0 : p + 2));
        paragraph.Run();
    }
}

// The open album, made on first use; its file goes at the end of the run.
sqlite3* Engine()
{
    static const struct BenchmarkAlbum
    {
        BenchmarkAlbum()
        {
            const QString path = folder.filePath(QStringLiteral("story.alb"));
            QFile::copy(QStringLiteral(TEMPLATE_FILE), path);
            QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
            qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
            OpenAlbum(path);
            AlbumDatabase->Execute("BEGIN");
            FillPictures(AlbumDatabase->GetEngine());
            FillStory(AlbumDatabase->GetEngine());
            AlbumDatabase->Execute("COMMIT");
        }
        ~BenchmarkAlbum() { ReleaseAlbum(); }

        QTemporaryDir folder;
    } album;
    return AlbumDatabase->GetEngine();
}

QString NewText()
{
    static int number = 0;
    return longText + QString::number(++number);
}

void SaveAndGoOn_Ours(benchmark::State& state)
{
    Engine();
    ParagraphPlace place{40, 39 * perChapter + 1};
    for (auto _ : state) {
        const ParagraphContent shown = LoadParagraph(place.paragraph);
        ParagraphContent content = shown;
        content.text = NewText();
        content.values[4] = content.values[4] == anyValue ? QStringLiteral("Anna;Paul") : anyValue;
        SaveAndStep(place, {shown, content}, ChainStep::Next);
        benchmark::DoNotOptimize(LoadParagraph(place.paragraph));
    }
}

void CreateNextAndSave_Ours(benchmark::State& state)
{
    Engine();
    ParagraphPlace place{60, 59 * perChapter + perChapter / 2};
    for (auto _ : state) {
        const ParagraphContent shown = LoadParagraph(place.paragraph);
        CreateNextParagraph(place, {shown, {NewText(), shown.values}});
    }
}

void OneCommit_Bare(benchmark::State& state)
{
    Statement update(Engine(), "UPDATE Paragraph SET Text=?2 WHERE Id=?1");
    qint64 paragraph = 20 * perChapter;
    for (auto _ : state) {
        update.Bind(1, paragraph++);
        update.Bind(2, NewText());
        update.Run();
    }
}

void PreviewList_Ours(benchmark::State& state, int column)
{
    Engine();
    PictureQuery query;
    query.linkedTo = 1;
    query.values[std::size_t(column)] = QStringLiteral("Lake");
    int count = 0;
    for (auto _ : state) {
        PictureList list;
        BuildPictureList(query, list, maxPreviewed, [](int) {});
        const QStringList files = list.GetFiles();
        count = int(files.size());
    }
    state.counters["rows"] = count;
}

void PreviewList_Bare(benchmark::State& state, const char* condition)
{
    Statement query(Engine(),
                    QByteArray("SELECT File FROM Image WHERE ") + condition + " ORDER BY rowid");
    int count = 0;
    for (auto _ : state) {
        QStringList files;
        while (query.Step()) {
            const std::string_view file = query.GetUtf8(0);
            files += QString::fromUtf8(file.data(), qsizetype(file.size()));
        }
        count = int(files.size());
    }
    state.counters["rows"] = count;
}

void RegisterPair(const char* subject, const std::function<void(benchmark::State&)>& ours,
                  const std::function<void(benchmark::State&)>& bare, int iterations)
{
    for (const auto& [ending, body] : {std::pair("/ours", ours), std::pair("/bare", bare)}) {
        benchmark::RegisterBenchmark((std::string(subject) + ending).c_str(), body)
            ->Repetitions(7)
            ->Iterations(iterations)
            ->Unit(benchmark::kMillisecond);
    }
}

void RegisterAll()
{
    // Allowed: one commit and 5 milliseconds.
    RegisterPair("save and go on : one commit", SaveAndGoOn_Ours, OneCommit_Bare, 60);
    RegisterPair("create next : one commit", CreateNextAndSave_Ours, OneCommit_Bare, 60);
    // Allowed: 1.3 times.
    RegisterPair(
        "preview, one column", [](benchmark::State& state) { PreviewList_Ours(state, 1); },
        [](benchmark::State& state) { PreviewList_Bare(state, "Car1='Lake'"); }, 1);
    RegisterPair(
        "preview, twin columns", [](benchmark::State& state) { PreviewList_Ours(state, 4); },
        [](benchmark::State& state) { PreviewList_Bare(state, "Car4='Lake' OR Car7='Lake'"); }, 1);
}

} // namespace

int main(int argc, char** argv)
{
    RegisterAll();
    RunSideBySide(argc, argv);
    return EXIT_SUCCESS;
}
