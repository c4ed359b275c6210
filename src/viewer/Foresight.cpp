// SPDX-License-Identifier: MIT
#include "viewer/Foresight.h"

#include "core/LocalCopy.h"
#include "viewer/StorySurface.h"
#include "viewer/ViewerFlags.h"

#include <algorithm>
#include <utility>

StoryStep TakeStep(StoryWay way, StoryPosition& position)
{
    switch (way) {
    case StoryWay::NextParagraph:
        return StepToNextParagraph(position);
    case StoryWay::PreviousParagraph:
        return StepToPreviousParagraph(position);
    case StoryWay::NextChapter:
        return StepToNextChapter(position);
    case StoryWay::TopOfChapter:
        return StepToTopOfChapter(position);
    }
    return StoryStep::Nothing;
}

void Foresight::Step(Outlook& outlook, StoryWay way)
{
    outlook.pictures.clear();
    outlook.step = TakeStep(way, outlook.position);
    const bool isPage = outlook.step == StoryStep::Paragraph || outlook.step == StoryStep::Chapter;
    const std::optional<PageText> page = isPage ? TextAt(outlook.position) : std::nullopt;
    if (!page)
        return;
    outlook.page = *page;
    outlook.list = found_.Find(outlook.position, [](int) {}).list;
    outlook.list.Shuffle(std::uint32_t(outlook.seeds()));
    Fill(outlook);
}

void Foresight::Move(Outlook& outlook, StoryMove move)
{
    switch (move) {
    case StoryMove::NextParagraph:
        return Step(outlook, StoryWay::NextParagraph);
    case StoryMove::PreviousParagraph:
        return Step(outlook, StoryWay::PreviousParagraph);
    case StoryMove::NextPictures:
        if (outlook.list.Count() == 0)
            return Step(outlook, StoryWay::NextParagraph);
        return Fill(outlook);
    case StoryMove::ZoomOut:
        return Zoom(outlook, std::min(outlook.lines + 1, maxLines));
    case StoryMove::ZoomIn:
        return Zoom(outlook, std::max(outlook.lines - 1, 0));
    }
}

void Foresight::Fill(Outlook& outlook)
{
    const bool atRandom = outlook.position.paragraph > 0 || GeneralModule::PictureAtRandom;
    outlook.pictures =
        FillScreen(outlook.list, surface_.ShapeFor(outlook.page.arrangedFor, outlook.lines),
                   atRandom, GeneralModule::FindPictureFile);
}

void Foresight::Zoom(Outlook& outlook, int lines)
{
    const std::vector<ShownPicture> pictures = std::exchange(outlook.pictures, {});
    if (lines == outlook.lines)
        return;
    outlook.lines = lines;
    outlook.list.PutBack(FilesOf(pictures));
    Fill(outlook);
}
