// SPDX-License-Identifier: MIT
#include "platform/data/CipherFile.h"

#include "platform/data/Statement.h"

#include <sqlcipher/sqlite3.h>

#include <QFile>

#include <cstdlib>

namespace {

// The third generation does not know the setting and ignores it.
void SetFormat(sqlite3* engine, const QByteArray& schema, int format)
{
    if (format == CipherFile::libraryFormat)
        return;
    const QByteArray sql =
        "PRAGMA " + schema + ".cipher_compatibility=" + QByteArray::number(format);
    const int code = sqlite3_exec(engine, sql.constData(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        ThrowEngineError(engine, code);
}

// The library takes a text such as x'0123...' for a raw key (32 bytes, or 48 with the salt), not
// for a password. A line feed at its end makes it an ordinary password.
QByteArray OrdinaryKey(const QByteArray& password)
{
    const bool isRawLength = password.size() == 2 * 32 + 3 || password.size() == 2 * 48 + 3;
    const bool isRaw = isRawLength && (password.startsWith("x'") || password.startsWith("X'")) &&
                       password.endsWith('\'');
    return isRaw ? password + '\n' : password;
}

} // namespace

// The other spellings are for albums whose password was used just as it was typed.
QList<QByteArray> CipherKeys(const QString& password)
{
    QList<QByteArray> keys;
    for (const QString& spelling : {password.normalized(QString::NormalizationForm_C), password,
                                    password.normalized(QString::NormalizationForm_D)}) {
        const QByteArray typed = spelling.toUtf8();
        for (const QByteArray& key : {OrdinaryKey(typed), typed}) {
            if (!key.isEmpty() && !keys.contains(key))
                keys += key;
        }
    }
    return keys;
}

CipherFile::CipherFile(const QString& path, const QByteArray& key, int format)
    : engine_(nullptr, sqlite3_close_v2)
{
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(QFile::encodeName(path).constData(), &opened,
                                     SQLITE_OPEN_READWRITE, nullptr);
    engine_.reset(opened);
    if (code != SQLITE_OK)
        ThrowEngineError(opened, code);
    if (!key.isEmpty() && !SetCipherKey(opened, key, format))
        ThrowEngineError(opened, SQLITE_NOTADB);
}

void CipherFile::ExportTo(const QString& target, const QString& password)
{
    Statement attach(Get(), "ATTACH ?1 AS target KEY ?2");
    attach.Bind(1, target);
    const QByteArray key = CipherKeys(password).value(0);
    attach.BindUtf8(2, key);
    attach.Run();
    if (!password.isEmpty())
        SetFormat(Get(), "target", usualFormat);
    // The target counts only once it is whole, checked and written through.
    for (const char* setting : {"PRAGMA target.journal_mode=OFF", "PRAGMA target.synchronous=OFF"})
        Statement(Get(), setting).Run();
    Statement(Get(), "SELECT sqlcipher_export('target')").Run();
    Statement(Get(), "DETACH target").Run();
}

bool SetCipherKey(sqlite3* engine, const QByteArray& key, int format)
{
    if (key.isEmpty() || sqlite3_key(engine, key.constData(), int(key.size())) != SQLITE_OK)
        return false;
    SetFormat(engine, "main", format);
    return true;
}

int CipherGeneration(sqlite3* engine)
{
    Statement version(engine, "PRAGMA cipher_version"); // a text such as "3.4.1"
    return version.Step() ? std::atoi(version.GetUtf8(0).data()) : 0;
}

void CopyEncrypted(const QString& source, const QString& target, const QString& password)
{
    CipherFile(source, {}).ExportTo(target, password);
}
