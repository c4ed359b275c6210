// SPDX-License-Identifier: MIT
// What a reader foresees, and has made ready.
#include "viewer/StoryReader.h"
#include "viewer/StorySurface.h"
#include "viewer/ViewerFlags.h"

Outlook StoryReader::GetOutlook() const
{
    return {.position = Position,
            .lines = Nblines,
            .page = display_.GetPage(),
            .pictures = display_.GetDisplayed(),
            .earlier = display_.GetEarlier(),
            .list = display_.GetList(),
            .seeds = seeds_};
}

Outlook StoryReader::Foresee(StoryWay way)
{
    Outlook outlook = GetOutlook();
    Foresight(display_.Surface(), found_).Step(outlook, way);
    return outlook;
}

Outlook StoryReader::Foresee(LikelyMove move)
{
    Outlook outlook = GetOutlook();
    Foresight foresight(display_.Surface(), found_);
    for (int i = 0; i < move.times; ++i)
        foresight.Move(outlook, move.move);
    return outlook;
}

// Who watches autoview presses no keys.
std::vector<LikelyMove> StoryReader::MovesToExpect() const
{
    if (!GeneralModule::AutoviewOn)
        return LikelyMoves(lastMove_);
    const bool isStory = GetMode() != StoryMode::Selection;
    return {{isStory ? StoryMove::NextParagraph : StoryMove::NextPictures}};
}

void StoryReader::BeginLookingAhead()
{
    std::vector<LookAhead::Plan> plans;
    for (const LikelyMove& move : MovesToExpect()) {
        // Several pictures keep all cores busy anyway.
        if (move.times > 1 && display_.GetDisplayed().size() > 1)
            continue;
        plans.emplace_back([this, move] {
            const GeneralModule::NoWaiting noWaiting; // no key could be handled meanwhile
            const qreal pixelRatio = display_.Surface().GetShape(Nblines).pixelRatio;
            return RequestsFor(Foresee(move).pictures, pixelRatio);
        });
    }
    lookAhead_.Begin(std::move(plans));
}
