// SPDX-License-Identifier: MIT
#include "story/ParagraphMoves.h"

#include "core/AlbumChains.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/UndoSteps.h"
#include "platform/data/WriteBatch.h"
#include "story/ParagraphMarkers.h"

#include <QCoreApplication>

#include <cstdlib>

using namespace GeneralModule;

namespace {

constexpr int longestLine = 1000; // characters; no screen shows more of a line

bool IsDown(ChainDirection direction)
{
    return direction == ChainDirection::Next;
}

// Makes the previous paragraph, or the chapter if there is none, lead to the paragraph.
void SetWayTo(const ParagraphPlace& place, qint32 previous, qint32 paragraph)
{
    if (previous > 0)
        ChainOfParagraphs().LeadTo(previous, paragraph);
    else
        SetFirstParagraph(place.chapter, paragraph);
}

// Exchanges two neighbours.
void Exchange(const ParagraphPlace& place, qint32 upper, qint32 lower)
{
    const Chain chain = ChainOfParagraphs();
    WriteBatch batch(AlbumDatabase);
    const qint32 previous = chain.Previous(upper);
    chain.Exchange(previous, upper, lower);
    if (previous == 0)
        SetFirstParagraph(place.chapter, lower);
    batch.Finish();
}

// The neighbours in a chapter of a paragraph that comes from a neighbouring chapter.
struct Gap
{
    qint32 previous = 0;
    qint32 next = 0;
};

// At the chapter's beginning or end. In a damaged album the chapter may already lead to the
// paragraph.
Gap GapIn(qint32 chapter, qint32 paragraph, ChainDirection direction)
{
    const qint32 first = FirstParagraphOf(chapter);
    if (IsDown(direction))
        return {0, first == paragraph ? 0 : first};
    return {ChainOfParagraphs().FindWay(first, paragraph).last, 0};
}

bool MoveToChapter(ParagraphPlace& place, ChainDirection direction)
{
    const qint32 chapter =
        IsDown(direction) ? NextChapter(place.chapter) : ChapterLeadingTo(place.chapter);
    if (chapter == 0)
        return false;
    const Chain chain = ChainOfParagraphs();
    WriteBatch batch(AlbumDatabase);
    const qint32 previous = IsDown(direction) ? chain.Previous(place.paragraph) : 0;
    const qint32 next = IsDown(direction) ? 0 : chain.Next(place.paragraph);
    const Gap gap = GapIn(chapter, place.paragraph, direction);
    SetWayTo(place, previous, next);
    chain.LeadBackTo(next, previous);
    place.chapter = chapter;
    SetWayTo(place, gap.previous, place.paragraph);
    chain.LeadBackTo(gap.next, place.paragraph);
    chain.SetLinks(place.paragraph, gap.previous, gap.next);
    SetLink(*ParagraphSet, place.paragraph, u"Chapter", place.chapter);
    batch.Finish();
    return true;
}

bool MoveParagraph(ParagraphPlace& place, ChainDirection direction)
{
    const UndoStep step(UndoStep::tr("Move Paragraph"));
    const Chain chain = ChainOfParagraphs();
    if (chain.Find(place.paragraph) == 0)
        return false;
    const qint32 neighbour = chain.Neighbour(place.paragraph, direction);
    if (neighbour == 0)
        return MoveToChapter(place, direction);
    if (IsDown(direction))
        Exchange(place, place.paragraph, neighbour);
    else
        Exchange(place, neighbour, place.paragraph);
    return true;
}

} // namespace

bool MoveParagraphDown(ParagraphPlace& place)
{
    return MoveParagraph(place, ChainDirection::Next);
}

bool MoveParagraphUp(ParagraphPlace& place)
{
    return MoveParagraph(place, ChainDirection::Previous);
}

bool MoveParagraphBy(ParagraphPlace& place, int rows)
{
    const ChainDirection direction = rows > 0 ? ChainDirection::Next : ChainDirection::Previous;
    ParagraphPlace moved = place;
    const UndoStep step(UndoStep::tr("Move Paragraph"));
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    int done = 0;
    while (done < std::abs(rows) && MoveParagraph(moved, direction))
        ++done;
    batch.Finish();
    place = moved;
    return done > 0;
}

std::vector<ParagraphLine> ListParagraphs(qint32 chapter)
{
    const std::vector<TextMarker> markers = ReadTextMarkers();
    std::vector<ParagraphLine> lines;
    const qint32 first = FirstParagraphOf(chapter);
    ChainOfParagraphs().Walk(first, ChainDirection::Next, [&](qint32 paragraph) {
        QString text = ParagraphSet->TextOrEmpty(u"Text");
        text = text.isEmpty() ? QCoreApplication::translate("ParagraphMoves", "<<Empty Paragraph>>")
                              : ToDisplayMarkers(text, markers);
        text.truncate(longestLine);
        lines.push_back({paragraph, text.replace(u'\r', u' ').replace(u'\n', u' ')});
        return true;
    });
    return lines;
}
