// SPDX-License-Identifier: MIT
#include "core/oldalbum/OldAlbumTable.h"

#include "core/oldalbum/OwnFields.h"
#include "platform/data/Identifiers.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::size_t maxSetAside = 1000; // rows; only damage makes any
// A last number further than this above the highest identifier is taken for damage: believing it
// could leave no identifiers for new rows.
constexpr qint64 maxNumbersUnused = 10'000'000;

bool IsValueTable(const QString& table)
{
    return table.startsWith(QLatin1String("Car"));
}

bool HasText(const OldValue& value)
{
    return value.state == OldValue::State::Whole || value.state == OldValue::State::Cut;
}

QString NameField(const QString& table)
{
    if (table == u"Params")
        return QStringLiteral("Param");
    if (table == u"Chapter" || IsValueTable(table))
        return QStringLiteral("Name");
    return {};
}

} // namespace

namespace GeneralModule {

OldAlbumTable::OldAlbumTable(std::shared_ptr<Database> database, const QString& table,
                             OldAlbumReport& report, Kind kind)
    : database_(std::move(database)), table_(table), report_(report)
{
    if (kind == Kind::OfUser)
        return;
    layout_.emplace(database_->GetEngine(), table);
    ownFields_ = layout_->Count();
    const QString name = NameField(table_);
    uniqueName_ = name.isEmpty() ? -1 : layout_->Find(name);
    pictureFile_ = table_ == u"Image" ? layout_->Find(u"File") : -1;
}

void OldAlbumTable::BeginTable(const QStringList& fields, qint64 lastNumber)
{
    lastNumber_ = lastNumber;
    batch_.emplace(database_);
    if (!layout_ && !MakeTable(fields.value(0)))
        return;
    MatchFields(fields);
    ReportMissingFields();
    database_->Execute("DELETE FROM " + QuotedTable());
    PrepareInsert();
}

// False where the engine takes neither its name nor the other one.
bool OldAlbumTable::MakeTable(const QString& firstField)
{
    const QString name = MakeOwnTable(*database_, table_, firstField);
    if (name.isNull()) {
        report_.AddProblem(OldAlbumReport::tr("Table %1 cannot be taken over.").arg(table_));
        return false;
    }
    if (name != table_)
        report_.AddProblem(OldAlbumReport::tr("Table %1 came over as %2.").arg(table_, name));
    layout_.emplace(database_->GetEngine(), name);
    return true;
}

void OldAlbumTable::MatchFields(const QStringList& fields)
{
    sources_.assign(std::size_t(layout_->Count()), -1);
    for (int i = 0; i < int(fields.size()); ++i) {
        const int field = layout_->Find(fields[i]);
        if (field >= 0 && sources_[std::size_t(field)] < 0)
            sources_[std::size_t(field)] = i;
        else
            AddField(fields[i], i);
    }
    layout_.emplace(database_->GetEngine(), QString::fromUtf8(layout_->GetTable()));
    damaged_.assign(std::size_t(layout_->Count() - ownFields_), 0);
}

void OldAlbumTable::AddField(const QString& field, int source)
{
    const QString name = AddOwnField(*database_, QString::fromUtf8(layout_->GetTable()), field);
    if (name.isNull()) {
        report_.AddProblem(
            OldAlbumReport::tr("Table %1: the field %2 cannot be taken over.").arg(table_, field));
        return;
    }
    if (name != field)
        report_.AddProblem(
            OldAlbumReport::tr("Table %1: the field %2 came over as %3.").arg(table_, field, name));
    sources_.push_back(source);
}

void OldAlbumTable::ReportMissingFields()
{
    for (int field = 0; field < layout_->Count(); ++field) {
        if (sources_[std::size_t(field)] < 0)
            report_.AddProblem(OldAlbumReport::tr("Table %1: the field %2 is missing.")
                                   .arg(table_, QString::fromUtf8(Field(field).name)));
    }
}

// Fields that the old table lacks get the new table's defaults. The identifier is always named, so
// that there is a statement even where nothing else is.
void OldAlbumTable::PrepareInsert()
{
    QByteArrayList names;
    QByteArrayList parameters;
    for (int field = 0; field < layout_->Count(); ++field) {
        if (sources_[std::size_t(field)] < 0 && field != layout_->GetIdentity())
            continue;
        inserted_.push_back(field);
        names += QuotedName(Field(field).name);
        parameters += '?' + QByteArray::number(qsizetype(inserted_.size()));
    }
    if (names.isEmpty())
        return;
    insert_ =
        Statement(database_->GetEngine(), "INSERT INTO " + QuotedTable() + " (" + names.join(',') +
                                              ") VALUES (" + parameters.join(',') + ')');
}

// Null where the old table lacks the field.
const OldValue& OldAlbumTable::ValueOf(int field, const std::vector<OldValue>& values) const
{
    static const OldValue null;
    const int source = sources_[std::size_t(field)];
    return source < 0 ? null : values[std::size_t(source)];
}

// A link without a value leads nowhere, which is what 0 says.
FieldValue OldAlbumTable::ToNumber(int field, const OldValue& value) const
{
    bool isNumber = false;
    const qint64 number = value.utf8.toByteArray().toLongLong(&isNumber);
    const bool fits = isNumber && number >= std::numeric_limits<qint32>::min() &&
                      number <= std::numeric_limits<qint32>::max();
    if (fits)
        return number;
    return Field(field).isIdentity ? FieldValue() : FieldValue(qint64(0));
}

OldAlbumTable::Row OldAlbumTable::ToRow(const std::vector<OldValue>& values) const
{
    Row row;
    for (const int field : inserted_) {
        const OldValue& value = ValueOf(field, values);
        if (Field(field).isNumber)
            row.push_back(ToNumber(field, value));
        else if (HasText(value))
            row.push_back(QString::fromUtf8(value.utf8));
        else
            row.push_back({});
    }
    return row;
}

// What a person can find the row by.
QString OldAlbumTable::NameOfRow(const std::vector<OldValue>& values) const
{
    for (const char16_t* name : {u"Id", u"File", u"Param", u"Name", u"ParagraphId"}) {
        const int field = layout_->Find(name);
        const QByteArrayView text = field < 0 ? QByteArrayView() : ValueOf(field, values).utf8;
        if (!text.isEmpty())
            return QStringLiteral("%1 %2").arg(table_, QString::fromUtf8(text));
    }
    return OldAlbumReport::tr("%1, row %2").arg(table_, QString::number(rows_));
}

void OldAlbumTable::ReportValues(const std::vector<OldValue>& values)
{
    for (const int field : inserted_) {
        const OldValue::State state = ValueOf(field, values).state;
        if (state != OldValue::State::Cut && state != OldValue::State::Unreadable)
            continue;
        if (field >= ownFields_) {
            ++damaged_[std::size_t(field - ownFields_)];
            continue;
        }
        const QString text = state == OldValue::State::Cut
                                 ? OldAlbumReport::tr("%1: the end of the field %2 cannot be read.")
                                 : OldAlbumReport::tr("%1: the field %2 cannot be read.");
        report_.AddProblem(text.arg(NameOfRow(values), QString::fromUtf8(Field(field).name)));
    }
}

// The user's own fields may be of a kind that is never read, so they are reported once.
void OldAlbumTable::ReportOwnFields()
{
    for (std::size_t i = 0; i < damaged_.size(); ++i) {
        if (damaged_[i] > 0)
            report_.AddProblem(
                OldAlbumReport::tr("Table %1, field %2: values that cannot be read to their end: "
                                   "%3.")
                    .arg(table_, QString::fromUtf8(Field(ownFields_ + int(i)).name),
                         QString::number(damaged_[i])));
    }
}

void OldAlbumTable::ReportRefusedRow()
{
    report_.AddProblem(OldAlbumReport::tr("%1, row %2: the new album refuses it.")
                           .arg(table_, QString::number(rows_)));
}

// Pictures of one folder mostly follow each other.
void OldAlbumTable::NotePicture(QByteArrayView path)
{
    const QByteArrayView folder = path.first(path.lastIndexOf('\\') + 1);
    if (folder.isEmpty() || folder == lastFolder_)
        return;
    lastFolder_ = folder.toByteArray();
    report_.AddPicturePath(QString::fromUtf8(path));
}

void OldAlbumTable::TakeRow(const std::vector<OldValue>& values)
{
    ++rows_;
    if (layout_)
        ReportValues(values);
    if (!insert_.IsPrepared())
        return;
    try {
        InsertRow(values);
    } catch (const DatabaseError& error) {
        if (error.GetNumber() != DatabaseError::TooComplex) // a value, or all together, too large
            throw;
        ReportRefusedRow();
    }
    batch_->RowDone();
}

void OldAlbumTable::InsertRow(const std::vector<OldValue>& values)
{
    if (pictureFile_ >= 0)
        NotePicture(ValueOf(pictureFile_, values).utf8);
    if (layout_->GetIdentity() >= 0)
        InsertNumbered(ToRow(values));
    else if (!TryInsert(values))
        InsertUnderAnotherName(ToRow(values));
}

// False when the table holds a value already that it may hold only once.
bool OldAlbumTable::RunInsert()
{
    try {
        insert_.Run();
        return true;
    } catch (const DatabaseError& error) {
        if (error.GetNumber() != DatabaseError::DuplicateKey)
            throw;
        return false;
    }
}

bool OldAlbumTable::TryInsert(const Row& row)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        insert_.Bind(int(i) + 1, row[i]);
    return RunInsert();
}

