// SPDX-License-Identifier: MIT
#include "catalogue/ValueReplacement.h"

#include "catalogue/CharacteristicModel.h"
#include "core/Album.h"
#include "core/TextRoutines.h"
#include "platform/data/WriteBatch.h"

namespace {

using GeneralModule::AlbumDatabase;

class Replacement
{
public:
    Replacement(const QString& old, const QString& replacement, const ReplacementProgress& progress)
        : old_(old),
          replacement_(replacement),
          progress_(progress),
          batch_(AlbumDatabase, WriteBatch::Commits::AtItsEnd)
    {
    }

    // One pass finds them all: a changed row lies behind, and meets the filter again only where
    // the two values differ in letter case alone.
    void ReplaceIn(const QString& tableName, int column)
    {
        // A record set of its own: while the windows are kept alive, others move the shared one.
        RecordSet table(AlbumDatabase, tableName);
        const QString field = QStringLiteral("Car%1").arg(column);
        const QString filter =
            QLatin1Char('[') + field + QStringLiteral("]=") + GeneralModule::Quoted(old_);
        const int number = table.FieldNumber(field);
        const RecordSet::Walk walk(table);
        for (table.FindFirst(filter); !table.NoMatch(); table.FindNext(filter)) {
            table.Edit();
            table.Set(number, replacement_);
            table.Update();
            batch_.RowDone();
            progress_(++changed_);
        }
        progress_(changed_);
    }

    void ReplaceInValueTable(int column)
    {
        RemoveValueFromTable(column, old_);
        AddValueToTable(column, replacement_);
        batch_.Finish();
    }

private:
    const QString& old_;
    const QString& replacement_;
    const ReplacementProgress& progress_;
    WriteBatch batch_;
    int changed_ = 0;
};

} // namespace

void ReplaceValue(int column, const QString& old, const QString& replacement,
                  const ReplacementProgress& progress)
{
    Replacement work(old, replacement, progress);
    for (const char* table : {"Image", "Paragraph"}) {
        work.ReplaceIn(QString::fromLatin1(table), column);
        if (const auto twin = TwinColumnOf(column))
            work.ReplaceIn(QString::fromLatin1(table), *twin);
    }
    work.ReplaceInValueTable(column);
}
