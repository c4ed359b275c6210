// SPDX-License-Identifier: MIT
#include "core/Parameters.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/Columns.h"
#include "core/TextRoutines.h"
#include "core/UndoSteps.h"
#include "platform/data/WriteBatch.h"
#include "platform/shell/ProgramFolder.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QString timerDelay = QStringLiteral("TimerDelay");
const QString lastFileSelection = QStringLiteral("LastFileSelection");

} // namespace

namespace GeneralModule {

QString GetParam(const QString& name)
{
    ParamsSet->FindFirst(QStringLiteral("[Param] = ") + Quoted(name));
    return ParamsSet->NoMatch() ? QString() : ParamsSet->TextOrEmpty(u"Value");
}

void SetParam(const QString& name, const QString& value)
{
    const UndoStep step(UndoStep::tr("Change Settings"));
    ParamsSet->FindFirst(QStringLiteral("[Param] = ") + Quoted(name));
    if (ParamsSet->NoMatch()) {
        ParamsSet->AddNew();
        ParamsSet->Set(u"Param", name);
    } else {
        ParamsSet->Edit();
    }
    ParamsSet->Set(u"Value", value);
    ParamsSet->Update();
}

void SetParams(const QMap<QString, QString>& values)
{
    const UndoStep step(UndoStep::tr("Change Settings"));
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    for (auto value = values.begin(); value != values.end(); ++value)
        SetParam(value.key(), value.value());
    batch.Finish();
}

QString ColumnLabel(int column)
{
    return GetParam(CarField(column));
}

void SetColumnLabel(int column, const QString& label)
{
    SetParam(CarField(column), label);
}

QString CaractLabel(int group)
{
    return GetParam(CaractParam(group));
}

QString CaractParam(int group)
{
    return QStringLiteral("Caract%1").arg(group);
}

void SetCaractLabel(int group, const QString& label)
{
    SetParam(CaractParam(group), label);
}

qint16 GetTimerDelay()
{
    constexpr double lowest = std::numeric_limits<qint16>::min();
    constexpr double highest = std::numeric_limits<qint16>::max();
    const double stored = GetParam(timerDelay).trimmed().toDouble(); // 0 for what is no number
    // nearbyint rounds halves to even.
    return qint16(std::nearbyint(std::clamp(std::isnan(stored) ? 0 : stored, lowest, highest)));
}

void SaveTimerDelay(qint16 milliseconds)
{
    if (IsAlbumReadOnly())
        return;
    const UndoStep step(UndoStep::tr("Set Delay of Autoview"));
    SetParam(timerDelay, QString::number(milliseconds));
}

QString GetLastFileSelection()
{
    const QString selection = GetParam(lastFileSelection);
    return selection.isEmpty() ? ProgramFile(QStringLiteral("*.*")) : selection;
}

void SetLastFileSelection(const QString& selection)
{
    if (IsAlbumReadOnly())
        return;
    const UndoStep step(UndoStep::tr("Choose Folder"));
    SetParam(lastFileSelection, selection);
}

} // namespace GeneralModule
