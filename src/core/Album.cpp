// SPDX-License-Identifier: MIT
#include "core/Album.h"

#include "core/AlbumSets.h"
#include "core/EarlierStates.h"
#include "core/PasswordChange.h"
#include "core/RecentAlbums.h"
#include "core/Settings.h"
#include "core/StateKeeping.h"
#include "core/UndoHistory.h"
#include "core/oldalbum/OldAlbum.h"
#include "platform/data/DatabaseFile.h"
#include "platform/data/WriteBatch.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FileClaim.h"
#include "platform/files/FileReplacement.h"
#include "platform/files/PathRoutines.h"
#include "platform/shell/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <optional>
#include <system_error>
#include <utility>

namespace {

using namespace GeneralModule;

struct AlbumTexts
{
    Q_DECLARE_TR_FUNCTIONS(Album)
};

// Asked first: one query looks at every paragraph faster than a walk does.
bool HasEmptySelections(const Album& album)
{
    return Statement(album.database->GetEngine(),
                     "SELECT 1 FROM Paragraph WHERE FileSelection IS NULL LIMIT 1")
        .Step();
}

// Older programs left FileSelection without a value; every reader counts on a text.
void FillEmptySelections(Album& album)
{
    if (!HasEmptySelections(album))
        return;
    RecordSet& paragraphs = album.paragraphs;
    const RecordSet::Walk walk(paragraphs);
    std::optional<WriteBatch> batch;
    const int selection = paragraphs.FieldNumber(u"FileSelection");
    for (paragraphs.MoveFirst(); !paragraphs.AtEnd(); paragraphs.MoveNext()) {
        if (!paragraphs.IsNull(selection))
            continue;
        if (!batch)
            batch.emplace(album.database);
        paragraphs.Edit();
        paragraphs.Set(u"FileSelection", QString());
        paragraphs.Update();
        batch->RowDone();
    }
    if (batch)
        batch->Finish();
}

// What went wrong, for the user to read; empty when nothing did.
QString CleanUpParagraphs(Album& album)
{
    if (album.database->IsReadOnly())
        return {};
    try {
        FillEmptySelections(album);
        return {};
    } catch (const DatabaseError& error) {
        return AlbumTexts::tr("Unexpected Error : %1 %2")
            .arg(error.GetNumber())
            .arg(error.GetDescription());
    }
}

std::unique_ptr<Album> OpenCleaned(const QString& path, const QString& password)
{
    std::unique_ptr<Album> album;
    QString trouble;
    RunLong(AlbumTexts::tr("The album is being opened..."), false, [&](const auto&) {
        album = std::make_unique<Album>(path, password);
        trouble = CleanUpParagraphs(*album);
        album->history->Begin();
    });
    if (!trouble.isEmpty())
        Tell(trouble, Dialogs::Icon::Warning);
    return album;
}

std::unique_ptr<FileClaim> claim; // on the open album's file
std::function<void()> callHandler;
bool hasGoneToOtherWindow = false;

// False when the user does not want a second window on the album.
bool ClaimAlbum(const QString& path)
{
    using Answer = Dialogs::Answer;
    claim = std::make_unique<FileClaim>(path, [] {
        if (callHandler)
            callHandler();
    });
    if (claim->IsOurs())
        return true;
    const Answer answer = Dialogs::Door().Ask(
        {.text = AlbumTexts::tr("This album is open in another window already:\n%1")
                     .arg(QDir::toNativeSeparators(path)),
         .icon = Dialogs::Icon::Question,
         .buttons = Dialogs::Buttons::YesNoCancel,
         .defaultAnswer = Answer::Yes,
         .yes = AlbumTexts::tr("Go to That Window"),
         .no = AlbumTexts::tr("Open Here Too")});
    hasGoneToOtherWindow = answer == Answer::Yes;
    if (hasGoneToOtherWindow)
        claim->CallHolder();
    return answer == Answer::No;
}

QString albumToReturn;

// Whether the album's file is gone or cannot be used, and an earlier state of it is there instead.
bool CanReturn(const QString& path, const DatabaseError& error)
{
    constexpr std::array numbers{DatabaseError::NoSuchFile, DatabaseError::Damaged,
                                 DatabaseError::NotADatabase, DatabaseError::DiskError};
    return std::find(numbers.begin(), numbers.end(), error.GetNumber()) != numbers.end() &&
           !EarlierStatesOf(path).empty();
}

void OfferReturn(const QString& path, const DatabaseError& error)
{
    using Answer = Dialogs::Answer;
    const Answer answer = Dialogs::Door().Ask(
        {.text = AlbumTexts::tr("Error %1 %2\n%3")
                     .arg(error.GetNumber())
                     .arg(error.GetDescription(),
                          AlbumTexts::tr("Earlier states of this album are kept, the newest of "
                                         "%1. Do you want to see them?")
                              .arg(TimeText(EarlierStatesOf(path).front().kept))),
         .icon = Dialogs::Icon::Warning,
         .buttons = Dialogs::Buttons::YesNo,
         .defaultAnswer = Answer::Yes});
    if (answer == Answer::Yes)
        albumToReturn = path;
}

void TellWhyNot(const QString& path, const DatabaseError& error)
{
    if (CanReturn(path, error))
        return OfferReturn(path, error);
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
    ClearBrokenPasswordChange(path);
    if (!ClaimAlbum(path))
        return false;
    while (true) {
        try {
            std::unique_ptr<Album> album = OpenCleaned(path, password);
            if (!album->database->IsReadOnly())
                AskAboutLargeAlbum(path, !album->database->GetPassword().isEmpty());
            SetOpenedAlbum(std::move(album));
            if (!IsEarlierState(path)) {
                SaveLastAlbum(path);
                RememberRecentAlbum(path);
            }
            return true;
        } catch (const DatabaseError& error) {
            if (error.GetNumber() != DatabaseError::WrongPassword) {
                TellWhyNot(path, error);
                return false;
            }
        }
        password = Dialogs::Door().AskText(
            {.prompt = AlbumTexts::tr("Please give the password for : %1").arg(path),
             .note = password.isEmpty() ? QString() : AlbumTexts::tr("Wrong password"),
             .isPassword = true});
        if (password.isEmpty())
            return false;
    }
}

// Opens a new album that is made of the old one.
bool OpenOldAlbum(const QString& path)
{
    try {
        const std::optional<NewAlbum> made = OfferConversion(path);
        if (!made)
            return false;
        const bool isOpen = OpenWithPassword(made->path, made->password);
        Tell(made->report, made->isWhole ? Dialogs::Icon::Information : Dialogs::Icon::Warning);
        return isOpen;
    } catch (const DatabaseError& error) {
        TellWhyNot(path, error);
        return false;
    }
}

} // namespace

