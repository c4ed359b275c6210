// SPDX-License-Identifier: MIT
#include "viewer/StoryReader.h"

#include "core/RandomNumbers.h"
#include "viewer/StorySurface.h"
#include "viewer/ViewerFlags.h"

#include <QScopeGuard>

StoryReader::StoryReader(const std::function<bool()>& isInFront, QObject* parent)
    : QObject(parent),
      lookAhead_(isInFront, this),
      display_(lookAhead_),
      autoview_([this] { StepByItself(); }, isInFront, this),
      seeds_(GeneralModule::RandomSeed())
{
}

StoryMode StoryReader::GetMode() const
{
    if (Position.chapter == 0)
        return StoryMode::Selection;
    return Position.paragraph > 0 ? StoryMode::Story : StoryMode::EmptyChapter;
}

void StoryReader::Go(StoryWay way)
{
    lastMove_ = way == StoryWay::PreviousParagraph || way == StoryWay::TopOfChapter
                    ? StoryMove::PreviousParagraph
                    : StoryMove::NextParagraph;
    Step(way);
}

void StoryReader::Step(StoryWay way)
{
    StoryPosition next = Position;
    const StoryStep step = TakeStep(way, next);
    // What cannot be read leaves the reader where the page still is.
    auto stay = qScopeGuard([this, before = Position] { Position = before; });
    Position = next;
    switch (step) {
    case StoryStep::Paragraph:
        DisplayParagraph();
        break;
    case StoryStep::Chapter:
        DisplayChapter();
        break;
    case StoryStep::Close:
        emit Ended();
        break;
    case StoryStep::Nothing:
        break;
    }
    stay.dismiss();
}

void StoryReader::GoTo(const StoryPosition& position)
{
    Position = position;
    if (Position.paragraph > 0)
        DisplayParagraph();
    else
        emit Ended();
}

void StoryReader::DisplayParagraph()
{
    if (Position.paragraph != 0)
        ShowPosition();
}

void StoryReader::DisplayChapter()
{
    if (GetMode() == StoryMode::Selection)
        return;
    GoToFirstParagraph(Position);
    ShowPosition();
}

void StoryReader::ShowPosition()
{
    const std::optional<PageText> page = TextAt(Position);
    if (!page)
        return;
    const bool isParagraph = GetMode() == StoryMode::Story;
    if (isParagraph)
        GeneralModule::PictureAtRandom = true;
    ShowPage(*page,
             [this](const CountFeedback& feedback) { return found_.Find(Position, feedback); });
    display_.ShowText();
    display_.Surface().SetLegendAlignment(isParagraph && Nblines >= 3 ? Qt::AlignLeft
                                                                      : Qt::AlignHCenter);
    display_.TellFailure();
}

void StoryReader::ShowPage(const PageText& page, const Search& search)
{
    display_.Begin(page);
    {
        const auto work = display_.Surface().BeginWork();
        FoundPictures found = search([this](int count) { display_.ShowCountFound(count); });
        found.list.Shuffle(std::uint32_t(seeds_()));
        display_.SetFound(std::move(found));
    }
    display_.ShowNextScreen(Nblines);
    ScreenChanged();
}

void StoryReader::ScreenChanged()
{
    LastImageDisplayed = display_.GetLastDisplayed();
    ShowPlace();
    autoview_.Release(); // a picture that was shown alone is hidden now
    BeginLookingAhead();
}

void StoryReader::ShowPlace()
{
    PagePlace place = display_.GetPlace();
    place.isSelection = GetMode() == StoryMode::Selection;
    if (GetMode() == StoryMode::Story)
        place.paragraph = places_.Find(Position.chapter, Position.paragraph);
    display_.Surface().SetPlace(Describe(place));
}

void StoryReader::DisplaySelection()
{
    Position.paragraph = 0;
    if (ChosenFiles.isEmpty())
        DisplayUndefined(FileSelection, GeneralModule::maxListed);
    else
        ShowPage({.title = tr("Found Pictures")}, [this](const CountFeedback& feedback) {
            return ListFiles(ChosenFiles, feedback);
        });
    display_.TellFailure();
}

void StoryReader::DisplayUndefined(const QString& fileSelection, int maxImages)
{
    ShowPage({.title = fileSelection}, [&](const CountFeedback& feedback) {
        return FindSelection(fileSelection, ImageSelection, maxImages, feedback);
    });
}

