// SPDX-License-Identifier: MIT
#include "platform/data/RecordSet.h"

namespace {

[[noreturn]] void ThrowUnreadable()
{
    throw DatabaseError(DatabaseError::TypeMismatch,
                        DatabaseError::tr("The album holds a value of a wrong type."));
}

qint32 AsNumber(const FieldValue& value)
{
    if (std::holds_alternative<std::monostate>(value)) {
        throw DatabaseError(DatabaseError::InvalidUseOfNull,
                            DatabaseError::tr("A field that holds nothing was read as a number."));
    }
    if (std::holds_alternative<UnreadableValue>(value))
        ThrowUnreadable();
    const auto* number = std::get_if<qint64>(&value);
    if (!number) {
        throw DatabaseError(DatabaseError::TypeMismatch,
                            DatabaseError::tr("A field that holds a text was read as a number."));
    }
    if (*number != qint64(qint32(*number))) {
        throw DatabaseError(DatabaseError::Overflow,
                            DatabaseError::tr("The album holds a number that is too large."));
    }
    return qint32(*number);
}

} // namespace

RecordSet::RecordSet(std::shared_ptr<Database> database, const QString& table)
    : database_(std::move(database)),
      layout_(database_->GetEngine(), table),
      table_(QuotedName(layout_.GetTable())),
      cursor_(*database_, layout_),
      row_(*database_, layout_),
      buffer_(*database_, layout_)
{
    MoveFirst();
}

void RecordSet::FindFirst(const QString& filter)
{
    buffer_.Close();
    noMatch_ = !cursor_.GoToFirst(filter, row_);
}

void RecordSet::FindNext(const QString& filter)
{
    if (!AtEnd())
        buffer_.Close();
    noMatch_ = !cursor_.GoToNext(filter, row_);
}

void RecordSet::MoveFirst()
{
    buffer_.Close();
    if (!cursor_.GoToFirst({}, row_))
        cursor_.GoToEnd();
}

void RecordSet::MoveNext()
{
    cursor_.RequirePlace();
    buffer_.Close();
    if (!cursor_.GoToNext({}, row_))
        cursor_.GoToEnd();
}

bool RecordSet::IsEmpty()
{
    return !Statement(database_->GetEngine(), "SELECT 1 FROM " + table_ + " LIMIT 1").Step();
}

qint64 RecordSet::RecordCount()
{
    Statement count(database_->GetEngine(), "SELECT count(*) FROM " + table_);
    return count.Step() ? count.GetInteger(0) : 0;
}

int RecordSet::FieldNumber(QStringView field) const
{
    const int number = layout_.Find(field);
    if (number < 0) {
        throw DatabaseError(DatabaseError::NoSuchField,
                            DatabaseError::tr("There is no field '%1'.").arg(field));
    }
    return number;
}

const FieldValue& RecordSet::Value(int field)
{
    if (const FieldValue* value = buffer_.Find(field))
        return *value;
    cursor_.RequireRow();
    if (!row_.IsLoaded(field)) {
        cursor_.Want(field);
        row_.Load(field);
    }
    return row_.At(field);
}

QString RecordSet::Text(int field)
{
    if (const int column = OpenColumn(field)) {
        const Statement& statement = cursor_.OpenStatement();
        const std::string_view text = statement.GetUtf8(column);
        if (text.data() && !statement.IsBlob(column))
            return QString::fromUtf8(text.data(), qsizetype(text.size()));
    }
    const FieldValue& value = Value(field);
    if (const auto* text = std::get_if<QString>(&value))
        return *text;
    if (const auto* number = std::get_if<qint64>(&value))
        return QString::number(*number);
    if (std::holds_alternative<UnreadableValue>(value))
        ThrowUnreadable();
    throw DatabaseError(DatabaseError::InvalidUseOfNull,
                        DatabaseError::tr("A field that holds nothing was read as a text."));
}

qint32 RecordSet::Number(int field)
{
    if (const int column = OpenColumn(field))
        return AsNumber(cursor_.OpenStatement().GetValue(column));
    return AsNumber(Value(field));
}

std::string_view RecordSet::OpenUtf8(int field) const
{
    const int column = OpenColumn(field);
    return column ? cursor_.OpenStatement().GetUtf8(column) : std::string_view();
}

bool RecordSet::IsNull(int field)
{
    if (const int column = OpenColumn(field))
        return cursor_.OpenStatement().IsNull(column);
    return std::holds_alternative<std::monostate>(Value(field));
}

QString RecordSet::TextOrEmpty(int field)
{
    return IsNull(field) ? QString() : Text(field);
}

void RecordSet::Edit()
{
    cursor_.RequireRow();
    buffer_.OpenForRow(cursor_.GetRow());
}

void RecordSet::AddNew()
{
    buffer_.OpenForNewRow();
}

void RecordSet::Update()
{
    buffer_.Write();
}

void RecordSet::CancelUpdate()
{
    buffer_.Close();
}

void RecordSet::Delete()
{
    buffer_.Close();
    cursor_.RequireRow();
    database_->BeforeLoneChange();
    Statement remove(database_->GetEngine(), "DELETE FROM " + table_ + " WHERE rowid=?1");
    remove.Bind(1, cursor_.GetRow());
    remove.Run();
    cursor_.RowWasDeleted();
}
