// SPDX-License-Identifier: MIT
#include "story/ParagraphChain.h"

#include "core/AlbumChains.h"
#include "core/AlbumSets.h"
#include "core/UndoSteps.h"
#include "platform/data/ReadLock.h"
#include "platform/data/WriteBatch.h"

#include <QCoreApplication>

#include <optional>

using namespace GeneralModule;

namespace {

[[noreturn]] void FailGone()
{
    throw DatabaseError(
        DatabaseError::RecordDeleted,
        QCoreApplication::translate("ParagraphChain", "This paragraph is no longer in the album."));
}

void RequireParagraph(qint32 paragraph)
{
    if (!FindById(*ParagraphSet, paragraph))
        FailGone();
}

// The set must be in the middle of an edit. A value already stored is not written again, so that
// paging through a chapter does not write to disk.
void SetText(QStringView field, const QString& value)
{
    if (ParagraphSet->IsNull(field) || ParagraphSet->Text(field) != value)
        ParagraphSet->Set(field, value);
}

struct Neighbours
{
    qint32 previous;
    qint32 next;
};

// The current row's links as stored.
Neighbours CurrentNeighbours()
{
    return {LinkIn(*ParagraphSet, u"PreviousParagraph"), LinkIn(*ParagraphSet, u"NextParagraph")};
}

[[noreturn]] void FailChanged()
{
    throw DatabaseError(
        DatabaseError::ChangedMeanwhile,
        QCoreApplication::translate("ParagraphChain",
                                    "This paragraph has just been changed in another window. "
                                    "Please try again."));
}

// The set must be in the middle of an edit.
void WriteChanges(const ParagraphContent& stored, const ParagraphContent& content)
{
    if (content.text != stored.text)
        SetText(u"Text", content.text);
    for (int column = 0; column < columnCount; ++column) {
        const QString& value = content.values[std::size_t(column)];
        if (value != stored.values[std::size_t(column)])
            SetText(CarField(column), StorableFilter(value));
    }
}

// A new paragraph is linked to when it is saved, not when it is created. If another window has
// saved a new one after the same paragraph since, that one follows this one from now on; otherwise
// neither the chain nor a list would show it any more.
Neighbours MakeRoom(const ParagraphPlace& place, Neighbours stored)
{
    if (ChainOfParagraphs().Find(stored.previous) == 0)
        return stored;
    const qint32 follower = LinkIn(*ParagraphSet, u"NextParagraph");
    if (follower == place.paragraph || follower == stored.next ||
        ChainOfParagraphs().Find(follower) == 0)
        return stored;
    const bool isAtSamePlace = CurrentNeighbours().previous == stored.previous &&
                               LinkIn(*ParagraphSet, u"Chapter") == place.chapter;
    return isAtSamePlace ? Neighbours{stored.previous, follower} : stored;
}

// A chapter that begins with another paragraph keeps it: the deleted one was then not in the
// chapter's chain.
void ReplaceFirstParagraph(qint32 chapter, qint32 gone, qint32 next)
{
    if (FindById(*ChapterSet, chapter) && LinkIn(*ChapterSet, u"FirstParagraph") == gone)
        SetFirstParagraph(chapter, next);
}

} // namespace

ParagraphContent LoadParagraph(qint32 paragraph)
{
    const std::optional<Paragraph> found = ReadParagraph(paragraph);
    if (!found)
        FailGone();
    return found->content;
}

void SaveParagraph(const ParagraphPlace& place, const ParagraphDraft& draft)
{
    if (place.paragraph <= 0)
        return;
    // What the step and the look at the paragraph read takes the file's lock once; it must be free
    // again when the batch waits for another program.
    std::optional<ReadLock> reading(*AlbumDatabase);
    const UndoStep step(StepAbout(UndoStep::tr("Save Paragraph"), draft.edited.text));
    RequireParagraph(place.paragraph);
    reading.reset();
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    const ParagraphContent stored = LoadParagraph(place.paragraph);
    if (HasConflict(draft, stored))
        FailChanged();
    const Neighbours former = CurrentNeighbours();
    const Neighbours neighbours = MakeRoom(place, former);
    RequireParagraph(place.paragraph);
    ParagraphSet->Edit();
    WriteChanges(stored, MergeDraft(draft, stored, true));
    if (LinkIn(*ParagraphSet, u"Chapter") != place.chapter)
        ParagraphSet->Set(u"Chapter", place.chapter);
    if (neighbours.next != former.next)
        ParagraphSet->Set(u"NextParagraph", neighbours.next);
    ParagraphSet->Update();

    ChainOfParagraphs().LinkNeighbours(neighbours.previous, place.paragraph, neighbours.next);
    if (neighbours.previous <= 0)
        SetFirstParagraph(place.chapter, place.paragraph);
    batch.Finish();
}

