// SPDX-License-Identifier: MIT
#include "publish/book/BookScreen.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace {

struct ScreenTexts
{
    Q_DECLARE_TR_FUNCTIONS(BookScreen)
};

constexpr qreal pictureGap = 8;
constexpr qreal legendGap = 3;
constexpr int mostLegendLines = 2;
constexpr qreal legendRoom = 26; // for these, with the gap
constexpr QSizeF placeholderSize(300, 200);
constexpr qreal placeholderPadding = 6;
constexpr qreal narrowestLegend = 40;
constexpr qsizetype longestLegend = 400; // letters; more never have room

} // namespace

BookScreen::BookScreen(const std::vector<PublishedPicture>& shown, const QString& text,
                       BookPictures& pictures, qreal width, BookProgress& progress)
    : width_(width)
{
    for (const PublishedPicture& each : shown) {
        progress.Check();
        const int number = pictures.Use(each);
        const BookPicture& picture = pictures.At(number);
        const QString legend = each.legend.trimmed();
        const bool isLeftOut = legend == text || legend.size() > longestLegend;
        shown_.push_back({number, picture.state, each.file, isLeftOut ? QString() : legend});
        hasLegends_ = hasLegends_ || !shown_.back().legend.isEmpty();
        // No picture is shown with fewer than 72 pixels in an inch.
        natural_.push_back(picture.IsGood() ? QSizeF(picture.size) : placeholderSize);
    }
}

BookRows BookScreen::Arrange(qreal height) const
{
    BookRows rows =
        ArrangeRows(natural_, {width_, height}, pictureGap, hasLegends_ ? legendRoom : 0);
    if (!hasLegends_)
        return rows;
    // Rows whose legends take less move up.
    qreal spare = 0;
    for (std::size_t begin = 0; begin < rows.places.size();) {
        std::size_t end = begin;
        qreal taken = 0;
        for (; end < rows.places.size() && rows.rows[end] == rows.rows[begin]; ++end) {
            rows.places[end].translate(0, -spare);
            if (const auto legend = LegendOf(rows, end))
                taken = std::max(taken, legend->Height() + legendGap);
        }
        spare += legendRoom - std::min(taken, legendRoom);
        begin = end;
    }
    rows.height -= spare;
    return rows;
}

// Null when there is none or no room for it. A picture that is alone in its row has all its width.
std::shared_ptr<const BookText> BookScreen::LegendOf(const BookRows& rows,
                                                     std::size_t picture) const
{
    const QString& legend = shown_[picture].legend;
    if (legend.isEmpty())
        return nullptr;
    const bool isAlone = std::count(rows.rows.begin(), rows.rows.end(), rows.rows[picture]) == 1;
    const qreal width = isAlone ? width_ : rows.places[picture].width();
    if (width < narrowestLegend)
        return nullptr;
    auto text = std::make_shared<BookText>(legend, BookFont::Legend, width,
                                           isAlone ? Qt::AlignHCenter : Qt::AlignLeft);
    const bool fits =
        text->CountLines() <= mostLegendLines && text->Height() + legendGap <= legendRoom;
    return fits ? text : nullptr;
}

void BookScreen::Put(BookFlow& flow, const BookRows& rows) const
{
    const QPointF corner(flow.GetArea().left(), flow.Top());
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const QRectF place = rows.places[i].translated(corner);
        if (shown_[i].state == BookPictureState::Good)
            flow.Page().pictures.push_back({shown_[i].picture, place});
        else
            PutPlaceholder(flow, shown_[i], place);
        if (const auto legend = LegendOf(rows, i)) {
            const bool isAlone = std::count(rows.rows.begin(), rows.rows.end(), rows.rows[i]) == 1;
            flow.PutText(legend, {isAlone ? corner.x() : place.left(), place.bottom() + legendGap});
        }
    }
    flow.Skip(rows.height);
}

// A frame that says what is wrong, and with what, so far as there is room.
void BookScreen::PutPlaceholder(BookFlow& flow, const Shown& shown, const QRectF& place) const
{
    flow.Page().placeholders.push_back(place);
    const QRectF inner = place.adjusted(placeholderPadding, placeholderPadding, -placeholderPadding,
                                        -placeholderPadding);
    if (inner.width() < narrowestLegend)
        return;
    const QString why = shown.state == BookPictureState::Missing
                            ? ScreenTexts::tr("This picture is missing.")
                            : ScreenTexts::tr("This picture cannot be read.");
    for (const QString& text : {why + u'\n' + QFileInfo(shown.file).fileName(), why}) {
        const auto label =
            std::make_shared<BookText>(text, BookFont::Legend, inner.width(), Qt::AlignHCenter);
        if (label->Height() > inner.height())
            continue;
        flow.PutText(label, {inner.left(), inner.center().y() - label->Height() / 2});
        return;
    }
}
