// SPDX-License-Identifier: MIT
#include "platform/picture/PictureReader.h"

#include <QFile>
#include <QGuiApplication>

#include <cstdio>

// picture_peak FILE WIDTH HEIGHT: reads one picture into that box and prints the most memory that
// this process ever held, in KiB.

namespace {

// 0 when the system does not tell. Counted by the kernel since this program was loaded, so what the
// starting process held is not in it.
qint64 PeakKibibytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.mid(6).simplified().split(' ').first().toLongLong();
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: picture_peak FILE WIDTH HEIGHT\n", stderr);
        return 2;
    }
    const QSize box(arguments[2].toInt(), arguments[3].toInt());
    const QSize full = ReadPictureInfo(arguments[1]).size;
    const QImage image = ReadPicture(arguments[1], full.scaled(box, Qt::KeepAspectRatio));
    if (image.isNull()) {
        std::fputs("The picture cannot be read\n", stderr);
        return 1;
    }
    std::printf("%lld\n", static_cast<long long>(PeakKibibytes()));
    return 0;
}
