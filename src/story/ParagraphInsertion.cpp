// SPDX-License-Identifier: MIT
#include "story/ParagraphInsertion.h"

#include "core/AlbumSets.h"
#include "core/UndoSteps.h"
#include "platform/data/WriteBatch.h"
#include "story/ParagraphMoves.h"

using GeneralModule::UndoStep;

namespace {

// Goes to the new paragraph, which follows the place's.
ParagraphContent CreateAfter(ParagraphPlace& place)
{
    const ParagraphContent before = LoadParagraph(place.paragraph);
    return CreateNextParagraph(place, {before, before});
}

} // namespace

ParagraphPlace InsertParagraph(qint32 chapter, qint32 after, const CarValues& filter)
{
    const UndoStep step(UndoStep::tr("Create Paragraph"));
    WriteBatch batch(GeneralModule::AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    ParagraphPlace place{chapter, after};
    const std::vector<ParagraphLine> present = ListParagraphs(chapter);
    ParagraphContent created;
    if (present.empty()) {
        CreateFirstParagraph(place);
        created = LoadParagraph(place.paragraph);
    } else {
        place.paragraph = after > 0 ? after : present.front().paragraph;
        created = CreateAfter(place);
    }
    SaveParagraph(place, {created, {.text = {}, .values = filter}});
    if (after == 0 && !present.empty())
        MoveParagraphUp(place);
    batch.Finish();
    return place;
}
