// SPDX-License-Identifier: MIT
// A record set beside its model in memory.
#pragma once

#include "core/AlbumSets.h"
#include "fuzz/Trials.h"
#include "platform/data/DatabaseError.h"
#include "support/AlbumFixture.h"

#include <QStringList>

#include <array>
#include <functional>
#include <map>
#include <optional>

// The number has an index: filters by it find all their rows at once and sort them, so rows that
// change during a walk are found again only by a new run.
inline constexpr std::size_t fieldCount = 4;
inline constexpr std::size_t numberField = 3;
inline const std::array<QString, fieldCount> fieldNames{
    QStringLiteral("Text"), QStringLiteral("car0"), QStringLiteral("FILESELECTION"),
    QStringLiteral("chapter")};
inline const QStringList anyTexts{"", "a", "A", "b", "ab", "é", "É", "it's", "x*"};

using Text = std::optional<QString>; // none: Null
using Fields = std::array<Text, fieldCount>;
using Table = std::map<qint64, Fields>;

inline const Fields newRow{std::nullopt, std::nullopt, std::nullopt, QStringLiteral("0")};

inline QString AnyValue(Trials& trials, std::size_t field)
{
    return field == numberField ? QString::number(trials.Below(3)) : trials.AnyOf(anyTexts);
}

struct Criteria
{
    QString text;
    std::function<bool(qint64, const Fields&)> isMet;
};

inline Criteria AnyCriteria(Trials& trials)
{
    const std::size_t field = trials.OneIn(3) ? numberField : std::size_t(trials.Below(fieldCount));
    const QString value = AnyValue(trials, field);
    const QString text = '\'' + QString(value).replace(u'\'', QStringLiteral("''")) + '\'';
    const QString& operand = field == numberField ? value : text;
    const auto isEqual = [field, value](qint64, const Fields& row) {
        return row[field] && row[field]->compare(value, Qt::CaseInsensitive) == 0;
    };
    switch (trials.Below(4)) {
    case 0:
        return {{}, [](qint64, const Fields&) { return true; }};
    case 1: {
        const qint64 id = trials.Below(30);
        return {QStringLiteral("[Id]=%1").arg(id),
                [id](qint64 row, const Fields&) { return row == id; }};
    }
    case 2:
        return {QStringLiteral("NOT [%1]=%2").arg(fieldNames[field], operand),
                [field, isEqual](qint64 id, const Fields& row) {
                    return row[field] && !isEqual(id, row);
                }};
    default:
        return {QStringLiteral("[%1]=%2").arg(fieldNames[field], operand), isEqual};
    }
}

// What is in the file, and what goes when a batch is not finished.
struct Model
{
    Table rows;
    qint64 lastId = 0;
};

// A record set and where it should stand.
class Cursor
{
public:
    Cursor(Trials& trials, Model& model)
        : trials_(trials),
          model_(model),
          set_(GeneralModule::AlbumDatabase, QStringLiteral("Paragraph"))
    {
        First();
    }

    void Act()
    {
        switch (trials_.Below(13)) {
        case 0:
            Note("first");
            set_.MoveFirst();
            First();
            break;
        case 1:
            Next();
            break;
        case 2:
        case 3:
        case 4:
            if (!trials_.OneIn(3))
                criteria_ = AnyCriteria(trials_);
            Find(trials_.OneIn(3) ? From::First : From::Next);
            break;
        case 5:
            Edit();
            break;
        case 6:
            AddNew();
            break;
        case 7:
        case 8:
            Set();
            break;
        case 9:
            Update();
            break;
        case 10:
            trials_.OneIn(3) ? Delete() : Cancel();
            break;
        case 11:
            Loop();
            break;
        default:
            Walk();
        }
        Compare();
    }

    // A batch that was given up takes rows away, also the one that the set stands on.
    void Forget()
    {
        walk_.reset();
        set_.MoveFirst();
        First();
    }

    void EndWalk() { walk_.reset(); }

private:
    enum class Place { Row, Deleted, End };
    enum class From { First, Next };

    struct Buffer
    {
        bool isNew;
        qint64 id;
        std::map<std::size_t, QString> values;
    };

    void Note(const QString& what) { trials_.AddInput(what.toUtf8()); }

    void Expect(bool isRight, const QString& what)
    {
        if (!isRight)
            trials_.Fault(what);
    }

    void ExpectError(int expected, const std::function<void()>& action)
    {
        const int error = ErrorOf(action);
        Expect(error == expected, QStringLiteral("error %1, not %2").arg(error).arg(expected));
    }

    void First()
    {
        buffer_.reset();
        place_ = model_.rows.empty() ? Place::End : Place::Row;
        row_ = model_.rows.empty() ? row_ : model_.rows.begin()->first;
    }

    // False where none of the rows from there on meets the criteria; then nothing moves.
    bool GoTo(Table::const_iterator from, const Criteria& criteria)
    {
        buffer_.reset();
        while (from != model_.rows.end() && !criteria.isMet(from->first, from->second))
            ++from;
        if (from == model_.rows.end())
            return false;
        place_ = Place::Row;
        row_ = from->first;
        return true;
    }

    void Next()
    {
        Note("next");
        if (place_ == Place::End)
            return ExpectError(DatabaseError::NoCurrentRecord, [this] { set_.MoveNext(); });
        set_.MoveNext();
        if (!GoTo(model_.rows.upper_bound(row_), {{}, [](qint64, const Fields&) { return true; }}))
            place_ = Place::End;
    }

