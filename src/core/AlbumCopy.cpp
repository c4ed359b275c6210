// SPDX-License-Identifier: MIT
#include "core/AlbumCopy.h"

#include "core/Album.h"
#include "platform/data/WriteBatch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 blockSize = 1 << 20;

QString FreeName(const QFileInfo& album, const QString& note)
{
    for (int number = 1;; ++number) {
        const QString mark = number == 1 ? note : QStringLiteral("%1 %2").arg(note).arg(number);
        const QString name =
            QStringLiteral("%1 (%2).%3").arg(album.completeBaseName(), mark, album.suffix());
        if (!album.dir().exists(name))
            return album.dir().filePath(name);
    }
}

// What a full disk or a drive that was pulled out leaves is found only by reading it back.
bool AreEqual(const QString& first, const QString& second)
{
    QFile a(first);
    QFile b(second);
    if (!a.open(QIODevice::ReadOnly) || !b.open(QIODevice::ReadOnly) || a.size() != b.size())
        return false;
    while (!a.atEnd()) {
        if (a.read(blockSize) != b.read(blockSize) || a.error() != QFile::NoError)
            return false;
    }
    return true;
}

} // namespace

namespace GeneralModule {

QString CopyAlbumBeside(const QString& note)
{
    const QString album = AlbumDatabase->GetPath();
    const QString copy = FreeName(QFileInfo(album), note);
    // Holds the album's write lock, with nothing written, as long as the file is read.
    const WriteBatch lock(AlbumDatabase);
    if (!QFile::copy(album, copy) || !AreEqual(album, copy)) {
        QFile::remove(copy);
        throw DatabaseError(
            DatabaseError::DiskError,
            QCoreApplication::translate("Album", "The album cannot be copied to '%1'.")
                .arg(QDir::toNativeSeparators(copy)));
    }
    return copy;
}

} // namespace GeneralModule
