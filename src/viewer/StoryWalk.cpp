// SPDX-License-Identifier: MIT
#include "viewer/StoryWalk.h"

#include "core/Album.h"

#include <QSet>

using GeneralModule::ChapterSet;
using GeneralModule::FindById;
using GeneralModule::ParagraphSet;

namespace {

// The identifier in that field of the current row, 0 unless it names a row; the set then stands on
// that row.
qint32 FollowLink(RecordSet& set, QStringView field)
{
    const qint32 id = set.IsNull(field) ? 0 : set.Number(field);
    return id > 0 && FindById(set, id) ? id : 0;
}

bool FindPosition(const StoryPosition& position)
{
    return position.paragraph > 0 && FindById(*ParagraphSet, position.paragraph);
}

// Positions ChapterSet on the chapter that the paragraph says it belongs to, which is the one the
// links of the story go on from, else on the position's own.
bool FindChapterOf(const StoryPosition& position)
{
    const qint32 owner = FindPosition(position) ? ParagraphSet->Number(u"Chapter") : 0;
    return (owner > 0 && FindById(*ChapterSet, owner)) || FindById(*ChapterSet, position.chapter);
}

// First paragraph of the chapter on which ChapterSet stands, 0 when it has none.
qint32 FirstParagraphHere()
{
    const qint32 first = ChapterSet->Number(u"FirstParagraph");
    return first > 0 && FindById(*ParagraphSet, first) ? first : 0;
}

// The last paragraph that links in that field lead to from the given one.
qint32 FollowToEnd(qint32 paragraph, QStringView field)
{
    QSet<qint32> visited;
    FindById(*ParagraphSet, paragraph);
    for (qint32 next = paragraph; next > 0 && !visited.contains(next);
         next = FollowLink(*ParagraphSet, field)) {
        visited.insert(next);
        paragraph = next;
    }
    FindById(*ParagraphSet, paragraph);
    return paragraph;
}

// The chapter behind the one on which ChapterSet stands; behind the last one the first.
bool FindFollowingChapter()
{
    if (FollowLink(*ChapterSet, u"NextChapter") > 0)
        return true;
    ChapterSet->FindFirst(QStringLiteral("[PreviousChapter]=0"));
    return !ChapterSet->NoMatch();
}

} // namespace

void GoToFirstParagraph(StoryPosition& position)
{
    position.paragraph = FindById(*ChapterSet, position.chapter) ? FirstParagraphHere() : 0;
}

StoryStep StepToNextParagraph(StoryPosition& position)
{
    if (position.paragraph > 0) {
        if (!FindPosition(position))
            return StoryStep::Nothing;
        if (const qint32 next = FollowLink(*ParagraphSet, u"NextParagraph"); next > 0) {
            position.paragraph = next;
            return StoryStep::Paragraph;
        }
    }
    if (!FindChapterOf(position))
        return position.paragraph > 0 ? StoryStep::Close : StoryStep::Nothing;
    QSet<qint32> visited;
    while (FindFollowingChapter()) {
        const qint32 chapter = ChapterSet->Number(u"Id");
        if (visited.contains(chapter))
            return StoryStep::Nothing; // only chapters without paragraphs lie ahead
        visited.insert(chapter);
        if (const qint32 first = FirstParagraphHere(); first > 0) {
            position = {chapter, first};
            return StoryStep::Chapter;
        }
    }
    return StoryStep::Close;
}

StoryStep StepToPreviousParagraph(StoryPosition& position)
{
    const bool isEmpty = position.paragraph == 0;
    if (!isEmpty) {
        if (!FindPosition(position))
            return StoryStep::Nothing;
        if (const qint32 previous = FollowLink(*ParagraphSet, u"PreviousParagraph"); previous > 0) {
            position.paragraph = previous;
            return StoryStep::Paragraph;
        }
    }
    if (!FindChapterOf(position))
        return isEmpty ? StoryStep::Nothing : StoryStep::Paragraph;
    const qint32 previousChapter = FollowLink(*ChapterSet, u"PreviousChapter");
    const qint32 first = FirstParagraphHere();
    if (previousChapter == 0 && isEmpty)
        return StoryStep::Nothing;
    if (previousChapter == 0) {
        position.paragraph = first > 0 ? first : position.paragraph;
        return StoryStep::Paragraph;
    }
    if (first == 0) {
        position = {previousChapter, 0};
        return StoryStep::Chapter;
    }
    position = {previousChapter, FollowToEnd(first, u"NextParagraph")};
    return StoryStep::Paragraph;
}

StoryStep StepToNextChapter(StoryPosition& position)
{
    if (!FindChapterOf(position))
        return StoryStep::Nothing;
    if (const qint32 next = FollowLink(*ChapterSet, u"NextChapter"); next > 0) {
        position = {next, FirstParagraphHere()};
        return StoryStep::Chapter;
    }
    if (!FindPosition(position))
        return StoryStep::Nothing;
    position.paragraph = FollowToEnd(position.paragraph, u"NextParagraph");
    return StoryStep::Paragraph;
}

StoryStep StepToTopOfChapter(StoryPosition& position)
{
    if (FindPosition(position) && FollowLink(*ParagraphSet, u"PreviousParagraph") > 0) {
        position.paragraph = FollowToEnd(position.paragraph, u"PreviousParagraph");
        return StoryStep::Paragraph;
    }
    if (!FindChapterOf(position))
        return StoryStep::Nothing;
    const qint32 previous = FollowLink(*ChapterSet, u"PreviousChapter");
    if (previous == 0)
        return StoryStep::Nothing;
    position = {previous, FirstParagraphHere()};
    return StoryStep::Chapter;
}
