// SPDX-License-Identifier: MIT
#include "fuzz/kill/StepWork.h"

#include "catalogue/FoundPictures.h"
#include "catalogue/MovedPictures.h"
#include "catalogue/Picture.h"
#include "catalogue/PictureLoading.h"
#include "catalogue/ValueReplacement.h"
#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "core/AlbumRepair.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/EarlierStates.h"
#include "core/Parameters.h"
#include "core/StateKeeping.h"
#include "core/StateReturn.h"
#include "core/UndoSteps.h"
#include "core/oldalbum/OldAlbumConversion.h"
#include "story/ParagraphLinks.h"
#include "story/ParagraphMoves.h"
#include "support/AlbumFixture.h"

#include <random>
#include <stdexcept>

using namespace GeneralModule;

namespace {

// The paragraph that was created last, when it was not saved since; 0 when there is none.
qint32 UnsavedParagraph(qint32& chapter)
{
    qint32 newest = 0;
    for (ParagraphSet->MoveFirst(); !ParagraphSet->AtEnd(); ParagraphSet->MoveNext())
        newest = ParagraphSet->Number(u"Id");
    FindById(*ParagraphSet, newest);
    chapter = ParagraphSet->Number(u"Chapter");
    for (const ParagraphLine& line : ListParagraphs(chapter)) {
        if (line.paragraph == newest)
            return 0;
    }
    return newest;
}

ParagraphDraft Edited(const ParagraphPlace& place, int step)
{
    ParagraphContent content;
    content.text = QStringLiteral("written in step %1").arg(step);
    content.values.fill(anyValue);
    return {LoadParagraph(place.paragraph), content};
}

// The newest state that no earlier one has replaced.
QString LastKept(const QString& album)
{
    for (const EarlierState& state : EarlierStatesOf(album)) {
        if (!state.isReplaced)
            return state.path;
    }
    return {};
}

} // namespace

void Require(bool isDone)
{
    if (!isDone)
        throw std::runtime_error("the work was refused");
}

void ChangeChapters(const QString&, int step)
{
    std::mt19937 random{std::uint32_t(step)};
    const QStringList names = ChapterNames();
    const QString chosen = names.value(qsizetype(random() % std::size_t(names.size())));
    switch (random() % 6) {
    case 0:
    case 1:
        CreateChapter(QStringLiteral("New %1").arg(step), chosen);
        break;
    case 2:
        DeleteChapter(chosen);
        break;
    case 3:
        RenameChapter(FindChapter(chosen).value(), QStringLiteral("Named %1").arg(step));
        break;
    case 4:
        MoveChapterUp(chosen);
        break;
    default:
        MoveChapterDown(chosen);
    }
}

void ChangeParagraphs(const QString&, int step)
{
    std::mt19937 random{std::uint32_t(step)};
    ParagraphPlace place;
    place.paragraph = UnsavedParagraph(place.chapter);
    if (place.paragraph != 0)
        return SaveParagraph(place, Edited(place, step));
    place.chapter = 1 + qint32(random() % 6);
    const std::vector<ParagraphLine> lines = ListParagraphs(place.chapter);
    if (lines.empty())
        return CreateFirstParagraph(place);
    place.paragraph = lines[random() % lines.size()].paragraph;
    switch (random() % 6) {
    case 0:
        CreateNextParagraph(place, Edited(place, step));
        break;
    case 1:
        DeleteParagraph(place);
        break;
    case 2:
    case 3:
        MoveParagraphDown(place);
        break;
    case 4:
        MoveParagraphUp(place);
        break;
    default:
        SaveParagraph(place, Edited(place, step));
    }
}

void Describe(const QString&, int step)
{
    std::mt19937 random{std::uint32_t(step)};
    const QString file = QStringLiteral("/p/%1.jpg").arg(1 + random() % 100);
    const std::optional<Picture> shown = ReadPicture(file);
    Picture edited = shown.value();
    switch (random() % 3) {
    case 0:
        edited.legend = QStringLiteral("described in step %1").arg(step);
        edited.values[4] = QStringLiteral("Value %1").arg(step);
        StorePicture(file, *shown, edited);
        break;
    case 1:
        SetLinked(1 + qint32(random() % 9), file, random() % 3 != 0);
        break;
    default:
        SetParam(QStringLiteral("P%1").arg(random() % 5), QString::number(step));
    }
}

void ComeAndGo(const QString&, int step)
{
    const QString album = OpenAlbumPath();
    const QString password = AlbumDatabase->GetPassword();
    switch (step % 6) {
    case 0:
        KeepState(false);
        break;
    case 1:
    case 3:
        CreateChapter(QStringLiteral("New %1").arg(step), ChapterNames().first());
        break;
    case 2:
        Require(TakeBackState(LastKept(album), password, album));
        break;
    case 4: {
        const OpenState state(LastKept(album), password);
        TakeBackChapters(state, {state.Chapters().back().id}, ReturnPlace::InPlaceOfSame);
        break;
    }
    default:
        CreateChapter(QStringLiteral("Newer %1").arg(step), ChapterNames().last());
    }
}

void UndoAndRedo(const QString&, int step)
{
    {
        const UndoStep change(QStringLiteral("Change"));
        const bool isBack = step % 4 == 2;
        if (step % 2 == 0)
            Require(ReplaceValue(3, isBack ? "Cleo" : "Anna", isBack ? "Anna" : "Cleo", [](int) {
                        return true;
                    })->pictures > 0);
        else
            Require(DeleteChapter(ChapterNames().last()) == ChapterDeletion::Deleted);
    }
    Require(!Undo().isEmpty());
    Require(!Redo().isEmpty());
}
