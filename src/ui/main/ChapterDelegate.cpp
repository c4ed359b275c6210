// SPDX-License-Identifier: MIT
#include "ui/main/ChapterDelegate.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int gap = 12; // logical pixels between the name and the note, and after the note

QColor InkFor(const QStyleOptionViewItem& option)
{
    const bool isSelected = option.state & QStyle::State_Selected;
    const bool isActive = option.state & QStyle::State_Active;
    QColor ink = option.palette.color(isActive ? QPalette::Active : QPalette::Inactive,
                                      isSelected ? QPalette::HighlightedText : QPalette::Text);
    ink.setAlphaF(isSelected ? 0.85F : 0.65F);
    return ink;
}

} // namespace

void ChapterDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    const QString note = index.data(Qt::AccessibleDescriptionRole).toString();
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const QFont font = shown.font;
    QFont small = font;
    small.setPointSizeF(font.pointSizeF() * 0.85);
    const int noteWidth = note.isEmpty() ? 0 : QFontMetrics(small).horizontalAdvance(note) + gap;
    const QRect room = shown.rect.adjusted(0, 0, -noteWidth - gap, 0);
    shown.text = shown.fontMetrics.elidedText(shown.text, Qt::ElideRight, room.width());
    const QStyle* style = shown.widget ? shown.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &shown, painter, shown.widget);

    painter->save();
    painter->setFont(small);
    painter->setPen(InkFor(shown));
    const QRect place =
        QStyle::visualRect(shown.direction, shown.rect, shown.rect.adjusted(gap, 0, -gap, 0));
    painter->drawText(place,
                      int(QStyle::visualAlignment(shown.direction, Qt::AlignRight)) |
                          Qt::AlignVCenter | Qt::TextSingleLine,
                      note);
    painter->restore();
}

QSize ChapterDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return {1, QStyledItemDelegate::sizeHint(option, index).height()};
}
