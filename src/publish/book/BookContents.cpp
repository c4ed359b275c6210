// SPDX-License-Identifier: MIT
#include "publish/book/BookContents.h"

#include <QCoreApplication>

namespace {

struct ContentsTexts
{
    Q_DECLARE_TR_FUNCTIONS(BookContents)
};

constexpr int firstContentsPage = 2; // after the title page
constexpr qreal numberWidth = 40;
constexpr qreal entryGap = 5;
constexpr qreal contentsHeadingGap = 16;

std::shared_ptr<const BookText> MakeContentsNumber(const QString& number, bool isOnTheLeft)
{
    return std::make_shared<BookText>(number, BookFont::Body, numberWidth,
                                      isOnTheLeft ? Qt::AlignLeft : Qt::AlignRight);
}

} // namespace

BookContents::BookContents(const PublishedStory& story, QSizeF paper, BookProgress& progress)
    : language_(story.language),
      flow_(paper, story.language, firstContentsPage,
            [this](const BookPage& page) { pages_.push_back(page); })
{
    if (story.chapters.empty())
        return;
    flow_.BeginPage();
    flow_.AddColumn(std::make_shared<BookText>(ContentsTexts::tr("Contents"), BookFont::Heading,
                                               flow_.TextWidth()));
    flow_.Skip(contentsHeadingGap);
    for (std::size_t i = 0; i < story.chapters.size(); ++i) {
        progress.Check();
        AddChapter(int(i), story.chapters[i].title);
    }
    flow_.End();
}

void BookContents::AddChapter(int chapter, const QString& title)
{
    const qreal width = flow_.TextWidth() - numberWidth;
    const auto text = std::make_shared<BookText>(title, BookFont::Body, width);
    const QRectF& area = flow_.GetArea();
    if (text->Height() > flow_.Room() && text->Height() < area.height())
        flow_.BeginPage();
    const qreal left = area.left() + (area.width() - flow_.TextWidth()) / 2;
    const bool isRightToLeft = text->IsRightToLeft();
    const qreal textLeft = isRightToLeft ? left + numberWidth : left;
    const qreal numberLeft = isRightToLeft ? left : left + width;
    const qreal top = flow_.Top();
    const std::size_t page = pages_.size();
    flow_.AddText(text, textLeft);
    if (pages_.size() == page) {
        entries_.push_back({page, {numberLeft, top}, isRightToLeft});
        flow_.Page().links.push_back(
            {QRectF(left, top, flow_.TextWidth(), flow_.Top() - top), chapter});
    } else { // the link is where the title ends, on the last of its pages
        entries_.push_back({pages_.size(), {numberLeft, area.top()}, isRightToLeft});
        flow_.Page().links.push_back(
            {QRectF(left, area.top(), flow_.TextWidth(), flow_.Top() - area.top()), chapter});
    }
    flow_.Skip(entryGap);
}

void BookContents::Give(const std::vector<int>& numbers, const BookPageSink& sink)
{
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const Entry& entry = entries_[i];
        const auto number = MakeContentsNumber(language_.toString(numbers[i]), entry.isRightToLeft);
        pages_[entry.page].texts.push_back({number, entry.place, 0, number->CountLines()});
    }
    for (const BookPage& page : pages_)
        sink(page);
}
