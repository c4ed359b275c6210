// SPDX-License-Identifier: MIT
#include "LargeAlbum.h"
#include "Measurement.h"

#include "core/ChapterChain.h"
#include "story/ParagraphChain.h"
#include "story/ParagraphMoves.h"
#include "viewer/StoryWalk.h"

using namespace GeneralModule;

namespace {

constexpr int inLong = LargeAlbum::longChapter;

void OpenToRead(LargeAlbum& album)
{
    album.OpenToRead();
}

void OpenToChange(LargeAlbum& album)
{
    album.OpenToChange();
}

int MiddleOfLong(const LargeAlbum& album)
{
    return (LargeAlbum::FirstOfLong() + album.LastOfLong()) / 2;
}

void Require(bool isDone)
{
    if (!isDone)
        qFatal("the action did nothing");
}

ParagraphDraft NewTextFor(qint32 paragraph)
{
    const ParagraphContent shown = LoadParagraph(paragraph);
    return {shown, {shown.text + QStringLiteral(" We rowed."), shown.values}};
}

Action Stepping(const char* name, ChainStep step)
{
    return {name, OpenToChange, [step](LargeAlbum& album) {
                ParagraphPlace place{inLong, MiddleOfLong(album)};
                SaveAndStep(place, NewTextFor(place.paragraph), step);
            }};
}

Action Moving(const char* name, bool (*move)(ParagraphPlace&), ParagraphPlace (*from)(LargeAlbum&))
{
    return {name, OpenToChange, [move, from](LargeAlbum& album) {
                ParagraphPlace place = from(album);
                Require(move(place));
            }};
}

Action Reading(const char* name, StoryStep (*step)(StoryPosition&),
               StoryPosition (*from)(const LargeAlbum&))
{
    return {name, OpenToRead, [step, from](LargeAlbum& album) {
                StoryPosition position = from(album);
                Require(step(position) != StoryStep::Nothing);
            }};
}

std::vector<Action> ChapterActions()
{
    using Album = LargeAlbum;
    return {
        {"list the chapters", OpenToRead,
         [](Album& album) { Require(ChapterNames().size() == album.LastChapter()); }},
        {"create a chapter", OpenToChange,
         [](Album& album) { CreateChapter("New", Album::NameOfChapter(album.LastChapter())); }},
        {"rename a chapter", OpenToChange,
         [](Album& album) {
             Require(RenameChapter(*FindChapter(Album::NameOfChapter(album.LastChapter())), "New"));
         }},
        {"move the last chapter up", OpenToChange,
         [](Album& album) { Require(MoveChapterUp(Album::NameOfChapter(album.LastChapter()))); }},
        {"delete the last chapter", OpenToChange,
         [](Album& album) {
             const QString last = Album::NameOfChapter(album.LastChapter());
             Require(DeleteChapter(last) == ChapterDeletion::Deleted);
         }},
    };
}

std::vector<Action> ReadingActions()
{
    using Album = LargeAlbum;
    return {
        Reading("read on within the long chapter", StepToNextParagraph,
                [](const Album& album) {
                    return StoryPosition{inLong, MiddleOfLong(album)};
                }),
        Reading("read back into the long chapter", StepToPreviousParagraph,
                [](const Album& album) {
                    return StoryPosition{inLong + 1, album.LastOfLong() + 1};
                }),
        Reading("go to the top of the long chapter", StepToTopOfChapter,
                [](const Album& album) {
                    return StoryPosition{inLong, album.LastOfLong()};
                }),
        Reading("go to the chapter after the long one", StepToNextChapter,
                [](const Album& album) {
                    return StoryPosition{inLong, MiddleOfLong(album)};
                }),
    };
}

} // namespace

std::vector<Action> StoryActions()
{
    using Album = LargeAlbum;
    std::vector<Action> actions{
        Stepping("save a paragraph and go to the next", ChainStep::Next),
        Stepping("save a paragraph and go to the first", ChainStep::First),
        Stepping("save a paragraph and go to the last", ChainStep::Last),
        {"create the next paragraph", OpenToChange,
         [](Album& album) {
             ParagraphPlace place{inLong, MiddleOfLong(album)};
             CreateNextParagraph(place, NewTextFor(place.paragraph));
         }},
        {"delete a paragraph", OpenToChange,
         [](Album& album) {
             ParagraphPlace place{inLong, MiddleOfLong(album)};
             DeleteParagraph(place);
         }},
        Moving("move a paragraph within the long chapter", MoveParagraphUp,
               [](Album& album) {
                   return ParagraphPlace{inLong, MiddleOfLong(album)};
               }),
        Moving("move a paragraph down out of the long chapter", MoveParagraphDown,
               [](Album& album) {
                   return ParagraphPlace{inLong, album.LastOfLong()};
               }),
        Moving("move a paragraph up into the long chapter", MoveParagraphUp,
               [](Album& album) {
                   return ParagraphPlace{inLong + 1, album.LastOfLong() + 1};
               }),
        {"list the paragraphs of the long chapter", OpenToRead,
         [](Album& album) {
             Require(ListParagraphs(inLong).size() == std::size_t(album.CountLong()));
         }},
    };
    for (const auto& more : {ReadingActions(), ChapterActions()})
        actions.insert(actions.end(), more.begin(), more.end());
    return actions;
}
