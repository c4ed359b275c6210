// SPDX-License-Identifier: MIT
#include "core/Album.h"

#include "core/OldAlbum.h"
#include "core/RecentAlbums.h"
#include "core/Settings.h"
#include "platform/data/DatabaseFile.h"
#include "platform/data/WriteBatch.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/shell/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <optional>

namespace {

using namespace GeneralModule;

struct AlbumTexts
{
    Q_DECLARE_TR_FUNCTIONS(Album)
};

void RequireFields(const RecordSet& set, std::initializer_list<const char*> fields)
{
    for (const char* field : fields)
        set.FieldNumber(QString::fromLatin1(field)); // throws where it is missing
}

void RequireCharacteristics(const RecordSet& set)
{
    for (int column = 0; column < 12; ++column)
        set.FieldNumber(QStringLiteral("Car%1").arg(column));
}

std::unique_ptr<RecordSet> OpenSet(const char* table)
{
    return std::make_unique<RecordSet>(AlbumDatabase, QString::fromLatin1(table));
}

void OpenRecordSets()
{
    ParamsSet = OpenSet("Params");
    ParagraphSet = OpenSet("Paragraph");
    ImageSet = OpenSet("Image");
    ChapterSet = OpenSet("Chapter");
    LinkedImagesSet = OpenSet("LinkedImages");
    RequireFields(*ParamsSet, {"Param", "Value"});
    RequireFields(*ParagraphSet,
                  {"Id", "Chapter", "PreviousParagraph", "NextParagraph", "Text", "FileSelection"});
    RequireCharacteristics(*ParagraphSet);
    RequireFields(*ImageSet, {"File", "Legend", "SourceFile"});
    RequireCharacteristics(*ImageSet);
    RequireFields(*ChapterSet, {"Id", "Name", "FirstParagraph", "PreviousChapter", "NextChapter"});
    RequireFields(*LinkedImagesSet, {"ParagraphId", "File"});
}

// Older programs left FileSelection without a value; every reader counts on a text.
void FillEmptySelections()
{
    const RecordSet::Walk walk(*ParagraphSet);
    std::optional<WriteBatch> batch;
    const int selection = ParagraphSet->FieldNumber(u"FileSelection");
    for (ParagraphSet->MoveFirst(); !ParagraphSet->AtEnd(); ParagraphSet->MoveNext()) {
        if (!ParagraphSet->IsNull(selection))
            continue;
        if (!batch)
            batch.emplace(AlbumDatabase);
        ParagraphSet->Edit();
        ParagraphSet->Set(u"FileSelection", QString());
        ParagraphSet->Update();
        batch->RowDone();
    }
    if (batch)
        batch->Finish();
}

void CleanUpParagraphs()
{
    try {
        FillEmptySelections();
    } catch (const DatabaseError& error) {
        Tell(AlbumTexts::tr("Unexpected Error : %1 %2")
                 .arg(error.GetNumber())
                 .arg(error.GetDescription()),
             Dialogs::Icon::Warning);
    }
}

void TryToOpen(const QString& path, const QString& password)
{
    AlbumDatabase = Database::Open(path, password);
    OpenRecordSets();
    CleanUpParagraphs();
}

void TellWhyNot(const DatabaseError& error)
{
    Tell(AlbumTexts::tr("Error %1 %2\n%3")
             .arg(error.GetNumber())
             .arg(error.GetDescription(),
                  AlbumTexts::tr(
                      "If no album can be opened any more, please install the program's run-time "
                      "support files again.")),
         Dialogs::Icon::Warning);
}

// Tries the given password first, and then asks.
bool OpenWithPassword(const QString& path, QString password)
{
    while (true) {
        ReleaseAlbum();
        try {
            TryToOpen(path, password);
            SaveLastAlbum(path);
            RememberRecentAlbum(path);
            return true;
        } catch (const DatabaseError& error) {
            ReleaseAlbum();
            if (error.GetNumber() != DatabaseError::WrongPassword) {
                TellWhyNot(error);
                return false;
            }
        }
        password = Dialogs::Door().AskText(
            {.prompt = AlbumTexts::tr("Please give the password for : ") + path,
             .isPassword = true});
        if (password.isEmpty())
            return false;
    }
}

// Opens a new album that is made of the old one. Released first: the new one may take its place.
bool OpenOldAlbum(const QString& path)
{
    ReleaseAlbum();
    try {
        const std::optional<NewAlbum> made = OfferConversion(path);
        if (!made)
            return false;
        const bool isOpen = OpenWithPassword(made->path, made->password);
        Tell(made->report, made->isWhole ? Dialogs::Icon::Information : Dialogs::Icon::Warning);
        return isOpen;
    } catch (const DatabaseError& error) {
        TellWhyNot(error);
        return false;
    }
}

} // namespace

namespace GeneralModule {

std::shared_ptr<Database> AlbumDatabase;
std::unique_ptr<RecordSet> ParamsSet;
std::unique_ptr<RecordSet> ParagraphSet;
std::unique_ptr<RecordSet> ImageSet;
std::unique_ptr<RecordSet> ChapterSet;
std::unique_ptr<RecordSet> LinkedImagesSet;

bool OpenAlbum(const QString& path, const QString& password)
{
    if (KindOfDatabaseFile(path) == DatabaseFileKind::OldAlbum)
        return OpenOldAlbum(path);
    return OpenWithPassword(path, password);
}

void ReleaseAlbum()
{
    for (std::unique_ptr<RecordSet>* set :
         {&ParamsSet, &ParagraphSet, &ImageSet, &ChapterSet, &LinkedImagesSet})
        set->reset();
    AlbumDatabase.reset();
}

bool CreateAlbumFile(const QString& path)
{
    QFile source(ProgramFile(QStringLiteral("Album.tpl")));
    if (!source.open(QIODevice::ReadOnly)) {
        Tell(AlbumTexts::tr("The template '%1' cannot be read: %2")
                 .arg(source.fileName(), source.errorString()),
             Dialogs::Icon::Warning);
        return false;
    }
    QSaveFile target(path);
    const QByteArray contents = source.readAll();
    if (!target.open(QIODevice::WriteOnly) || target.write(contents) != contents.size() ||
        !target.commit()) {
        Tell(AlbumTexts::tr("The album '%1' cannot be created: %2")
                 .arg(QDir::toNativeSeparators(path), target.errorString()),
             Dialogs::Icon::Warning);
        return false;
    }
    // A journal left by the file that was replaced would be played back into the new album.
    for (const char* ending : {"-journal", "-wal", "-shm"})
        QFile::remove(path + QLatin1String(ending));
    return true;
}

bool FindById(RecordSet& set, qint32 id)
{
    set.FindFirst(QStringLiteral("[Id]=") + QString::number(id));
    return !set.NoMatch();
}

} // namespace GeneralModule
