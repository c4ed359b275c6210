// SPDX-License-Identifier: MIT
// How long a reader waits for the next page: from the key to the painted pixels, with photographs
// of 24 megapixels. The key comes from another thread at its time, whatever the program is doing.
// Beside it the mere decode of the pictures that came on the screen, in the same run. With --trace
// the processor's load while somebody reads for a minute.
#include "PaintWatch.h"
#include "StoryOfPhotographs.h"

#include "core/Album.h"
#include "platform/picture/PictureReader.h"
#include "platform/widgets/PictureBox.h"
#include "platform/widgets/QtDialogs.h"
#include "viewer/frmReelvane.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <string>
#include <thread>

namespace {

using Clock = PaintWatch::Clock;
using std::chrono::milliseconds;

constexpr int keyCount = 9;
constexpr milliseconds look(1500);
constexpr milliseconds atOnce(20); // nobody is quicker
constexpr milliseconds heldKey(33);

double Since(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

// Shows a chapter with so many lines of pictures, and presses a key again and again.
class Reading
{
public:
    Reading(QSize size, int chapter, int lines)
    {
        viewer_.CurrentChapter = chapter;
        viewer_.resize(size);
        viewer_.show();
        WaitForPicture({});
        WaitFor(look); // the window has its last size
        viewer_.Nblines = lines;
        viewer_.DisplayNextParagraph();
        WaitFor(look);
    }

    // Milliseconds from the key to the pixels.
    double Press(Qt::Key key, milliseconds after)
    {
        const QString before = viewer_.LastImageDisplayed;
        Clock::time_point pressed;
        auto* event = new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier);
        std::thread finger([&, until = watch_.painted + after] {
            std::this_thread::sleep_until(until);
            pressed = Clock::now();
            QCoreApplication::postEvent(&viewer_, event);
        });
        WaitForPicture(before);
        finger.join();
        return std::chrono::duration<double, std::milli>(watch_.painted - pressed).count();
    }

    double DecodeAgain() const
    {
        const std::vector<PictureRequest> requests = OnScreen(viewer_);
        const auto begin = Clock::now();
        const std::vector<QImage> images = ReadPictures(requests);
        return images.empty() ? 0 : Since(begin);
    }

    int CountPictures() const { return int(OnScreen(viewer_).size()); }

    static void WaitFor(milliseconds time)
    {
        QEventLoop loop;
        QTimer::singleShot(time, &loop, &QEventLoop::quit);
        loop.exec();
    }

private:
    void WaitForPicture(const QString& before)
    {
        const auto begin = Clock::now();
        while (viewer_.LastImageDisplayed == before || watch_.painted < begin ||
               OnScreen(viewer_).empty())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    frmReelvane viewer_;
    PaintWatch watch_{viewer_};
};

// One minute of reading with a key every six seconds: the processor's load in each half second,
// 100 % for one core.
void Trace()
{
    constexpr milliseconds step(500);
    constexpr int stepsOfKey = 12;
    constexpr int keys = 10;
    Reading reading(QSize(1920, 1080), StoryOfPhotographs::fullChapter, 1);
    for (int key = 0; key < keys; ++key) {
        const bool isParagraph = key % 2 == 0;
        std::printf("%-14s", isParagraph ? "next paragraph" : "next pictures");
        std::clock_t used = std::clock();
        reading.Press(isParagraph ? Qt::Key_Right : Qt::Key_Down, milliseconds(0));
        for (int i = 0; i < stepsOfKey; ++i) {
            Reading::WaitFor(step);
            const double seconds = double(std::clock() - used) / CLOCKS_PER_SEC;
            used = std::clock();
            std::printf("%5.0f", seconds * 1000 / double(step.count()) * 100);
        }
        std::printf("\n");
        std::fflush(stdout);
    }
}

struct Way
{
    const char* name;
    int chapter;
    int lines;
    Qt::Key key;
    milliseconds after;
};

void Measure(QSize size, const Way& way)
{
    Reading reading(size, way.chapter, way.lines);
    std::vector<double> keys;
    std::vector<double> decodes;
    for (int i = 0; i < keyCount; ++i) {
        if (way.key == Qt::Key_Left)
            reading.Press(Qt::Key_Right, way.after); // the story's beginning has no previous page
        keys.push_back(reading.Press(way.key, way.after));
    }
    const int pictures = reading.CountPictures();
    for (int i = 0; i < keyCount; ++i)
        decodes.push_back(reading.DecodeAgain());
    std::ranges::sort(keys);
    std::ranges::sort(decodes);
    std::printf("%4dx%-4d  %-34s %8d %9.1f %9.1f %9.1f\n", size.width(), size.height(), way.name,
                pictures, keys[keyCount / 2], keys.back(), decodes[keyCount / 2]);
    std::fflush(stdout);
}

// "VmHWM", the peak, or "RssAnon", what is held without the libraries' code, in mebibytes.
double MemoryOf(const char* kind)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(kind))
            return std::stod(line.substr(std::strlen(kind) + 1)) / 1024;
    }
    return 0;
}

// The peak that MemoryOf tells counts from here on, without what painting took.
void ForgetPeak()
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5;
}

void PrintMemory(double before)
{
    Reading::WaitFor(look); // what was given up last is given back
    std::printf("memory held before the viewer %.0f MiB, peak with all code %.0f, held afterwards "
                "%.0f\n",
                before, MemoryOf("VmHWM"), MemoryOf("RssAnon"));
}

void MeasureAll()
{
    using Story = StoryOfPhotographs;
    const Way ways[] = {
        {"next paragraph after 1.5 s", Story::singleChapter, 1, Qt::Key_Right, look},
        {"next paragraph at once", Story::singleChapter, 1, Qt::Key_Right, atOnce},
        {"next paragraph, key held down", Story::singleChapter, 1, Qt::Key_Right, heldKey},
        {"previous paragraph after 1.5 s", Story::singleChapter, 1, Qt::Key_Left, look},
        {"next screen after 1.5 s", Story::fullChapter, 4, Qt::Key_Down, look},
        {"next full paragraph after 1.5 s", Story::fullChapter, 4, Qt::Key_Right, look}};
    std::printf("%-9s  %-34s %8s %9s %9s %9s\n", "", "milliseconds", "pictures", "median",
                "longest", "decode");
    for (const QSize size : {QSize(1600, 1000), QSize(1920, 1080)}) {
        for (const Way& way : ways)
            Measure(size, way);
    }
}

} // namespace

int main(int argc, char** argv)
{
    QtDialogs dialogs;
    return RunWithStory(argc, argv, dialogs, [] {
        ForgetPeak();
        const double before = MemoryOf("RssAnon");
        if (QCoreApplication::arguments().contains(QLatin1String("--trace")))
            Trace();
        else
            MeasureAll();
        PrintMemory(before);
    });
}
