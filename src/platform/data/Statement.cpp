// SPDX-License-Identifier: MIT
#include "platform/data/Statement.h"

#include <sqlcipher/sqlite3.h>

#include <utility>

void ThrowMoved()
{
    throw DatabaseError(DatabaseError::NoSuchFile,
                        DatabaseError::tr("The album's file was moved, renamed or replaced while "
                                          "it was open. Please open the album again."));
}

namespace {

// A failed export to another file gives the reason only in its message.
int CodeOf(sqlite3* engine, int code)
{
    if (code != SQLITE_ERROR)
        return code & 0xFF;
    for (const int known : {SQLITE_FULL, SQLITE_IOERR, SQLITE_CANTOPEN, SQLITE_BUSY, SQLITE_LOCKED,
                            SQLITE_READONLY, SQLITE_CORRUPT, SQLITE_NOMEM}) {
        if (qstrcmp(sqlite3_errmsg(engine), sqlite3_errstr(known)) == 0)
            return known;
    }
    return code;
}

} // namespace

void ThrowEngineError(sqlite3* engine, int code)
{
    switch (CodeOf(engine, code)) {
    case SQLITE_NOTADB:
        throw DatabaseError(DatabaseError::NotADatabase,
                            DatabaseError::tr("This file is not an album."));
    case SQLITE_CORRUPT:
        throw DatabaseError(DatabaseError::Damaged,
                            DatabaseError::tr("The album file is damaged."));
    case SQLITE_CONSTRAINT:
        throw DatabaseError(DatabaseError::DuplicateKey,
                            DatabaseError::tr("The album holds such an entry already."));
    case SQLITE_FULL:
        throw DatabaseError(DatabaseError::DiskFull,
                            DatabaseError::tr("The disk is full; the last change was not made."));
    case SQLITE_READONLY:
        // Reported at the first change; reading continues in the file that was opened.
        if (sqlite3_extended_errcode(engine) == SQLITE_READONLY_DBMOVED)
            ThrowMoved();
        [[fallthrough]];
    case SQLITE_PERM:
        throw DatabaseError(
            DatabaseError::ReadOnly,
            DatabaseError::tr("The album cannot be changed: its file or its folder is read-only."));
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw DatabaseError(
            DatabaseError::InUse,
            DatabaseError::tr("The album is being changed by another program. Please try again."));
    case SQLITE_CANTOPEN:
        throw DatabaseError(
            DatabaseError::CannotOpen,
            DatabaseError::tr("The album file or a file beside it cannot be opened."));
    case SQLITE_IOERR:
        throw DatabaseError(
            DatabaseError::DiskError,
            DatabaseError::tr("The album file cannot be read or written: disk or network error."));
    case SQLITE_TOOBIG:
    case SQLITE_NOMEM:
        throw DatabaseError(DatabaseError::TooComplex,
                            DatabaseError::tr("A value or a query is too large."));
    default:
        throw DatabaseError(DatabaseError::Damaged, QString::fromUtf8(sqlite3_errmsg(engine)));
    }
}

Statement::Statement(sqlite3* engine, const QByteArray& sql)
{
    const int code =
        sqlite3_prepare_v2(engine, sql.constData(), int(sql.size()), &handle_, nullptr);
    if (code != SQLITE_OK)
        ThrowEngineError(engine, code);
}

Statement::~Statement()
{
    sqlite3_finalize(handle_);
}

Statement::Statement(Statement&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}

Statement& Statement::operator=(Statement&& other) noexcept
{
    std::swap(handle_, other.handle_);
    return *this;
}

void Statement::Check(int code) const
{
    if (code != SQLITE_OK)
        ThrowEngineError(sqlite3_db_handle(handle_), code);
}

void Statement::Bind(int parameter, qint64 number)
{
    Check(sqlite3_bind_int64(handle_, parameter, number));
}

void Statement::Bind(int parameter, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    Check(sqlite3_bind_text64(handle_, parameter, utf8.constData(), sqlite3_uint64(utf8.size()),
                              SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Statement::BindNull(int parameter)
{
    Check(sqlite3_bind_null(handle_, parameter));
}

void Statement::BindColumn(int parameter, const Statement& row, int column)
{
    Check(sqlite3_bind_value(handle_, parameter, sqlite3_column_value(row.handle_, column)));
}

void Statement::BindUtf8(int parameter, QByteArrayView text)
{
    // For a null pointer the engine would bind Null instead of an empty text.
    const char* bytes = text.isEmpty() ? "" : text.data();
    Check(sqlite3_bind_text64(handle_, parameter, bytes, sqlite3_uint64(text.size()), SQLITE_STATIC,
                              SQLITE_UTF8));
}

void Statement::Bind(int parameter, const FieldValue& value)
{
    if (const auto* number = std::get_if<qint64>(&value))
        Bind(parameter, *number);
    else if (const auto* text = std::get_if<QString>(&value))
        Bind(parameter, *text);
    else
        BindNull(parameter);
}

bool Statement::Step()
{
    const int code = sqlite3_step(handle_);
    if (code == SQLITE_ROW)
        return true;
    sqlite3* engine = sqlite3_db_handle(handle_);
    // Resetting repeats the failure's code, so the message is fetched only afterwards.
    sqlite3_reset(handle_);
    if (code != SQLITE_DONE)
        ThrowEngineError(engine, code);
    return false;
}

void Statement::Reset() noexcept
{
    sqlite3_reset(handle_);
}

void Statement::Run()
{
    if (Step())
        Reset();
}

bool Statement::IsNull(int column) const
{
    return sqlite3_column_type(handle_, column) == SQLITE_NULL;
}

bool Statement::IsBlob(int column) const
{
    return sqlite3_column_type(handle_, column) == SQLITE_BLOB;
}

qint64 Statement::GetInteger(int column) const
{
    return sqlite3_column_int64(handle_, column);
}

std::string_view Statement::GetUtf8(int column) const
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle_, column));
    return {text, text ? std::size_t(sqlite3_column_bytes(handle_, column)) : 0};
}

FieldValue Statement::GetValue(int column) const
{
    switch (sqlite3_column_type(handle_, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return GetInteger(column);
    case SQLITE_BLOB:
        return UnreadableValue();
    default: {
        const std::string_view text = GetUtf8(column);
        if (!text.data())
            ThrowEngineError(sqlite3_db_handle(handle_), SQLITE_NOMEM);
        return QString::fromUtf8(text.data(), qsizetype(text.size()));
    }
    }
}
