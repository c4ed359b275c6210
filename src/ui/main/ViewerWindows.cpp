// SPDX-License-Identifier: MIT
#include "ui/main/ViewerWindows.h"

#include "gallery/frmDescribePictures.h"
#include "gallery/frmFindPictures.h"
#include "gallery/frmLinkedPictures.h"
#include "platform/dialogs/Guard.h"
#include "viewer/ViewerFlags.h"
#include "viewer/frmReelvane.h"
#include "viewer/frmSelectImages.h"

#include <QKeyEvent>
#include <QTimer>

using GeneralModule::AutoviewOn;
using GeneralModule::PictureAtRandom;

void ReadChapter(QWidget* parent, qint32 chapter)
{
    AutoviewOn = false;
    frmReelvane viewer(parent);
    viewer.CurrentChapter = chapter;
    viewer.exec();
}

void ReadFullScreen(QWidget* parent, qint32 chapter)
{
    AutoviewOn = false;
    frmReelvane viewer(parent);
    viewer.CurrentChapter = chapter;
    // By its key, once the viewer is on show and has begun to read.
    QTimer::singleShot(0, &viewer, [&viewer] {
        RunGuarded([&viewer] {
            viewer.Form_KeyDown(QKeyEvent(QEvent::KeyPress, Qt::Key_F11, Qt::NoModifier));
        });
    });
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

void OpenPictureFinder(const FindRequest& request, bool isMissing)
{
    frmFindPictures finder(request.parent);
    finder.Values = request.values;
    finder.CurrentParagraph = request.paragraph;
    finder.IsMissing = isMissing;
    finder.ReadPictures = [&request](QWidget* window, const QStringList& files) {
        AutoviewOn = false;
        PictureAtRandom = false;
        frmReelvane viewer(window);
        viewer.ChosenFiles = files;
        viewer.ParagraphToLink = request.paragraph;
        viewer.exec();
    };
    finder.exec();
}

void OpenLinkedPictures(QWidget* parent, qint32 paragraph)
{
    frmLinkedPictures window(parent);
    window.CurrentParagraph = paragraph;
    window.exec();
}

void DescribeTogether(QWidget* parent, const std::vector<qint32>& pictures)
{
    frmDescribePictures window(parent);
    window.Pictures = pictures;
    window.exec();
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
