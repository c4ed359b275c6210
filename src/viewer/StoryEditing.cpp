// SPDX-License-Identifier: MIT
#include "viewer/StoryEditing.h"

#include "catalogue/frmEditImage.h"
#include "core/Album.h"
#include "core/LocalCopy.h"
#include "platform/dialogs/Dialogs.h"
#include "story/ParagraphChain.h"
#include "story/ParagraphLinks.h"
#include "story/PictureWindows.h"
#include "story/frmEditParagraph.h"
#include "viewer/StoryReader.h"
#include "viewer/ViewerFlags.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct StoryEditing
{
    Q_DECLARE_TR_FUNCTIONS(StoryEditing)
};

} // namespace

void EditParagraph(StoryReader& reader, QWidget* window)
{
    const auto pause = reader.GetAutoview().Pause();
    if (reader.GetMode() == StoryMode::Selection)
        return;
    if (GeneralModule::IsAlbumReadOnly())
        return Tell(GeneralModule::ReadOnlyReason(), Dialogs::Icon::Information);
    if (reader.GetMode() == StoryMode::EmptyChapter) {
        ParagraphPlace place{reader.Position.chapter, 0};
        CreateFirstParagraph(place);
        reader.Position.paragraph = place.paragraph;
        if (place.paragraph == 0)
            return;
    }
    frmEditParagraph editor(window);
    editor.CurrentChapter = reader.Position.chapter;
    editor.CurrentParagraph = reader.Position.paragraph;
    editor.exec();
    reader.GoTo({editor.CurrentChapter, editor.CurrentParagraph});
}

void FindForReader(StoryReader& reader, QWidget* window)
{
    const auto pause = reader.GetAutoview().Pause();
    const bool isStory = reader.GetMode() == StoryMode::Story;
    FindRequest request;
    request.parent = window;
    request.paragraph = isStory ? reader.Position.paragraph : 0;
    FindPictures(request);
    if (isStory)
        reader.DisplayParagraph(); // its links may have changed
}

QString SwitchLink(qint32 paragraph, const QString& file)
{
    if (paragraph <= 0)
        return StoryEditing::tr("There is no paragraph to link pictures to.");
    if (GeneralModule::IsAlbumReadOnly())
        return GeneralModule::ReadOnlyReason();
    if (file.isEmpty())
        return StoryEditing::tr("Point at a picture first, or show it large.");
    const bool isLinked = IsLinked(paragraph, file);
    SetLinked(paragraph, file, !isLinked);
    return isLinked ? StoryEditing::tr("No longer linked to the paragraph")
                    : StoryEditing::tr("Linked to the paragraph");
}

void IndexPicture(StoryReader& reader, const QString& file, QWidget* window)
{
    const auto pause = reader.GetAutoview().Pause();
    PictureList upcoming = reader.GetUpcoming();
    const auto isThere = [](const QString& picture) {
        return QFileInfo::exists(GeneralModule::ResolvePictureFile(picture));
    };
    const auto pickNext = [&] {
        return upcoming.PickNext(GeneralModule::PictureAtRandom, isThere);
    };
    frmEditImage indexing(window);
    indexing.CurrentImage = file;
    indexing.HasNextPicture = [&] { return upcoming.Count() > 0; };
    indexing.NextPicture = [&] {
        const QString next = pickNext();
        upcoming.TakePicked();
        return next;
    };
    indexing.ForeseeNextPicture = [&] {
        const QString next = pickNext();
        return next.isEmpty() ? QString() : GeneralModule::FindPictureFile(next);
    };
    indexing.exec();
    reader.ShowIndexed(upcoming, indexing.TakenOut);
}
