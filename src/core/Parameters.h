// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

// Named texts kept in the open album. All of it moves ParamsSet, and throws DatabaseError, NoAlbum
// while no album is open.
namespace GeneralModule {

// An empty text when the album has no such parameter.
QString GetParam(const QString& name);
// Adds the parameter when it is missing.
void SetParam(const QString& name, const QString& value);
// All or none of them.
void SetParams(const QMap<QString, QString>& values);

// Label of a column of characteristics, 0 to 5 and 9 to 11; columns 6 to 8 go by the labels of 3
// to 5.
QString ColumnLabel(int column);
void SetColumnLabel(int column, const QString& label);

// Label of a group of three columns, 0 to 3, and the name of the parameter that holds it; that of a
// column's label is CarField.
QString CaractLabel(int group);
QString CaractParam(int group);
void SetCaractLabel(int group, const QString& label);

// Delay of autoview in milliseconds, 0 when none is stored. A value that does not fit is held at
// the nearest one that does.
qint16 GetTimerDelay();
// Not kept in an album that can only be read.
void SaveTimerDelay(qint16 milliseconds);

// The picture folder and pattern chosen last; every file in the program's folder when none was.
QString GetLastFileSelection();
// Not kept in an album that can only be read.
void SetLastFileSelection(const QString& selection);

} // namespace GeneralModule
