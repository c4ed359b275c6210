// SPDX-License-Identifier: MIT
#include "gallery/SheetModel.h"

#include "core/Album.h"
#include "platform/data/DatabaseError.h"
#include "platform/files/PathRoutines.h"

#include <QDir>

#include <algorithm>
#include <memory>
#include <span>
#include <utility>

namespace {

constexpr int blockRows = 64;

} // namespace

void SheetModel::Show(std::vector<qint32> ids)
{
    beginResetModel();
    ids_ = std::move(ids);
    blocks_.clear();
    endResetModel();
}

std::vector<int> SheetModel::RowsOf(const std::vector<qint32>& sortedIds) const
{
    std::vector<int> rows;
    for (std::size_t row = 0; row < ids_.size() && !sortedIds.empty(); ++row) {
        if (std::ranges::binary_search(sortedIds, ids_[row]))
            rows.push_back(int(row));
    }
    return rows;
}

void SheetModel::SetLinked(std::function<bool(const QString&)> isLinked)
{
    isLinked_ = std::move(isLinked);
}

void SheetModel::SetMissing(std::function<bool(const QString&)> isMissing)
{
    isMissing_ = std::move(isMissing);
}

void SheetModel::Forget()
{
    blocks_.clear();
}

// Null when the album cannot be read. It is asked while the sheet is painted, which no other
// program may hold up.
const SheetModel::Block* SheetModel::BlockOf(int row) const
{
    const int number = row / blockRows;
    if (const Block* block = blocks_.object(number))
        return block;
    try {
        const GeneralModule::NoWaiting noWaiting;
        const std::size_t first = std::size_t(number) * blockRows;
        const std::span<const qint32> ids(ids_);
        auto block = std::make_unique<Block>(ReadPictureCards(
            ids.subspan(first, std::min<std::size_t>(blockRows, ids.size() - first))));
        const Block* read = block.get();
        blocks_.insert(number, block.release());
        return read;
    } catch (const DatabaseError&) {
        hasFailed_ = true;
        return nullptr;
    }
}

PictureCard SheetModel::CardAt(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    const Block* block = BlockOf(row);
    return block ? (*block)[std::size_t(row % blockRows)] : PictureCard();
}

// A picture without a legend is called by its file.
QString SheetModel::CaptionAt(int row) const
{
    const PictureCard card = CardAt(row);
    const QString legend = card.legend.simplified();
    return captions_ == Captions::Legend && !legend.isEmpty() ? legend : FileNameOf(card.file);
}

SheetModel::Marks SheetModel::MarksAt(int row) const
{
    const PictureCard card = CardAt(row);
    if (card.id == 0)
        return {};
    return {isLinked_ && isLinked_(card.file), card.isIndexed, isMissing_ && isMissing_(card.file)};
}

std::optional<int> SheetModel::FindText(const QString& text, int from) const
{
    const TextMatches matches = FindPicturesByText(text);
    for (const std::vector<qint32>& ids : {matches.beginning, matches.containing}) {
        const std::vector<int> rows = RowsOf(ids);
        if (rows.empty())
            continue;
        const auto next = std::ranges::lower_bound(rows, from);
        return next == rows.end() ? rows.front() : *next;
    }
    return std::nullopt;
}

int SheetModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ids_.size());
}

Qt::ItemFlags SheetModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractListModel::flags(index);
    return isDraggable_ ? usual | Qt::ItemIsDragEnabled : usual;
}

QVariant SheetModel::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return CaptionAt(index.row());
    case Qt::AccessibleTextRole:
        return Description(index.row(), QStringLiteral(", "));
    case Qt::ToolTipRole:
        // As plain text, whatever it holds.
        return Description(index.row(), QStringLiteral("\n")).toHtmlEscaped().replace('\n', "<br>");
    default:
        return {};
    }
}

// Legend, name or path, and the marks in words.
QString SheetModel::Description(int row, const QString& separator) const
{
    const PictureCard card = CardAt(row);
    if (card.id == 0)
        return {};
    const Marks marks = MarksAt(row);
    QStringList parts{card.legend.simplified(), FileNameOf(card.file)};
    if (marks.isLinked)
        parts += tr("linked");
    if (!marks.isIndexed)
        parts += tr("not indexed");
    if (marks.isMissing)
        parts += tr("file is missing");
    parts.removeAll(QString());
    return parts.join(separator);
}
