// SPDX-License-Identifier: MIT
#include "core/AlbumCopy.h"

#include "core/AlbumSets.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/FileReplacement.h"

#include <QDir>
#include <QFileInfo>

#include <system_error>

namespace {

QString FreeName(const QFileInfo& album, const QString& note)
{
    for (int number = 1;; ++number) {
        const QString mark =
            number == 1 ? note : QStringLiteral("%1 %2").arg(note, QString::number(number));
        const QString name =
            QStringLiteral("%1 (%2).%3").arg(album.completeBaseName(), mark, album.suffix());
        if (!album.dir().exists(name))
            return album.dir().filePath(name);
    }
}

} // namespace

namespace GeneralModule {

QString CopyAlbumBeside(const QString& note, const CopyProgress& progress)
{
    const QString copy = FreeName(QFileInfo(AlbumDatabase->GetPath()), note);
    // Holds the album's write lock, with nothing written, as long as the file is read.
    const WriteBatch lock(AlbumDatabase);
    try {
        FileReplacement replacement(copy); // whatever ends the program leaves no half copy there
        if (!CopyDatabaseFile(*AlbumDatabase, replacement.GetPath(), progress))
            return {};
        replacement.Commit(FileReplacement::Taken::Refuse);
    } catch (const std::system_error& error) {
        throw DatabaseError(DatabaseError::DiskError,
                            DatabaseError::tr("The album cannot be copied: %1")
                                .arg(QString::fromLocal8Bit(error.code().message().c_str())));
    }
    return copy;
}

} // namespace GeneralModule
