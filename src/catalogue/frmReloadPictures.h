// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <functional>
#include <memory>

class FolderChooser;
struct RepointedPictures;

namespace Ui {
class frmReloadPictures;
}

// Updates the paths of pictures whose files were moved to another folder.
class frmReloadPictures : public QDialog
{
    Q_OBJECT

public:
    explicit frmReloadPictures(QWidget* parent = nullptr);
    ~frmReloadPictures() override;

    // As in frmMissingPictures.
    std::function<void(QWidget* window)> ShowPictures;

private:
    void Form_Load();
    void lstOldReferences_Click();
    void drvNewReferences_Change();
    void dirNewReferences_Change();
    void cmdReloadPictures_Click();
    void cmdMissing_Click();

    void ShowFolders();
    void ShowUpdated(const RepointedPictures& done);

    std::unique_ptr<Ui::frmReloadPictures> ui_;
    std::unique_ptr<FolderChooser> chooser_;
    QString newFolder_; // empty until one is chosen
};
