// SPDX-License-Identifier: MIT
#include "catalogue/PictureCards.h"

#include "catalogue/CharacteristicModel.h"
#include "core/AlbumSets.h"
#include "platform/data/ReadLock.h"
#include "platform/data/Statement.h"
#include "platform/files/PathRoutines.h"
#include "platform/text/LikePattern.h"

#include <limits>

using GeneralModule::AlbumDatabase;

namespace {

// Row numbers that fit an identifier, which are all that the program assigns.
const QByteArray rowsWithId =
    "rowid BETWEEN 1 AND " + QByteArray::number(std::numeric_limits<qint32>::max());

std::string_view Utf8FileNameOf(std::string_view path)
{
    return path.substr(Utf8FolderOf(path).size());
}

LikePattern PatternFor(const QString& pattern)
{
    return {pattern.toStdString(), LikePattern::Case::Insensitive};
}

} // namespace

QString NotIndexedCondition()
{
    QStringList conditions;
    for (int column = 0; column < columnCount; ++column)
        conditions += QStringLiteral("\"%1\"='%2'").arg(CarField(column), noValue);
    return conditions.join(QLatin1String(" AND "));
}

std::vector<qint32> AllPictureIds()
{
    return PictureIdsAfter(0);
}

std::vector<qint32> PictureIdsAfter(qint32 id)
{
    std::vector<qint32> ids;
    Statement rows(AlbumDatabase->GetEngine(), "SELECT rowid FROM \"Image\" WHERE rowid>?1 AND " +
                                                   rowsWithId + " ORDER BY rowid");
    rows.Bind(1, qint64(id));
    while (rows.Step())
        ids.push_back(qint32(rows.GetInteger(0)));
    return ids;
}

qint32 LastPictureId()
{
    Statement row(AlbumDatabase->GetEngine(),
                  "SELECT max(rowid) FROM \"Image\" WHERE " + rowsWithId);
    return row.Step() ? qint32(row.GetInteger(0)) : 0;
}

std::vector<qint32> PictureIdsOf(const QStringList& files)
{
    const ReadLock lock(*AlbumDatabase);
    Statement row(AlbumDatabase->GetEngine(),
                  "SELECT rowid FROM \"Image\" WHERE \"File\"=?1 AND " + rowsWithId);
    std::vector<qint32> ids;
    ids.reserve(std::size_t(files.size()));
    for (const QString& file : files) {
        const QByteArray path = file.toUtf8();
        row.BindUtf8(1, path);
        ids.push_back(row.Step() ? qint32(row.GetInteger(0)) : 0);
        row.Reset();
    }
    return ids;
}

std::vector<PictureCard> ReadPictureCards(std::span<const qint32> ids)
{
    const ReadLock lock(*AlbumDatabase);
    Statement row(AlbumDatabase->GetEngine(), "SELECT \"File\",\"Legend\"," +
                                                  NotIndexedCondition().toUtf8() +
                                                  " FROM \"Image\" WHERE rowid=?1");
    std::vector<PictureCard> cards;
    cards.reserve(ids.size());
    for (const qint32 id : ids) {
        PictureCard& card = cards.emplace_back();
        row.Bind(1, qint64(id));
        if (!row.Step())
            continue;
        card = {id, QString::fromUtf8(row.GetUtf8(0)), QString::fromUtf8(row.GetUtf8(1)),
                row.IsNull(2) || row.GetInteger(2) == 0};
        row.Reset();
    }
    return cards;
}

TextMatches FindPicturesByText(const QString& text)
{
    TextMatches matches;
    if (text.isEmpty())
        return matches;
    const QString plain = EscapedForLike(text);
    const LikePattern beginning = PatternFor(plain + QLatin1Char('*'));
    const LikePattern containing = PatternFor(QLatin1Char('*') + plain + QLatin1Char('*'));
    Statement rows(AlbumDatabase->GetEngine(),
                   "SELECT rowid,\"File\",\"Legend\" FROM \"Image\" WHERE " + rowsWithId +
                       " ORDER BY rowid");
    while (rows.Step()) {
        const auto id = qint32(rows.GetInteger(0));
        const std::string_view name = Utf8FileNameOf(rows.GetUtf8(1));
        const std::string_view legend = rows.GetUtf8(2);
        if (beginning.Matches(legend) || beginning.Matches(name))
            matches.beginning.push_back(id);
        else if (containing.Matches(legend) || containing.Matches(name))
            matches.containing.push_back(id);
    }
    return matches;
}
