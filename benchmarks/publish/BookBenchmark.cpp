// SPDX-License-Identifier: MIT
// A book of 100 pictures of 12 megapixels, against copying their bytes into one file and flushing
// it; then the book's peak memory, and the longest time from asking for a stop to its end.
#include "../SideBySide.h"
#include "../pictures/PaintedPictures.h"

#include "publish/book/PublishedBook.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

#include <unistd.h>

namespace {

constexpr QSize twelveMegapixels(4000, 3000);
constexpr int picturesOfBook = 100;
constexpr int perParagraph = 4;
constexpr int scaledResolution = 150;

PublishedStory StoryOf(const QStringList& files)
{
    const QString text =
        QStringLiteral("The path went down through the woods until the water lay before us. ");
    PublishedStory story{"A Year at the Lake", QLocale("en"), {}, {}};
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (i % (perParagraph * 5) == 0)
            story.chapters.push_back({qint32(i), QStringLiteral("Chapter %1").arg(i), {}});
        std::vector<PublishedParagraph>& paragraphs = story.chapters.back().paragraphs;
        if (i % perParagraph == 0)
            paragraphs.push_back({qint32(i), text.repeated(5), {}, perParagraph});
        paragraphs.back().pictures.push_back({files[i], files[i], "A boat on the water", text});
    }
    return story;
}

QStringList FilesIn(const QDir& folder)
{
    QStringList files;
    for (const QString& name : folder.entryList({"*.jpg"}))
        files += folder.filePath(name);
    return files;
}

void MakeBook(benchmark::State& state, const QDir& folder, int resolution)
{
    const PublishedStory story = StoryOf(FilesIn(folder));
    for (auto each : state) {
        const PublishReport report =
            PublishBook(story, {.resolution = resolution}, folder.filePath("book.pdf"),
                        [](int, int) { return true; });
        if (!report.IsWhole() || report.pictures != picturesOfBook)
            state.SkipWithError("the book is not whole");
        state.PauseTiming();
        QFile::remove(folder.filePath("book.pdf"));
        state.ResumeTiming();
    }
}

void CopyBytes(benchmark::State& state, const QDir& folder)
{
    constexpr qint64 piece = 256 * 1024;
    const QStringList files = FilesIn(folder);
    for (auto each : state) {
        QFile target(folder.filePath("bytes"));
        bool isDone = target.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        for (const QString& path : files) {
            QFile source(path);
            isDone = isDone && source.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
            for (QByteArray bytes = source.read(piece); !bytes.isEmpty();
                 bytes = source.read(piece))
                isDone = isDone && target.write(bytes) == bytes.size();
        }
        if (!isDone || fsync(target.handle()) != 0)
            state.SkipWithError("the bytes cannot be copied");
        state.PauseTiming();
        target.remove();
        state.ResumeTiming();
    }
}

double PeakMebibytes()
{
    constexpr double kibibytes = 1024;
    QFile status("/proc/self/status");
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:"))
                return line.mid(6).simplified().split(' ').first().toDouble() / kibibytes;
        }
    }
    return 0;
}

// A process of its own, which has painted nothing.
void PrintPeak(const QDir& folder, int resolution)
{
    PublishBook(StoryOf(FilesIn(folder)), {.resolution = resolution}, folder.filePath("peak.pdf"),
                [](int, int) { return true; });
    std::printf("peak memory at %d dpi: %.0f MiB\n", resolution, PeakMebibytes());
}

// Asked at moments all over the work.
void PrintLongestStop(const QDir& folder, int resolution)
{
    const PublishedStory story = StoryOf(FilesIn(folder));
    qint64 longest = 0;
    qint64 momentOfLongest = 0;
    int stops = 0;
    constexpr int between = 30; // milliseconds
    for (bool isWhole = false; !isWhole; ++stops) {
        QElapsedTimer start;
        start.start();
        const qint64 moment = stops * between;
        const PublishReport report =
            PublishBook(story, {.resolution = resolution}, folder.filePath("stop.pdf"),
                        [&](int, int) { return start.elapsed() < moment; });
        isWhole = !report.isStopped;
        const qint64 taken = start.elapsed() - moment;
        if (!isWhole && taken > longest) {
            longest = taken;
            momentOfLongest = moment;
        }
    }
    std::printf("longest stop of %d at %d dpi: %lld ms, asked for after %lld ms\n", stops,
                resolution, static_cast<long long>(longest),
                static_cast<long long>(momentOfLongest));
}

void RunItself(const QString& option, const QString& folder, int resolution)
{
    std::fflush(stdout);
    QProcess::execute(QCoreApplication::applicationFilePath(),
                      {option, folder, QString::number(resolution)});
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "peak" || arguments.value(1) == "stop") {
        const auto print = arguments[1] == "peak" ? &PrintPeak : &PrintLongestStop;
        print(QDir(arguments.value(2)), arguments.value(3).toInt());
        return 0;
    }
    const QTemporaryDir folder;
    if (PaintPictures(QDir(folder.path()), twelveMegapixels, picturesOfBook).isEmpty()) {
        std::fputs("The pictures cannot be painted into the temporary folder\n", stderr);
        return 1;
    }
    const QDir dir(folder.path());
    for (int turn = 0; turn < 5; ++turn) {
        benchmark::RegisterBenchmark("100 pictures/ours",
                                     [&](benchmark::State& state) { MakeBook(state, dir, 0); })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->UseRealTime();
        benchmark::RegisterBenchmark("100 pictures/bare",
                                     [&](benchmark::State& state) { CopyBytes(state, dir); })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->UseRealTime();
    }
    benchmark::RegisterBenchmark(
        "100 pictures, 150 dpi",
        [&](benchmark::State& state) { MakeBook(state, dir, scaledResolution); })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->UseRealTime();
    RunSideBySide(argc, argv);
    for (const int resolution : {0, scaledResolution}) {
        RunItself("peak", folder.path(), resolution);
        RunItself("stop", folder.path(), resolution);
    }
}
