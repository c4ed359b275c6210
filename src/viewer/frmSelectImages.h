// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class FolderChooser;

namespace Ui {
class frmSelectImages;
}

// Chooses the pictures to show by their folder and by a pattern of their file names.
class frmSelectImages : public QDialog
{
    Q_OBJECT

public:
    explicit frmSelectImages(QWidget* parent = nullptr);
    ~frmSelectImages() override;

    // A folder and a pattern after it. Before showing: where to begin, empty for the selection
    // that the album saw last. After: what was chosen, empty when nothing was.
    QString FileSelection;

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    void drvPicturesToSelect_Change();
    void dirPicturesToSelect_Change();
    void txtPictureTypes_Change();
    void cmdSelect_Click();
    void cmdCancel_Click();

    std::unique_ptr<Ui::frmSelectImages> ui_;
    std::unique_ptr<FolderChooser> chooser_;
};
