// SPDX-License-Identifier: MIT
// A contact sheet of 100,000 pictures of 12 megapixels, made anew for the run: how long it takes to
// be shown and painted beside the toolkit's bare list, and to be sharp beside the bare decode of
// the same pictures; how many it looks at; and its memory.
#include "../pictures/PaintedPictures.h"
#include "../viewer/PaintWatch.h"

#include "catalogue/PictureCards.h"
#include "core/Album.h"
#include "core/AlbumSets.h"
#include "gallery/ContactSheet.h"
#include "platform/picture/Heap.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QMainWindow>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <vector>

using namespace GeneralModule;
using Clock = PaintWatch::Clock;

namespace {

constexpr int pictures = 100'000;
constexpr int painted = 24;
constexpr int repetitions = 7;
constexpr QSize windowSize(1280, 800);

// Files of their own for the file system, though many have the same pixels.
void FillAlbum(const QDir& folder, const QStringList& files)
{
    AlbumDatabase->Execute("BEGIN");
    Statement image(AlbumDatabase->GetEngine(),
                    "INSERT INTO Image (File,Legend,Car0,Car1,Car2,Car3,Car4,Car5,Car6,Car7,Car8,"
                    "Car9,Car10,Car11) VALUES (?1,?2,?3,'-','-','-','-','-','-','-','-','-','-',"
                    "'-')");
    for (int i = 0; i < pictures; ++i) {
        const QString path = folder.filePath(QStringLiteral("IMG_%1.jpg").arg(i));
        std::filesystem::create_hard_link(QFileInfo(files[i % painted]).filesystemFilePath(),
                                          QFileInfo(path).filesystemFilePath());
        image.Bind(1, path);
        image.Bind(2, i % 3 == 0 ? QString() : QStringLiteral("A boat on the water, %1").arg(i));
        image.Bind(3, i % 4 == 0 ? QStringLiteral("-") : QStringLiteral("Sea"));
        image.Run();
    }
    AlbumDatabase->Execute("COMMIT");
}

class BareModel : public QAbstractListModel
{
public:
    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : pictures;
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(QString::number(index.row())) : QVariant();
    }
};

double MillisecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

void WaitUntil(const std::function<bool()>& isDone)
{
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void WaitForPaint(const PaintWatch& watch, Clock::time_point begin)
{
    WaitUntil([&] { return watch.painted > begin; });
}

// From nothing to a window that shows it, painted.
template<typename View>
struct ShownView
{
    explicit ShownView(const std::function<void(View&)>& fill)
    {
        window.resize(windowSize);
        const Clock::time_point begin = Clock::now();
        view = new View(&window);
        window.setCentralWidget(view);
        fill(*view);
        window.show();
        WaitForPaint(watch, begin);
        milliseconds = MillisecondsSince(begin);
    }

    double Paint(const std::function<void()>& action)
    {
        const Clock::time_point begin = Clock::now();
        action();
        WaitForPaint(watch, begin);
        return MillisecondsSince(begin);
    }

    QMainWindow window;
    PaintWatch watch{window};
    View* view = nullptr;
    double milliseconds = 0;
};

void FillBare(QListView& view)
{
    view.setModel(new BareModel);
    view.model()->setParent(&view);
    view.setViewMode(QListView::IconMode);
    view.setUniformItemSizes(true);
    view.setGridSize({156, 177});
    view.setSelectionMode(QListView::ExtendedSelection);
}

void FillSheet(ContactSheet& sheet)
{
    sheet.ShowPictures(AllPictureIds());
}

double Median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void Print(const char* what, const std::vector<double>& ours, const std::vector<double>& bare)
{
    const double longest = *std::ranges::max_element(ours);
    std::printf("%-44s %9.1f %9.1f", what, Median(ours), longest);
    if (!bare.empty())
        std::printf(" %9.1f %7.2f", Median(bare), Median(ours) / Median(bare));
    std::printf("\n");
    std::fflush(stdout);
}

void MeasureShowing()
{
    std::vector<double> ours;
    std::vector<double> bare;
    std::vector<double> all[2];
    std::vector<double> ends[2];
    for (int i = 0; i < repetitions; ++i) {
        ShownView<ContactSheet> sheet(FillSheet);
        ours.push_back(sheet.milliseconds);
        ShownView<QListView> list(FillBare);
        bare.push_back(list.milliseconds);
        all[0].push_back(sheet.Paint([&] { sheet.view->selectAll(); }));
        all[1].push_back(list.Paint([&] { list.view->selectAll(); }));
        ends[0].push_back(sheet.Paint([&] { sheet.view->scrollToBottom(); }));
        ends[1].push_back(list.Paint([&] { list.view->scrollToBottom(); }));
    }
    Print("100,000 shown and painted", ours, bare);
    Print("all selected and painted", all[0], all[1]);
    Print("jump to the end, painted", ends[0], ends[1]);
}

QStringList LookedAt(ContactSheet& sheet)
{
    QSet<QString> files;
    sheet.SetLinked([&files](const QString& file) {
        files.insert(file);
        return false;
    });
    sheet.grab();
    sheet.SetLinked({});
    return files.values();
}

// Until every picture on the screen is sharp; each time they are others.
void MeasureDecoding()
{
    std::vector<double> ours;
    std::vector<double> bare;
    std::vector<double> again;
    int seen = 0;
    ShownView<ContactSheet> sheet(FillSheet);
    const std::vector<qint32> ids = AllPictureIds();
    for (int i = 0; i < repetitions; ++i) {
        const auto goAndWait = [&] {
            const Clock::time_point begin = Clock::now();
            sheet.Paint([&] { sheet.view->GoTo(ids[std::size_t(1000 * (i + 1))]); });
            WaitUntil([&] { return !sheet.view->IsWorking(); });
            return MillisecondsSince(begin);
        };
        ours.push_back(goAndWait());
        std::vector<PictureRequest> requests;
        for (const QString& file : LookedAt(*sheet.view))
            requests.push_back({file, QSize(256, 192)});
        seen = int(requests.size());
        const Clock::time_point begin = Clock::now();
        ReadPictures(requests);
        bare.push_back(MillisecondsSince(begin));
        ShownView<ContactSheet> later(FillSheet);
        const Clock::time_point laterBegin = Clock::now();
        later.Paint([&] { later.view->GoTo(ids[std::size_t(1000 * (i + 1))]); });
        WaitUntil([&] { return !later.view->IsWorking(); });
        again.push_back(MillisecondsSince(laterBegin));
    }
    std::printf("pictures on the screen: %d\n", seen);
    Print("all of a screen sharp and shared", ours, bare);
    Print("the same, found in the desktop's store", again, {});
}

void MeasureTyping()
{
    ShownView<ContactSheet> sheet(FillSheet);
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const Clock::time_point begin = Clock::now();
        FindPicturesByText(QStringLiteral("IMG_9999"));
        times.push_back(MillisecondsSince(begin));
    }
    Print("a typed letter, looked for", times, {});
}

