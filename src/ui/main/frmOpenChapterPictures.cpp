// SPDX-License-Identifier: MIT
#include "catalogue/frmLoadFiles.h"
#include "catalogue/frmReloadPictures.h"
#include "ui/main/frmOpenChapter.h"
#include "ui_frmOpenChapter.h"
#include "viewer/ViewerFlags.h"
#include "viewer/frmReelvane.h"
#include "viewer/frmSelectImages.h"

using namespace GeneralModule;

// The entries of the pictures' menu.

void frmOpenChapter::mnuLoadPictures_Click()
{
    frmLoadFiles(this).exec();
    RefreshState();
}

void frmOpenChapter::mnuReloadPictures_Click()
{
    frmReloadPictures(this).exec();
    RefreshState();
}

void frmOpenChapter::ShowPictures(const QString& imageSelection, const QString& fileSelection)
{
    AutoviewOn = false;
    frmReelvane viewer(this);
    viewer.FileSelection = fileSelection;
    viewer.ImageSelection = imageSelection;
    viewer.exec();
    RefreshState();
}

void frmOpenChapter::ShowChosenFolder(const QString& imageSelection)
{
    frmSelectImages chooser(this);
    chooser.exec(); // also chooses the order
    if (!chooser.FileSelection.isEmpty())
        ShowPictures(imageSelection, chooser.FileSelection);
}

void frmOpenChapter::mnuUndefined_Click()
{
    PictureAtRandom = true;
    ShowPictures(QStringLiteral("-"), {});
}

void frmOpenChapter::mnuSelectedUndefined_Click()
{
    ShowChosenFolder(QStringLiteral("-"));
}

void frmOpenChapter::mnuAllPictures_Click()
{
    PictureAtRandom = true;
    ShowPictures(QStringLiteral("*"), {});
}

void frmOpenChapter::mnuSelectedPictures_Click()
{
    ShowChosenFolder(QStringLiteral("*"));
}
