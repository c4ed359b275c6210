// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

struct sqlite3;

// How files with a password are written and opened. All of them have the format of the cipher
// library's third generation, which the fourth reads and writes too: an album can go from one
// computer to another, whichever generation is installed there. (The fourth's own format is opened
// where it can be.)

// A connection for copying whole files; it may attach others. Closes with its life.
class CipherFile
{
public:
    // Never makes a file. Throws DatabaseError. A key shows to be wrong only at the first read; the
    // empty one is for a file without a password.
    CipherFile(const QString& path, const QByteArray& key, int format = usualFormat);

    sqlite3* Get() const { return engine_.get(); }

    // Copies everything to an empty file that is there, with that password or, when it is empty,
    // without one. Throws DatabaseError.
    void ExportTo(const QString& target, const QString& password);

    static constexpr int usualFormat = 3;
    static constexpr int libraryFormat = 0; // whichever the installed generation prefers

private:
    std::unique_ptr<sqlite3, int (*)(sqlite3*)> engine_;
};

// The keys that a typed password may stand for; new files get the first. Letters with accents can
// be typed as one character or as two, which read the same. None for an empty password.
QList<QByteArray> CipherKeys(const QString& password);

// Gives a connection that has read nothing yet its key. False when the library refuses it.
bool SetCipherKey(sqlite3* engine, const QByteArray& key, int format);

// The generation of the cipher library, 3 or 4.
int CipherGeneration(sqlite3* engine);

// Copies a file without a password to an empty one, which gets one. The source must be closed and
// of our own making: its schema is taken over unchecked. Throws DatabaseError.
void CopyEncrypted(const QString& source, const QString& target, const QString& password);
