// SPDX-License-Identifier: MIT
#include "ui/main/ViewerWindows.h"

#include "viewer/ViewerFlags.h"
#include "viewer/frmReelvane.h"
#include "viewer/frmSelectImages.h"

using GeneralModule::AutoviewOn;

void ReadChapter(QWidget* parent, qint32 chapter)
{
    AutoviewOn = false;
    frmReelvane viewer(parent);
    viewer.CurrentChapter = chapter;
    viewer.exec();
}

void BrowsePictures(QWidget* parent, const QString& imageSelection, const QString& fileSelection)
{
    AutoviewOn = false;
    frmReelvane viewer(parent);
    viewer.FileSelection = fileSelection;
    viewer.ImageSelection = imageSelection;
    viewer.exec();
}

bool BrowseChosenFolder(QWidget* parent, const QString& imageSelection)
{
    frmSelectImages chooser(parent);
    chooser.exec(); // also chooses the order
    if (chooser.FileSelection.isEmpty())
        return false;
    BrowsePictures(parent, imageSelection, chooser.FileSelection);
    return true;
}
