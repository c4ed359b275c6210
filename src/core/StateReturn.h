// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>
#include <vector>

class Database;

// What an earlier state of an album holds, and how it is taken back.
namespace GeneralModule {

struct StateChapter
{
    qint32 id = 0; // in the state
    QString name;
    int paragraphs = 0;
};

// A state that is open, only for reading.
class OpenState
{
public:
    // Throws DatabaseError, WrongPassword among others.
    OpenState(const QString& path, const QString& password);

    const std::shared_ptr<Database>& GetDatabase() const { return database_; }

    QString GetPassword() const;

    qint64 CountChapters() const { return Count("Chapter"); }
    qint64 CountPictures() const { return Count("Image"); }
    // In reading order; chapters that the first one does not lead to come where they are linked to.
    std::vector<StateChapter> Chapters() const;

private:
    qint64 Count(const char* table) const;

    std::shared_ptr<Database> database_;
};

// Puts the state in the place of the album at that path, which is kept among the earlier states
// first as it is now, also where it is damaged; nothing is there where it is gone. The album is
// then open, with the state's password. Throws DatabaseError, WrongPassword or Damaged where the
// state cannot be used; the album's file then is what it was. False when the album was put back but
// could not be opened.
bool TakeBackState(const QString& state, const QString& password, const QString& album);

enum class ReturnPlace {
    AtTheEnd,      // as new chapters; where a name is taken, with the state's day
    InPlaceOfSame, // instead of what the chapter of the same name holds now; at the end if none
};

struct ChapterReturnReport
{
    int chapters = 0;
    int paragraphs = 0;
    int links = 0;    // of paragraphs to pictures
    int pictures = 0; // that the album did not hold any more, with their descriptions
};

// Takes chapters of a state into the open album, with their paragraphs, the filters and the links
// of those, and the pictures that these need: all or nothing. The album is kept among the earlier
// states first, as it is now. Throws DatabaseError.
ChapterReturnReport TakeBackChapters(const OpenState& state, const std::vector<qint32>& chapters,
                                     ReturnPlace place);

} // namespace GeneralModule
