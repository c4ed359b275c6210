// SPDX-License-Identifier: MIT
// Damaged pictures of every kind that the reader knows, small ones painted here and those of the
// folders given. Reading one must not throw, crash, take long or take much memory.
#include "fuzz/PictureAttacks.h"
#include "fuzz/Trials.h"
#include "platform/picture/PictureReader.h"
#include "platform/picture/ReadyPictures.h"
#include "support/AlbumFixture.h"
#include "tests/platform/picture/PictureBytes.h"

#include <QColorSpace>
#include <QDirIterator>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

// A file may take three seconds, and this many times longer under sanitizers; memory there is
// counted with what they keep for themselves.
#ifdef __SANITIZE_ADDRESS__
constexpr int maxSeconds = 20;
#define MOST_MEBIBYTES "768"
#else
constexpr int maxSeconds = 3;
constexpr long maxKibibytes = 512L << 10;
#endif

// A file with a tail of zeros, which take no place on the disk.
constexpr qint64 longTail = 500LL << 20;
constexpr qint64 longestTail = 3LL << 30;

QImage Painted(QSize size, QImage::Format format)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(0, 0, size.width() / 2, size.height(), Qt::red);
    painter.drawLine(0, 0, size.width(), size.height());
    painter.drawEllipse(QPoint(size.width() / 2, size.height() / 2), 9, 7);
    painter.end();
    return image.convertToFormat(format);
}

QList<QByteArray> PaintedFiles()
{
    QList<QByteArray> files;
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_Indexed8,
                              QImage::Format_Mono, QImage::Format_Grayscale16}) {
        QImage image = Painted({40, 30}, format);
        image.setColorSpace(QColorSpace::AdobeRgb);
        for (const char* kind : {"jpeg", "png", "bmp", "webp", "tiff", "ppm", "pgm"})
            files += Encoded(image, kind);
        files += Encoded(image, "jpeg", true);
        files += WithOrientation(Encoded(image, "jpeg"), 6);
    }
    files.removeAll(QByteArray()); // of plug-ins that are not there
    files += TwoFrameGif();
    files += Bitmap({3, -2}, QByteArray(24, 'x'));
    return files;
}

QList<QByteArray> FilesOf(const QStringList& folders)
{
    QList<QByteArray> files;
    for (const QString& folder : folders) {
        QDirIterator each(folder, QDir::Files, QDirIterator::Subdirectories);
        while (each.hasNext())
            files += ReadFile(each.next());
    }
    return files;
}

// Headers, where sizes and offsets stand, take most of it.
void DamageBytes(QByteArray& bytes, Trials& trials)
{
    for (int i = trials.Below(6); i >= 0 && !bytes.isEmpty(); --i) {
        const qsizetype reach = trials.OneIn(3) ? bytes.size() : qMin<qsizetype>(64, bytes.size());
        const qsizetype at = trials.Below(reach);
        switch (trials.Below(5)) {
        case 0:
            bytes[at] = char(trials.Random()());
            break;
        case 1:
            bytes[at] ^= char(1U << trials.Below(8));
            break;
        case 2: // a size or an offset
            bytes.replace(at, 1 + trials.Below(4),
                          QByteArray(1 + trials.Below(4), trials.OneIn(2) ? '\xFF' : '\0'));
            break;
        case 3:
            bytes.insert(at, bytes.mid(trials.Below(bytes.size()), trials.Below(40)));
            break;
        default:
            bytes.truncate(trials.OneIn(4) ? trials.Below(bytes.size()) : bytes.size());
        }
    }
}

// The most that this process ever held, so only the first trial that takes more is told of.
void CheckMemory([[maybe_unused]] Trials& trials)
{
#ifndef __SANITIZE_ADDRESS__
    static long most = maxKibibytes;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    if (usage.ru_maxrss > most)
        trials.Fault(QStringLiteral("takes %1 MiB").arg(usage.ru_maxrss >> 10));
    most = qMax(most, usage.ru_maxrss);
#endif
}

// As the viewer reads it before it is asked for.
QImage ReadAhead(const PictureRequest& request)
{
    ReadyPictures pictures;
    pictures.SetRoom(request.size, 1);
    pictures.Want({request});
    while (pictures.Work(std::chrono::milliseconds(5)))
        ;
    return pictures.Take({request}).front();
}

void Try(Trials& trials, const QString& path, const QByteArray& bytes)
{
    trials.SetInput(bytes);
    WriteFile(path, bytes);
    if (trials.OneIn(50))
        QFile::resize(path, trials.OneIn(2) ? longTail : longestTail);
    const QSize asked(1 + trials.Below(80), 1 + trials.Below(60));
    try {
        const bool isReadable = ReadPictureInfo(path).IsReadable();
        const QImage image = ReadPicture(path, asked);
        if (ReadAhead({path, asked}) != image)
            trials.Fault(QStringLiteral("another picture when it is made ready"));
        if (!image.isNull() && (!isReadable || image.size() != asked))
            trials.Fault(QStringLiteral("asked for %1x%2, got %3x%4")
                             .arg(asked.width())
                             .arg(asked.height())
                             .arg(image.width())
                             .arg(image.height()));
        if (!image.isNull())
            trials.CountAccepted();
    } catch (const std::exception& error) {
        trials.Fault(QString::fromUtf8(error.what()));
    }
    CheckMemory(trials);
}

void ShowPeak()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("at most %ld MiB\n", usage.ru_maxrss >> 10);
}

// They say much of each file. The sanitizer still speaks where it did.
void KeepDecodersQuiet()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_report_fd(reinterpret_cast<void*>(intptr_t(dup(STDERR_FILENO))));
#endif
    if (!std::freopen("/dev/null", "w", stderr))
        std::puts("the decoders will be loud");
}

} // namespace

#ifdef __SANITIZE_ADDRESS__
// The sanitizer's own address space is larger than any limit, so it must watch by itself.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "hard_rss_limit_mb=" MOST_MEBIBYTES ":quarantine_size_mb=64:allocator_may_return_null=1";
}
#endif

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    KeepDecodersQuiet();
    Trials trials(argc, argv, maxSeconds);
    const QList<QByteArray> files = PaintedFiles() + FilesOf(trials.GetFiles());
    const QTemporaryDir folder;
    while (trials.Next()) {
        QByteArray bytes = trials.AnyOf(files);
        const bool isStructural = trials.OneIn(2);
        if (isStructural)
            DamageStructure(bytes, trials);
        if (!isStructural || trials.OneIn(4))
            DamageBytes(bytes, trials);
        Try(trials, folder.filePath(QStringLiteral("picture")), bytes);
    }
    ShowPeak();
    return trials.Finish();
}
