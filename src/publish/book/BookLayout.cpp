// SPDX-License-Identifier: MIT
#include "publish/book/BookLayout.h"

#include "publish/book/BookContents.h"
#include "publish/book/BookFlow.h"
#include "publish/book/BookScreen.h"

#include <QCoreApplication>

namespace {

struct LayoutTexts
{
    Q_DECLARE_TR_FUNCTIONS(BookLayout)
};

constexpr qreal bookParagraphGap = 22; // where a paragraph has pictures
constexpr qreal bookTextGap = 9;       // between texts
constexpr qreal underPicturesGap = 12;
constexpr qreal headingGap = 20;
constexpr QSizeF titleRule(48, 0.8);

// The share of their size at which pictures would rather stand on a page that has begun, or two
// paragraphs on one page, than on a page of their own.
constexpr qreal sharedPageWorth = 0.65;
constexpr qreal halfPageWorth = 0.6;
constexpr qreal underHeadingWorth = 0.2;

// At most on one page.
int MostOfScreen(QSizeF paper)
{
    constexpr int ofPortrait = 8;
    constexpr int ofLandscape = 6;
    return paper.width() > paper.height() ? ofLandscape : ofPortrait;
}

class Layout
{
public:
    Layout(const PublishedStory& story, QSizeF paper, BookPictures& pictures,
           const BookPageSink& sink, BookProgress& progress)
        : story_(story),
          paper_(paper),
          pictures_(pictures),
          sink_(sink),
          progress_(progress),
          contents_(story, paper, progress),
          flow_(paper, story.language, 1, [this](const BookPage& page) { Give(page); })
    {
    }

    LaidOutBook Run()
    {
        LayTitlePage();
        for (const PublishedChapter& chapter : story_.chapters)
            LayChapter(chapter);
        flow_.End();
        std::vector<int> numbers;
        for (const BookPlace& place : book_.chapters)
            numbers.push_back(place.page + 1);
        contents_.Give(numbers, sink_);
        book_.contentsPages = contents_.CountPages();
        return std::move(book_);
    }

private:
    void Give(const BookPage& page)
    {
        for (const BookPage::Picture& each : page.pictures)
            pictures_.Show(each.picture, each.place.size());
        progress_.Check();
        sink_(page);
    }

    std::shared_ptr<const BookText> MakeText(const QString& text, BookFont font,
                                             Qt::Alignment alignment = Qt::AlignLeft) const
    {
        return std::make_shared<BookText>(text, font, flow_.TextWidth(), alignment);
    }

    void LayTitlePage()
    {
        flow_.BeginPage(false);
        flow_.KeepAtTop();
        const QRectF area = flow_.GetArea();
        const auto title = MakeText(story_.title, BookFont::Cover, Qt::AlignHCenter);
        constexpr qreal pictureShare = 0.58;
        constexpr qreal bareShare = 0.36;
        constexpr qreal pictureGap = 30;
        const QRectF place(area.topLeft(), QSizeF(area.width(), area.height() * pictureShare));
        if (LayCoverPicture(place))
            flow_.Skip(place.height() + pictureGap);
        else
            flow_.Skip(area.height() * bareShare);
        flow_.AddColumn(title);
        AddRule(Qt::AlignHCenter, pictureGap / 2);
        if (story_.chapters.empty()) {
            flow_.Skip(headingGap);
            flow_.AddColumn(MakeText(LayoutTexts::tr("This story has no chapters."), BookFont::Body,
                                     Qt::AlignHCenter));
        }
        // The table of contents comes here; no page of it is laid out by this flow.
        flow_.End();
        flow_.PassPages(contents_.CountPages());
    }

    static bool IsFitForCover(const BookPicture& picture)
    {
        constexpr int leastWidth = 600;
        constexpr qreal narrowest = 0.6;
        constexpr qreal widest = 2.2;
        const qreal ratio = qreal(picture.size.width()) / std::max(picture.size.height(), 1);
        return picture.IsGood() && picture.size.width() >= leastWidth && ratio >= narrowest &&
               ratio <= widest;
    }

    // The first one that is large enough.
    bool LayCoverPicture(const QRectF& place)
    {
        for (const PublishedChapter& chapter : story_.chapters) {
            for (const PublishedParagraph& paragraph : chapter.paragraphs) {
                for (const PublishedPicture& picture : paragraph.pictures) {
                    progress_.Check();
                    const int number = pictures_.Find(picture);
                    if (!IsFitForCover(pictures_.At(number)))
                        continue;
                    QRectF fitted(QPointF(0, 0), QSizeF(pictures_.At(number).size)
                                                     .scaled(place.size(), Qt::KeepAspectRatio));
                    fitted.moveCenter(place.center());
                    flow_.Page().pictures.push_back({number, fitted});
                    return true;
                }
            }
        }
        return false;
    }

