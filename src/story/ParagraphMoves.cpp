// SPDX-License-Identifier: MIT
#include "story/ParagraphMoves.h"

#include "core/Album.h"
#include "core/ChapterChain.h"
#include "platform/data/WriteBatch.h"
#include "story/ParagraphMarkers.h"

#include <QCoreApplication>

using GeneralModule::AlbumDatabase;
using GeneralModule::ChapterSet;
using GeneralModule::FindById;
using GeneralModule::ParagraphSet;

namespace {

constexpr int longestLine = 1000; // characters; no screen shows more of a line

// The paragraph that another one leads to, 0 for none. One that leads to itself leads nowhere.
qint32 LinkOf(qint32 paragraph, QStringView field)
{
    if (paragraph <= 0 || !FindById(*ParagraphSet, paragraph))
        return 0;
    const qint32 reached = FollowParagraphLink(field);
    return reached == paragraph ? 0 : reached;
}

qint32 PreviousOf(qint32 paragraph)
{
    return LinkOf(paragraph, u"PreviousParagraph");
}

qint32 NextOf(qint32 paragraph)
{
    return LinkOf(paragraph, u"NextParagraph");
}

void SetLinks(qint32 paragraph, qint32 previous, qint32 next)
{
    SetParagraphLink(paragraph, u"PreviousParagraph", previous);
    SetParagraphLink(paragraph, u"NextParagraph", next);
}

// Whatever led to the paragraph from before: the one before it, or the chapter.
void SetWayTo(const ParagraphPlace& place, qint32 previous, qint32 paragraph)
{
    if (previous > 0)
        SetParagraphLink(previous, u"NextParagraph", paragraph);
    else
        SetFirstParagraph(place.chapter, paragraph);
}

// Exchanges two neighbours, the upper one of which follows previous.
void Exchange(const ParagraphPlace& place, qint32 upper, qint32 lower)
{
    WriteBatch batch(AlbumDatabase);
    const qint32 previous = PreviousOf(upper);
    const qint32 next = NextOf(lower);
    SetLinks(lower, previous, upper);
    SetLinks(upper, lower, next);
    SetParagraphLink(next, u"PreviousParagraph", upper);
    SetWayTo(place, previous, lower);
    batch.Finish();
}

qint32 FirstParagraphOf(qint32 chapter)
{
    if (!FindById(*ChapterSet, chapter) || ChapterSet->IsNull(u"FirstParagraph"))
        return 0;
    const qint32 first = ChapterSet->Number(u"FirstParagraph");
    return first > 0 && FindById(*ParagraphSet, first) ? first : 0;
}

// The chapter's last paragraph, 0 for none; in a broken album whose chapter leads to the given
// paragraph already, the one before it.
qint32 LastParagraphBefore(qint32 paragraph, qint32 chapter)
{
    qint32 last = 0;
    for (const qint32 visited : WalkParagraphs(FirstParagraphOf(chapter), u"NextParagraph")) {
        if (visited == paragraph)
            break;
        last = visited;
    }
    return last;
}

void SetPlace(const ParagraphPlace& place, qint32 previous, qint32 next)
{
    SetLinks(place.paragraph, previous, next);
    SetParagraphLink(place.paragraph, u"Chapter", place.chapter);
}

bool MoveToNextChapter(ParagraphPlace& place)
{
    const qint32 nextChapter = NextChapterOf(place.chapter);
    if (nextChapter == 0)
        return false;
    WriteBatch batch(AlbumDatabase);
    const qint32 previous = PreviousOf(place.paragraph);
    const qint32 stored = FirstParagraphOf(nextChapter);
    const qint32 first = stored == place.paragraph ? 0 : stored;
    SetParagraphLink(first, u"PreviousParagraph", place.paragraph);
    SetFirstParagraph(nextChapter, place.paragraph);
    SetWayTo(place, previous, 0);
    place.chapter = nextChapter;
    SetPlace(place, 0, first);
    batch.Finish();
    return true;
}

bool MoveToPreviousChapter(ParagraphPlace& place)
{
    const qint32 previousChapter = PreviousChapterOf(place.chapter);
    if (previousChapter == 0)
        return false;
    WriteBatch batch(AlbumDatabase);
    const qint32 next = NextOf(place.paragraph);
    const qint32 last = LastParagraphBefore(place.paragraph, previousChapter);
    SetFirstParagraph(place.chapter, next);
    SetParagraphLink(next, u"PreviousParagraph", 0);
    place.chapter = previousChapter;
    SetWayTo(place, last, place.paragraph);
    SetPlace(place, last, 0);
    batch.Finish();
    return true;
}

} // namespace

bool MoveParagraphDown(ParagraphPlace& place)
{
    if (!FindById(*ParagraphSet, place.paragraph))
        return false;
    const qint32 next = NextOf(place.paragraph);
    if (next == 0)
        return MoveToNextChapter(place);
    Exchange(place, place.paragraph, next);
    return true;
}

bool MoveParagraphUp(ParagraphPlace& place)
{
    if (!FindById(*ParagraphSet, place.paragraph))
        return false;
    const qint32 previous = PreviousOf(place.paragraph);
    if (previous == 0)
        return MoveToPreviousChapter(place);
    Exchange(place, previous, place.paragraph);
    return true;
}

std::vector<ParagraphLine> ListParagraphs(qint32 chapter)
{
    const std::vector<TextMarker> markers = ReadTextMarkers();
    std::vector<ParagraphLine> lines;
    for (const qint32 paragraph : WalkParagraphs(FirstParagraphOf(chapter), u"NextParagraph")) {
        FindById(*ParagraphSet, paragraph);
        QString text = ParagraphSet->TextOrEmpty(u"Text");
        text = text.isEmpty() ? QCoreApplication::translate("ParagraphMoves", "<<Empty Paragraph>>")
                              : ToDisplayMarkers(text, markers);
        text.truncate(longestLine);
        lines.push_back({paragraph, text.replace(u'\r', u' ').replace(u'\n', u' ')});
    }
    return lines;
}

QString ChapterNameOf(qint32 chapter)
{
    return GeneralModule::ChapterTitle(chapter);
}

qint32 PreviousChapterOf(qint32 chapter)
{
    return GeneralModule::ChapterLeadingTo(chapter);
}

qint32 NextChapterOf(qint32 chapter)
{
    if (!FindById(*ChapterSet, chapter) || ChapterSet->IsNull(u"NextChapter"))
        return 0;
    const qint32 next = ChapterSet->Number(u"NextChapter");
    return next > 0 && next != chapter && FindById(*ChapterSet, next) ? next : 0;
}
