// SPDX-License-Identifier: MIT
// One step of autoview on a full HD page, with pictures of 24 megapixels, against the mere decode
// of the pictures that the step has put on the screen. Both run in turn within one iteration, so
// that a busy machine slows them alike.
#include "../pictures/PaintedPictures.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "platform/picture/PictureReader.h"
#include "platform/widgets/PictureBox.h"
#include "platform/widgets/QtDialogs.h"
#include "story/ParagraphChain.h"
#include "viewer/frmReelvane.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

namespace {

constexpr QSize pictureSize(6000, 4000);
constexpr int pictureCount = 21; // as many as a screen holds
constexpr QSize viewerSize(1920, 1080);

using Times = std::vector<double>; // milliseconds

double MillisecondsOf(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double Median(Times times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// Two paragraphs that both choose every picture.
bool MakeStory(const QTemporaryDir& folder)
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    const QString album = folder.filePath(QStringLiteral("story.alb"));
    if (!GeneralModule::CreateAlbumFile(album) || !GeneralModule::OpenAlbum(album))
        return false;
    const QStringList pictures = PaintPictures(QDir(folder.path()), pictureSize, pictureCount);
    for (const QString& picture : pictures) {
        GeneralModule::ImageSet->AddNew();
        GeneralModule::ImageSet->Set(u"File", picture);
        GeneralModule::ImageSet->Update();
    }
    ParagraphPlace place{GeneralModule::CreateChapter(QStringLiteral("One"), {}), 0};
    CreateFirstParagraph(place);
    const ParagraphContent shown = LoadParagraph(place.paragraph);
    CreateNextParagraph(place, {shown, shown});
    return pictures.size() == pictureCount;
}

std::vector<PictureRequest> OnScreen(const frmReelvane& viewer)
{
    std::vector<PictureRequest> requests;
    for (const PictureBox* box : viewer.findChildren<PictureBox*>()) {
        if (box->isVisible())
            requests.push_back({box->GetTag(), box->size()});
    }
    return requests;
}

// What a tick of the timer does, to the last pixel.
void Step(frmReelvane& viewer)
{
    viewer.DisplayNextParagraph();
    viewer.repaint();
}

void AutoviewStep(benchmark::State& state)
{
    frmReelvane viewer;
    viewer.CurrentChapter = 1;
    viewer.resize(viewerSize);
    viewer.show();
    while (OnScreen(viewer).empty())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    viewer.Nblines = int(state.range(0));
    Step(viewer);
    Times steps;
    Times decodes;
    double longest = 0;
    std::size_t pictures = 0;
    for (auto _ : state) {
        steps.push_back(MillisecondsOf([&] { Step(viewer); }));
        const std::vector<PictureRequest> requests = OnScreen(viewer);
        decodes.push_back(
            MillisecondsOf([&] { benchmark::DoNotOptimize(ReadPictures(requests)); }));
        longest = std::max(longest, steps.back());
        pictures = requests.size();
        state.SetIterationTime(steps.back() / 1000);
    }
    state.counters["pictures"] = double(pictures);
    state.counters["step_ms"] = Median(steps);
    state.counters["longest_ms"] = longest;
    state.counters["decode_ms"] = Median(decodes);
    state.counters["to_decode"] = Median(steps) / Median(decodes);
}

} // namespace

BENCHMARK(AutoviewStep)
    ->DenseRange(0, 4)
    ->ArgName("lines")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(9);

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QtDialogs dialogs;
    Dialogs::Install(&dialogs);
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir folder;
    if (!folder.isValid() || !MakeStory(folder)) {
        std::fputs("The story cannot be made in the temporary folder\n", stderr);
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    GeneralModule::ReleaseAlbum();
    return 0;
}
