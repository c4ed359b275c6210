// SPDX-License-Identifier: MIT
// The viewer's way through the story, and what it shows outside it.
#include "viewer/frmReelvane.h"

#include "core/Album.h"
#include "core/ChapterChain.h"
#include "core/ViewerFlags.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/widgets/LiteralText.h"
#include "story/ParagraphChain.h"
#include "story/PictureFilter.h"
#include "story/frmEditParagraph.h"
#include "viewer/StoryPage.h"

#include <QScopeGuard>

namespace {

constexpr int mostListed = 30000; // pictures of one paragraph or selection

} // namespace

void frmReelvane::DisplayChapter()
{
    if (CurrentChapter == 0)
        return;
    StoryPosition position{CurrentChapter, 0};
    GoToFirstParagraph(position);
    CurrentParagraph = position.paragraph;
    if (CurrentParagraph != 0)
        DisplayParagraph();
    else
        DisplayEmptyChapter();
}

void frmReelvane::DisplayEmptyChapter()
{
    const QString name = GeneralModule::ChapterTitle(CurrentChapter);
    DisplayForm->window()->setWindowTitle(AsWindowTitle(name));
    DisplayUndefined(QStringLiteral("*"), mostListed);
    display_.SetText(tr("Click HERE to create first paragraph of the new chapter '") + name +
                     QLatin1Char('\''));
    display_.ShowText();
    DisplayForm->SetLegendAlignment(Qt::AlignHCenter);
    display_.TellFailure();
}

void frmReelvane::DisplayParagraph()
{
    const std::optional<Paragraph> paragraph = ReadParagraph(CurrentParagraph);
    if (!paragraph)
        return;
    const QString title = GeneralModule::ChapterTitle(paragraph->chapter);
    if (!title.isEmpty())
        DisplayForm->window()->setWindowTitle(AsWindowTitle(title));
    display_.Arrange(paragraph->content.text);
    display_.FindPictures(paragraph->GetQuery(), mostListed);
    GeneralModule::PictureAtRandom = true;
    DisplayImagesFromList(false);
    display_.ShowText();
    DisplayForm->SetLegendAlignment(Nblines < 3 ? Qt::AlignHCenter : Qt::AlignLeft);
    display_.TellFailure();
}

void frmReelvane::DisplayAgain()
{
    DisplayForm->SetPictureToolTip(CurrentChapter == 0 ? tr("Click to index picture")
                                                       : tr("Click to edit image"));
    if (CurrentChapter == 0)
        DisplaySelection();
    else if (CurrentParagraph != 0)
        DisplayParagraph();
    else
        DisplayChapter();
}

void frmReelvane::DisplaySelection()
{
    CurrentParagraph = 0;
    DisplayUndefined(FileSelection, mostListed);
    display_.TellFailure();
}

void frmReelvane::DisplayUndefined(const QString& fileSelection, int maxImages)
{
    PictureQuery query{.fileSelection = PatternOfSelection(fileSelection)};
    query.values.fill(ImageSelection);
    display_.Arrange({});
    display_.FindPictures(query, maxImages);
    DisplayImagesFromList(false);
}

void frmReelvane::FollowStep(StoryStep step, const StoryPosition& position)
{
    // What cannot be read leaves the reader where the page still is.
    auto stay = qScopeGuard([this, chapter = CurrentChapter, paragraph = CurrentParagraph] {
        CurrentChapter = chapter;
        CurrentParagraph = paragraph;
    });
    CurrentChapter = position.chapter;
    CurrentParagraph = position.paragraph;
    switch (step) {
    case StoryStep::Paragraph:
        DisplayParagraph();
        break;
    case StoryStep::Chapter:
        DisplayChapter();
        break;
    case StoryStep::Close:
        CloseViewer();
        break;
    case StoryStep::Nothing:
        break;
    }
    stay.dismiss();
}

void frmReelvane::DisplayNextParagraph()
{
    StoryPosition position{CurrentChapter, CurrentParagraph};
    const StoryStep step = StepToNextParagraph(position);
    FollowStep(step, position);
}

void frmReelvane::DisplayPreviousParagraph()
{
    StoryPosition position{CurrentChapter, CurrentParagraph};
    const StoryStep step = StepToPreviousParagraph(position);
    FollowStep(step, position);
}

void frmReelvane::GoToNextChapter()
{
    if (CurrentChapter == 0)
        return;
    StoryPosition position{CurrentChapter, CurrentParagraph};
    const StoryStep step = StepToNextChapter(position);
    FollowStep(step, position);
}

void frmReelvane::GoToTopOfChapter()
{
    if (CurrentChapter == 0)
        return;
    StoryPosition position{CurrentChapter, CurrentParagraph};
    const StoryStep step = StepToTopOfChapter(position);
    FollowStep(step, position);
}

// Pictures outside the story belong to no paragraph; the first one of a chapter is made here.
bool frmReelvane::HasParagraphToEdit()
{
    if (CurrentChapter == 0)
        return false;
    if (CurrentParagraph > 0)
        return true;
    ParagraphPlace place{CurrentChapter, 0};
    CreateFirstParagraph(place);
    CurrentParagraph = place.paragraph;
    return CurrentParagraph > 0;
}

void frmReelvane::EditCurrentParagraph()
{
    const auto pause = autoview_.Pause();
    if (CurrentChapter != 0 && GeneralModule::IsAlbumReadOnly())
        return Tell(GeneralModule::ReadOnlyReason(), Dialogs::Icon::Information);
    if (!HasParagraphToEdit())
        return;
    frmEditParagraph editor(DisplayForm->window());
    editor.CurrentChapter = CurrentChapter;
    editor.CurrentParagraph = CurrentParagraph;
    editor.exec();
    CurrentChapter = editor.CurrentChapter;
    CurrentParagraph = editor.CurrentParagraph;
    if (CurrentParagraph < 1)
        CloseViewer();
    else
        DisplayParagraph();
}
