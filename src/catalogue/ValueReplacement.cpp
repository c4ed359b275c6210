// SPDX-License-Identifier: MIT
#include "catalogue/ValueReplacement.h"

#include "catalogue/CharacteristicModel.h"
#include "core/AlbumSets.h"
#include "core/TextRoutines.h"
#include "core/UndoSteps.h"
#include "platform/data/WriteBatch.h"
#include "platform/text/LikePattern.h"

#include <utility>
#include <vector>

namespace {

using GeneralModule::AlbumDatabase;
using GeneralModule::StepCounts;
using GeneralModule::UndoStep;

constexpr QChar separator = u';';
const QString negation = QStringLiteral("!");

bool IsSame(const QString& first, const QString& second)
{
    return first.compare(second, Qt::CaseInsensitive) == 0;
}

// A paragraph's filter with the value replaced. A second occurrence in a group is redundant and
// left out; a "!" begins a new group, where the value has another meaning.
QString ReplacedInList(const QString& filter, const QString& old, const QString& replacement)
{
    if (IsSame(filter, old))
        return replacement;
    const QStringList tokens = filter.split(separator);
    if (!tokens.contains(old, Qt::CaseInsensitive))
        return filter;
    QStringList kept;
    bool isHeld = false; // the group already has the replacement
    for (const QString& token : tokens) {
        const bool isMeant = IsSame(token, old) || IsSame(token, replacement);
        if (isMeant && isHeld)
            continue;
        isHeld = token != negation && (isHeld || isMeant);
        kept += IsSame(token, old) ? replacement : token;
    }
    return kept.join(separator);
}

struct Stopped
{
};

class Replacement
{
public:
    Replacement(int column, const QString& old, const QString& replacement,
                const ReplacementProgress& progress)
        : column_(column),
          old_(old),
          replacement_(replacement),
          progress_(progress),
          batch_(AlbumDatabase, WriteBatch::Commits::AtItsEnd)
    {
        fields_ += CarField(column);
        if (const auto twin = TwinColumnOf(column))
            fields_ += CarField(*twin);
    }

    // A picture's field is one value, even if it contains ";".
    int InPictures()
    {
        return ReplaceIn(
            QStringLiteral("Image"), QStringLiteral("=") + GeneralModule::Quoted(old_),
            [this](const QString& value) { return IsSame(value, old_) ? replacement_ : value; });
    }

    int InParagraphs()
    {
        const QString holdsOld = QLatin1Char('*') + EscapedForLike(old_) + QLatin1Char('*');
        return ReplaceIn(
            QStringLiteral("Paragraph"), QStringLiteral(" LIKE ") + GeneralModule::Quoted(holdsOld),
            [this](const QString& filter) { return ReplacedInList(filter, old_, replacement_); });
    }

    void InValueTable()
    {
        RemoveValueFromTable(column_, old_);
        AddValueToTable(column_, replacement_);
        batch_.Finish();
    }

private:
    // One pass finds all rows. A changed row is not found again, even where the two values differ
    // only in letter case. Returns how many rows were changed.
    template<typename Replaced>
    int ReplaceIn(const QString& tableName, const QString& condition, Replaced replaced)
    {
        // A separate record set: while the windows are kept alive, others move the shared one.
        RecordSet table(AlbumDatabase, tableName);
        QStringList conditions;
        std::vector<int> numbers;
        for (const QString& field : fields_) {
            conditions += QLatin1Char('[') + field + QLatin1Char(']') + condition;
            numbers.push_back(table.FieldNumber(field));
        }
        const QString filter = conditions.join(QStringLiteral(" OR "));
        const int before = changed_;
        const RecordSet::Walk walk(table);
        for (table.FindFirst(filter); !table.NoMatch(); table.FindNext(filter)) {
            if (ReplaceInRow(table, numbers, replaced)) {
                batch_.RowDone();
                ++changed_;
            }
            if (!progress_(changed_))
                throw Stopped();
        }
        if (!progress_(changed_))
            throw Stopped();
        return changed_ - before;
    }

    template<typename Replaced>
    static bool ReplaceInRow(RecordSet& table, const std::vector<int>& fields, Replaced replaced)
    {
        std::vector<std::pair<int, QString>> changes;
        for (const int field : fields) {
            const QString value = table.TextOrEmpty(field);
            const QString changed = replaced(value);
            if (changed != value)
                changes.emplace_back(field, changed);
        }
        if (changes.empty())
            return false;
        table.Edit();
        for (const auto& [field, value] : changes)
            table.Set(field, value);
        table.Update();
        return true;
    }

    int column_;
    const QString& old_;
    const QString& replacement_;
    const ReplacementProgress& progress_;
    QStringList fields_; // the column's and its twin's
    WriteBatch batch_;
    int changed_ = 0;
};

} // namespace

std::optional<ReplacedValues> ReplaceValue(int column, const QString& old,
                                           const QString& replacement,
                                           const ReplacementProgress& progress)
{
    const UndoStep step(UndoStep::tr("Replace %1 by %2").arg(old, replacement), StepCounts::Shown);
    try {
        Replacement work(column, old, replacement, progress);
        const ReplacedValues done{work.InPictures(), work.InParagraphs()};
        work.InValueTable();
        return done;
    } catch (const Stopped&) {
        return std::nullopt;
    }
}
