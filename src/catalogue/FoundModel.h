// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/FoundPictures.h"

#include <QAbstractTableModel>

// What was found for missing pictures, as a list: first those for which the user has to choose,
// then those that were not found, then the others.
class FoundModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void Show(std::vector<FoundPicture> pictures);
    const std::vector<FoundPicture>& GetPictures() const { return pictures_; }
    const FoundPicture& At(int row) const { return pictures_[order_[std::size_t(row)]]; }

    // -1 for none of the candidates. The row keeps its place.
    void Choose(int row, int candidate);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    std::vector<FoundPicture> pictures_;
    std::vector<std::size_t> order_;
};
