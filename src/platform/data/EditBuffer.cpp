// SPDX-License-Identifier: MIT
#include "platform/data/EditBuffer.h"

#include "platform/data/Identifiers.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

EditBuffer::EditBuffer(const Database& database, const TableLayout& layout)
    : database_(database), layout_(layout)
{
}

void EditBuffer::OpenForRow(qint64 row)
{
    Close();
    row_ = row;
    state_ = State::Row;
}

void EditBuffer::OpenForNewRow()
{
    Close();
    state_ = State::NewRow;
    if (layout_.GetIdentity() >= 0)
        values_.emplace_back(layout_.GetIdentity(),
                             NewIdentifiers(database_.GetEngine(), layout_.GetTable()).Next());
}

void EditBuffer::Close()
{
    state_ = State::Closed;
    values_.clear();
}

void EditBuffer::RequireOpen() const
{
    if (!IsOpen()) {
        throw DatabaseError(DatabaseError::UpdateWithoutEdit,
                            DatabaseError::tr("A record was changed without editing it."));
    }
}

void EditBuffer::Set(int field, FieldValue value)
{
    RequireOpen();
    if (layout_.At(field).isNumber != std::holds_alternative<qint64>(value)) {
        throw DatabaseError(DatabaseError::TypeMismatch,
                            DatabaseError::tr("A field was given a value of another type."));
    }
    const auto known = std::find_if(values_.begin(), values_.end(),
                                    [field](const auto& entry) { return entry.first == field; });
    if (known == values_.end())
        values_.emplace_back(field, std::move(value));
    else
        known->second = std::move(value);
}

const FieldValue* EditBuffer::Find(int field) const
{
    static const FieldValue null;
    for (const auto& [number, value] : values_) {
        if (number == field)
            return &value;
    }
    return state_ == State::NewRow ? &null : nullptr;
}

void EditBuffer::Write()
{
    RequireOpen();
    if (state_ == State::NewRow || !values_.empty())
        database_.BeforeLoneChange();
    if (state_ == State::NewRow)
        InsertRow();
    else if (!values_.empty())
        UpdateRow();
    Close();
}

void EditBuffer::UpdateRow()
{
    const std::shared_ptr<Statement> update = WriteStatement();
    update->Bind(1, row_);
    for (std::size_t i = 0; i < values_.size(); ++i)
        update->Bind(int(i) + 2, values_[i].second);
    update->Run();
    if (sqlite3_changes(database_.GetEngine()) == 0)
        ThrowRecordDeleted();
}

void EditBuffer::InsertRow()
{
    const std::shared_ptr<Statement> insert = WriteStatement();
    for (std::size_t i = 0; i < values_.size(); ++i)
        insert->Bind(int(i) + 1, values_[i].second);
    insert->Run();
}

QByteArray EditBuffer::UpdateSql() const
{
    QByteArray assignments;
    for (std::size_t i = 0; i < values_.size(); ++i) {
        assignments += i > 0 ? "," : "";
        assignments += QuotedName(layout_.At(values_[i].first).name) + "=?" +
                       QByteArray::number(qsizetype(i) + 2);
    }
    return "UPDATE " + QuotedName(layout_.GetTable()) + " SET " + assignments + " WHERE rowid=?1";
}

QByteArray EditBuffer::InsertSql() const
{
    const QByteArray into = "INSERT INTO " + QuotedName(layout_.GetTable());
    if (values_.empty())
        return into + " DEFAULT VALUES";
    QByteArray names;
    QByteArray parameters;
    for (std::size_t i = 0; i < values_.size(); ++i) {
        names += (i > 0 ? "," : "") + QuotedName(layout_.At(values_[i].first).name);
        parameters += (i > 0 ? ",?" : "?") + QByteArray::number(qsizetype(i) + 1);
    }
    return into + " (" + names + ") VALUES (" + parameters + ')';
}

std::shared_ptr<Statement> EditBuffer::WriteStatement()
{
    const bool isNew = state_ == State::NewRow;
    QByteArray key(1, isNew ? 'i' : 'u');
    for (const auto& [field, value] : values_) {
        key += char(field);
        key += char(field >> 8);
    }
    return statements_.Get(key, [this, isNew] {
        return Statement(database_.GetEngine(), isNew ? InsertSql() : UpdateSql());
    });
}
