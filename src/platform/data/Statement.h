// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/DatabaseError.h"

#include <QByteArray>
#include <QString>

#include <string_view>
#include <variant>

struct sqlite3;
struct sqlite3_stmt;

// A value that is neither number nor text. Only reading it fails: one bad field must not keep its
// row from being found.
struct UnreadableValue
{
};

// A field's value: nothing (Null), a whole number or a text.
using FieldValue = std::variant<std::monostate, qint64, QString, UnreadableValue>;

// Throws the DatabaseError for the engine's last result code.
[[noreturn]] void ThrowEngineError(sqlite3* engine, int code);
// The open file is no longer the one at its path.
[[noreturn]] void ThrowMoved();

// One prepared statement. Parameters are numbered from 1, result columns from 0.
class Statement
{
public:
    Statement() = default;
    Statement(sqlite3* engine, const QByteArray& sql); // throws DatabaseError
    ~Statement();
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&& other) noexcept;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    bool IsPrepared() const { return handle_ != nullptr; }

    // Values stay bound until they are replaced; texts are copied. Throw DatabaseError, TooComplex
    // for a text above the engine's limit.
    void Bind(int parameter, qint64 number);
    void Bind(int parameter, const QString& text);
    void Bind(int parameter, const FieldValue& value);
    void BindNull(int parameter);
    // A value of any type from the row that another statement is on.
    void BindColumn(int parameter, const Statement& row, int column);
    // Not copied: it must stay until the statement has run.
    void BindUtf8(int parameter, QByteArrayView text);

    // True when a row is ready, false after the last; throws DatabaseError. A statement that
    // returned false or threw has been reset and holds no lock.
    bool Step();
    void Reset() noexcept;
    // Step and Reset for a statement that returns no row.
    void Run();

    bool IsNull(int column) const;
    bool IsBlob(int column) const;
    qint64 GetInteger(int column) const;
    // Valid until the next Step or Reset.
    std::string_view GetUtf8(int column) const;
    FieldValue GetValue(int column) const;

private:
    void Check(int code) const;

    sqlite3_stmt* handle_ = nullptr;
};