double MemoryNow()
{
    GiveMemoryBack();
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS"))
            return std::stod(line.substr(std::strlen("VmRSS") + 1)) / 1024;
    }
    return 0;
}

void PrintMemory(const char* when, double before)
{
    std::printf("%-44s %9.1f MiB over the bare program\n", when, MemoryNow() - before);
}

// Of the first sheet of the process; the album and a window are open before.
void MeasureMemory()
{
    QMainWindow bare;
    bare.show();
    QCoreApplication::processEvents();
    const double before = MemoryNow();
    ShownView<ContactSheet> sheet(FillSheet);
    WaitUntil([&] { return !sheet.view->IsWorking(); });
    PrintMemory("100,000 shown, a screen sharp", before);
    sheet.Paint([&] { sheet.view->selectAll(); });
    const std::vector<qint32> ids = AllPictureIds();
    for (int i = 1; i <= 40; ++i) {
        sheet.Paint([&] { sheet.view->GoTo(ids[std::size_t(pictures / 2 + 1000 * i)]); });
        WaitUntil([&] { return !sheet.view->IsWorking(); });
    }
    PrintMemory("after 40 more screens", before);
    const std::clock_t used = std::clock();
    constexpr int seconds = 3;
    QEventLoop rest;
    QTimer::singleShot(seconds * 1000, &rest, &QEventLoop::quit);
    rest.exec();
    std::printf("%-44s %9.1f %% of one core\n", "at rest",
                double(std::clock() - used) / CLOCKS_PER_SEC / seconds * 100);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QTemporaryDir folder;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(folder.filePath(QStringLiteral("cache"))));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    const QString path = folder.filePath(QStringLiteral("sheet.alb"));
    QFile::copy(QStringLiteral(TEMPLATE_FILE), path);
    QDir(folder.path()).mkdir(QStringLiteral("painted"));
    const QStringList files =
        PaintPictures(folder.filePath(QStringLiteral("painted")), {4000, 3000}, painted);
    if (files.isEmpty() || !OpenAlbum(path))
        return EXIT_FAILURE;
    FillAlbum(folder.path(), files);
    MeasureMemory();
    std::printf("\n%-44s %9s %9s %9s %7s\n", "milliseconds", "median", "longest", "bare", "ratio");
    MeasureShowing();
    MeasureDecoding();
    MeasureTyping();
    ReleaseAlbum();
    return EXIT_SUCCESS;
}
