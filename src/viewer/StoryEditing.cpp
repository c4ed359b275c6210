// SPDX-License-Identifier: MIT
#include "viewer/StoryEditing.h"

#include "catalogue/frmEditImage.h"
#include "core/Album.h"
#include "core/LocalCopy.h"
#include "platform/dialogs/Dialogs.h"
#include "story/ParagraphChain.h"
#include "story/PictureFinder.h"
#include "story/frmEditParagraph.h"
#include "viewer/StoryReader.h"
#include "viewer/ViewerFlags.h"

#include <QFileInfo>

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
