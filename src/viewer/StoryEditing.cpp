// SPDX-License-Identifier: MIT
#include "viewer/StoryEditing.h"

#include "catalogue/frmEditImage.h"
#include "core/Album.h"
#include "core/ChapterChain.h"
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

#include <deque>

namespace {

struct StoryEditing
{
    Q_DECLARE_TR_FUNCTIONS(StoryEditing)
};

// From the next one on, round the end.
std::deque<QString> OthersOnScreen(const StoryReader& reader, const QString& file)
{
    std::deque<QString> before;
    std::deque<QString> others;
    bool isAfter = false;
    for (const ShownPicture& picture : reader.GetDisplayed()) {
        if (picture.file == file)
            isAfter = true;
        else
            (isAfter ? others : before).push_back(picture.file);
    }
    others.insert(others.end(), before.begin(), before.end());
    return others;
}

bool IsPictureFileThere(const QString& picture)
{
    return QFileInfo::exists(GeneralModule::ResolvePictureFile(picture));
}

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

void ShowAfterUndo(StoryReader& reader)
{
    const auto pause = reader.GetAutoview().Pause();
    if (reader.GetMode() == StoryMode::Selection)
        return reader.DisplayAgain();
    const ParagraphPlace place =
        NearestPlace({reader.Position.chapter, reader.Position.paragraph}, {});
    reader.Position = {place.chapter, place.paragraph};
    if (GeneralModule::HasChapter(place.chapter))
        reader.DisplayAgain();
    else
        reader.GoTo({place.chapter, 0}); // which ends it
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
    std::deque<QString> others = OthersOnScreen(reader, file);
    const auto pickNext = [&] {
        return upcoming.PickNext(GeneralModule::PictureAtRandom, IsPictureFileThere);
    };
    frmEditImage indexing(window);
    indexing.CurrentImage = file;
    indexing.CountUpcoming = [&] { return int(others.size()) + upcoming.Count(); };
    indexing.NextPicture = [&] {
        if (!others.empty()) {
            const QString next = others.front();
            others.pop_front();
            return next;
        }
        const QString next = pickNext();
        upcoming.TakePicked();
        return next;
    };
    indexing.ForeseeNextPicture = [&] {
        const QString next = others.empty() ? pickNext() : others.front();
        return next.isEmpty() ? QString() : GeneralModule::FindPictureFile(next);
    };
    indexing.exec();
    reader.ShowIndexed(upcoming, indexing.TakenOut);
}
