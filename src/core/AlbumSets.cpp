// SPDX-License-Identifier: MIT
#include "core/AlbumSets.h"

#include "core/Columns.h"
#include "core/EarlierStates.h"
#include "core/StateKeeping.h"
#include "core/UndoHistory.h"

#include <QCoreApplication>

#include <initializer_list>

namespace {

using namespace GeneralModule;

std::unique_ptr<Album> opened;

void RequireFields(const RecordSet& set, std::initializer_list<const char*> fields)
{
    for (const char* field : fields)
        set.FieldNumber(QString::fromLatin1(field)); // throws where it is missing
}

void RequireCharacteristics(const RecordSet& set)
{
    for (int column = 0; column < columnCount; ++column)
        set.FieldNumber(CarField(column));
}

void RequireSchema(const Album& album)
{
    RequireFields(album.params, {"Param", "Value"});
    RequireFields(album.paragraphs,
                  {"Id", "Chapter", "PreviousParagraph", "NextParagraph", "Text", "FileSelection"});
    RequireCharacteristics(album.paragraphs);
    RequireFields(album.images, {"File", "Legend", "SourceFile"});
    RequireCharacteristics(album.images);
    RequireFields(album.chapters,
                  {"Id", "Name", "FirstParagraph", "PreviousChapter", "NextChapter"});
    RequireFields(album.linkedImages, {"ParagraphId", "File"});
}

} // namespace

namespace GeneralModule {

Album::Album(const QString& path, const QString& password)
    : database(Database::Open(
          path, password, IsEarlierState(path) ? Database::Use::Reading : Database::Use::Changing)),
      history(std::make_shared<UndoHistory>(database)),
      params(database, QStringLiteral("Params")),
      paragraphs(database, QStringLiteral("Paragraph")),
      images(database, QStringLiteral("Image")),
      chapters(database, QStringLiteral("Chapter")),
      linkedImages(database, QStringLiteral("LinkedImages"))
{
    RequireSchema(*this);
    KeepStatesOf(*database);
}

Album* FindOpenedAlbum()
{
    return opened.get();
}

Album& OpenedAlbum()
{
    if (!opened)
        throw DatabaseError(DatabaseError::NoAlbum,
                            QCoreApplication::translate("Album", "No album is open."));
    return *opened;
}

void SetOpenedAlbum(std::unique_ptr<Album> album)
{
    opened = std::move(album);
}

bool FindById(RecordSet& set, qint32 id)
{
    set.FindFirst(QStringLiteral("[Id]=") + QString::number(id));
    return !set.NoMatch();
}

} // namespace GeneralModule
