// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/FoundPictures.h"
#include "platform/shell/IdleWork.h"

#include <QDialog>

#include <memory>

class FoundModel;

namespace Ui {
class frmMissingPictures;
}

// Finds pictures again whose files have moved: shows which folders miss some, looks for their files
// in a folder and all folders in it, shows what was found, and takes the new paths.
class frmMissingPictures : public QDialog
{
    Q_OBJECT

public:
    explicit frmMissingPictures(QWidget* parent = nullptr);
    ~frmMissingPictures() override;

    // Shows the missing pictures in front of the window; if not set, that is not offered.
    std::function<void(QWidget* window)> ShowPictures;

protected:
    void showEvent(QShowEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void ConnectControls();
    void Form_Load();
    bool LookForFiles(std::chrono::milliseconds time);
    void ShowFolders();
    void RefreshState();
    // Those of the chosen folders, or all where none is chosen.
    std::vector<MissingPicture> Wanted() const;
    void ShowFound(std::vector<FoundPicture> found, const QString& remark);
    void ShowCounts();
    void ShowCandidates();
    void CandidateChosen(int number);

    void cmdFolder_Click();
    void cmdSearch_Click();
    void cmdTake_Click();
    void cmdShow_Click();
    void cmdExit_Click();

    std::unique_ptr<Ui::frmMissingPictures> ui_;
    FoundModel* found_;
    std::unique_ptr<MissingPictures> missing_;
    IdleWork looking_;
    bool isLookedFor_ = false; // whether all files were looked for
    QString remark_;           // on the last search
};