// Most rows are pictures' and pass without a copy of their texts.
bool OldAlbumTable::TryInsert(const std::vector<OldValue>& values)
{
    int parameter = 0;
    for (const int field : inserted_) {
        const OldValue& value = ValueOf(field, values);
        ++parameter;
        if (Field(field).isNumber)
            insert_.Bind(parameter, ToNumber(field, value));
        else if (HasText(value))
            insert_.BindUtf8(parameter, value.utf8);
        else
            insert_.BindNull(parameter);
    }
    return RunInsert();
}

bool OldAlbumTable::IdentifierIsTaken(const FieldValue& identifier)
{
    if (!find_.IsPrepared())
        find_ =
            Statement(database_->GetEngine(), "SELECT 1 FROM " + QuotedTable() + " WHERE rowid=?1");
    find_.Bind(1, identifier);
    const bool isTaken = find_.Step();
    find_.Reset();
    return isTaken;
}

void OldAlbumTable::InsertNumbered(const Row& row)
{
    const auto place = std::find(inserted_.begin(), inserted_.end(), layout_->GetIdentity());
    const FieldValue& value = row[std::size_t(place - inserted_.begin())];
    const auto* number = std::get_if<qint64>(&value);
    if (number && !IdentifierIsTaken(value)) {
        highest_ = std::max(highest_, *number);
        if (!TryInsert(row))
            InsertUnderAnotherName(row);
    } else if (setAside_.size() < maxSetAside) {
        setAside_.push_back(row);
    } else {
        report_.AddProblem(OldAlbumReport::tr("%1, row %2: left out, it has no identifier.")
                               .arg(table_, QString::number(rows_)));
    }
}

