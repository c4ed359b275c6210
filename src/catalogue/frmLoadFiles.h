// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class FolderChooser;

namespace Ui {
class frmLoadFiles;
}

// Adds the picture files of a folder to the album.
class frmLoadFiles : public QDialog
{
    Q_OBJECT

public:
    explicit frmLoadFiles(QWidget* parent = nullptr);
    ~frmLoadFiles() override;

private:
    void Form_Load();
    void drvPicturesToLoad_Change();
    void dirPicturesToLoad_Change();
    void txtPictureTypes_Change();
    void cmdLoad_Click();

    void ShowCount();

    std::unique_ptr<Ui::frmLoadFiles> ui_;
    std::unique_ptr<FolderChooser> chooser_;
};
