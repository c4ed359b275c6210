// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphDraft.h"

#include <QString>

#include <vector>

// The paragraphs of a chapter of the open album, linked by PreviousParagraph and NextParagraph (0 =
// none), the first one named by the chapter. A link to a row that is not there counts as none, and
// no walk visits a row twice. All rows that one operation changes are committed together. All of it
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

// Writes what was edited and sets right the links of both neighbours, or the chapter's, that should
// lead here. Writes nothing that is in the album already. A paragraph that another window put at
// the same place meanwhile stays in the chain: this one comes before it. Nothing happens without a
// paragraph. Throws RecordDeleted when it is not in the album any more, and ChangedMeanwhile, with
// nothing written, where the draft has a conflict.
void SaveParagraph(const ParagraphPlace& place, const ParagraphDraft& draft);

// Adds a paragraph that links to nothing and goes there.
void AddParagraph(ParagraphPlace& place);

// Gives a chapter without paragraphs its first one and goes there; goes to the one that it has by
// now, if any. Nothing happens when there is no such chapter.
void CreateFirstParagraph(ParagraphPlace& place);

// Saves and goes to a new paragraph after this one, and returns what it holds. It inherits the
// filter that this one had in the album before the save, on purpose. Its neighbours link to it once
// it is saved itself, not before: every way out of the editor saves.
ParagraphContent CreateNextParagraph(ParagraphPlace& place, const ParagraphDraft& draft);

// Deletes, and goes to the next paragraph, else to the previous one, else to none. Links to
// pictures stay in the album; nothing else gets the identifier.
void DeleteParagraph(ParagraphPlace& place);

enum class ChainStep { First, Previous, Next, Last };
// Saves and goes there; on the last and the first paragraph Next and Previous stay.
void SaveAndStep(ParagraphPlace& place, const ParagraphDraft& draft, ChainStep step);
