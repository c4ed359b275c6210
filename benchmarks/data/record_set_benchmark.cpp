// SPDX-License-Identifier: MIT
// Record sets against the bare engine, on an album of 1,000,000 pictures made anew for the run.
#include "../SideBySide.h"

#include "platform/data/RecordSet.h"
#include "platform/data/WriteBatch.h"

#include <sqlcipher/sqlite3.h>

#include <QTemporaryDir>

#include <cstdlib>
#include <random>

namespace {

constexpr int pictures = 1'000'000;

QString PathOf(int number)
{
    return QStringLiteral("/home/anna/pictures/%1/holiday at the sea %2.jpg")
        .arg(number / 500)
        .arg(number);
}

void FillAlbum(sqlite3* engine)
{
    sqlite3_exec(engine, "BEGIN", nullptr, nullptr, nullptr);
    Statement image(engine,
                    "INSERT INTO Image (File,Legend,Car0,Car1,Car2,Car3,Car4,Car5,Car6,Car7,"
                    "Car8,Car9,Car10,Car11) VALUES (?1,'A boat on the water',?2,?3,'-','-',"
                    "?4,'-','-',?5,'-','-','-','-')");
    Statement chapter(engine, "INSERT INTO Chapter (Name) VALUES (?1)");
    for (int i = 0; i < pictures; ++i) {
        image.Bind(1, PathOf(i));
        image.Bind(2, QStringLiteral("Season %1").arg(i % 4));
        image.Bind(3, i % 20 == 0 ? QStringLiteral("Lake") : QStringLiteral("Town"));
        image.Bind(4, i % 3 == 0 ? QStringLiteral("Anna") : QStringLiteral("-"));
        image.Bind(5, i % 7 == 0 ? QStringLiteral("Anna") : QStringLiteral("-"));
        image.Run();
        if (i < 100'000) {
            chapter.Bind(1, QStringLiteral("Chapter %1").arg(i));
            chapter.Run();
        }
    }
    sqlite3_exec(engine, "COMMIT", nullptr, nullptr, nullptr);
}

// Shared by all benchmarks; made on first use and removed at the end of the run.
struct Album
{
    Album()
    {
        path = folder.filePath(QStringLiteral("million.alb"));
        QFile::copy(QStringLiteral(TEMPLATE_FILE), path);
        database = Database::Open(path);
        FillAlbum(database->GetEngine());
        images = std::make_unique<RecordSet>(database, QStringLiteral("Image"));
        chapters = std::make_unique<RecordSet>(database, QStringLiteral("Chapter"));
    }

    static Album& Get()
    {
        static Album album;
        return album;
    }

