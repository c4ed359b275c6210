// SPDX-License-Identifier: MIT
#include "BareDecoder.h"
#include "PaintedPictures.h"
#include "platform/picture/PictureReader.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

// Every comparison runs its sides in turn within one iteration, so that a busy machine slows them
// alike. The time that a benchmark reports is ours, the counters are medians over the iterations:
// ours_ms and bare_ms; to_bare says how many times the bare decode ours takes; whole_to_ours how
// many times faster ours is than decoding whole pictures one after the other.

namespace {

constexpr QSize twelveMegapixels(4000, 3000);
constexpr QSize twentyFourMegapixels(6000, 4000);
constexpr int picturesOnScreen = 21;
constexpr QSize box(640, 360);
constexpr QSize screen(1920, 1080);
constexpr double kibibytesPerMebibyte = 1024;

QStringList screenful; // 12 megapixels each
QString largePicture;  // 24 megapixels
QString peakProgram;

using Times = std::vector<double>; // seconds

double SecondsOf(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(Times times)
{
    const auto middle = times.begin() + std::ptrdiff_t(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

void Report(benchmark::State& state, const Times& ours, const Times& bare)
{
    constexpr double milliseconds = 1000;
    state.counters["ours_ms"] = Median(ours) * milliseconds;
    state.counters["bare_ms"] = Median(bare) * milliseconds;
    state.counters["to_bare"] = Median(ours) / Median(bare);
}

// As a program without scaled decoding would do it.
void ReadWholeThenScale(const QString& path, QSize size)
{
    const QImage whole = QImageReader(path).read();
    benchmark::DoNotOptimize(
        whole.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).isNull());
}

void ReadHeadersOfScreenful(benchmark::State& state)
{
    for (auto _ : state) {
        for (const QString& path : screenful) {
            benchmark::DoNotOptimize(ReadPictureInfo(path));
        }
    }
}

void FillScreen(benchmark::State& state)
{
    const QSize size = twelveMegapixels.scaled(box, Qt::KeepAspectRatio);
    std::vector<PictureRequest> requests;
    for (const QString& path : screenful) {
        requests.push_back({path, size});
    }
    Times ours;
    Times bare;
    Times whole;
    for (auto _ : state) {
        bare.push_back(
            SecondsOf([&] { DecodeAllBare(screenful, size, QThread::idealThreadCount()); }));
        ours.push_back(SecondsOf([&] { benchmark::DoNotOptimize(ReadPictures(requests)); }));
        whole.push_back(SecondsOf([&] {
            for (const QString& path : screenful) {
                ReadWholeThenScale(path, size);
            }
        }));
        state.SetIterationTime(ours.back());
    }
    Report(state, ours, bare);
    state.counters["whole_to_ours"] = Median(whole) / Median(ours);
}

void ReadLargeToFullScreen(benchmark::State& state)
{
    const QSize size = twentyFourMegapixels.scaled(screen, Qt::KeepAspectRatio);
    Times ours;
    Times bare;
    Times whole;
    for (auto _ : state) {
        bare.push_back(SecondsOf([&] { DecodeBare(largePicture, size); }));
        ours.push_back(
            SecondsOf([&] { benchmark::DoNotOptimize(ReadPicture(largePicture, size)); }));
        whole.push_back(SecondsOf([&] { ReadWholeThenScale(largePicture, size); }));
        state.SetIterationTime(ours.back());
    }
    Report(state, ours, bare);
    state.counters["whole_to_ours"] = Median(whole) / Median(ours);
}

void PeakOfLargeToFullScreen(benchmark::State& state)
{
    double mebibytes = 0;
    for (auto _ : state) {
        QProcess process;
        process.start(peakProgram, {largePicture, QString::number(screen.width()),
                                    QString::number(screen.height())});
        if (!process.waitForFinished() || process.exitCode() != 0) {
            state.SkipWithError("picture_peak failed");
            return;
        }
        const double peak = process.readAllStandardOutput().trimmed().toDouble();
        mebibytes = std::max(mebibytes, peak / kibibytesPerMebibyte);
    }
    state.counters["peak_MiB"] = mebibytes;
}

bool PaintAll(const QTemporaryDir& folder)
{
    const QDir dir(folder.path());
    screenful = PaintPictures(dir, twelveMegapixels, picturesOnScreen);
    largePicture = PaintPictures(dir, twentyFourMegapixels, 1).value(0);
    return screenful.size() == picturesOnScreen && !largePicture.isEmpty();
}

double MebibytesOf(const QString& path)
{
    return double(QFileInfo(path).size()) / kibibytesPerMebibyte / kibibytesPerMebibyte;
}

} // namespace

BENCHMARK(ReadHeadersOfScreenful)->Unit(benchmark::kMillisecond);
BENCHMARK(FillScreen)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(9);
BENCHMARK(ReadLargeToFullScreen)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(21);
BENCHMARK(PeakOfLargeToFullScreen)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // nothing here is shown
    }
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir folder;
    if (!folder.isValid() || !PaintAll(folder)) {
        std::fputs("The pictures cannot be painted into the temporary folder\n", stderr);
        return 1;
    }
    peakProgram = QCoreApplication::applicationDirPath() + QStringLiteral("/picture_peak");
    std::printf("Painted: %d files, the first %.1f MiB; one large of %.1f MiB\n",
                int(screenful.size()), MebibytesOf(screenful.first()), MebibytesOf(largePicture));
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
