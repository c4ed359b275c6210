// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphDraft.h"

#include <QString>

#include <vector>

// The paragraphs of a chapter of the open album, linked by PreviousParagraph and NextParagraph (0 =
// none). The chapter holds the first one. A link to a missing row counts as none, and no walk
// visits a row twice. All rows that one operation changes are committed together. Every operation
// moves ParagraphSet and ChapterSet, and throws DatabaseError, NoAlbum while no album is open.

// Where the user is writing.
struct ParagraphPlace
{
    qint32 chapter = 0;
    qint32 paragraph = 0; // 0: there is none

    bool operator==(const ParagraphPlace&) const = default;
};

// Throws RecordDeleted when the paragraph is not in the album.
ParagraphContent LoadParagraph(qint32 paragraph);

// Writes what was edited and corrects the links of both neighbours, or the chapter's, that should
// lead here. Writes nothing that is already in the album. A paragraph that another window has put
// at the same place stays in the chain, after this one. Does nothing without a paragraph. Throws
// RecordDeleted when it is no longer in the album, and ChangedMeanwhile, with nothing written, when
// the draft has a conflict.
void SaveParagraph(const ParagraphPlace& place, const ParagraphDraft& draft);

// Adds a paragraph without links and goes there.
void AddParagraph(ParagraphPlace& place);

// Creates the first paragraph of a chapter without any and goes there; if the chapter has one by
// now, goes to that. Does nothing when there is no such chapter.
void CreateFirstParagraph(ParagraphPlace& place);

// Saves and goes to a new paragraph after this one, and returns what it holds. It deliberately
// inherits the filter that this one had in the album before the save. Its neighbours link to it
// only when it is saved itself: every way out of the editor saves.
ParagraphContent CreateNextParagraph(ParagraphPlace& place, const ParagraphDraft& draft);

// Deletes the paragraph and goes to the next one, else to the previous one, else to none. Its
// picture links stay in the album; its identifier is not used again.
void DeleteParagraph(ParagraphPlace& place);

// The paragraphs to go to instead of that one, the nearest first: some before it, then the one
// after it.
std::vector<qint32> NearbyParagraphs(const ParagraphPlace& place);
// The place's paragraph in whatever chapter it is now, or the first one nearby that is there, or
// the first one of the chapter; a place without a paragraph when there is none.
ParagraphPlace NearestPlace(const ParagraphPlace& place, const std::vector<qint32>& nearby);

enum class ChainStep { First, Previous, Next, Last };
// Saves and goes there. Next stays on the last paragraph, Previous on the first.
void SaveAndStep(ParagraphPlace& place, const ParagraphDraft& draft, ChainStep step);
