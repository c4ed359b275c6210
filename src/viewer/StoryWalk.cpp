// SPDX-License-Identifier: MIT
#include "viewer/StoryWalk.h"

#include "core/AlbumChains.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"

#include <QSet>

using namespace GeneralModule;

namespace {

// The chapter that the paragraph says it belongs to, which is the one that the links of the story
// go on from, else the position's own; 0 when neither is there.
qint32 ChapterOf(const StoryPosition& position)
{
    const Chain chapters = ChainOfChapters();
    const bool isThere = ChainOfParagraphs().Find(position.paragraph) != 0;
    const qint32 owner = isThere ? chapters.Find(LinkIn(*ParagraphSet, u"Chapter")) : 0;
    return owner != 0 ? owner : chapters.Find(position.chapter);
}

// After the last chapter comes the first one.
qint32 FollowingChapter(qint32 chapter)
{
    const qint32 next = NextChapter(chapter);
    return next != 0 ? next : FirstChapter();
}

// Whether the position is an empty chapter's, or has a paragraph that is there.
bool IsSound(const StoryPosition& position)
{
    return position.paragraph == 0 || ChainOfParagraphs().Find(position.paragraph) != 0;
}

// To the first paragraph of the chapter after this one that has any.
StoryStep StepToFollowingChapter(StoryPosition& position, qint32 chapter)
{
    QSet<qint32> visited;
    for (chapter = FollowingChapter(chapter); chapter != 0; chapter = FollowingChapter(chapter)) {
        if (visited.contains(chapter))
            return StoryStep::Nothing; // only chapters without paragraphs lie ahead
        visited.insert(chapter);
        if (const qint32 first = FirstParagraphOf(chapter)) {
            position = {chapter, first};
            return StoryStep::Chapter;
        }
    }
    return StoryStep::Close;
}

} // namespace

void GoToFirstParagraph(StoryPosition& position)
{
    position.paragraph = FirstParagraphOf(position.chapter);
}

StoryStep StepToNextParagraph(StoryPosition& position)
{
    if (!IsSound(position))
        return StoryStep::Nothing;
    if (const qint32 next = ChainOfParagraphs().Next(position.paragraph)) {
        position.paragraph = next;
        return StoryStep::Paragraph;
    }
    const qint32 chapter = ChapterOf(position);
    if (chapter == 0)
        return position.paragraph > 0 ? StoryStep::Close : StoryStep::Nothing;
    return StepToFollowingChapter(position, chapter);
}

StoryStep StepToPreviousParagraph(StoryPosition& position)
{
    if (!IsSound(position))
        return StoryStep::Nothing;
    if (const qint32 previous = ChainOfParagraphs().Previous(position.paragraph)) {
        position.paragraph = previous;
        return StoryStep::Paragraph;
    }
    const bool isEmpty = position.paragraph == 0;
    const qint32 chapter = ChapterOf(position);
    if (chapter == 0)
        return isEmpty ? StoryStep::Nothing : StoryStep::Paragraph;
    const qint32 previousChapter = ChainOfChapters().Previous(chapter);
    if (previousChapter == 0) {
        if (isEmpty)
            return StoryStep::Nothing;
        const qint32 first = FirstParagraphOf(chapter);
        position.paragraph = first != 0 ? first : position.paragraph;
        return StoryStep::Paragraph;
    }
    const qint32 first = FirstParagraphOf(previousChapter);
    position = {previousChapter, ChainOfParagraphs().End(first, ChainDirection::Next)};
    return first == 0 ? StoryStep::Chapter : StoryStep::Paragraph;
}

StoryStep StepToNextChapter(StoryPosition& position)
{
    const qint32 chapter = ChapterOf(position);
    if (chapter == 0)
        return StoryStep::Nothing;
    if (const qint32 next = NextChapter(chapter)) {
        position = {next, FirstParagraphOf(next)};
        return StoryStep::Chapter;
    }
    const qint32 last = ChainOfParagraphs().End(position.paragraph, ChainDirection::Next);
    if (last == 0)
        return StoryStep::Nothing;
    position.paragraph = last;
    return StoryStep::Paragraph;
}

StoryStep StepToTopOfChapter(StoryPosition& position)
{
    const Chain paragraphs = ChainOfParagraphs();
    if (paragraphs.Previous(position.paragraph) != 0) {
        position.paragraph = paragraphs.End(position.paragraph, ChainDirection::Previous);
        return StoryStep::Paragraph;
    }
    const qint32 previous = ChainOfChapters().Previous(ChapterOf(position));
    if (previous == 0)
        return StoryStep::Nothing;
    position = {previous, FirstParagraphOf(previous)};
    return StoryStep::Chapter;
}
