// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPixmap>
#include <QStyledItemDelegate>

class SheetModel;
class ThumbnailStore;

// Paints a picture of a contact sheet: its thumbnail in a square, marks in the square's corner, and
// a caption below.
class SheetDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    SheetDelegate(const SheetModel& model, const ThumbnailStore& thumbnails, QObject* parent);

    // Of the square, logical pixels.
    void SetSide(int side) { side_ = side; }
    // What an item takes with that font; a view may make it wider.
    QSize SizeWith(const QFontMetrics& metrics) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void PaintGround(QPainter& painter, const QStyleOptionViewItem& option) const;
    QRect PaintThumbnail(QPainter& painter, const QStyleOptionViewItem& option, const QRect& square,
                         const QString& file) const;
    void PaintMarks(QPainter& painter, const QRect& thumbnail, int row) const;
    void PaintCaption(QPainter& painter, const QStyleOptionViewItem& option, const QRect& rect,
                      int row) const;
    QPixmap Icon(const QString& name, int side, double pixelRatio, const QColor& ink) const;

    const SheetModel& model_;
    const ThumbnailStore& thumbnails_;
    int side_ = 0;
    mutable QHash<QString, QPixmap> icons_; // drawing one takes longer than the rest of an item
};
