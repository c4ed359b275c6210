// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/RecordSet.h"

#include <QString>

#include <memory>

// The one album that is open. The record sets live until another album is opened; each has one
// current row that all windows share, so a routine positions a set before it reads or writes.
namespace GeneralModule {

extern std::shared_ptr<Database> AlbumDatabase;
extern std::unique_ptr<RecordSet> ParamsSet;
extern std::unique_ptr<RecordSet> ParagraphSet;
extern std::unique_ptr<RecordSet> ImageSet;
extern std::unique_ptr<RecordSet> ChapterSet;
extern std::unique_ptr<RecordSet> LinkedImagesSet;

// Opens the album in place of the one that is open and remembers it as the last one. Asks for the
// password, unless the one given fits, until it does or the answer is empty. False, with a message
// shown unless the user gave up, when the album could not be opened; then no album is open. Of an
// album in the former file format a new one is made, if the user agrees, and that is the one that
// is opened and remembered.
bool OpenAlbum(const QString& path, const QString& password = {});

// Copies the template to path, over a file that is there. False, with a message shown, when that
// fails; an existing file then stays as it was.
bool CreateAlbumFile(const QString& path);

// Ends the use of the album, so that its file may be moved or removed.
void ReleaseAlbum();

// Positions the set on the row of that identifier. False, and the set stays, when there is none.
bool FindById(RecordSet& set, qint32 id);

} // namespace GeneralModule
