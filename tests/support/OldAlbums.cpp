// SPDX-License-Identifier: MIT
#include "support/OldAlbums.h"

#include "platform/data/Database.h"
#include "platform/data/RecordSet.h"
#include "support/AlbumFixture.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

QStringList Fields(const QJsonObject& contents, const QString& table)
{
    return contents["columns"][table].toObject().keys();
}

QString TextOf(const QJsonValue& value)
{
    if (value.isNull())
        return QString("NULL");
    return value.isDouble() ? QString::number(value.toInteger()) : value.toString();
}

} // namespace

bool HasOldAlbums()
{
    return !QString(OLD_ALBUM_FOLDER).isEmpty();
}

QString OldAlbumPath(const QString& name)
{
    return QString(OLD_ALBUM_FOLDER "/") + name + ".alb";
}

QByteArray OldAlbumBytes(const QString& name)
{
    return ReadFile(OldAlbumPath(name));
}

QJsonObject OldAlbumContents(const QString& name)
{
    return QJsonDocument::fromJson(ReadFile(OldAlbumPath(name).chopped(4) + ".expected.json"))
        .object();
}

// Rows with an identifier lie in its order in the present format, whatever their order was.
QStringList ExpectedRows(const QJsonObject& contents, const QString& table)
{
    std::vector<QJsonObject> objects;
    for (const QJsonValue row : contents["tables"][table].toArray())
        objects.push_back(row.toObject());
    std::stable_sort(objects.begin(), objects.end(), [](const auto& a, const auto& b) {
        return a["Id"].toInt() < b["Id"].toInt();
    });
    QStringList rows;
    for (const QJsonObject& object : objects) {
        QStringList values;
        for (const QString& field : Fields(contents, table))
            values += TextOf(object[field]);
        rows += values.join(u'|');
    }
    return rows;
}

QStringList FoundRows(const QString& album, const QString& password, const QJsonObject& contents,
                      const QString& table)
{
    RecordSet set(Database::Open(album, password), table);
    QStringList rows;
    for (set.MoveFirst(); !set.AtEnd(); set.MoveNext()) {
        QStringList values;
        for (const QString& field : Fields(contents, table))
            values += set.IsNull(field) ? QString("NULL") : set.Text(field);
        rows += values.join(u'|');
    }
    return rows;
}
