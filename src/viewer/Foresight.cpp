// SPDX-License-Identifier: MIT
#include "viewer/Foresight.h"

#include "core/LocalCopy.h"
#include "viewer/StorySurface.h"
#include "viewer/ViewerFlags.h"

#include <algorithm>
#include <utility>

namespace {

bool IsAtRandom(const Outlook& outlook)
{
    return outlook.position.paragraph > 0 || GeneralModule::PictureAtRandom;
}

} // namespace

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

bool HasPageBefore(const StoryPosition& position)
{
    StoryPosition before = position;
    return position.chapter > 0 &&
           TakeStep(StoryWay::PreviousParagraph, before) != StoryStep::Nothing &&
           before != position;
}

void Foresight::Step(Outlook& outlook, StoryWay way)
{
    outlook.pictures.clear();
    outlook.earlier = {};
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
        outlook.earlier.Add(FilesOf(outlook.pictures));
        return Fill(outlook);
    case StoryMove::PreviousPictures:
        return GoBack(outlook);
    case StoryMove::ZoomOut:
        return Zoom(outlook, std::min(outlook.lines + 1, maxLines));
    case StoryMove::ZoomIn:
        return Zoom(outlook, std::max(outlook.lines - 1, 0));
    }
}

void Foresight::Fill(Outlook& outlook)
{
    outlook.pictures = FillScreen(outlook.list, ShapeOf(outlook), IsAtRandom(outlook),
                                  GeneralModule::FindPictureFile);
}

void Foresight::GoBack(Outlook& outlook)
{
    if (outlook.earlier.IsEmpty()) {
        outlook.pictures.clear();
        if (HasPageBefore(outlook.position))
            Step(outlook, StoryWay::PreviousParagraph);
        return;
    }
    outlook.list.PutBack(FilesOf(outlook.pictures));
    outlook.pictures = outlook.earlier.FillWithLast(
        outlook.list, ShapeOf(outlook), IsAtRandom(outlook), GeneralModule::FindPictureFile);
}

ScreenShape Foresight::ShapeOf(const Outlook& outlook) const
{
    return surface_.ShapeFor(outlook.page.arrangedFor, outlook.lines);
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
