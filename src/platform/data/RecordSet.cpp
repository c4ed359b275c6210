// SPDX-License-Identifier: MIT
#include "platform/data/RecordSet.h"

#include <QScopeGuard>

#include <limits>

namespace {

constexpr qint64 beforeFirst = std::numeric_limits<qint64>::min();
constexpr qsizetype mostKept =
    64; // statements of a kind; filters typed by hand come in many shapes

template<typename Marks>
QByteArray SelectedNames(const TableLayout& layout, const Marks& fields)
{
    QByteArray names;
    for (int field = 0; field < layout.Count(); ++field) {
        if (fields[std::size_t(field)])
            names += ',' + QuotedName(layout.At(field).name);
    }
    return names;
}

[[noreturn]] void Fail(DatabaseError::Number number, const QString& text)
{
    throw DatabaseError(number, text);
}

[[noreturn]] void FailUnreadable()
{
    Fail(DatabaseError::TypeMismatch,
         DatabaseError::tr("The album holds a value of a wrong type."));
}

} // namespace

RecordSet::RecordSet(std::shared_ptr<Database> database, const QString& table)
    : database_(std::move(database)),
      layout_(database_->GetEngine(), table),
      table_(QuotedName(layout_.GetTable())),
      loaded_(std::size_t(layout_.Count()))
{
    MoveFirst();
}

void RecordSet::FindFirst(const QString& filter)
{
    noMatch_ = !Advance(filter, beforeFirst);
}

void RecordSet::FindNext(const QString& filter)
{
    noMatch_ = place_ == Place::End || !Advance(filter, row_);
}

void RecordSet::MoveFirst()
{
    if (!Advance({}, beforeFirst))
        place_ = Place::End;
}