    QTemporaryDir folder;
    QString path;
    std::shared_ptr<Database> database;
    std::unique_ptr<RecordSet> images;
    std::unique_ptr<RecordSet> chapters;
};

int NextNumber(int below)
{
    static std::mt19937 random(7);
    return std::uniform_int_distribution<int>(0, below - 1)(random);
}

// The text as the program needs it, on both sides.
QString TextAt(const Statement& statement, int column)
{
    const std::string_view text = statement.GetUtf8(column);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

void FindById_Ours(benchmark::State& state)
{
    RecordSet& set = *Album::Get().chapters;
    for (auto _ : state) {
        set.FindFirst(QStringLiteral("[Id]=") + QString::number(NextNumber(100'000) + 1));
        benchmark::DoNotOptimize(set.Text(u"Name"));
    }
}

void FindById_Bare(benchmark::State& state)
{
    Statement find(Album::Get().database->GetEngine(), "SELECT Name FROM Chapter WHERE Id=?1");
    for (auto _ : state) {
        find.Bind(1, qint64(NextNumber(100'000) + 1));
        if (find.Step())
            benchmark::DoNotOptimize(TextAt(find, 0));
        find.Reset();
    }
}

void FindByFile_Ours(benchmark::State& state)
{
    RecordSet& set = *Album::Get().images;
    for (auto _ : state) {
        set.FindFirst(QStringLiteral("[File]='") + PathOf(NextNumber(pictures)) +
                      QStringLiteral("'"));
        benchmark::DoNotOptimize(set.Text(u"SourceFile"));
    }
}

void FindByFile_Bare(benchmark::State& state)
{
    Statement find(Album::Get().database->GetEngine(),
                   "SELECT SourceFile FROM Image WHERE File=?1");
    for (auto _ : state) {
        find.Bind(1, PathOf(NextNumber(pictures)));
        if (find.Step())
            benchmark::DoNotOptimize(TextAt(find, 0));
        find.Reset();
    }
}

void WalkMatches_Ours(benchmark::State& state, const char* filter)
{
    RecordSet& set = *Album::Get().images;
    const QString criteria = QString::fromLatin1(filter);
    const int file = set.FieldNumber(u"File");
    qint64 rows = 0;
    for (auto _ : state) {
        const RecordSet::Walk walk(set);
        rows = 0;
        for (set.FindFirst(criteria); !set.NoMatch(); set.FindNext(criteria)) {
            benchmark::DoNotOptimize(set.Text(file));
            ++rows;
        }
    }
    state.counters["rows"] = double(rows);
}

void Stream_Bare(benchmark::State& state, const char* condition)
{
    Statement stream(Album::Get().database->GetEngine(),
                     QByteArray("SELECT rowid, File FROM Image ") + condition + " ORDER BY rowid");
    qint64 rows = 0;
    for (auto _ : state) {
        rows = 0;
        while (stream.Step()) {
            benchmark::DoNotOptimize(stream.GetInteger(0));
            benchmark::DoNotOptimize(TextAt(stream, 1));
            ++rows;
        }
    }
    state.counters["rows"] = double(rows);
}

void MoveThroughAll_Ours(benchmark::State& state)
{
    RecordSet& set = *Album::Get().images;
    const int file = set.FieldNumber(u"File");
    for (auto _ : state) {
        const RecordSet::Walk walk(set);
        for (set.MoveFirst(); !set.AtEnd(); set.MoveNext())
            benchmark::DoNotOptimize(set.Text(file));
    }
}

void RegisterPair(const char* subject, const std::function<void(benchmark::State&)>& ours,
                  const std::function<void(benchmark::State&)>& bare, bool isScan)
{
    for (const auto& [ending, body] : {std::pair("/ours", ours), std::pair("/bare", bare)}) {
        auto* registered =
            benchmark::RegisterBenchmark((std::string(subject) + ending).c_str(), body);
        registered->Repetitions(5)->Unit(isScan ? benchmark::kMillisecond
                                                : benchmark::kMicrosecond);
        if (isScan)
            registered->Iterations(1);
    }
}

void RegisterAll()
{
    RegisterPair("find by Id", FindById_Ours, FindById_Bare, false);
    RegisterPair("find by File", FindByFile_Ours, FindByFile_Bare, false);
    struct Filter
    {
        const char* subject;
        const char* filter;
        const char* condition;
    };
    for (const Filter& f : {
             Filter{"walk 5 % of matches", "([Car1]='Lake')", "WHERE Car1='Lake'"},
             Filter{"walk 43 % of matches", "([Car4]='Anna') OR ([Car7]='Anna')",
                    "WHERE Car4='Anna' OR Car7='Anna'"},
             Filter{"walk LIKE, 50 % of matches",
                    "([File] LIKE '*1?.jpg') OR ([File] LIKE '*[2-5].jpg')",
                    "WHERE File LIKE '%1_.jpg' OR File LIKE '%2.jpg' OR File LIKE '%3.jpg' OR File "
                    "LIKE '%4.jpg' OR File LIKE '%5.jpg'"},
         }) {
        RegisterPair(
            f.subject, [f](benchmark::State& state) { WalkMatches_Ours(state, f.filter); },
            [f](benchmark::State& state) { Stream_Bare(state, f.condition); }, true);
    }
    RegisterPair(
        "move through all", MoveThroughAll_Ours,
        [](benchmark::State& state) { Stream_Bare(state, ""); }, true);
}

} // namespace

int main(int argc, char** argv)
{
    RegisterAll();
    RunSideBySide(argc, argv);
    return EXIT_SUCCESS;
}
