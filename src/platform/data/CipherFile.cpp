// SPDX-License-Identifier: MIT
#include "platform/data/CipherFile.h"

#include "platform/data/Statement.h"

#include <sqlcipher/sqlite3.h>

#include <QFile>

#include <cstdlib>

namespace {

// The third generation does not know the setting and takes no notice of it.
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

} // namespace

CipherFile::CipherFile(const QString& path, const QString& password, int format)
    : engine_(nullptr, sqlite3_close_v2)
{
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(QFile::encodeName(path).constData(), &opened,
                                     SQLITE_OPEN_READWRITE, nullptr);
    engine_.reset(opened);
    if (code != SQLITE_OK)
        ThrowEngineError(opened, code);
    if (!password.isEmpty() && !SetCipherKey(opened, password, format))
        ThrowEngineError(opened, SQLITE_NOTADB);
}

void CipherFile::ExportTo(const QString& target, const QString& password)
{
    Statement attach(Get(), "ATTACH ?1 AS target KEY ?2");
    attach.Bind(1, target);
    attach.Bind(2, password);
    attach.Run();
    if (!password.isEmpty())
        SetFormat(Get(), "target", usualFormat);
    Statement(Get(), "SELECT sqlcipher_export('target')").Run();
    Statement(Get(), "DETACH target").Run();
}

bool SetCipherKey(sqlite3* engine, const QString& password, int format)
{
    const QByteArray key = password.toUtf8();
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
