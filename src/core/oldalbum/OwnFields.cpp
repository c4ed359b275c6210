// SPDX-License-Identifier: MIT
#include "core/oldalbum/OwnFields.h"

#include "platform/data/SchemaCheck.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <functional>

namespace {

constexpr char fieldType[] = " TEXT COLLATE NOCASE";
constexpr int maxFields = 900; // a statement takes 999 values

// Null when the engine does it under neither name.
QString FirstTaken(const QString& name, const std::function<void(const QByteArray&)>& action)
{
    for (const QString& candidate : {name, u'_' + name}) {
        if (candidate.compare(u"rowid", Qt::CaseInsensitive) == 0)
            continue; // would hide what record sets find their rows by
        try {
            action(QuotedName(candidate.toUtf8()));
            return candidate;
        } catch (const DatabaseError& error) {
            const int number = error.GetNumber();
            if (number != DatabaseError::Damaged && number != DatabaseError::TooComplex)
                throw;
        }
    }
    return {};
}

} // namespace

namespace GeneralModule {

QString MakeOwnTable(Database& database, const QString& table, const QString& firstField)
{
    Statement count(database.GetEngine(), "SELECT count(*) FROM sqlite_master");
    const bool hasRoom = count.Step() && count.GetInteger(0) < maxSchemaObjects;
    count.Reset();
    if (!hasRoom)
        return {};
    return FirstTaken(table, [&](const QByteArray& quoted) {
        database.Execute("CREATE TABLE " + quoted + " (" + QuotedName(firstField.toUtf8()) +
                         fieldType + ')');
    });
}

QString AddOwnField(Database& database, const QString& table, const QString& field)
{
    if (TableLayout(database.GetEngine(), table).Count() >= maxFields)
        return {};
    return FirstTaken(field, [&](const QByteArray& quoted) {
        database.Execute("ALTER TABLE " + QuotedName(table.toUtf8()) + " ADD COLUMN " + quoted +
                         fieldType);
    });
}

} // namespace GeneralModule
