// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

// Albums in the former file format, with what they hold. They are no part of the repository: the
// build's LUMENARK_OLD_ALBUMS names their folder. A test program that needs them skips itself as a
// whole, in initTestCase, where it names none; a folder that lacks them is a failure.
bool HasOldAlbums();
QString OldAlbumPath(const QString& name); // "small_jet4"
QByteArray OldAlbumBytes(const QString& name);
// "tables": table name to its rows, and "columns": table name to its fields.
QJsonObject OldAlbumContents(const QString& name);

// The rows that an album in the present format should hold in one table, each as its values joined
// by "|", Null as NULL, in the order of the table; and the rows that it does hold.
QStringList ExpectedRows(const QJsonObject& contents, const QString& table);
QStringList FoundRows(const QString& album, const QString& password, const QJsonObject& contents,
                      const QString& table);
