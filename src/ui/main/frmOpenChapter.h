// SPDX-License-Identifier: MIT
#pragma once

#include "core/InstalledSample.h"
#include "ui/main/MainWindowCommand.h"

#include <QMainWindow>

#include <memory>
#include <vector>

class AlbumOpener;
class AlbumStatus;
class ChapterList;
class FileDrop;
class GuidanceLook;
class RowDrag;

namespace Ui {
class frmOpenChapter;
}

// The main window: opens or makes an album, lists its chapters in reading order, and is the hub
// from which every other window is opened.
class frmOpenChapter : public QMainWindow
{
    Q_OBJECT

public:
    // Opens the given album, or the one opened last when album is empty. Offers the sample story
    // with that album, unless sample is empty.
    explicit frmOpenChapter(const QString& album = {},
                            const QString& sample = GeneralModule::InstalledSample());
    ~frmOpenChapter() override;

    // Asked of the album each time: a copy would be wrong while a box of its opening is up.
    bool AlbumOpen() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Form_Load(const QString& album);
    void RefreshState();
    void ShowAlbumAgain(); // after chapters may have changed elsewhere

    void mnuOpenScript_Click();
    void mnuCreateScript_Click();
    void mnuOpenSample_Click();
    void mnuExit_Click();
    void cmdReadChapter_Click();
    void mnuReadFullScreen_Click();
    void cmdCreateChapter_Click();
    void mnuRename_Click();
    void mnuDeleteChapter_Click();
    void cmdMoveUp_Click();
    void cmdMoveDown_Click();
    void mnuLoadPictures_Click();
    void mnuReloadPictures_Click();
    void mnuUndefined_Click();
    void mnuSelectedUndefined_Click();
    void mnuFindPictures_Click();
    void mnuAllPictures_Click();
    void mnuSelectedPictures_Click();
    void mnuPublish_Click();
    void mnuRepair_Click();
    void mnuCheck_Click();
    void mnuEarlierStates_Click();
    void mnuPassword_Click();
    void mnuEditTables_Click();
    void mnuEditLabels_Click();
    void mnuAbout_Click();
    void mnuPhotoAlbumHelp_Click();
    void mnuKeys_Click();
    void MoveRow(int from, int to);
    void mnuMissingPictures_Click();
    // Shows the selected chapter by that routine.
    void Read(void (*showChapter)(QWidget* parent, qint32 chapter));

    void ConnectCommands();
    std::vector<MainWindowCommand> StoryCommands();
    std::vector<MainWindowCommand> PictureCommands();
    std::vector<MainWindowCommand> OtherCommands();
    void ConnectControls();

    const QString sample_;
    std::unique_ptr<Ui::frmOpenChapter> ui_;
    std::unique_ptr<ChapterList> chapters_;
    std::unique_ptr<AlbumOpener> albums_;
    std::unique_ptr<FileDrop> drop_;
    std::unique_ptr<GuidanceLook> guidance_;
    std::unique_ptr<AlbumStatus> status_;
    RowDrag* drag_ = nullptr;
    std::vector<MainWindowCommand> commands_;
    bool isRefilling_ = false;
};