    void Find(From from)
    {
        const bool isNext = from == From::Next;
        Note((isNext ? "find next " : "find first ") + criteria_.text);
        bool isFound = false;
        if (!isNext) {
            set_.FindFirst(criteria_.text);
            isFound = GoTo(model_.rows.begin(), criteria_);
        } else {
            set_.FindNext(criteria_.text);
            isFound = place_ != Place::End && GoTo(model_.rows.upper_bound(row_), criteria_);
        }
        Expect(set_.NoMatch() == !isFound, QStringLiteral("found or not"));
    }

    // The error of what needs a row that is there; 0 for none.
    int ErrorOfPlace() const
    {
        if (place_ == Place::End)
            return DatabaseError::NoCurrentRecord;
        return place_ == Place::Deleted ? DatabaseError::RecordDeleted : 0;
    }

    void Edit()
    {
        Note("edit");
        ExpectError(ErrorOfPlace(), [this] { set_.Edit(); });
        if (ErrorOfPlace() == 0)
            buffer_ = Buffer{false, row_, {}};
    }

    void AddNew()
    {
        Note("add");
        set_.AddNew();
        buffer_ = Buffer{true, model_.lastId + 1, {}};
    }

    void Set()
    {
        const std::size_t field = std::size_t(trials_.Below(fieldCount));
        const QString value = AnyValue(trials_, field);
        Note(QStringLiteral("set %1 to %2").arg(fieldNames[field], value));
        ExpectError(buffer_ ? 0 : DatabaseError::UpdateWithoutEdit, [&] {
            if (field == numberField)
                set_.Set(fieldNames[field], value.toLongLong());
            else
                set_.Set(fieldNames[field], value);
        });
        if (buffer_)
            buffer_->values[field] = value;
    }

    void Update()
    {
        Note("update");
        const bool isGone = buffer_ && !buffer_->isNew && !model_.rows.contains(buffer_->id);
        int expected = buffer_ ? 0 : DatabaseError::UpdateWithoutEdit;
        if (isGone && !buffer_->values.empty())
            expected = DatabaseError::RecordDeleted;
        // Given meanwhile to a row of the other set.
        if (buffer_ && buffer_->isNew && model_.rows.contains(buffer_->id))
            expected = DatabaseError::DuplicateKey;
        ExpectError(expected, [this] { set_.Update(); });
        if (!buffer_ || expected != 0)
            return;
        if (buffer_->isNew)
            model_.rows.emplace(buffer_->id, newRow);
        if (!isGone) {
            for (const auto& [field, value] : buffer_->values)
                model_.rows[buffer_->id][field] = value;
        }
        if (buffer_->isNew)
            model_.lastId = std::max(model_.lastId, buffer_->id);
        buffer_.reset();
    }

    void Cancel()
    {
        Note("cancel");
        set_.CancelUpdate();
        buffer_.reset();
    }

    void Delete()
    {
        Note("delete");
        ExpectError(ErrorOfPlace(), [this] { set_.Delete(); });
        buffer_.reset();
        if (ErrorOfPlace() != 0)
            return;
        model_.rows.erase(row_);
        place_ = Place::Deleted;
    }

    void Walk()
    {
        Note(walk_ ? "end of walk" : "walk");
        if (walk_)
            walk_.reset();
        else
            walk_.emplace(set_);
    }

    // Goes through the rows that meet the criteria, and changes the table on the way.
    void Loop()
    {
        const RecordSet::Walk walk(set_);
        criteria_ = AnyCriteria(trials_);
        Find(From::First);
        for (int i = trials_.Below(12); i > 0; --i) {
            Compare();
            if (trials_.OneIn(3)) {
                trials_.OneIn(2) ? AddNew() : Edit();
                Set();
                Update();
            }
            Find(From::Next);
        }
    }

    // The value that a field should show, or the error that it should end in.
    int Shown(std::size_t field, Text& value) const
    {
        if (buffer_ && buffer_->values.contains(field))
            value = buffer_->values.at(field);
        else if (buffer_ && buffer_->isNew)
            value.reset();
        else if (ErrorOfPlace() != 0)
            return ErrorOfPlace();
        else if (!model_.rows.contains(row_)) // deleted by the other set
            return DatabaseError::RecordDeleted;
        else
            value = model_.rows.at(row_)[field];
        return 0;
    }

    void Compare()
    {
        Expect(set_.AtEnd() == (place_ == Place::End), QStringLiteral("at the end or not"));
        for (std::size_t field = 0; field < fieldCount; ++field) {
            if (trials_.OneIn(2)) // a field may be asked for at any time
                CompareField(field);
        }
        if (buffer_ && buffer_->isNew)
            Expect(set_.Number(u"Id") == buffer_->id, QStringLiteral("another identifier"));
        else if (ErrorOfPlace() == 0 && model_.rows.contains(row_))
            Expect(set_.Number(u"Id") == row_, QStringLiteral("another row"));
    }

    void CompareField(std::size_t field)
    {
        Text expected;
        const int error = Shown(field, expected);
        if (error != 0)
            return ExpectError(error, [&] { set_.TextOrEmpty(fieldNames[field]); });
        Expect(set_.IsNull(fieldNames[field]) == !expected, QStringLiteral("Null or not"));
        Expect(set_.TextOrEmpty(fieldNames[field]) == expected.value_or(QString()),
               QStringLiteral("another text in ") + fieldNames[field]);
        if (!expected)
            ExpectError(DatabaseError::InvalidUseOfNull, [&] { set_.Text(fieldNames[field]); });
    }

    Trials& trials_;
    Model& model_;
    RecordSet set_;
    std::optional<RecordSet::Walk> walk_;
    Criteria criteria_{{}, [](qint64, const Fields&) { return true; }};
    Place place_ = Place::End;
    qint64 row_ = 0;
    std::optional<Buffer> buffer_;
};
