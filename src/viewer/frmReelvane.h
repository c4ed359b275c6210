// SPDX-License-Identifier: MIT
#pragma once

#include "core/PictureList.h"
#include "viewer/PictureScreen.h"
#include "viewer/StoryWalk.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <memory>
#include <vector>

class RecordSet;
class StoryPage;

namespace Ui {
class frmReelvane;
}

// The viewer: reads a story paragraph by paragraph, each with its pictures above its text, or shows
// pictures that belong to no story.
//
// Whoever opens it sets the public state below and then shows it modally; showing it starts the
// display.
class frmReelvane : public QDialog
{
    Q_OBJECT

public:
    explicit frmReelvane(QWidget* parent = nullptr);
    ~frmReelvane() override;

    qint32 CurrentChapter = 0;   // 0: pictures outside the story are shown
    qint32 CurrentParagraph = 0; // 0: none
    QString FileSelection;       // pattern of the paths to show outside the story; empty for any
    QString ImageSelection = QStringLiteral("*"); // "*": any picture, "-": those not yet indexed
    int Nblines = 1;                              // lines of pictures on a screen, 0 to 4
    QString LastImageDisplayed; // File of the last picture on the screen, empty when there is none
    StoryPage* DisplayForm;     // what is drawn on

    void DisplayChapter();
    void DisplayParagraph();
    void DisplayNextParagraph();
    void DisplayPreviousParagraph();
    void GoToNextChapter();
    void GoToTopOfChapter();
    void CloseViewer();

    // Opens the paragraph editor on the current paragraph, which an empty chapter is given first,
    // and follows it to where the user went.
    void EditCurrentParagraph();

    // Shows the pictures of the album that fit a selection, at most that many. An empty selection
    // means any path.
    void DisplayUndefined(const QString& fileSelection, int maxImages);

    // True when the key is used up.
    bool Form_KeyDown(QKeyEvent& key);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void ConnectControls();
    void Form_Resize();

    void cmdNextImages_Click();
    void cmdZoomIn_Click();
    void cmdZoomOut_Click();
    void cmdRefresh_Click();
    void cmdEditParagraph_Click();
    void lblLegend_Click();
    void imgImage_MouseDown(int index, Qt::MouseButton button);
    void imgFullSize_MouseDown(Qt::MouseButton button);

    void FollowStep(StoryStep step, const StoryPosition& position);
    void FillPictureList(RecordSet& paragraph, int maxImages);
    void DisplayImagesFromList(bool displayAgain);
    void DisplayEmptyChapter();
    void ShowText(bool isBrowsing);
    bool HasParagraphToEdit();
    void ShowLargePicture(const ShownPicture& picture);
    void IndexPicture(const QString& file);
    void DropTakenOut(const QStringList& files);

    std::unique_ptr<Ui::frmReelvane> ui_;
    PictureList lstImage_;
    std::vector<ShownPicture> displayed_;
    QString text_; // of the paragraph, or the invitation of an empty chapter, before it is filled
    QTimer resizeDelay_;
    QElapsedTimer sinceResize_;
};
