// SPDX-License-Identifier: MIT
// What the main window's buttons and menu entries do, and when they are offered.
#include "ui/main/frmOpenChapter.h"
#include "ui_frmOpenChapter.h"

#include "platform/dialogs/Guard.h"
#include "ui/main/DescriptionTransfer.h"

void frmOpenChapter::ConnectCommands()
{
    for (auto commands : {&frmOpenChapter::StoryCommands, &frmOpenChapter::PictureCommands,
                          &frmOpenChapter::OtherCommands}) {
        for (MainWindowCommand& command : (this->*commands)())
            commands_.push_back(std::move(command));
    }
    for (const MainWindowCommand& command : commands_)
        ConnectCommand(command);
}

std::vector<MainWindowCommand> frmOpenChapter::StoryCommands()
{
    using Form = frmOpenChapter;
    using State = MainWindowState;
    const Ui::frmOpenChapter& ui = *ui_;
    const auto on = [this](void (Form::*handler)()) { return Guarded(this, handler); };
    return {
        {on(&Form::mnuOpenScript_Click), "album-open", ui.cmdOpenAlbum, ui.mnuOpenScript},
        {on(&Form::mnuCreateScript_Click), "album-create", ui.cmdCreateAlbum, ui.mnuCreateScript},
        {on(&Form::mnuOpenSample_Click), "read-chapter", ui.cmdOpenSample, ui.mnuOpenSample},
        {on(&Form::mnuPublish_Click), "", nullptr, ui.mnuPublish, &State::offersAlbumCommands},
        {on(&Form::mnuExit_Click), "exit", ui.cmdExit, ui.mnuExit},
        {on(&Form::cmdReadChapter_Click), "read-chapter", ui.cmdReadChapter, ui.mnuReadChapter,
         &State::offersChapterCommands},
        {on(&Form::cmdCreateChapter_Click), "chapter-create", ui.cmdCreateChapter,
         ui.mnuCreateChapter, &State::offersAlbumCommands, true},
        {on(&Form::mnuRename_Click), "rename", nullptr, ui.mnuRename, &State::offersChapterCommands,
         true},
        {on(&Form::mnuDeleteChapter_Click), "delete", nullptr, ui.mnuDeleteChapter,
         &State::offersChapterCommands, true},
        {on(&Form::mnuReadFullScreen_Click), "full-screen", nullptr, ui.mnuReadFullScreen,
         &State::offersChapterCommands},
        {on(&Form::cmdMoveUp_Click), "move-up", ui.cmdMoveUp, ui.mnuMoveUp, &State::canMoveUp,
         true},
        {on(&Form::cmdMoveDown_Click), "move-down", ui.cmdMoveDown, ui.mnuMoveDown,
         &State::canMoveDown, true},
    };
}

std::vector<MainWindowCommand> frmOpenChapter::PictureCommands()
{
    using Form = frmOpenChapter;
    using State = MainWindowState;
    const Ui::frmOpenChapter& ui = *ui_;
    const auto on = [this](void (Form::*handler)()) { return Guarded(this, handler); };
    const auto transfer = [this](void (DescriptionTransfer::*way)() const) {
        return [this, way] {
            RunGuarded([&] { (DescriptionTransfer(ui_->progress).*way)(); });
            RefreshState();
        };
    };
    return {
        {on(&Form::mnuLoadPictures_Click), "load-pictures", ui.cmdLoadPictures, ui.mnuLoadPictures,
         &State::offersAlbumCommands, true},
        {on(&Form::mnuReloadPictures_Click), "refresh", nullptr, ui.mnuReloadPictures,
         &State::offersPictureCommands, true},
        {on(&Form::mnuUndefined_Click), "index-pictures", ui.cmdDisplayUndefined, ui.mnuUndefined,
         &State::offersPictureCommands, true},
        {on(&Form::mnuSelectedUndefined_Click), "", nullptr, ui.mnuSelectedUndefined,
         &State::offersPictureCommands, true},
        {on(&Form::mnuFindPictures_Click), "", nullptr, ui.mnuFindPictures,
         &State::offersPictureCommands},
        {on(&Form::mnuMissingPictures_Click), "", nullptr, ui.mnuMissingPictures,
         &State::offersPictureCommands},
        {transfer(&DescriptionTransfer::ExportTable), "", nullptr, ui.mnuExportTable,
         &State::offersPictureCommands},
        {transfer(&DescriptionTransfer::ImportTable), "", nullptr, ui.mnuImportTable,
         &State::offersPictureCommands, true},
        {transfer(&DescriptionTransfer::ExportSidecars), "", nullptr, ui.mnuExportSidecars,
         &State::offersPictureCommands},
        {transfer(&DescriptionTransfer::ImportSidecars), "", nullptr, ui.mnuImportSidecars,
         &State::offersPictureCommands, true},
        {on(&Form::mnuAllPictures_Click), "", nullptr, ui.mnuAllPictures,
         &State::offersPictureCommands},
        {on(&Form::mnuSelectedPictures_Click), "", nullptr, ui.mnuSelectedPictures,
         &State::offersPictureCommands},
    };
}

std::vector<MainWindowCommand> frmOpenChapter::OtherCommands()
{
    using Form = frmOpenChapter;
    using State = MainWindowState;
    const Ui::frmOpenChapter& ui = *ui_;
    const auto on = [this](void (Form::*handler)()) { return Guarded(this, handler); };
    return {
        {on(&Form::mnuRepair_Click), "repair", nullptr, ui.mnuRepair, &State::offersAlbumCommands,
         true},
        {on(&Form::mnuCheck_Click), "", nullptr, ui.mnuCheck, &State::offersAlbumCommands},
        {on(&Form::mnuEarlierStates_Click), "as-before", nullptr, ui.mnuEarlierStates,
         &State::offersAlbumCommands},
        {on(&Form::mnuPassword_Click), "", nullptr, ui.mnuPassword, &State::offersAlbumCommands,
         true},
        {on(&Form::mnuEditTables_Click), "", nullptr, ui.mnuEditTables, &State::offersAlbumCommands,
         true},
        {on(&Form::mnuEditLabels_Click), "", nullptr, ui.mnuEditLabels, &State::offersAlbumCommands,
         true},
        {on(&Form::mnuPhotoAlbumHelp_Click), "help", nullptr, ui.mnuPhotoAlbumHelp},
        {on(&Form::mnuKeys_Click), "", nullptr, ui.mnuKeys},
        {on(&Form::mnuAbout_Click), "about", nullptr, ui.mnuAbout},
    };
}
