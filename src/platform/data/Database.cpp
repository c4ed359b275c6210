// SPDX-License-Identifier: MIT
#include "platform/data/Database.h"

#include "platform/data/ChangeLog.h"
#include "platform/data/CipherFile.h"
#include "platform/data/DatabaseFile.h"
#include "platform/data/SchemaCheck.h"
#include "platform/data/SqlFunctions.h"
#include "platform/data/Statement.h"

#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int busyMilliseconds = 3000; // longer than any commit of another program should take
constexpr int largestValue = 64 * 1024 * 1024; // bytes; a life's story takes about 1 MB

// Whether the file has a password. Throws for a file that no password can open.
bool NeedsPassword(const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    switch (KindOfDatabaseFile(path)) {
    case DatabaseFileKind::Missing:
        throw DatabaseError(DatabaseError::NoSuchFile,
                            DatabaseError::tr("The file '%1' does not exist.").arg(shown));
    case DatabaseFileKind::Unopenable:
        throw DatabaseError(DatabaseError::CannotOpen,
                            DatabaseError::tr("'%1' is not a file that can be opened.").arg(shown));
    case DatabaseFileKind::Empty:
        throw DatabaseError(DatabaseError::NotADatabase,
                            DatabaseError::tr("'%1' is an empty file.").arg(shown));
    case DatabaseFileKind::OldAlbum:
        throw DatabaseError(
            DatabaseError::NotADatabase,
            DatabaseError::tr("'%1' is an album of the former file format.").arg(shown));
    case DatabaseFileKind::NotADatabase:
        throw DatabaseError(DatabaseError::NotADatabase,
                            DatabaseError::tr("'%1' is damaged or not an album.").arg(shown));
    case DatabaseFileKind::Plain:
        return false;
    case DatabaseFileKind::Encrypted:
        return true;
    }
    return false;
}

// Second line of defence after CheckSchema: no statement may run code from the album's schema (the
// last argument then names it) or reach another file. Only the log's triggers run.
int Authorize(void*, int action, const char* object, const char*, const char* schema,
              const char* source)
{
    if (source)
        return IsLogging(action, object, schema, source) ? SQLITE_OK : SQLITE_DENY;
    const bool reachesOut = action == SQLITE_ATTACH || action == SQLITE_CREATE_VTABLE;
    return reachesOut ? SQLITE_DENY : SQLITE_OK;
}

// At depth 1 a trigger's own changes run none.
void AllowTriggers(sqlite3* engine, bool areAllowed)
{
    sqlite3_limit(engine, SQLITE_LIMIT_TRIGGER_DEPTH, areAllowed ? 1 : 0);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_ENABLE_TRIGGER, areAllowed ? 1 : 0, nullptr);
}

// Whether a change was interrupted; the engine undoes it at the next opening.
bool IsHalfChanged(const QString& path)
{
    return QFileInfo(path + QStringLiteral("-journal")).size() > 0;
}

} // namespace

std::shared_ptr<Database> Database::Open(const QString& path, const QString& password, Use use)
{
    const bool locked = NeedsPassword(path);
    std::shared_ptr<Database> database(new Database(path, use));
    try {
        database->Connect();
        if (locked)
            database->Unlock(password);
        database->Prepare();
    } catch (const DatabaseError& error) {
        const bool isFileTrouble = error.GetNumber() == DatabaseError::DiskError ||
                                   error.GetNumber() == DatabaseError::CannotOpen ||
                                   error.GetNumber() == DatabaseError::ReadOnly;
        if (!database->IsReadOnly() || !isFileTrouble || !IsHalfChanged(path))
            throw;
        throw DatabaseError(
            DatabaseError::ReadOnly,
            DatabaseError::tr("A change of '%1' broke off and must be undone first, "
                              "but the file or its folder is read-only.")
                .arg(QDir::toNativeSeparators(path)));
    }
    return database;
}

Database::Database(const QString& path, Use use)
    : path_(path),
      isReadOnly_(use == Use::Reading || IsReadOnlyDatabaseFile(path)),
      spareLock_(std::make_shared<Statement>())
{
}

Database::~Database()
{
    log_.reset(); // its statements belong to the connection
    spareLock_.reset();
    sqlite3_close_v2(engine_);
    if (readHandle_ >= 0)
        close(readHandle_);
}

