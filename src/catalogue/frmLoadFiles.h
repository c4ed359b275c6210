// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/PictureTree.h"

#include <QDialog>

#include <memory>
#include <vector>

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

    // Describes pictures, in front of the window; if not set, that is not offered.
    std::function<void(QWidget* window, const std::vector<qint32>& pictures)> DescribePictures;

private:
    void Form_Load();
    void drvPicturesToLoad_Change();
    void dirPicturesToLoad_Change();
    void txtPictureTypes_Change();
    void cmdLoad_Click();
    void cmdLoadMarked_Click();
    void cmdDescribeNew_Click();

    void OfferKinds();
    void ShowCount();
    // None when the user stopped the search.
    std::optional<PictureFiles> FindFiles();
    void Load(const PictureFiles& files);
    void LoadFiles(const PictureFiles& files);
    void TakeFromFiles();
    void TellWhatWasLoaded(const PictureFiles& files, int loaded);

    std::unique_ptr<Ui::frmLoadFiles> ui_;
    std::unique_ptr<FolderChooser> chooser_;
    std::vector<qint32> loaded_; // new pictures of the last loading
};