namespace GeneralModule {

bool IsAlbumOpen()
{
    return FindOpenedAlbum() != nullptr;
}

QString OpenAlbumPath()
{
    const Album* album = FindOpenedAlbum();
    return album ? album->database->GetPath() : QString();
}

QString OpenAlbumTitle()
{
    const QString path = OpenAlbumPath();
    QString album;
    if (!IsEarlierState(path, &album))
        return FileNameOf(path);
    return AlbumTexts::tr("%1 as it was on %2").arg(FileNameOf(album), TimeText(StateTime(path)));
}

QString TakeAlbumToReturn()
{
    return std::exchange(albumToReturn, {});
}

AlbumVersion GetAlbumVersion()
{
    return {AlbumDatabase->ChangeCount(), AlbumDatabase->VersionElsewhere()};
}

NoWaiting::NoWaiting() : database_(AlbumDatabase), wasWaiting_(database_->SetWaiting(false)) {}

NoWaiting::~NoWaiting()
{
    database_->SetWaiting(wasWaiting_);
}

bool IsAlbumReadOnly()
{
    const Album* album = FindOpenedAlbum();
    return album && album->database->IsReadOnly();
}

QString ReadOnlyReason()
{
    if (IsEarlierState(OpenAlbumPath()))
        return AlbumTexts::tr(
            "This is an earlier state of an album: it can be read, but not changed.");
    return AlbumTexts::tr(
        "This album can be read, but not changed: its file or its folder is read-only.");
}

// Released first: while boxes are up nothing may be changed in the wrong album, and an album that
// is made of an old one may take the place of the one that was open.
bool OpenAlbum(const QString& path, const QString& password)
{
    ReleaseAlbum();
    hasGoneToOtherWindow = false;
    const bool isOpen = KindOfDatabaseFile(path) == DatabaseFileKind::OldAlbum
                            ? OpenOldAlbum(path)
                            : OpenWithPassword(path, password);
    if (!isOpen)
        claim.reset();
    return isOpen;
}

void ReleaseAlbum()
{
    SetOpenedAlbum(nullptr);
    claim.reset();
}

bool HasGoneToOtherWindow()
{
    return hasGoneToOtherWindow;
}

void SetCallHandler(const std::function<void()>& onCalled)
{
    callHandler = onCalled;
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
    const QByteArray contents = source.readAll();
    const auto tellWhyNot = [&path](const QString& reason) {
        Tell(AlbumTexts::tr("The album '%1' cannot be created: %2")
                 .arg(QDir::toNativeSeparators(path), reason),
             Dialogs::Icon::Warning);
        return false;
    };
    try {
        FileReplacement replacement(path);
        QFile target(replacement.GetPath());
        if (!target.open(QIODevice::WriteOnly) || target.write(contents) != contents.size() ||
            !target.flush())
            return tellWhyNot(target.errorString());
        target.close();
        replacement.Commit();
    } catch (const std::system_error& error) {
        return tellWhyNot(QString::fromLocal8Bit(error.code().message().c_str()));
    }
    return true;
}

} // namespace GeneralModule
