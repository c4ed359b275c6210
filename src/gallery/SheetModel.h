// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/PictureCards.h"

#include <QAbstractListModel>
#include <QCache>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

// The pictures of a contact sheet: identifiers in a given order. What the album holds about them is
// read for what is looked at, some dozens at a time, and only the latest are kept.
class SheetModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum class Captions { Legend, Name };

    // What is said of a picture beside its caption.
    struct Marks
    {
        bool isLinked = false;
        bool isIndexed = true;
        bool isMissing = false;
    };

    using QAbstractListModel::QAbstractListModel;

    void Show(std::vector<qint32> ids);
    const std::vector<qint32>& GetIds() const { return ids_; }
    // Those of a list in ascending order, as rows.
    std::vector<int> RowsOf(const std::vector<qint32>& sortedIds) const;

    void SetCaptions(Captions captions) { captions_ = captions; }
    // Tell whether a file of the album is linked, and whether it is known to be missing.
    void SetLinked(std::function<bool(const QString& file)> isLinked);
    void SetMissing(std::function<bool(const QString& file)> isMissing);

    // What the album holds is read again.
    void Forget();

    // Empty where the album does not hold the picture or cannot be read at present.
    PictureCard CardAt(int row) const;
    QString CaptionAt(int row) const;
    Marks MarksAt(int row) const;
    // Whether an attempt to read cards has failed since this was asked last.
    bool TakeFailure() { return std::exchange(hasFailed_, false); }

    // The next row at or after one, going round at the end, whose legend or name begins with the
    // text; when there is none, one that contains it. Throws DatabaseError.
    std::optional<int> FindText(const QString& text, int from) const;

    void SetDraggable(bool isDraggable) { isDraggable_ = isDraggable; }

    int rowCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    using Block = std::vector<PictureCard>;

    const Block* BlockOf(int row) const;
    QString Description(int row, const QString& separator) const;

    std::vector<qint32> ids_;
    Captions captions_ = Captions::Legend;
    bool isDraggable_ = false;
    std::function<bool(const QString&)> isLinked_;
    std::function<bool(const QString&)> isMissing_;
    mutable QCache<int, Block> blocks_{maxBlocks};
    mutable bool hasFailed_ = false;

    static constexpr int maxBlocks = 32; // more than the largest screen shows
};
