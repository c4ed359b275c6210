// SPDX-License-Identifier: MIT
#include "catalogue/DescriptionChanges.h"

#include "core/AlbumSets.h"
#include "core/UndoSteps.h"
#include "platform/data/ReadLock.h"
#include "platform/data/Statement.h"
#include "platform/data/WriteBatch.h"

#include <QSet>

#include <limits>

using GeneralModule::AlbumDatabase;
using GeneralModule::UndoStep;

namespace {

QByteArray Selection()
{
    QByteArray fields = "rowid,\"File\",\"SourceFile\",\"Legend\"";
    for (int column = 0; column < columnCount; ++column)
        fields += ",\"" + CarField(column).toUtf8() + '"';
    return "SELECT " + fields + " FROM \"Image\" WHERE ";
}

DescribedPicture PictureOf(const Statement& row)
{
    DescribedPicture picture{qint32(row.GetInteger(0)),
                             QString::fromUtf8(row.GetUtf8(1)),
                             QString::fromUtf8(row.GetUtf8(2)),
                             {}};
    picture.record.legend = QString::fromUtf8(row.GetUtf8(3));
    for (int column = 0; column < columnCount; ++column)
        picture.record.values[std::size_t(column)] = QString::fromUtf8(row.GetUtf8(4 + column));
    return picture;
}

QString ImportedValue(const QString& text)
{
    const QString value = CleanValue(text);
    return value.isEmpty() ? noValue : value;
}

// The record as what is imported makes it.
Picture Described(Picture record, const ImportedDescription& imported)
{
    record.legend = imported.legend.value_or(record.legend);
    for (std::size_t column = 0; column < columnCount; ++column) {
        const auto& value = imported.values[column];
        if (value && *value != record.values[column])
            record.values[column] = ImportedValue(*value);
    }
    return record;
}

// The values of the tables, without regard to case.
class KnownValues
{
public:
    bool Contains(int column, const QString& value)
    {
        return SetOf(column).contains(value.toCaseFolded());
    }

    void Add(int column, const QString& value) { SetOf(column).insert(value.toCaseFolded()); }

private:
    QSet<QString>& SetOf(int column)
    {
        auto& known = known_[std::size_t(LabelledColumnOf(column))];
        if (!known) {
            known.emplace();
            for (const QString& value : ValuesOf(column))
                known->insert(value.toCaseFolded());
        }
        return *known;
    }

    std::array<std::optional<QSet<QString>>, columnCount> known_;
};

// Writes the changed fields of one picture after another.
class ChangeWriter
{
public:
    ChangeWriter() : stored_(AlbumDatabase->GetEngine(), Selection() + "rowid=?1")
    {
        for (int column = 0; column < columnCount; ++column)
            values_[std::size_t(column)] = Setter(CarField(column).toUtf8());
        legend_ = Setter("Legend");
    }

    void Write(const DescriptionChange& change)
    {
        const std::optional<DescribedPicture> stored = Read(change.id);
        if (!stored || stored->file != change.file) {
            ++result_.conflicts;
            return;
        }
        const Picture& before = stored->record;
        const Picture merged = MergePicture(change.shown, change.edited, before, false);
        if (HasConflict(change.shown, change.edited, before))
            ++result_.conflicts;
        if (merged == before)
            return;
        if (merged.legend != before.legend)
            Set(legend_, change.id, merged.legend);
        for (std::size_t column = 0; column < columnCount; ++column) {
            if (merged.values[column] == before.values[column])
                continue;
            AddToTable(int(column), merged.values[column]);
            Set(values_[column], change.id, merged.values[column]);
        }
        ++result_.pictures;
    }

    const ChangeResult& GetResult() const { return result_; }

private:
    static Statement Setter(const QByteArray& field)
    {
        return {AlbumDatabase->GetEngine(),
                "UPDATE \"Image\" SET \"" + field + "\"=?1 WHERE rowid=?2"};
    }

    std::optional<DescribedPicture> Read(qint32 id)
    {
        stored_.Bind(1, qint64(id));
        if (!stored_.Step())
            return std::nullopt;
        DescribedPicture picture = PictureOf(stored_);
        stored_.Reset();
        return picture;
    }

    static void Set(Statement& setter, qint32 id, const QString& text)
    {
        setter.Bind(1, text);
        setter.Bind(2, qint64(id));
        setter.Run();
    }

    void AddToTable(int column, const QString& value)
    {
        if (known_.Contains(column, value))
            return;
        AddValueToTable(column, value);
        known_.Add(column, value);
    }

    Statement stored_;
    std::array<Statement, columnCount> values_;
    Statement legend_;
    KnownValues known_;
    ChangeResult result_;
};

} // namespace

void VisitDescriptions(const std::function<bool(const DescribedPicture&)>& visit)
{
    const QByteArray last = QByteArray::number(std::numeric_limits<qint32>::max());
    Statement rows(AlbumDatabase->GetEngine(),
                   Selection() + "rowid BETWEEN 1 AND " + last + " ORDER BY rowid");
    while (rows.Step()) {
        if (!visit(PictureOf(rows)))
            return;
    }
}

std::optional<DescribedPicture> ReadDescription(qint32 id)
{
    Statement row(AlbumDatabase->GetEngine(), Selection() + "rowid=?1");
    row.Bind(1, qint64(id));
    return row.Step() ? std::optional(PictureOf(row)) : std::nullopt;
}

ChangeCounts CountChanges(const std::vector<DescriptionChange>& changes)
{
    KnownValues known;
    ChangeCounts counts;
    counts.pictures = int(changes.size());
    for (const DescriptionChange& change : changes) {
        counts.legends += change.shown.legend == change.edited.legend ? 0 : 1;
        for (int column = 0; column < columnCount; ++column) {
            const QString& value = change.edited.values[std::size_t(column)];
            if (value == change.shown.values[std::size_t(column)])
                continue;
            ++counts.values[std::size_t(column)];
            if (known.Contains(column, value))
                continue;
            known.Add(column, value);
            counts.newValues.emplace_back(column, value);
        }
    }
    return counts;
}

DescriptionComparison CompareDescriptions(const std::vector<ImportedDescription>& imported)
{
    const ReadLock lock(*AlbumDatabase);
    Statement byFile(AlbumDatabase->GetEngine(), Selection() + "\"File\"=?1 ORDER BY rowid");
    DescriptionComparison comparison;
    QSet<qint32> seen;
    for (const ImportedDescription& each : imported) {
        byFile.Bind(1, each.file);
        if (!byFile.Step()) {
            comparison.unknown += each.file;
            continue;
        }
        const DescribedPicture picture = PictureOf(byFile);
        byFile.Reset();
        const Picture edited = Described(picture.record, each);
        if (seen.contains(picture.id))
            comparison.repeated += each.file;
        else if (edited == picture.record)
            ++comparison.same;
        else
            comparison.changes.push_back({picture.id, picture.file, picture.record, edited});
        seen.insert(picture.id);
    }
    return comparison;
}

std::optional<ChangeResult> ApplyChanges(const std::vector<DescriptionChange>& changes,
                                         const std::function<bool(int done)>& progress)
{
    const UndoStep step(UndoStep::tr("Take Descriptions"), GeneralModule::StepCounts::Shown);
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    ChangeWriter writer;
    int done = 0;
    for (const DescriptionChange& change : changes) {
        writer.Write(change);
        batch.RowDone();
        if (progress && !progress(++done))
            return std::nullopt;
    }
    batch.Finish();
    return writer.GetResult();
}
