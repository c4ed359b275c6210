// SPDX-License-Identifier: MIT
// What 10,000 picture files say, read by the helper, and by exiv2 in this process.
#include "benchmarks/SideBySide.h"
#include "platform/metadata/MetadataReader.h"
#include "platform/metadata/PictureTexts.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <exiv2/exiv2.hpp>

#include <array>

namespace {

constexpr int fileCount = 10000;

// Half of them with little to say, as a camera leaves them, half described.
QStringList WriteFiles(const QString& folder)
{
    QStringList paths;
    const QByteArray date("1998:07:14 12:00:00\0", 20);
    const std::array kinds{
        PictureTexts{.exif = {{0x010F, QByteArray("Maker\0", 6)}, {0x9003, date}}},
        PictureTexts{.xmp =
                         XmpCaption("A boat on the lake") + XmpKeywords({"Lake", "Anna", "1998"}),
                     .iptc = {{120, "A boat on the lake"}, {25, "Lake"}, {25, "Anna"}},
                     .exif = {{0x010E, QByteArray("A boat on the lake\0", 19)}, {0x9003, date}}}};
    for (const PictureTexts& texts : kinds) {
        const QString path = QStringLiteral("%1/%2.jpg").arg(folder).arg(paths.size());
        WritePicture(path, texts);
        paths += path;
    }
    while (paths.size() < fileCount) {
        const QString path = QStringLiteral("%1/%2.jpg").arg(folder).arg(paths.size());
        QFile::copy(paths[paths.size() % qsizetype(kinds.size())], path);
        paths += path;
    }
    return paths;
}

void ReadByHelper(benchmark::State& state, const QStringList& paths)
{
    for (auto each : state) {
        std::size_t texts = 0;
        MetadataReader reader(paths);
        while (
            reader.Work(std::chrono::milliseconds(5), [&texts](int, const FileMetadata& metadata) {
                texts += metadata.captions.size() + metadata.keywords.size();
            }))
            ;
        if (texts != fileCount / 2 * 6)
            state.SkipWithError("not all was read");
    }
}

std::size_t CountTexts(const std::string& path)
{
    const auto image = Exiv2::ImageFactory::open(path);
    image->readMetadata();
    std::size_t texts = 0;
    for (const char* key : {"Xmp.dc.description", "Xmp.dc.subject"}) {
        const auto found = image->xmpData().findKey(Exiv2::XmpKey(key));
        if (found != image->xmpData().end())
            texts += std::size_t(found->count());
    }
    for (const auto& datum : image->iptcData())
        texts += datum.toString().empty() ? 0 : 1;
    for (const char* key : {"Exif.Image.ImageDescription", "Exif.Photo.DateTimeOriginal"}) {
        const auto found = image->exifData().findKey(Exiv2::ExifKey(key));
        texts += found == image->exifData().end() || found->toString().empty() ? 0 : 1;
    }
    return texts;
}

void ReadBare(benchmark::State& state, const QStringList& paths)
{
    for (auto each : state) {
        std::size_t texts = 0;
        for (const QString& path : paths)
            texts += CountTexts(QFile::encodeName(path).toStdString());
        benchmark::DoNotOptimize(texts);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    const QTemporaryDir folder;
    const QStringList paths = WriteFiles(folder.path());
    const auto add = [&paths](const char* name, auto* function) {
        benchmark::RegisterBenchmark(name, function, paths)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    };
    for (int turn = 0; turn < 5; ++turn) {
        add("10,000 files/ours", &ReadByHelper);
        add("10,000 files/bare", &ReadBare);
    }
    RunSideBySide(argc, argv);
}
