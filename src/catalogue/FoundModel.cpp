// SPDX-License-Identifier: MIT
#include "catalogue/FoundModel.h"

#include <QFont>

#include <algorithm>
#include <numeric>

namespace {

int RankOf(const FoundPicture& picture)
{
    return picture.IsDoubtful() ? 0 : picture.IsFound() ? 2 : 1;
}

} // namespace

void FoundModel::Show(std::vector<FoundPicture> pictures)
{
    beginResetModel();
    pictures_ = std::move(pictures);
    order_.resize(pictures_.size());
    std::iota(order_.begin(), order_.end(), std::size_t(0));
    std::ranges::stable_sort(order_, {}, [this](std::size_t at) { return RankOf(pictures_[at]); });
    endResetModel();
}

void FoundModel::Choose(int row, int candidate)
{
    pictures_[order_[std::size_t(row)]].chosen = candidate;
    emit dataChanged(index(row, 0), index(row, 1));
}

int FoundModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(order_.size());
}

int FoundModel::columnCount(const QModelIndex&) const
{
    return 2;
}

QVariant FoundModel::data(const QModelIndex& index, int role) const
{
    const FoundPicture& picture = At(index.row());
    const bool isNew = index.column() == 1;
    if (role == Qt::FontRole && isNew && !picture.IsFound()) {
        QFont font;
        font.setItalic(true);
        return font;
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    if (!isNew)
        return picture.missing.file;
    if (picture.IsFound())
        return picture.candidates[picture.chosen];
    return picture.IsDoubtful()
               ? tr("%n files to choose from", nullptr, int(picture.candidates.size()))
               : tr("not found");
}

QVariant FoundModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return section == 0 ? tr("Missing file") : tr("Found");
}
