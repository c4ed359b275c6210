// SPDX-License-Identifier: MIT
// material_benchmark: pictures of other kinds than a camera's usual JPEG, each read to fit a full
// HD screen, beside Qt's own reader that is asked for the same. Each reading is a process of its
// own, so that its peak memory can be told.
#include "PaintedPictures.h"

#include "platform/picture/PictureReader.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>

#include <vector>

namespace {

constexpr QSize box(1920, 1080);
constexpr int runCount = 3;

struct Reading
{
    double milliseconds = 0;
    double mebibytes = 0;
    bool isRead = false;
};

QImage ReadBare(const QString& path)
{
    QImageReader::setAllocationLimit(0);
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setScaledSize(reader.size().scaled(box, Qt::KeepAspectRatio));
    return reader.read();
}

QImage ReadOurs(const QString& path)
{
    return ReadPicture(path, ReadPictureInfo(path).size.scaled(box, Qt::KeepAspectRatio));
}

// In KiB, since this program was loaded: what the starting process held is not in it.
long PeakMemory()
{
    std::ifstream status("/proc/self/status");
    const std::string key = "VmHWM:";
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(key))
            return std::stol(line.substr(key.size()));
    }
    return 0;
}

// The child: prints milliseconds, peak memory in KiB, and whether there is a picture.
int ReadOnce(bool isOurs, const QString& path)
{
    QElapsedTimer time;
    time.start();
    const QImage image = isOurs ? ReadOurs(path) : ReadBare(path);
    const double milliseconds = double(time.nsecsElapsed()) / 1e6;
    std::printf("%.2f %ld %d\n", milliseconds, PeakMemory(), int(!image.isNull()));
    return 0;
}

Reading RunChild(const char* way, const QString& path)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(way), path});
    child.waitForFinished(-1);
    const QList<QByteArray> words = child.readAllStandardOutput().simplified().split(' ');
    if (words.size() != 3)
        return {};
    return {words[0].toDouble(), words[1].toDouble() / 1024, words[2] == "1"};
}

// In turn, so that a busy machine slows both alike.
void Measure(const char* name, const QString& path)
{
    std::vector<Reading> ours;
    std::vector<Reading> bare;
    for (int i = 0; i < runCount; ++i) {
        ours.push_back(RunChild("--ours", path));
        bare.push_back(RunChild("--bare", path));
    }
    const auto median = [](std::vector<Reading>& readings) {
        std::ranges::sort(readings, {}, &Reading::milliseconds);
        return readings[readings.size() / 2];
    };
    const Reading one = median(ours);
    const Reading other = median(bare);
    std::printf("%-34s %9.0f %9.0f %6.2f %9.0f %9.0f  %s\n", name, one.milliseconds,
                other.milliseconds, one.milliseconds / other.milliseconds, one.mebibytes,
                other.mebibytes, one.isRead ? "" : "not read");
    std::fflush(stdout);
}

// Puts one painted photograph beside another until the size is filled.
QImage Panorama(const QImage& photograph, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(image.rect(), QBrush(photograph));
    return image;
}

// 100 frames of 640 by 480 whose codes are all eight bits long: nothing is compressed.
bool WriteGif(const QString& path)
{
    constexpr int width = 640;
    constexpr int height = 480;
    QByteArray gif("GIF89a\x80\x02\xE0\x01\xF6\0\0", 13);
    for (int i = 0; i < 128; ++i)
        gif.append(3, char(i * 2));
    for (int frame = 0; frame < 100; ++frame) {
        gif += QByteArray("\x21\xF9\x04\0\x0A\0\0\0\x2C\0\0\0\0\x80\x02\xE0\x01\0\x07", 19);
        constexpr char clear = '\x80';
        constexpr int run = 126; // then codes would take nine bits
        QByteArray codes;
        for (int pixel = 0; pixel < width * height; ++pixel) {
            if (pixel % run == 0)
                codes += clear;
            codes += char((pixel + frame) % 128);
        }
        codes += '\x81';
        for (qsizetype at = 0; at < codes.size(); at += 255) {
            const QByteArray block = codes.mid(at, 255);
            gif += char(block.size()) + block;
        }
        gif += '\0';
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(gif + ';') > 0;
}

bool Write(const QImage& image, const QString& path, bool isProgressive = false)
{
    QImageWriter writer(path);
    writer.setProgressiveScanWrite(isProgressive);
    writer.setQuality(90);
    return writer.write(image);
}

int MeasureAll()
{
    const QTemporaryDir folder;
    const QStringList painted = PaintPictures(QDir(folder.path()), QSize(6000, 4000), 1);
    if (painted.isEmpty())
        return 1;
    const QImage photograph(painted.first());
    const auto path = [&](const char* name) { return folder.filePath(QLatin1String(name)); };
    std::printf("%-34s %9s %9s %6s %9s %9s\n", "", "ours, ms", "bare, ms", "ratio", "ours, MiB",
                "bare, MiB");
    Measure("JPEG, 24 megapixels", painted.first());
    const auto measure = [&](const char* name, const char* file, const QImage& image,
                             bool isProgressive = false) {
        if (Write(image, path(file), isProgressive))
            Measure(name, path(file));
        else
            std::printf("%-34s cannot be written here\n", name);
        QFile::remove(path(file));
    };
    measure("progressive JPEG, 24 megapixels", "p.jpg", photograph, true);
    measure("PNG, 24 megapixels", "p.png", photograph);
    measure("WebP, 24 megapixels", "p.webp", photograph.scaled(6000, 4000));
    measure("TIFF, 24 megapixels", "p.tif", photograph);
    measure("BMP, 24 megapixels", "p.bmp", photograph);
    measure("JPEG panorama, 100 megapixels", "a.jpg", Panorama(photograph, {25000, 4000}));
    measure("progressive panorama, 100", "b.jpg", Panorama(photograph, {25000, 4000}), true);
    measure("PNG panorama, 100 megapixels", "a.png", Panorama(photograph, {25000, 4000}));
    measure("TIFF panorama, 100 megapixels", "a.tif", Panorama(photograph, {25000, 4000}));
    measure("JPEG panorama, 200 megapixels", "c.jpg", Panorama(photograph, {40000, 5000}));
    measure("PNG panorama, 200 megapixels", "c.png", Panorama(photograph, {40000, 5000}));
    measure("TIFF panorama, 200 megapixels", "c.tif", Panorama(photograph, {40000, 5000}));
    if (WriteGif(path("a.gif")))
        Measure("GIF of 100 frames, 640x480", path("a.gif"));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3)
        return ReadOnce(arguments[1] == QLatin1String("--ours"), arguments[2]);
    return MeasureAll();
}
