// SPDX-License-Identifier: MIT
#include "publish/book/BookFlow.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qreal marginShare = 0.085;   // of the paper's shorter side
constexpr qreal footRoom = 4;          // between the area and the number's, besides the margin
constexpr qreal longestTextLine = 420; // about 75 letters of the body's font
constexpr int fewestLinesTogether = 2; // of a paragraph that a page's end divides

// How many of the lines from the first on go onto this page.
int LinesOfPage(const BookText& text, int first, qreal room)
{
    const int fitting = text.LinesWithin(first, room);
    const int left = text.CountLines() - first;
    if (fitting >= left)
        return left;
    const int kept = left - fitting < fewestLinesTogether ? left - fewestLinesTogether : fitting;
    return kept < fewestLinesTogether ? 0 : kept;
}

} // namespace

BookFlow::BookFlow(QSizeF paper, const QLocale& language, int firstNumber, BookPageSink sink)
    : paper_(paper), language_(language), sink_(std::move(sink)), number_(firstNumber - 1)
{
    const qreal margin = marginShare * std::min(paper.width(), paper.height());
    area_ = QRectF(QPointF(0, 0), paper).adjusted(margin, margin, -margin, -margin - footRoom);
}

void BookFlow::BeginPage(bool isNumbered)
{
    End();
    hasPage_ = true;
    isKeptAtTop_ = false;
    ++number_;
    top_ = area_.top();
    if (isNumbered)
        PutNumber();
}

void BookFlow::End()
{
    if (!std::exchange(hasPage_, false))
        return;
    if (!isKeptAtTop_ && !(page_.pictures.empty() && page_.placeholders.empty()))
        MoveToMiddle();
    sink_(std::exchange(page_, {}));
}

qreal BookFlow::TextWidth() const
{
    return std::min(area_.width(), longestTextLine);
}

void BookFlow::AddText(const std::shared_ptr<const BookText>& text, qreal left)
{
    for (int first = 0; first < text->CountLines();) {
        int count = LinesOfPage(*text, first, Room());
        if (count == 0 && !IsAtTop()) {
            BeginPage();
            continue;
        }
        count = std::max(count, 1);
        page_.texts.push_back({text, {left, top_}, first, first + count});
        top_ += text->HeightOf(first, first + count);
        first += count;
        if (first < text->CountLines()) {
            BeginPage();
            KeepAtTop();
        }
    }
}

void BookFlow::AddColumn(const std::shared_ptr<const BookText>& text)
{
    AddText(text, area_.left() + (area_.width() - TextWidth()) / 2);
}

void BookFlow::PutText(const std::shared_ptr<const BookText>& text, QPointF place)
{
    page_.texts.push_back({text, place, 0, text->CountLines()});
}

// All but the number, which stands below the area.
void BookFlow::MoveToMiddle()
{
    constexpr qreal shareAbove = 0.4; // the middle as eyes see it
    const QPointF down(0, std::max<qreal>(Room(), 0) * shareAbove);
    for (BookPage::Picture& picture : page_.pictures)
        picture.place.translate(down);
    for (QRectF& place : page_.placeholders)
        place.translate(down);
    for (BookPage::Text& text : page_.texts) {
        if (text.place.y() < area_.bottom())
            text.place += down;
    }
}

void BookFlow::PutNumber()
{
    const auto number = std::make_shared<BookText>(language_.toString(number_), BookFont::Number,
                                                   area_.width(), Qt::AlignHCenter);
    const qreal footMiddle = (area_.bottom() + footRoom + paper_.height()) / 2;
    PutText(number, {area_.left(), footMiddle - number->Height() / 2});
}
