// SPDX-License-Identifier: MIT
#include "core/StateReturn.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/ChainMending.h"
#include "core/EarlierStates.h"
#include "core/StateKeeping.h"
#include "platform/data/DatabaseFile.h"
#include "platform/files/FileReplacement.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <system_error>

namespace {

using namespace GeneralModule;

void CopyInto(const QString& source, const QString& target)
{
    constexpr qint64 blockSize = 1 << 20;
    QFile from(source);
    QFile into(target);
    bool isSound =
        from.open(QIODevice::ReadOnly) && into.open(QIODevice::WriteOnly | QIODevice::ExistingOnly);
    for (qint64 left = from.size(); isSound && left > 0;) {
        const QByteArray block = from.read(blockSize);
        isSound = !block.isEmpty() && into.write(block) == block.size();
        left -= block.size();
    }
    if (!isSound || !into.flush()) {
        const QFile& failed = into.error() != QFile::NoError ? into : from;
        throw DatabaseError(
            DatabaseError::DiskError,
            QCoreApplication::translate("EarlierStates", "The state cannot be taken back: %1")
                .arg(failed.errorString()));
    }
}

void KeepPresent(const QString& album)
{
    if (OpenAlbumPath() == album)
        KeepState(true);
    else if (QFileInfo::exists(album))
        KeepUnopenedState(album);
}

} // namespace

namespace GeneralModule {

OpenState::OpenState(const QString& path, const QString& password)
    : database_(Database::Open(path, password, Database::Use::Reading))
{
}

QString OpenState::GetPassword() const
{
    return database_->GetPassword();
}

qint64 OpenState::Count(const char* table) const
{
    Statement count(database_->GetEngine(), QByteArray("SELECT count(*) FROM ") + table);
    return count.Step() ? count.GetInteger(0) : 0;
}

std::vector<StateChapter> OpenState::Chapters() const
{
    std::vector<ChainLink> links;
    std::vector<StateChapter> rows;
    Statement reading(database_->GetEngine(),
                      "SELECT Id, PreviousChapter, NextChapter, Name, (SELECT count(*) FROM "
                      "Paragraph WHERE Chapter=Chapter.Id) FROM Chapter");
    while (reading.Step()) {
        const auto id = qint32(reading.GetInteger(0));
        const std::string_view name = reading.GetUtf8(3);
        links.push_back({id, qint32(reading.GetInteger(1)), qint32(reading.GetInteger(2))});
        rows.push_back({id, QString::fromUtf8(name.data(), qsizetype(name.size())),
                        int(reading.GetInteger(4))});
    }
    std::vector<StateChapter> chapters;
    for (const ChainLink& link : MendChain(links))
        for (const StateChapter& row : rows)
            if (row.id == link.id)
                chapters.push_back(row);
    return chapters;
}

// The state is copied before the present one is kept, which may be one state too many.
bool TakeBackState(const QString& state, const QString& password, const QString& album)
{
    RequireSound(state, password);
    try {
        FileReplacement replacement(album);
        CopyInto(state, replacement.GetPath());
        replacement.WriteThrough();
        KeepPresent(album);
        if (OpenAlbumPath() == album)
            ReleaseAlbum();
        replacement.Commit();
    } catch (const std::system_error& error) {
        if (!IsAlbumOpen() && QFileInfo::exists(album))
            OpenAlbum(album, password);
        throw DatabaseError(
            DatabaseError::DiskError,
            QCoreApplication::translate("EarlierStates", "The state cannot be taken back: %1")
                .arg(QString::fromLocal8Bit(error.code().message().c_str())));
    }
    return OpenAlbum(album, password);
}

} // namespace GeneralModule
