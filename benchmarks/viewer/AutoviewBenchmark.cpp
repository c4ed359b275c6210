// SPDX-License-Identifier: MIT
// How punctual autoview is on a full HD page, with pictures of 24 megapixels: the time from one
// page on the screen to the next, against the delay that was asked for.
#include "PaintWatch.h"
#include "StoryOfPhotographs.h"

#include "platform/widgets/QtDialogs.h"
#include "viewer/ViewerFlags.h"
#include "viewer/frmReelvane.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr QSize viewerSize(1920, 1080);
constexpr int stepCount = 8;
constexpr double delay = 2; // seconds

using Clock = PaintWatch::Clock;

// Answers the question for the delay.
class DelayDialogs : public QtDialogs
{
public:
    QString AskText(const Input&) override { return QString::number(delay); }
};

double MillisecondsBetween(Clock::time_point one, Clock::time_point other)
{
    return std::chrono::duration<double, std::milli>(other - one).count();
}

class Watching
{
public:
    explicit Watching(int lines)
    {
        viewer_.CurrentChapter = StoryOfPhotographs::fullChapter;
        viewer_.resize(viewerSize);
        viewer_.show();
        WaitForNext();
        viewer_.Nblines = lines;
        viewer_.DisplayAgain();
        viewer_.findChild<QWidget*>(QStringLiteral("cmdTimer"))->setFocus();
        QMetaObject::invokeMethod(viewer_.findChild<QObject*>(QStringLiteral("cmdTimer")), "click");
        WaitForNext();
    }

    ~Watching() { viewer_.close(); } // ends autoview

    // Milliseconds by which each step came too late.
    std::vector<double> Steps()
    {
        constexpr double millisecondsPerSecond = 1000;
        std::vector<double> late;
        Clock::time_point last = WaitForNext();
        for (int i = 0; i < stepCount; ++i) {
            const Clock::time_point next = WaitForNext();
            late.push_back(MillisecondsBetween(last, next) - delay * millisecondsPerSecond);
            last = next;
        }
        return late;
    }

    int CountPictures() const { return int(OnScreen(viewer_).size()); }

private:
    // Returns when the next page's pictures were painted for the first time.
    Clock::time_point WaitForNext()
    {
        const int before = viewer_.CurrentParagraph;
        while (viewer_.CurrentParagraph == before)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const Clock::time_point changed = Clock::now();
        while (watch_.painted < changed)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return watch_.painted;
    }

    frmReelvane viewer_;
    PaintWatch watch_{viewer_};
};

void Measure(int lines, bool isSoft)
{
    GeneralModule::SoftTransitions = isSoft;
    Watching watching(lines);
    const std::clock_t begin = std::clock();
    std::vector<double> late = watching.Steps();
    const double processor = double(std::clock() - begin) / CLOCKS_PER_SEC / (delay * stepCount);
    std::ranges::sort(late);
    std::printf("%5d %8d %6s %9.1f %9.1f %9.0f %%\n", lines, watching.CountPictures(),
                isSoft ? "fade" : "", late[late.size() / 2], late.back(), processor * 100);
    std::fflush(stdout);
}

void MeasureAll()
{
    std::printf("%5s %8s %6s %9s %9s %11s\n", "lines", "pictures", "", "late, ms", "longest",
                "processor");
    for (int lines = 0; lines <= maxLines; ++lines) {
        for (const bool isSoft : {false, true})
            Measure(lines, isSoft);
    }
}

} // namespace

int main(int argc, char** argv)
{
    DelayDialogs dialogs;
    return RunWithStory(argc, argv, dialogs, MeasureAll);
}