void Database::Connect()
{
    sqlite3_close_v2(engine_);
    engine_ = nullptr;
    const int mode = isReadOnly_ ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    const int code = sqlite3_open_v2(QFile::encodeName(path_).constData(), &engine_,
                                     mode | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code != SQLITE_OK)
        ThrowEngineError(engine_, code);
    SetWaiting(true);
    sqlite3_limit(engine_, SQLITE_LIMIT_LENGTH, largestValue);
    sqlite3_limit(engine_, SQLITE_LIMIT_ATTACHED, 0);
    AllowTriggers(engine_, false);
#ifdef SQLITE_DBCONFIG_DEFENSIVE
    sqlite3_db_config(engine_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
#endif
    // An engine ignores settings that it does not know.
    for (const char* setting : {"PRAGMA trusted_schema=OFF", "PRAGMA cell_size_check=ON"}) {
        const int result = sqlite3_exec(engine_, setting, nullptr, nullptr, nullptr);
        if (result != SQLITE_OK)
            ThrowEngineError(engine_, result);
    }
    sqlite3_set_authorizer(engine_, Authorize, nullptr);
}

bool Database::SetWaiting(bool isWaiting)
{
    sqlite3_busy_timeout(engine_, isWaiting ? busyMilliseconds : 0);
    return std::exchange(isWaiting_, isWaiting);
}

// A wrong key is detected only at the first read, as a file that is not a database.
void Database::Unlock(const QString& password)
{
    password_ = password;
    const bool hasTwoFormats = CipherGeneration(engine_) > 3;
    for (const QByteArray& key : CipherKeys(password)) {
        if (TryKey(key, CipherFile::usualFormat) ||
            (hasTwoFormats && TryKey(key, CipherFile::libraryFormat)))
            return;
    }
    throw DatabaseError(DatabaseError::WrongPassword,
                        DatabaseError::tr("The password is wrong or missing."));
}

bool Database::TryKey(const QByteArray& key, int format)
{
    // After a wrong key the connection may keep settings of that key.
    if (!cipherKey_.isEmpty())
        Connect();
    cipherKey_ = key;
    cipherFormat_ = format;
    return SetCipherKey(engine_, key, format) && IsReadable();
}

bool Database::IsReadable()
{
    try {
        Execute("PRAGMA schema_version"); // reads the first page, but leaves the schema unread
        return true;
    } catch (const DatabaseError& error) {
        if (error.GetNumber() == DatabaseError::NotADatabase)
            return false;
        throw;
    }
}

qint64 Database::GetPragma(const QByteArray& name) const
{
    Statement pragma(engine_, "PRAGMA " + name);
    return pragma.Step() ? pragma.GetInteger(0) : 0;
}

// The engine does not notice that a file's last page is cut off until something reads it.
void Database::CheckSize()
{
    if (QFileInfo(path_).size() < GetPragma("page_count") * GetPragma("page_size"))
        throw DatabaseError(DatabaseError::Damaged,
                            DatabaseError::tr("The album file is damaged: its end is missing."));
}

void Database::Prepare()
{
    // All checks under one lock: another program may change the file, or make it longer, at any
    // time.
    Execute("BEGIN");
    CheckSchema(engine_);
    CheckSize();
    Execute("COMMIT");
    RegisterSqlFunctions(engine_);
    // One file that is safe to copy once closed, and nothing lost in a power failure.
    Execute("PRAGMA journal_mode=DELETE");
    Execute("PRAGMA synchronous=FULL");
    Execute("PRAGMA cache_size=-8000");
}

void Database::RequireUnmoved() const
{
    int isMoved = 0;
    sqlite3_file_control(engine_, "main", SQLITE_FCNTL_HAS_MOVED, &isMoved);
    if (isMoved)
        ThrowMoved();
}

void Database::BeforeChange() const
{
    if (beforeChange_)
        beforeChange_();
}

void Database::BeforeLoneChange() const
{
    if (openBatches_ == 0)
        BeforeChange();
}

// Opened between two looks at the path, so that it is the engine's file.
int Database::GetReadHandle() const
{
    RequireUnmoved();
    if (readHandle_ < 0)
        readHandle_ = open(QFile::encodeName(path_).constData(), O_RDONLY | O_CLOEXEC);
    RequireUnmoved();
    return readHandle_;
}

void Database::BeginLog(const QStringList& tables, const QStringList& leftOut)
{
    if (isReadOnly_ || log_)
        return;
    AllowTriggers(engine_, true);
    try {
        log_ = std::make_unique<ChangeLog>(engine_, tables, leftOut);
    } catch (const DatabaseError& error) {
        AllowTriggers(engine_, false);
        if (error.GetNumber() != DatabaseError::TooComplex)
            throw;
    }
}

bool Database::IsInTransaction() const
{
    return !sqlite3_get_autocommit(engine_);
}

int Database::ChangeCount() const
{
    return sqlite3_total_changes(engine_) - (log_ ? log_->GetForgotten() : 0);
}

void Database::Execute(const QByteArray& sql)
{
    Statement(engine_, sql).Run();
}
