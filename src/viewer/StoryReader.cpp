// SPDX-License-Identifier: MIT
#include "viewer/StoryReader.h"

#include "viewer/StorySurface.h"
#include "viewer/ViewerFlags.h"

#include <QScopeGuard>

namespace {

constexpr int maxLines = 4;

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

} // namespace

StoryReader::StoryReader(std::function<bool()> isInFront, QObject* parent)
    : QObject(parent), autoview_([this] { StepByItself(); }, std::move(isInFront), this)
{
}

StoryMode StoryReader::GetMode() const
{
    if (Position.chapter == 0)
        return StoryMode::Selection;
    return Position.paragraph > 0 ? StoryMode::Story : StoryMode::EmptyChapter;
}

Outlook StoryReader::Foresee(StoryWay way) const
{
    Outlook outlook;
    outlook.position = Position;
    outlook.step = TakeStep(way, outlook.position);
    const bool isPage = outlook.step == StoryStep::Paragraph || outlook.step == StoryStep::Chapter;
    const std::optional<PageText> page = isPage ? TextAt(outlook.position) : std::nullopt;
    if (!page)
        return outlook;
    const bool atRandom = outlook.position.paragraph > 0 || GeneralModule::PictureAtRandom;
    outlook.page = *page;
    outlook.found = FindPicturesAt(outlook.position, [](int) {});
    outlook.screen = PrepareScreen(
        outlook.found.list, display_.Surface().ShapeFor(page->arrangedFor, Nblines), atRandom);
    return outlook;
}

void StoryReader::Go(StoryWay way)
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
             [this](const CountFeedback& feedback) { return FindPicturesAt(Position, feedback); });
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
        display_.SetFound(search([this](int count) { display_.ShowCountFound(count); }));
    }
    display_.ShowNextScreen(Nblines);
    ScreenChanged();
}

void StoryReader::ScreenChanged()
{
    LastImageDisplayed = display_.GetLastDisplayed();
    autoview_.Release(); // a picture that was shown alone is hidden now
}

void StoryReader::DisplaySelection()
{
    Position.paragraph = 0;
    DisplayUndefined(FileSelection, maxListed);
    display_.TellFailure();
}

void StoryReader::DisplayUndefined(const QString& fileSelection, int maxImages)
{
    ShowPage({}, [&](const CountFeedback& feedback) {
        return FindSelection(fileSelection, ImageSelection, maxImages, feedback);
    });
}

void StoryReader::DisplayAgain()
{
    const StoryMode mode = GetMode();
    display_.Surface().SetPictureToolTip(mode == StoryMode::Selection ? tr("Click to index picture")
                                                                      : tr("Click to edit image"));
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
    if (display_.GetList().Count() == 0)
        return Go(StoryWay::NextParagraph);
    display_.ShowNextScreen(Nblines);
    ScreenChanged();
    if (display_.GetDisplayed().empty() && GetMode() == StoryMode::Story)
        return Go(StoryWay::NextParagraph); // none of the files left in the list is there any more
    ShowText(GetMode() == StoryMode::Selection);
}

void StoryReader::ZoomIn()
{
    if (Nblines == 0)
        return;
    --Nblines;
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
    display_.Surface().LeaveFullSize();
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
}

void StoryReader::SwitchAutoview()
{
    if (autoview_.Switch())
        display_.Surface().SetLegend(GeneralModule::AutoviewOn ? tr("Timer On") : tr("Timer Off"));
}

void StoryReader::StepByItself()
{
    if (GetMode() != StoryMode::Selection) {
        Go(StoryWay::NextParagraph);
    } else if (display_.GetList().Count() > 0) {
        ShowNextPictures();
    } else {
        autoview_.End(); // the last page was on show for its time
        display_.Surface().SetLegend(tr("Timer Off"));
    }
}
