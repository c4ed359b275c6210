// SPDX-License-Identifier: MIT
#include "LargeAlbum.h"
#include "Measurement.h"

#include "core/Album.h"
#include "core/AlbumCopy.h"
#include "core/AlbumPassword.h"
#include "core/AlbumRepair.h"
#include "core/AlbumSets.h"
#include "core/StateKeeping.h"
#include "platform/data/CipherFile.h"
#include "platform/data/Statement.h"

#include <QFile>

#include <unistd.h>

using namespace GeneralModule;
using Lock = LargeAlbum::Lock;

namespace {

QByteArray KeyOf(Lock lock)
{
    return lock == Lock::None ? QByteArray() : CipherKeys(LargeAlbum::password).value(0);
}

// What no opening can do without: the key, a row of each table, and a look at every paragraph.
void OpenBare(const LargeAlbum& album, Lock lock)
{
    const CipherFile file(album.GetPath(lock), KeyOf(lock));
    for (const char* table : {"Params", "Paragraph", "Image", "Chapter", "LinkedImages"})
        Statement(file.Get(), QByteArray("SELECT rowid FROM ") + table + " LIMIT 1").Step();
    Statement(file.Get(), "SELECT Id FROM Paragraph WHERE FileSelection IS NULL").Step();
}

Action Opening(const char* name, Lock lock)
{
    return {name, [lock](LargeAlbum& album) { album.Close(lock); },
            [lock](LargeAlbum& album) {
                if (!OpenAlbum(album.GetPath(lock),
                               lock == Lock::None ? QString() : LargeAlbum::password))
                    qFatal("the album was not opened");
            },
            [lock](LargeAlbum& album) { OpenBare(album, lock); }};
}

Action Locking(const char* name, Lock before, const QString& password)
{
    return {
        name, [before](LargeAlbum& album) { album.OpenToChange(before); },
        [password](LargeAlbum&) { SetAlbumPassword(password); },
        [before, password](LargeAlbum& album) {
            QFile target(album.FreePath());
            if (!target.open(QIODevice::WriteOnly))
                qFatal("the copy was not made");
            target.close();
            CipherFile(album.GetPath(before), KeyOf(before)).ExportTo(target.fileName(), password);
            target.remove();
        }};
}

// Both write the copy through to the disk.
Action Copying(const char* name, Lock lock)
{
    return {name, [lock](LargeAlbum& album) { album.OpenToChange(lock); },
            [](LargeAlbum& album) {
                QFile target(album.FreePath());
                if (!target.open(QIODevice::WriteOnly))
                    qFatal("the copy was not made");
                CloneDatabaseFile(*AlbumDatabase, target.fileName(), [](int) { return true; });
                fdatasync(target.handle());
                target.remove();
            },
            [](LargeAlbum& album) {
                const QString target = album.FreePath();
                QFile::copy(OpenAlbumPath(), target);
                QFile::remove(target);
            }};
}

Action Keeping(const char* name, Lock lock)
{
    return {name, [lock](LargeAlbum& album) { album.OpenToChange(lock); },
            [](LargeAlbum&) { QFile::remove(KeepState(false)); }};
}

void BreakLink(LargeAlbum& album)
{
    album.OpenToChange();
    AlbumDatabase->Execute("UPDATE Paragraph SET PreviousParagraph=0 WHERE Id=" +
                           QByteArray::number(album.LastOfLong()));
}

} // namespace

std::vector<Action> AlbumActions()
{
    const QString other = QStringLiteral("sailing boat");
    return {
        Opening("open", Lock::None),
        Opening("open with a password", Lock::Password),
        Locking("set a password", Lock::None, LargeAlbum::password),
        Locking("change the password", Lock::Password, other),
        Locking("remove the password", Lock::Password, {}),
        {"repair a sound album", [](LargeAlbum& album) { album.OpenToRead(); },
         [](LargeAlbum&) {
             if (!RepairAlbum().IsEmpty())
                 qFatal("the album was not sound");
         }},
        {"repair a broken link, with the copy", BreakLink,
         [](LargeAlbum&) { QFile::remove(RepairAlbum().copy); }},
        Copying("copy the file", Lock::None),
        Copying("copy the file with a password", Lock::Password),
        Keeping("keep a state, with its check", Lock::None),
        Keeping("keep a state with a password", Lock::Password),
        {"copy beside the album", [](LargeAlbum& album) { album.OpenToRead(); },
         [](LargeAlbum&) {
             QFile::remove(CopyAlbumBeside(QStringLiteral("measured"), [](int) { return true; }));
         }},
    };
}
