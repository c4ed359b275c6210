// SPDX-License-Identifier: MIT
// The half of RecordSet that changes rows.
#include "platform/data/Identifiers.h"
#include "platform/data/RecordSet.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

namespace {

constexpr qsizetype mostKept = 64;

[[noreturn]] void Fail(DatabaseError::Number number, const QString& text)
{
    throw DatabaseError(number, text);
}

} // namespace

void RecordSet::Edit()
{
    RequireRow();
    buffer_ = Buffer{};
}

void RecordSet::AddNew()
{
    buffer_ = Buffer{};
    buffer_->adding = true;
    if (layout_.GetIdentity() >= 0)
        buffer_->values.emplace_back(
            layout_.GetIdentity(),
            NewIdentifiers(database_->GetEngine(), layout_.GetTable()).Next());
}

void RecordSet::SetBuffered(int number, FieldValue value)
{
    if (!buffer_)
        Fail(DatabaseError::UpdateWithoutEdit,
             DatabaseError::tr("A record was changed without editing it."));
    if (layout_.At(number).isNumber != std::holds_alternative<qint64>(value))
        Fail(DatabaseError::TypeMismatch,
             DatabaseError::tr("A field was given a value of another type."));
    auto& values = buffer_->values;
    const auto known = std::find_if(values.begin(), values.end(),
                                    [number](const auto& entry) { return entry.first == number; });
    if (known == values.end())
        values.emplace_back(number, std::move(value));
    else
        known->second = std::move(value);
}

void RecordSet::Update()
{
    if (!buffer_)
        Fail(DatabaseError::UpdateWithoutEdit,
             DatabaseError::tr("A record was changed without editing it."));
    if (buffer_->adding)
        UpdateAdded();
    else
        UpdateEdited();
    buffer_.reset();
}

void RecordSet::UpdateEdited()
{
    if (buffer_->values.empty())
        return;
    Statement& update = WriteStatement('u', &RecordSet::UpdateSql);
    update.Bind(1, row_);
    for (std::size_t i = 0; i < buffer_->values.size(); ++i)
        update.Bind(int(i) + 2, buffer_->values[i].second);
    update.Run();
    if (sqlite3_changes(database_->GetEngine()) == 0)
        Fail(DatabaseError::RecordDeleted, DatabaseError::tr("The record has been deleted."));
}

void RecordSet::UpdateAdded()
{
    Statement& insert = WriteStatement('i', &RecordSet::InsertSql);
    for (std::size_t i = 0; i < buffer_->values.size(); ++i)
        insert.Bind(int(i) + 1, buffer_->values[i].second);
    insert.Run();
}

QByteArray RecordSet::UpdateSql() const
{
    QByteArray assignments;
    for (std::size_t i = 0; i < buffer_->values.size(); ++i) {
        assignments += i > 0 ? "," : "";
        assignments += QuotedName(layout_.At(buffer_->values[i].first).name) + "=?" +
                       QByteArray::number(qsizetype(i) + 2);
    }
    return "UPDATE " + table_ + " SET " + assignments + " WHERE rowid=?1";
}

QByteArray RecordSet::InsertSql() const
{
    QByteArray names;
    QByteArray parameters;
    for (std::size_t i = 0; i < buffer_->values.size(); ++i) {
        names += (i > 0 ? "," : "") + QuotedName(layout_.At(buffer_->values[i].first).name);
        parameters += (i > 0 ? ",?" : "?") + QByteArray::number(qsizetype(i) + 1);
    }
    return names.isEmpty()
               ? "INSERT INTO " + table_ + " DEFAULT VALUES"
               : "INSERT INTO " + table_ + " (" + names + ") VALUES (" + parameters + ')';
}

void RecordSet::CancelUpdate()
{
    buffer_.reset();
}

void RecordSet::Delete()
{
    buffer_.reset();
    RequireRow();
    Statement remove(database_->GetEngine(), "DELETE FROM " + table_ + " WHERE rowid=?1");
    remove.Bind(1, row_);
    remove.Run();
    place_ = Place::DeletedRow;
}

// Kept by the fields that it writes: putting the statement's text together takes longer than
// running it.
Statement& RecordSet::WriteStatement(char kind, QByteArray (RecordSet::*sql)() const)
{
    QByteArray key(1, kind);
    for (const auto& [field, value] : buffer_->values) {
        key += char(field);
        key += char(field >> 8);
    }
    if (writes_.size() >= mostKept && !writes_.contains(key))
        writes_.clear();
    std::shared_ptr<Statement>& statement = writes_[key];
    if (!statement)
        statement = std::make_shared<Statement>(database_->GetEngine(), (this->*sql)());
    return *statement;
}
