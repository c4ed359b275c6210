// SPDX-License-Identifier: MIT
#include "catalogue/PictureGroup.h"

#include "catalogue/Picture.h"
#include "catalogue/PictureCards.h"
#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/UndoSteps.h"
#include "platform/data/ReadLock.h"
#include "platform/data/Statement.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/PathRoutines.h"

#include <QByteArrayList>
#include <QStringList>

#include <algorithm>
#include <iterator>

using GeneralModule::AlbumDatabase;
using GeneralModule::UndoStep;

namespace {

constexpr std::size_t legendPlace = columnCount;
constexpr int picturesBetweenLooks = 64; // at the clock

QByteArray QuotedColumn(int column)
{
    return '"' + CarField(column).toUtf8() + '"';
}

QByteArray ReadingSql()
{
    QByteArray fields;
    for (int column = 0; column < columnCount; ++column)
        fields += QuotedColumn(column) + ',';
    return "SELECT " + fields + "\"Legend\" FROM \"Image\" WHERE rowid=?1";
}

GroupField FieldOf(const std::unordered_map<std::string, int>& counts)
{
    GroupField field;
    for (const auto& [text, pictures] : counts)
        field.texts.push_back({QString::fromStdString(text), pictures});
    std::ranges::sort(field.texts, [](const GroupField::Text& a, const GroupField::Text& b) {
        return a.pictures != b.pictures ? a.pictures > b.pictures : a.text < b.text;
    });
    return field;
}

QByteArray LegendSql(GroupChange::LegendWay way, const QByteArray& parameter)
{
    const QByteArray hasNone = "CASE WHEN ifnull(\"Legend\",'')='' THEN " + parameter + " ELSE ";
    switch (way) {
    case GroupChange::LegendWay::PutBefore:
        return hasNone + parameter + "||' '||\"Legend\" END";
    case GroupChange::LegendWay::PutAfter:
        return hasNone + "\"Legend\"||' '||" + parameter + " END";
    case GroupChange::LegendWay::Replace:
        break;
    }
    return parameter;
}

// Its parameters ?1 and ?2 are the first and the last row.
Statement ChangingStatement(const GroupChange& change)
{
    QByteArrayList fields;
    std::vector<QString> texts;
    const auto parameter = [&texts] { return '?' + QByteArray::number(texts.size() + 2); };
    for (int column = 0; column < columnCount; ++column) {
        if (const auto& value = change.values[std::size_t(column)]) {
            texts.push_back(*value);
            fields += QuotedColumn(column) + '=' + parameter();
        }
    }
    if (change.legend) {
        texts.push_back(*change.legend);
        fields += "\"Legend\"=" + LegendSql(change.legendWay, parameter());
    }
    Statement statement(AlbumDatabase->GetEngine(), "UPDATE \"Image\" SET " + fields.join(',') +
                                                        " WHERE rowid BETWEEN ?1 AND ?2");
    for (std::size_t i = 0; i < texts.size(); ++i)
        statement.Bind(int(i) + 3, FieldValue(texts[i]));
    return statement;
}

} // namespace

QString GroupField::InWords() const
{
    constexpr std::size_t most = 6;
    QStringList parts;
    for (const Text& each : texts) {
        if (std::size_t(parts.size()) == most) {
            parts += QStringLiteral("...");
            break;
        }
        parts += QStringLiteral("%1 (%2)").arg(each.text).arg(each.pictures);
    }
    return parts.join(QStringLiteral(", "));
}

bool GroupReading::Work(std::chrono::milliseconds time)
{
    const auto deadline = std::chrono::steady_clock::now() + time;
    const GeneralModule::NoWaiting noWaiting;
    const ReadLock together(*AlbumDatabase);
    Statement row(AlbumDatabase->GetEngine(), ReadingSql());
    for (int read = 1; next_ < pictures_.size(); ++next_, ++read) {
        if (read % picturesBetweenLooks == 0 && std::chrono::steady_clock::now() >= deadline)
            return true;
        row.Bind(1, qint64(pictures_[next_]));
        if (!row.Step())
            continue;
        for (std::size_t field = 0; field < counts_.size(); ++field) {
            const std::string_view text = row.GetUtf8(int(field));
            const bool isNone = text.empty() && field != legendPlace;
            ++counts_[field][isNone ? noValue.toStdString() : std::string(text)];
        }
        ++found_;
        row.Reset();
    }
    return false;
}

GroupDescription GroupReading::GetDescription() const
{
    GroupDescription description;
    description.pictures = found_;
    for (std::size_t column = 0; column < columnCount; ++column)
        description.columns[column] = FieldOf(counts_[column]);
    description.legend = FieldOf(counts_[legendPlace]);
    return description;
}

std::vector<qint32> PicturesOfFolderOf(qint32 picture, const std::vector<qint32>& pictures)
{
    const PictureCard wanted = ReadPictureCards({&picture, 1}).front();
    std::vector<qint32> found;
    if (wanted.id == 0)
        return found;
    const QString folder = FolderOf(wanted.file);
    for (const PictureCard& card : ReadPictureCards(pictures)) {
        if (card.id != 0 && FolderOf(card.file) == folder)
            found.push_back(card.id);
    }
    return found;
}

std::vector<qint32> PicturesWithValuesOf(qint32 picture, const std::vector<qint32>& pictures)
{
    const ReadLock together(*AlbumDatabase);
    Statement row(AlbumDatabase->GetEngine(), ReadingSql());
    const auto valuesOf = [&row](qint32 id) {
        QByteArrayList values;
        row.Bind(1, qint64(id));
        for (int column = 0; column < columnCount && (column > 0 || row.Step()); ++column) {
            const std::string_view value = row.GetUtf8(column);
            values += value.empty() ? noValue.toUtf8() : QByteArray(value.data(), value.size());
        }
        row.Reset();
        return values;
    };
    const QByteArrayList wanted = valuesOf(picture);
    std::vector<qint32> found;
    if (!wanted.isEmpty())
        std::ranges::copy_if(pictures, std::back_inserter(found),
                             [&](qint32 id) { return valuesOf(id) == wanted; });
    return found;
}

bool GroupChange::IsEmpty() const
{
    return !legend && std::none_of(values.begin(), values.end(),
                                   [](const auto& value) { return value.has_value(); });
}

GroupChange ApplyToGroup(const std::vector<qint32>& pictures, const GroupChange& change)
{
    GroupChange stored = change;
    if (change.IsEmpty() || pictures.empty())
        return stored;
    std::vector<qint32> rows = pictures;
    std::ranges::sort(rows);
    const UndoStep step(UndoStep::tr("Describe Together"), GeneralModule::StepCounts::Shown);
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    for (int column = 0; column < columnCount; ++column) {
        if (auto& value = stored.values[std::size_t(column)])
            value = StoreValue(column, *value);
    }
    Statement changing = ChangingStatement(stored);
    for (std::size_t i = 0; i < rows.size();) {
        const std::size_t first = i;
        for (++i; i < rows.size() && rows[i] <= rows[i - 1] + 1; ++i)
            ;
        changing.Bind(1, qint64(rows[first]));
        changing.Bind(2, qint64(rows[i - 1]));
        changing.Run();
    }
    batch.Finish();
    return stored;
}