void RecordSet::MoveNext()
{
    if (place_ == Place::End)
        Fail(DatabaseError::NoCurrentRecord, DatabaseError::tr("There is no current record."));
    if (!Advance({}, row_))
        place_ = Place::End;
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

// Goes to the first row behind that row number which meets the filter; false, and nothing moved,
// when there is none.
bool RecordSet::Advance(const QString& filter, qint64 after)
{
    buffer_.reset();
    if (!CanGoOn(filter) || after != row_) {
        CloseStatement();
        Translate(filter);
        PrepareQuery(*query_);
        query_->statement.Bind(1, after);
        for (std::size_t i = 0; i < values_.size(); ++i)
            query_->statement.Bind(int(i) + 2, values_[i]);
    }
    open_ = false;
    if (!query_->statement.Step())
        return false;
    AcceptRow();
    return true;
}

// A row that this program changed may have moved in or out of the filter, and a field asked for
// meanwhile is not in the open statement: both begin a new run behind the current row.
bool RecordSet::CanGoOn(const QString& filter) const
{
    return open_ && place_ != Place::End && IsFresh() && !query_->isBehind && filter == filter_;
}

void RecordSet::Translate(const QString& filter)
{
    if (translated_ && filter == filter_)
        return;
    translated_ = false;
    FilterSql sql = TranslateFilter(filter, layout_);
    auto found = queries_.constFind(sql.condition);
    if (found == queries_.constEnd()) {
        if (queries_.size() >= mostKept)
            queries_.clear();
        auto query = std::make_shared<Query>();
        query->condition = sql.condition;
        found = queries_.insert(sql.condition, query);
    }
    query_ = *found;
    values_ = std::move(sql.values);
    filter_ = filter;
    translated_ = true;
}

// Ordered by row number always: an index would return rows in an order of its own.
void RecordSet::PrepareQuery(Query& query)
{
    if (!query.isBehind)
        return;
    QByteArray sql = "SELECT rowid" + SelectedNames(layout_, query.wanted) + " FROM " + table_ +
                     " WHERE rowid>?1";
    if (!query.condition.isEmpty())
        sql += " AND (" + query.condition + ')';
    query.statement = Statement(database_->GetEngine(), sql + " ORDER BY rowid");
    query.selected = query.wanted;
    query.isBehind = false;
    query.columns.assign(std::size_t(layout_.Count()), -1);
    short column = 0;
    for (int field = 0; field < layout_.Count(); ++field) {
        if (query.selected[std::size_t(field)])
            query.columns[std::size_t(field)] = ++column;
    }
}

void RecordSet::AcceptRow()
{
    row_ = query_->statement.GetInteger(0);
    place_ = Place::Row;
    rowChanges_ = database_->ChangeCount();
    isLoaded_ = false;
    if (walks_ > 0) {
        open_ = true;
        return;
    }
    // Also when memory runs out: an open statement holds a lock and takes no values.
    const auto reset = qScopeGuard([this] { query_->statement.Reset(); });
    for (int field = 0; query_->selected.any() && field < layout_.Count(); ++field) {
        const int column = query_->columns[std::size_t(field)];
        if (column > 0)
            loaded_[std::size_t(field)] = query_->statement.GetValue(column);
    }
    loadedFields_ = query_->selected;
    isLoaded_ = true;
}

void RecordSet::EndWalk()
{
    if (--walks_ == 0)
        CloseStatement();
}

// The fields of the current row are gone with the statement; they are loaded anew when asked for.
void RecordSet::CloseStatement()
{
    if (open_)
        query_->statement.Reset();
    open_ = false;
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

void RecordSet::RequireRow() const
{
    if (place_ == Place::End)
        Fail(DatabaseError::NoCurrentRecord, DatabaseError::tr("There is no current record."));
    if (place_ == Place::DeletedRow)
        Fail(DatabaseError::RecordDeleted, DatabaseError::tr("The record has been deleted."));
}

const FieldValue* RecordSet::Buffered(int field) const
{
    static const FieldValue null;
    if (!buffer_)
        return nullptr;
    for (const auto& [number, value] : buffer_->values) {
        if (number == field)
            return &value;
    }
    return buffer_->adding ? &null : nullptr;
}

bool RecordSet::ReadsFromStatement(int field) const
{
    return open_ && !buffer_ && query_->selected[std::size_t(field)] && IsFresh();
}

const FieldValue& RecordSet::Value(int field)
{
    if (const FieldValue* value = Buffered(field))
        return *value;
    RequireRow();
    if (!IsFresh() || !isLoaded_)
        loadedFields_.reset();
    if (!loadedFields_[std::size_t(field)]) {
        query_->isBehind = query_->isBehind || !query_->wanted[std::size_t(field)];
        query_->wanted.set(std::size_t(field));
        FieldMarks fields = loadedFields_;
        LoadFields(fields.set(std::size_t(field)));
    }
    return loaded_[std::size_t(field)];
}

void RecordSet::LoadFields(const FieldMarks& fields)
{
    std::shared_ptr<Statement>& load = loads_[fields];
    if (!load) {
        load = std::make_shared<Statement>(database_->GetEngine(),
                                           "SELECT rowid" + SelectedNames(layout_, fields) +
                                               " FROM " + table_ + " WHERE rowid=?1");
    }
    load->Bind(1, row_);
    if (!load->Step())
        Fail(DatabaseError::RecordDeleted, DatabaseError::tr("The record has been deleted."));
    const auto reset = qScopeGuard([&load] { load->Reset(); });
    isLoaded_ = false;
    int column = 0;
    for (int field = 0; field < layout_.Count(); ++field) {
        if (fields[std::size_t(field)])
            loaded_[std::size_t(field)] = load->GetValue(++column);
    }
    loadedFields_ = fields;
    isLoaded_ = true;
    rowChanges_ = open_ ? rowChanges_ : database_->ChangeCount();
}

QString RecordSet::Text(int field)
{
    if (ReadsFromStatement(field)) {
        const int column = query_->columns[std::size_t(field)];
        const std::string_view text = query_->statement.GetUtf8(column);
        if (text.data() && !query_->statement.IsBlob(column))
            return QString::fromUtf8(text.data(), qsizetype(text.size()));
    }
    const FieldValue& value = Value(field);
    if (const auto* text = std::get_if<QString>(&value))
        return *text;
    if (const auto* number = std::get_if<qint64>(&value))
        return QString::number(*number);
    if (std::holds_alternative<UnreadableValue>(value))
        FailUnreadable();
    Fail(DatabaseError::InvalidUseOfNull,
         DatabaseError::tr("A field that holds nothing was read as a text."));
}

qint32 RecordSet::Number(int field)
{
    const FieldValue& value = Value(field);
    if (std::holds_alternative<std::monostate>(value))
        Fail(DatabaseError::InvalidUseOfNull,
             DatabaseError::tr("A field that holds nothing was read as a number."));
    const auto* number = std::get_if<qint64>(&value);
    if (std::holds_alternative<UnreadableValue>(value))
        FailUnreadable();
    if (!number)
        Fail(DatabaseError::TypeMismatch,
             DatabaseError::tr("A field that holds a text was read as a number."));
    if (*number != qint64(qint32(*number)))
        Fail(DatabaseError::Overflow,
             DatabaseError::tr("The album holds a number that is too large."));
    return qint32(*number);
}

bool RecordSet::IsNull(int field)
{
    if (ReadsFromStatement(field))
        return query_->statement.IsNull(query_->columns[std::size_t(field)]);
    return std::holds_alternative<std::monostate>(Value(field));
}

QString RecordSet::TextOrEmpty(int field)
{
    return IsNull(field) ? QString() : Text(field);
}