void StoryReader::DisplayAgain()
{
    const StoryMode mode = GetMode();
    const bool isSelection = mode == StoryMode::Selection;
    display_.Surface().SetPictureToolTip(isSelection ? tr("Click to index picture")
                                                     : tr("Click to edit image"));
    display_.Surface().LetPicturesTakeFocus(isSelection);
    switch (mode) {
    case StoryMode::Selection:
        return DisplaySelection();
    case StoryMode::Story:
        return DisplayParagraph();
    case StoryMode::EmptyChapter:
        return DisplayChapter();
    }
}

void StoryReader::DisplayFromBeginning()
{
    Nblines = 1;
    Position.paragraph = 0;
    DisplayAgain();
}

void StoryReader::ShowNextPictures()
{
    lastMove_ = StoryMove::NextPictures;
    if (display_.GetList().Count() == 0)
        return Step(StoryWay::NextParagraph);
    display_.ShowNextScreen(Nblines);
    ScreenChanged();
    // None of the files left in the list is there any more.
    if (display_.GetDisplayed().empty() && GetMode() == StoryMode::Story)
        return Step(StoryWay::NextParagraph);
    ShowText(GetMode() == StoryMode::Selection);
}

void StoryReader::ShowPreviousPictures()
{
    lastMove_ = StoryMove::PreviousPictures;
    if (display_.GetEarlier().IsEmpty()) {
        if (HasPageBefore(Position))
            Step(StoryWay::PreviousParagraph);
        return;
    }
    display_.ShowEarlierScreen(Nblines);
    ScreenChanged();
    ShowText(GetMode() == StoryMode::Selection);
}

void StoryReader::ZoomIn()
{
    if (Nblines == 0)
        return;
    --Nblines;
    lastMove_ = StoryMove::ZoomIn;
    ShowScreenAgain();
    ShowText(GetMode() == StoryMode::Selection);
}

// On purpose zooming out counts the pictures that are left of an empty chapter, while zooming in
// shows its text.
void StoryReader::ZoomOut()
{
    if (Nblines == maxLines)
        return;
    ++Nblines;
    lastMove_ = StoryMove::ZoomOut;
    ShowScreenAgain();
    ShowText(GetMode() != StoryMode::Story);
}

void StoryReader::ShowScreenAgain()
{
    display_.ShowScreenAgain(Nblines);
    ScreenChanged();
}

void StoryReader::ShowText(bool isCounting)
{
    if (isCounting)
        display_.ShowCountLeft();
    else
        display_.ShowText();
}

void StoryReader::ShowAlone(const ShownPicture& picture)
{
    autoview_.Hold();
    display_.ShowAlone(picture, GetMode() == StoryMode::Story);
}

void StoryReader::LeaveAlone()
{
    const auto pause = autoview_.Pause();
    display_.LeaveAlone();
    ShowText(GetMode() == StoryMode::Selection);
}

void StoryReader::ShowIndexed(const PictureList& upcoming, const QStringList& takenOut)
{
    const bool isSelection = GetMode() == StoryMode::Selection;
    // A story still shows the pictures that indexing went on to; a selection does not come back to
    // them.
    if (isSelection)
        display_.SetList(upcoming);
    if (!takenOut.isEmpty()) {
        display_.Remove(takenOut);
        ShowScreenAgain();
    }
    ShowText(isSelection);
    BeginLookingAhead(); // the album may have changed
}

void StoryReader::SwitchAutoview()
{
    if (!autoview_.Switch())
        return;
    display_.Surface().SetLegend(GeneralModule::AutoviewOn ? tr("Timer On") : tr("Timer Off"));
    BeginLookingAhead();
}

void StoryReader::StepByItself()
{
    std::shared_ptr<void> fade;
    if (GeneralModule::SoftTransitions)
        fade = display_.Surface().FadeIntoNext();
    if (GetMode() != StoryMode::Selection) {
        Go(StoryWay::NextParagraph);
    } else if (display_.GetList().Count() > 0) {
        ShowNextPictures();
    } else {
        autoview_.End(); // the last page was on show for its time
        display_.Surface().SetLegend(tr("Timer Off"));
    }
}
