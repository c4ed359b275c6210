// SPDX-License-Identifier: MIT
// Web pages of a story of 100 photographs: "ours" makes all of them; "bare" only decodes each
// photograph at its largest size, scales it down and encodes it, in as many threads. And publishing
// again where nothing has changed, against the first time.
#include "../SideBySide.h"
#include "../pictures/PaintedPictures.h"

#include "publish/pages/PublishedPages.h"

#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <cstdlib>
#include <thread>

namespace {

constexpr QSize twelveMegapixels(4000, 3000);
constexpr int photographs = 100;
constexpr int quality = 85;
constexpr int widths[] = {1920, 960, 480};

struct Material
{
    QTemporaryDir folder;
    PublishedStory story;
    QStringList files;
};

Material& Photographs()
{
    static Material material;
    if (!material.files.isEmpty())
        return material;
    material.files = PaintPictures(material.folder.path(), twelveMegapixels, photographs);
    PublishedParagraph paragraph{1, QStringLiteral("What we saw."), {}, photographs};
    for (const QString& file : material.files)
        paragraph.pictures.push_back({file, file, QStringLiteral("A day"), paragraph.text});
    material.story.title = QStringLiteral("A Year");
    material.story.chapters.push_back({1, QStringLiteral("Days"), {paragraph}});
    return material;
}

void MakeBare(const QString& file, const QDir& target)
{
    QImageReader reader(file);
    reader.setScaledSize({1920, 1440});
    QImage image = reader.read();
    for (const int width : widths) {
        if (image.width() != width)
            image =
                image.scaled(width, width * 3 / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QImageWriter writer(
            target.filePath(QFileInfo(file).completeBaseName() + QString::number(width)), "jpeg");
        writer.setQuality(quality);
        writer.setOptimizedWrite(true);
        if (!writer.write(image))
            std::abort();
    }
}

void Bare(benchmark::State& state)
{
    const Material& material = Photographs();
    for (auto _ : state) {
        state.PauseTiming();
        const QTemporaryDir target;
        state.ResumeTiming();
        std::atomic<int> next = 0;
        std::vector<std::thread> threads;
        for (int i = 0; i < QThread::idealThreadCount(); ++i)
            threads.emplace_back([&] {
                for (int each = next++; each < photographs; each = next++)
                    MakeBare(material.files[each], target.path());
            });
        for (std::thread& thread : threads)
            thread.join();
    }
}

void Publish(const QString& target, int expected)
{
    const PublishReport report =
        PublishPages(Photographs().story, {}, target, [](int, int) { return true; });
    if (report.pictures != photographs || report.made != expected)
        std::abort();
}

void Ours(benchmark::State& state)
{
    Photographs();
    for (auto _ : state) {
        state.PauseTiming();
        const QTemporaryDir target;
        state.ResumeTiming();
        Publish(target.filePath(QStringLiteral("pages")), photographs);
    }
}

void Again(benchmark::State& state)
{
    const QTemporaryDir target;
    const QString folder = target.filePath(QStringLiteral("pages"));
    Publish(folder, photographs);
    for (auto _ : state)
        Publish(folder, 0);
}

void Register(const char* name, void (*body)(benchmark::State&))
{
    benchmark::RegisterBenchmark(name, body)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(1)
        ->Repetitions(3);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    Register("pages of 100 photographs/ours", Ours);
    Register("pages of 100 photographs/bare", Bare);
    Register("again, against the first time/ours", Again);
    Register("again, against the first time/bare", Ours);
    RunSideBySide(argc, argv);
    return EXIT_SUCCESS;
}
