// SPDX-License-Identifier: MIT
#include "platform/data/EncryptedCopy.h"

#include "platform/data/Statement.h"

#include <sqlcipher/sqlite3.h>

#include <QFile>

#include <memory>

void CopyEncrypted(const QString& source, const QString& target, const QString& password)
{
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(QFile::encodeName(source).constData(), &opened,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> engine(opened, sqlite3_close);
    if (code != SQLITE_OK)
        ThrowEngineError(engine.get(), code);
    Statement attach(engine.get(), "ATTACH DATABASE ?1 AS encrypted KEY ?2");
    attach.Bind(1, target);
    attach.Bind(2, password);
    attach.Run();
    Statement(engine.get(), "SELECT sqlcipher_export('encrypted')").Run();
    Statement(engine.get(), "DETACH DATABASE encrypted").Run();
}