void OldAlbumTable::InsertUnderAnotherName(Row row)
{
    const auto place = std::find(inserted_.begin(), inserted_.end(), uniqueName_);
    if (place == inserted_.end()) {
        ReportRefusedRow();
        return;
    }
    FieldValue& value = row[std::size_t(place - inserted_.begin())];
    const QString name = std::get<QString>(value);
    if (IsValueTable(table_)) {
        report_.AddProblem(
            OldAlbumReport::tr("Table %1: the value '%2' is there twice and came over once.")
                .arg(table_, name));
        return;
    }
    do {
        value = QStringLiteral("%1 (%2)").arg(name, QString::number(++suffix_));
    } while (!TryInsert(row));
    report_.AddProblem(
        OldAlbumReport::tr("Table %1: the name '%2' is there twice; the second became '%3'.")
            .arg(table_, name, std::get<QString>(value)));
}

// Rows without an identifier of their own come last, when all others are known.
void OldAlbumTable::InsertSetAside()
{
    if (setAside_.empty())
        return;
    const auto place = std::find(inserted_.begin(), inserted_.end(), layout_->GetIdentity());
    NewIdentifiers identifiers(database_->GetEngine(), layout_->GetTable());
    for (Row& row : setAside_) {
        const qint64 identifier = identifiers.Next();
        row[std::size_t(place - inserted_.begin())] = identifier;
        if (!TryInsert(row))
            InsertUnderAnotherName(row);
        report_.AddProblem(
            OldAlbumReport::tr("Table %1: a row without an identifier of its own became number %2.")
                .arg(table_, QString::number(identifier)));
    }
}

// The next new row gets an identifier that no row of the old album ever had, so far as it tells.
void OldAlbumTable::SetLastNumber()
{
    Statement remove(database_->GetEngine(), "DELETE FROM sqlite_sequence WHERE name=?1");
    remove.Bind(1, table_);
    remove.Run();
    Statement add(database_->GetEngine(), "INSERT INTO sqlite_sequence (name,seq) VALUES (?1,?2)");
    add.Bind(1, table_);
    add.Bind(2, highest_);
    add.Run();
}

qint64 OldAlbumTable::Finish()
{
    if (batch_) {
        if (layout_ && layout_->GetIdentity() >= 0) {
            if (lastNumber_ <= highest_ + maxNumbersUnused)
                highest_ = std::clamp(lastNumber_, highest_, highestIdentifier);
            SetLastNumber();
            InsertSetAside();
        }
        ReportOwnFields();
        batch_->Finish();
        batch_.reset();
    }
    if (!layout_)
        return 0;
    Statement count(database_->GetEngine(), "SELECT count(*) FROM " + QuotedTable());
    return count.Step() ? count.GetInteger(0) : 0;
}

} // namespace GeneralModule
