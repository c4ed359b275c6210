// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

#include <memory>

class QAction;
class QPushButton;
struct DroppedFiles;
struct MainWindowState;

namespace Ui {
class frmOpenChapter;
}

// The main window: opens or makes an album, lists its chapters in reading order, and is the hub
// from which every other window is opened.
class frmOpenChapter : public QMainWindow
{
    Q_OBJECT

public:
    // Opens the given album, or the one opened last when album is empty.
    explicit frmOpenChapter(const QString& album = {});
    ~frmOpenChapter() override;

    // Asked of the album each time: a copy would be wrong while a box of its opening is up.
    bool AlbumOpen() const;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Form_Load(const QString& album);
    // Selects the chapter of that name, else keeps the selection by its name.
    void FillChapterList(const QString& selected = {});
    void RefreshState();
    void OfferChanges(const MainWindowState& state);

    void mnuOpenScript_Click();
    void mnuCreateScript_Click();
    void mnuExit_Click();
    void cmdReadChapter_Click();
    void cmdCreateChapter_Click();
    void mnuRename_Click();
    void mnuDeleteChapter_Click();
    void cmdMoveUp_Click();
    void cmdMoveDown_Click();
    void mnuLoadPictures_Click();
    void mnuReloadPictures_Click();
    void mnuUndefined_Click();
    void mnuSelectedUndefined_Click();
    void mnuAllPictures_Click();
    void mnuSelectedPictures_Click();
    void mnuRepair_Click();
    void mnuPassword_Click();
    void mnuAbout_Click();
    void mnuPhotoAlbumHelp_Click();

    void ConnectControls();
    void Connect(QPushButton* button, QAction* entry, void (frmOpenChapter::*handler)(),
                 const char* icon);
    void ComeToFront();
    void DecorateWarning();
    void TintWarning();
    // From whichever way the album was chosen.
    void OpenChosen(const QString& path);
    void FillRecentAlbums();
    void TakeDropped(const DroppedFiles& files);
    void LoadDropped(const DroppedFiles& files);
    // Both take what is shown of each characteristic: "*" for any value, "-" for none.
    void ShowPictures(const QString& imageSelection, const QString& fileSelection);
    void ShowChosenFolder(const QString& imageSelection);
    QString SelectedChapter() const;
    // Asks until the answer is a name that a chapter may get; empty when the user gave up. ownName
    // does not count as taken.
    QString AskChapterName(const QString& prompt, const QString& ownName);
    bool IsListed(const QString& name) const;
    void SelectRow(int row);

    std::unique_ptr<Ui::frmOpenChapter> ui_;
    bool isRefilling_ = false;
};
