// SPDX-License-Identifier: MIT
#include "platform/picture/SharedThumbnails.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <filesystem>

namespace {

struct Shelf
{
    int side;
    const char* folder;
};

constexpr std::array<Shelf, 3> shelves{{{128, "normal"}, {256, "large"}, {512, "x-large"}}};

constexpr qint64 maxThumbnailBytes = 4
                                     << 20; // of a thumbnail, far above what 512 by 512 pixels take

constexpr auto onlyForUser = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

const QString uriKey = QStringLiteral("Thumb::URI");
const QString timeKey = QStringLiteral("Thumb::MTime");
const QString softwareKey = QStringLiteral("Software");

QString StoreFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/thumbnails");
}

QString ThumbnailPath(const Shelf& shelf, const QByteArray& uri)
{
    const QByteArray name = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex();
    return QStringLiteral("%1/%2/%3.png")
        .arg(StoreFolder(), QLatin1String(shelf.folder), QLatin1String(name));
}

// Null unless it is of that file and of that time.
QImage ReadThumbnail(const QString& thumbnail, const QByteArray& uri, qint64 modified, int side)
{
    QFile file(thumbnail);
    if (!file.open(QIODevice::ReadOnly) || file.size() > maxThumbnailBytes)
        return {};
    QImageReader reader(&file, "png");
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > side || size.height() > side)
        return {};
    // The reader's own texts end at a colon, which these keys have.
    QImage image = reader.read();
    const bool isOfFile = image.text(uriKey) == QLatin1String(uri) &&
                          image.text(timeKey) == QString::number(modified);
    return isOfFile ? image : QImage();
}

// The cache folder's parents belong to others; from the store on, folders are the user's alone.
bool MakeFolder(const QString& folder)
{
    const QDir store(StoreFolder());
    return QDir(folder).exists() || (QDir().mkpath(QFileInfo(store.path()).path()) &&
                                     (store.exists() || QDir().mkdir(store.path(), onlyForUser)) &&
                                     QDir().mkdir(folder, onlyForUser));
}

QByteArray EncodedPng(QImage image, const QByteArray& uri, qint64 modified)
{
    // Packs hardly worse than the default, and four times as fast.
    constexpr int fastest = 85; // the first of the library's levels but "not at all"
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "png");
    writer.setQuality(fastest);
    image.setText(uriKey, QLatin1String(uri));
    image.setText(timeKey, QString::number(modified));
    image.setText(softwareKey, QStringLiteral("Lumenark"));
    return writer.write(image) ? bytes : QByteArray();
}

// Others see the old file or the new one. Not written through to the disk: what a power cut damages
// no longer has its keys and is made again.
bool WriteBeside(const QString& path, const QByteArray& bytes)
{
    QTemporaryFile file(path + QStringLiteral(".XXXXXX")); // only the user may read and write it
    if (bytes.isEmpty() || !file.open() || file.write(bytes) != bytes.size() || !file.flush())
        return false;
    std::error_code error;
    std::filesystem::rename(file.filesystemFileName(), QFileInfo(path).filesystemFilePath(), error);
    file.setAutoRemove(bool(error));
    return !error;
}

} // namespace

int SharedSideFor(int side)
{
    const auto found =
        std::ranges::find_if(shelves, [side](const Shelf& shelf) { return shelf.side >= side; });
    return found == shelves.end() ? 0 : found->side;
}

QByteArray ThumbnailUri(const QString& path)
{
    const QByteArray plain("!$&'()*+,/:=@"); // besides letters, digits and "-._~"
    return "file://" + QFile::encodeName(QDir::cleanPath(path)).toPercentEncoding(plain);
}

QImage FindSharedThumbnail(const QString& path, qint64 modified, int side)
{
    const QByteArray uri = ThumbnailUri(path);
    for (const Shelf& shelf : shelves) {
        if (shelf.side < side)
            continue;
        QImage image = ReadThumbnail(ThumbnailPath(shelf, uri), uri, modified, shelf.side);
        if (!image.isNull())
            return image;
    }
    return {};
}

bool ShareThumbnail(const QString& path, qint64 modified, int side, const QImage& image)
{
    if (QDir::cleanPath(path).startsWith(StoreFolder() + QLatin1Char('/')))
        return true;
    const auto shelf =
        std::ranges::find_if(shelves, [side](const Shelf& each) { return each.side == side; });
    if (shelf == shelves.end())
        return false;
    const QByteArray uri = ThumbnailUri(path);
    const QString thumbnail = ThumbnailPath(*shelf, uri);
    return MakeFolder(QFileInfo(thumbnail).path()) &&
           WriteBeside(thumbnail, EncodedPng(image, uri, modified));
}