    void AddRule(Qt::Alignment alignment, qreal gap)
    {
        if (flow_.Room() < gap + titleRule.height())
            return;
        flow_.Skip(gap);
        const QRectF& area = flow_.GetArea();
        const qreal column = area.left() + (area.width() - flow_.TextWidth()) / 2;
        const qreal spare = flow_.TextWidth() - titleRule.width();
        const qreal left = alignment == Qt::AlignHCenter ? column + spare / 2
                           : alignment == Qt::AlignRight ? column + spare
                                                         : column;
        flow_.Page().rules.emplace_back(QPointF(left, flow_.Top()), titleRule);
        flow_.Skip(titleRule.height());
    }

    void LayChapter(const PublishedChapter& chapter)
    {
        flow_.BeginPage();
        flow_.KeepAtTop();
        book_.chapters.push_back({flow_.PageNumber() - 1, flow_.Top()});
        const auto title = MakeText(chapter.title, BookFont::Heading);
        flow_.AddColumn(title);
        AddRule(title->IsRightToLeft() ? Qt::AlignRight : Qt::AlignLeft, headingGap / 2);
        flow_.Skip(headingGap);
        isUnderHeading_ = true;
        for (const PublishedParagraph& paragraph : chapter.paragraphs) {
            progress_.Check();
            LayParagraph(paragraph);
        }
    }

    void LayParagraph(const PublishedParagraph& paragraph)
    {
        const QString text = paragraph.text.trimmed();
        if (paragraph.pictures.empty()) {
            if (!text.isEmpty())
                LayText(text);
            return;
        }
        const int count = int(paragraph.pictures.size());
        const int most = MostOfScreen(paper_);
        const int screens = (count + most - 1) / most;
        for (int screen = 0; screen < screens; ++screen) {
            const auto begin = paragraph.pictures.begin() + count * screen / screens;
            const auto end = paragraph.pictures.begin() + count * (screen + 1) / screens;
            LayScreen({begin, end}, text, screen == 0);
        }
    }

    void LayText(const QString& text)
    {
        if (!flow_.IsAtTop() && !isUnderHeading_)
            flow_.Skip(std::min(gapBefore_, flow_.Room()));
        flow_.AddColumn(MakeText(text, BookFont::Body));
        isUnderHeading_ = false;
        gapBefore_ = bookTextGap;
    }

    // Pictures that share a page, and the paragraph's text where it is the first screen.
    void LayScreen(const std::vector<PublishedPicture>& pictures, const QString& text, bool hasText)
    {
        const BookScreen screen(pictures, text, pictures_, flow_.GetArea().width(), progress_);
        const auto below = hasText && !text.isEmpty() ? MakeText(text, BookFont::Body) : nullptr;
        // What of the text must stand under the pictures.
        constexpr qreal mostTextShare = 0.4;
        const qreal full = flow_.GetArea().height();
        const qreal kept =
            below ? std::min(below->Height(), full * mostTextShare) + underPicturesGap : 0;
        const BookRows rows = RowsForPage(screen, full, kept);
        screen.Put(flow_, rows);
        if (below) {
            flow_.Skip(underPicturesGap);
            flow_.AddColumn(below);
        }
        isUnderHeading_ = false;
        gapBefore_ = bookParagraphGap;
    }

    // Begins a page where the pictures are better there.
    BookRows RowsForPage(const BookScreen& screen, qreal full, qreal kept)
    {
        BookRows wanted = screen.Arrange(full - kept);
        const qreal half = (full - bookParagraphGap) / 2 - kept;
        if (half > 0) {
            BookRows ofHalf = screen.Arrange(half);
            if (ofHalf.area >= halfPageWorth * wanted.area)
                wanted = std::move(ofHalf);
        }
        if (!flow_.IsAtTop()) {
            const qreal gap = isUnderHeading_ ? 0 : bookParagraphGap;
            const qreal worth = isUnderHeading_ ? underHeadingWorth : sharedPageWorth;
            const qreal room = flow_.Room() - gap - kept;
            if (wanted.height <= room) {
                flow_.Skip(gap);
                return wanted;
            }
            if (room > 0) {
                BookRows smaller = screen.Arrange(room);
                if (smaller.area >= worth * wanted.area) {
                    flow_.Skip(gap);
                    return smaller;
                }
            }
            flow_.BeginPage();
        }
        return wanted;
    }

    const PublishedStory& story_;
    QSizeF paper_;
    BookPictures& pictures_;
    const BookPageSink& sink_;
    BookProgress& progress_;
    BookContents contents_;
    BookFlow flow_;
    LaidOutBook book_;
    bool isUnderHeading_ = false;
    qreal gapBefore_ = 0; // a text that follows
};

} // namespace

LaidOutBook LayOutBook(const PublishedStory& story, QSizeF paper, BookPictures& pictures,
                       const BookPageSink& sink, BookProgress& progress)
{
    return Layout(story, paper, pictures, sink, progress).Run();
}
