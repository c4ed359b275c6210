// SPDX-License-Identifier: MIT
#include "ui/main/AlbumOpener.h"

#include "core/Album.h"
#include "core/EarlierStates.h"
#include "core/InstalledSample.h"
#include "core/Settings.h"
#include "core/StateKeeping.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FolderListing.h"
#include "platform/files/PathRoutines.h"
#include "ui/main/ChapterList.h"
#include "ui/main/frmEarlierStates.h"

#include <QApplication>
#include <QDir>

using namespace GeneralModule;

namespace {

// Of the last album, or on a first start the user's documents.
QString FolderToBeginWith()
{
    const QString folder = FolderOf(GetLastAlbum());
    return folder.isEmpty() ? UsersDocumentFolder() : folder;
}

// "My Album.alb", or the first "My Album 2.alb" that is free.
QString FreeAlbumName(const QString& folder)
{
    QString name = AlbumOpener::tr("My Album.alb");
    for (int number = 2; QFileInfo::exists(QDir(folder).filePath(name)); ++number)
        name = AlbumOpener::tr("My Album %1.alb").arg(number);
    return name;
}

} // namespace

AlbumOpener::AlbumOpener(QMenu* recent, ChapterList* chapters, std::function<void()> onDone)
    : recent_(recent, [this](const QString& path) { Open(path); }),
      chapters_(chapters),
      onDone_(std::move(onDone))
{
}

void AlbumOpener::OpenFirst(const QString& path)
{
    const QString chosen = path.isEmpty() ? GetLastAlbum() : path;
    if (!chosen.isEmpty())
        OpenAlbum(chosen);
    recent_.Fill();
    const QString returning = TakeAlbumToReturn();
    if (!returning.isEmpty())
        LetReturn(returning);
}

void AlbumOpener::Open(const QString& path)
{
    chapters_->Clear();
    const bool isOpen = OpenAlbum(path);
    recent_.Fill();
    if (isOpen)
        chapters_->Fill();
    onDone_();
    const QString returning = TakeAlbumToReturn();
    if (!returning.isEmpty())
        ShowEarlierStates(returning);
}

void AlbumOpener::LetReturn(const QString& album)
{
    frmEarlierStates states(QApplication::activeWindow());
    states.AlbumPath = album;
    states.exec();
}

void AlbumOpener::ShowEarlierStates(const QString& album)
{
    LetReturn(album);
    recent_.Fill();
    chapters_->Clear();
    if (IsAlbumOpen())
        chapters_->Fill();
    onDone_();
}

void AlbumOpener::TellStateTrouble()
{
    using Answer = Dialogs::Answer;
    const std::optional<StateTrouble> trouble = TakeStateTrouble();
    if (!trouble)
        return;
    if (!trouble->isDamaged || EarlierStatesOf(OpenAlbumPath()).empty())
        return Tell(trouble->text, Dialogs::Icon::Warning);
    const Answer answer =
        Dialogs::Door().Ask({.text = trouble->text + u'\n' +
                                     tr("Earlier states of it are kept. Do you want to see them?"),
                             .icon = Dialogs::Icon::Warning,
                             .buttons = Dialogs::Buttons::YesNo,
                             .defaultAnswer = Answer::Yes});
    if (answer == Answer::Yes)
        ShowEarlierStates(OpenAlbumPath());
}

void AlbumOpener::AskAndOpen()
{
    const QString path =
        Dialogs::Door().AskOpenFile({tr("Open Album"), tr("Album|*.alb"), FolderToBeginWith()});
    if (path.isEmpty())
        return onDone_();
    Open(path);
}

void AlbumOpener::AskAndCreate()
{
    const QString folder = FolderToBeginWith();
    const QString path = Dialogs::Door().AskSaveFile(
        {tr("Create a new Album"), tr("Album|*.alb"), folder, FreeAlbumName(folder)});
    if (path.isEmpty())
        return onDone_();
    if (CreateAlbumFile(path))
        return Open(path);
    // As after opening in vain, so that nobody goes on in the former album by mistake.
    chapters_->Clear();
    ReleaseAlbum();
    onDone_();
}

void AlbumOpener::OpenSample(const QString& sample)
{
    SampleCopy copy;
    RunLong(tr("The sample story is being copied..."), true, [&](const auto& isStopped) {
        copy = ProvideSample(sample, UsersDocumentFolder(), isStopped);
    });
    if (!copy.error.isEmpty())
        Tell(copy.error, Dialogs::Icon::Warning);
    if (!copy.album.isEmpty())
        Open(copy.album);
}
