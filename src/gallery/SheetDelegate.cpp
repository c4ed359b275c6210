// SPDX-License-Identifier: MIT
#include "gallery/SheetDelegate.h"

#include "gallery/SheetModel.h"
#include "gallery/ThumbnailStore.h"
#include "platform/widgets/ThemedIcon.h"

#include <QPainter>

#include <algorithm>

namespace {

// Logical pixels.
constexpr int margin = 6; // around the square
constexpr int captionGap = 4;
constexpr int cornerRadius = 5;
constexpr int markSide = 20;
constexpr int markGap = 3;
constexpr int markIconSide = 14;
constexpr int signSide = 32; // in the middle of a square without a picture

// Marks lie on pictures of any colour.
const QColor markGround(0, 0, 0, 176);
const QColor markInk(Qt::white);

QPalette::ColorGroup GroupOf(const QStyleOptionViewItem& option)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

QColor Between(const QColor& one, const QColor& other, double share)
{
    const auto mixed = [share](int a, int b) { return int(a + (b - a) * share); };
    return {mixed(one.red(), other.red()), mixed(one.green(), other.green()),
            mixed(one.blue(), other.blue())};
}

} // namespace

SheetDelegate::SheetDelegate(const SheetModel& model, const ThumbnailStore& thumbnails,
                             QObject* parent)
    : QStyledItemDelegate(parent), model_(model), thumbnails_(thumbnails)
{
}

QSize SheetDelegate::SizeWith(const QFontMetrics& metrics) const
{
    return {side_ + 2 * margin, side_ + 2 * margin + captionGap + metrics.height()};
}

QSize SheetDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return SizeWith(option.fontMetrics);
}

void SheetDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    PaintGround(*painter, option);
    QRect square(0, 0, side_, side_);
    square.moveCenter(option.rect.center());
    square.moveTop(option.rect.top() + margin);
    const QRect thumbnail =
        PaintThumbnail(*painter, option, square, model_.CardAt(index.row()).file);
    PaintMarks(*painter, thumbnail, index.row());
    const int captionTop = square.bottom() + 1 + captionGap;
    PaintCaption(*painter, option,
                 QRect(option.rect.left() + margin, captionTop, option.rect.width() - 2 * margin,
                       option.fontMetrics.height()),
                 index.row());
    painter->restore();
}

// A selected picture lies on a ground of the palette's colour. The frame of the current one has the
// text's colour, so that it shows on that ground too.
void SheetDelegate::PaintGround(QPainter& painter, const QStyleOptionViewItem& option) const
{
    const QPalette::ColorGroup group = GroupOf(option);
    const QRectF ground = QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
    if (option.state.testFlag(QStyle::State_Selected)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(option.palette.brush(group, QPalette::Highlight));
        painter.drawRoundedRect(ground, cornerRadius, cornerRadius);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setPen(QPen(option.palette.color(group, QPalette::Text), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(ground, cornerRadius, cornerRadius);
    }
}

// Returns where the thumbnail is, or what stands for it.
QRect SheetDelegate::PaintThumbnail(QPainter& painter, const QStyleOptionViewItem& option,
                                    const QRect& square, const QString& file) const
{
    using State = ThumbnailStore::State;
    const double pixelRatio = painter.device()->devicePixelRatioF();
    const QImage image = thumbnails_.Find(file);
    const State state = thumbnails_.StateOf(file);
    if (image.isNull()) {
        const QColor ink = option.palette.color(QPalette::Text);
        const QColor base = option.palette.color(QPalette::Base);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Between(base, ink, 0.12));
        const QRect place = square.marginsRemoved({0, side_ / 8, 0, side_ / 8});
        painter.drawRect(place);
        if (state == State::Missing || state == State::Unreadable) {
            QRect sign(0, 0, signSide, signSide);
            sign.moveCenter(place.center());
            painter.drawPixmap(sign, Icon(QStringLiteral("broken-picture"), signSide, pixelRatio,
                                          Between(base, ink, 0.6)));
        }
        return place;
    }
    QSizeF size = QSizeF(image.size()) / pixelRatio;
    if (state == State::Blurred) // an embedded one is smaller
        size.scale(square.size(), Qt::KeepAspectRatio);
    QRectF place({}, size.boundedTo(square.size()));
    place.moveCenter(QRectF(square).center());
    place.moveTopLeft(place.topLeft().toPoint()); // pixel upon pixel
    if (image.hasAlphaChannel())
        painter.fillRect(place, Qt::white);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, state == State::Blurred);
    painter.drawImage(place, image);
    return place.toAlignedRect();
}

void SheetDelegate::PaintMarks(QPainter& painter, const QRect& thumbnail, int row) const
{
    const SheetModel::Marks marks = model_.MarksAt(row);
    QStringList names;
    if (marks.isLinked)
        names += QStringLiteral("link");
    if (!marks.isIndexed)
        names += QStringLiteral("not-indexed");
    if (marks.isMissing)
        names += QStringLiteral("missing-file");
    QRect chip(0, 0, markSide, markSide);
    chip.moveBottomRight(thumbnail.bottomRight() - QPoint(markGap, markGap));
    for (const QString& name : names) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(markGround);
        painter.drawEllipse(chip);
        QRect icon(0, 0, markIconSide, markIconSide);
        icon.moveTopLeft(chip.topLeft() + QPoint(markGap, markGap));
        painter.drawPixmap(
            icon, Icon(name, markIconSide, painter.device()->devicePixelRatioF(), markInk));
        chip.translate(-markSide - markGap, 0);
    }
}

void SheetDelegate::PaintCaption(QPainter& painter, const QStyleOptionViewItem& option,
                                 const QRect& rect, int row) const
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    painter.setPen(option.palette.color(GroupOf(option),
                                        isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter.setFont(option.font);
    const QString caption =
        option.fontMetrics.elidedText(model_.CaptionAt(row), Qt::ElideRight, rect.width());
    painter.drawText(rect, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine, caption);
}

QPixmap SheetDelegate::Icon(const QString& name, int side, double pixelRatio,
                            const QColor& ink) const
{
    const QString key = name + QString::number(side * pixelRatio) + ink.name();
    QPixmap& icon = icons_[key];
    if (icon.isNull()) {
        icon = QPixmap(QSize(side, side) * pixelRatio);
        icon.setDevicePixelRatio(pixelRatio);
        icon.fill(Qt::transparent);
        QPainter painter(&icon);
        painter.setRenderHint(QPainter::Antialiasing);
        DrawIcon(painter, name, {0, 0, side, side}, ink);
    }
    return icon;
}