void AddParagraph(ParagraphPlace& place)
{
    ParagraphSet->AddNew();
    const qint32 added = ParagraphSet->Number(u"Id");
    ParagraphSet->Set(u"NextParagraph", 0);
    ParagraphSet->Set(u"PreviousParagraph", 0);
    ParagraphSet->Set(u"Chapter", place.chapter);
    ParagraphSet->Set(u"Text", QString());
    ParagraphSet->Set(u"FileSelection", QString());
    for (int column = 0; column < columnCount; ++column)
        ParagraphSet->Set(CarField(column), anyValue);
    ParagraphSet->Update();
    place.paragraph = added;
}

void CreateFirstParagraph(ParagraphPlace& place)
{
    const UndoStep step(UndoStep::tr("Create Paragraph"));
    if (!FindById(*ChapterSet, place.chapter))
        return;
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    if (const qint32 first = FirstParagraphOf(place.chapter)) {
        place.paragraph = first;
        return;
    }
    AddParagraph(place);
    SetFirstParagraph(place.chapter, place.paragraph);
    batch.Finish();
}

ParagraphContent CreateNextParagraph(ParagraphPlace& place, const ParagraphDraft& draft)
{
    const UndoStep step(StepAbout(UndoStep::tr("Create Paragraph after"), draft.edited.text));
    const CarValues inherited = LoadParagraph(place.paragraph).values;
    const qint32 old = place.paragraph;
    const qint32 oldNext = LinkIn(*ParagraphSet, u"NextParagraph");
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    SaveParagraph(place, draft);
    AddParagraph(place);
    RequireParagraph(place.paragraph);
    ParagraphSet->Edit();
    ParagraphSet->Set(u"PreviousParagraph", old);
    ParagraphSet->Set(u"NextParagraph", oldNext);
    for (int column = 0; column < columnCount; ++column)
        ParagraphSet->Set(CarField(column), inherited[std::size_t(column)]);
    ParagraphSet->Update();
    batch.Finish();
    return {{}, inherited};
}

void DeleteParagraph(ParagraphPlace& place)
{
    const ParagraphContent content = LoadParagraph(place.paragraph);
    const UndoStep step(StepAbout(UndoStep::tr("Delete Paragraph"), content.text));
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    SaveParagraph(place, {content, content}); // its neighbours may not link to it yet
    RequireParagraph(place.paragraph);
    const Neighbours stored = CurrentNeighbours();
    ParagraphSet->Delete();
    const Chain chain = ChainOfParagraphs();
    const qint32 previous = chain.Find(stored.previous);
    const qint32 next = chain.Find(stored.next);
    chain.Join(previous, next);
    if (previous == 0)
        ReplaceFirstParagraph(place.chapter, place.paragraph, next);
    batch.Finish();
    place.paragraph = next > 0 ? next : previous;
}

std::vector<qint32> NearbyParagraphs(const ParagraphPlace& place)
{
    constexpr std::size_t before = 50;
    const Chain chain = ChainOfParagraphs();
    std::vector<qint32> nearby;
    chain.Walk(chain.Neighbour(place.paragraph, ChainDirection::Previous), ChainDirection::Previous,
               [&](qint32 paragraph) {
                   nearby.push_back(paragraph);
                   return nearby.size() < before;
               });
    nearby.push_back(chain.Neighbour(place.paragraph, ChainDirection::Next));
    return nearby;
}

ParagraphPlace NearestPlace(const ParagraphPlace& place, const std::vector<qint32>& nearby)
{
    std::vector<qint32> candidates{place.paragraph};
    candidates.insert(candidates.end(), nearby.begin(), nearby.end());
    candidates.push_back(FirstParagraphOf(place.chapter));
    for (const qint32 candidate : candidates) {
        const std::optional<Paragraph> found = ReadParagraph(candidate);
        if (found && FindById(*ChapterSet, found->chapter))
            return {found->chapter, candidate};
    }
    return {place.chapter, 0};
}

void SaveAndStep(ParagraphPlace& place, const ParagraphDraft& draft, ChainStep step)
{
    SaveParagraph(place, draft);
    const bool isBackward = step == ChainStep::First || step == ChainStep::Previous;
    const ChainDirection direction = isBackward ? ChainDirection::Previous : ChainDirection::Next;
    const bool isFar = step == ChainStep::First || step == ChainStep::Last;
    const Chain chain = ChainOfParagraphs();
    const qint32 reached =
        isFar ? chain.End(place.paragraph, direction) : chain.Neighbour(place.paragraph, direction);
    place.paragraph = reached > 0 ? reached : place.paragraph;
}
