// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

struct sqlite3;

// How files with a password are written and opened. They are written in the format of the cipher
// library's third generation, which the fourth supports too, so albums can move between computers
// whichever generation they have. (The fourth's own format is opened where possible.)

// A connection for copying whole files; it may attach others. The destructor closes it.
class CipherFile
{
public:
    // Never creates a file. Throws DatabaseError. A wrong key is detected only at the first read;
    // an empty key is for a file without a password.
    CipherFile(const QString& path, const QByteArray& key, int format = usualFormat);

    sqlite3* Get() const { return engine_.get(); }

    // Copies everything to an existing empty file, encrypted unless the password is empty. Throws
    // DatabaseError.
    void ExportTo(const QString& target, const QString& password);

    static constexpr int usualFormat = 3;
    static constexpr int libraryFormat = 0; // the installed generation's own

private:
    std::unique_ptr<sqlite3, int (*)(sqlite3*)> engine_;
};

// The keys that a typed password may stand for; new files get the first. An accented letter can be
// typed as one character or as two that look the same. No keys for an empty password.
QList<QByteArray> CipherKeys(const QString& password);

// Sets the key of a connection that has not read anything yet. False when the library refuses it.
bool SetCipherKey(sqlite3* engine, const QByteArray& key, int format);

// The generation of the cipher library, 3 or 4.
int CipherGeneration(sqlite3* engine);

// Copies a file without a password to an empty file, encrypted. The source must be closed and made
// by this program: its schema is copied unchecked. Throws DatabaseError.
void CopyEncrypted(const QString& source, const QString& target, const QString& password);
