// SPDX-License-Identifier: MIT
#include "core/Renumbering.h"

#include "platform/data/Identifiers.h"

#include <QMap>

#include <array>
#include <span>

namespace {

struct LinkField
{
    const char* table;
    const char* field;
};

constexpr std::array chapterLinks{LinkField{"Chapter", "PreviousChapter"},
                                  LinkField{"Chapter", "NextChapter"},
                                  LinkField{"Paragraph", "Chapter"}};
constexpr std::array paragraphLinks{
    LinkField{"Paragraph", "PreviousParagraph"}, LinkField{"Paragraph", "NextParagraph"},
    LinkField{"Chapter", "FirstParagraph"}, LinkField{"LinkedImages", "ParagraphId"}};

using Numbers = QMap<qint64, qint64>; // by row

// The numbers in that field that are no identifiers.
Numbers OutOfRange(sqlite3* engine, const QByteArray& table, const QByteArray& field)
{
    Numbers numbers;
    Statement rows(engine, "SELECT rowid," + field + " FROM " + table + " WHERE typeof(" + field +
                               ")='integer' AND " + field + " NOT BETWEEN 1 AND " +
                               QByteArray::number(highestIdentifier));
    while (rows.Step())
        numbers.insert(rows.GetInteger(0), rows.GetInteger(1));
    return numbers;
}

void Write(sqlite3* engine, const QByteArray& table, const QByteArray& field,
           const Numbers& numbers)
{
    Statement update(engine, "UPDATE " + table + " SET " + field + "=?2 WHERE rowid=?1");
    for (auto row = numbers.begin(); row != numbers.end(); ++row) {
        update.Bind(1, row.key());
        update.Bind(2, row.value());
        update.Run();
    }
}

void MendLinks(sqlite3* engine, const LinkField& link, const Numbers& renumbered)
{
    Numbers mended;
    const Numbers links = OutOfRange(engine, link.table, link.field);
    for (auto row = links.begin(); row != links.end(); ++row) {
        if (row.value() != 0 && renumbered.contains(row.value()))
            mended.insert(row.key(), renumbered[row.value()]);
    }
    Write(engine, link.table, link.field, mended);
}

// The engine's note of the last number given is beyond the range when such a row was put in.
void ResetLastNumber(sqlite3* engine, const QByteArray& table)
{
    Statement reset(engine, "UPDATE sqlite_sequence SET seq=(SELECT max(rowid) FROM " + table +
                                ") WHERE name=?1 AND seq NOT BETWEEN 0 AND " +
                                QByteArray::number(highestIdentifier));
    reset.Bind(1, QString::fromUtf8(table));
    reset.Run();
}

int Renumber(sqlite3* engine, const QByteArray& table, std::span<const LinkField> links)
{
    Numbers renumbered = OutOfRange(engine, table, "rowid");
    if (renumbered.isEmpty())
        return 0;
    NewIdentifiers identifiers(engine, table);
    for (qint64& number : renumbered)
        number = identifiers.Next();
    Write(engine, table, "Id", renumbered); // not "rowid": triggers go by the field's name
    ResetLastNumber(engine, table);
    for (const LinkField& link : links)
        MendLinks(engine, link, renumbered);
    return int(renumbered.size());
}

} // namespace

namespace GeneralModule {

int RenumberRows(sqlite3* engine)
{
    return Renumber(engine, "Chapter", chapterLinks) +
           Renumber(engine, "Paragraph", paragraphLinks);
}

} // namespace GeneralModule
