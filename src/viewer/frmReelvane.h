// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/Autoview.h"
#include "viewer/PageDisplay.h"
#include "viewer/StoryWalk.h"
#include "viewer/ViewerKeys.h"

#include <QDialog>

#include <memory>

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
    StoryPage* DisplayForm;     // what is drawn on: the own page, or the full-screen view's

    void DisplayChapter();
    void DisplayParagraph();
    void DisplayNextParagraph();
    void DisplayPreviousParagraph();
    void GoToNextChapter();
    void GoToTopOfChapter();
    // Closes the full-screen view as well while it is open.
    void CloseViewer();

    // Shows on DisplayForm what is on show already: the paragraph, else the chapter from its
    // beginning, or the selection from its beginning.
    void DisplayAgain();

    // Opens the paragraph editor on the current paragraph, which an empty chapter is given first,
    // and follows it to where the user went.
    void EditCurrentParagraph();

    // Shows the pictures of the album that fit a selection, at most that many. An empty selection
    // means any path.
    void DisplayUndefined(const QString& fileSelection, int maxImages);

    // True when the key is used up.
    bool Form_KeyDown(const QKeyEvent& key);
    // Handles the clicks on a page that is drawn on.
    void TakeClicksOf(StoryPage* page);

    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void ConnectControls();
    void Form_Resize();
    bool Run(ViewerCommand command);
    bool IsFullScreenOpen() const;
    // Whether no other window and no message box is in front of what is drawn on.
    bool IsInFront() const;

    void PressFocusedButton();

    void cmdNextImages_Click();
    void cmdZoomIn_Click();
    void cmdZoomOut_Click();
    void cmdTimer_Click();
    void cmdRefresh_Click();
    void cmdEditParagraph_Click();
    void cmdHideMenu_Click();
    void lblLegend_Click();
    void imgImage_MouseDown(int index, Qt::MouseButton button);
    void imgFullSize_MouseDown(Qt::MouseButton button);
    void timImage_Timer();

    void FollowStep(StoryStep step, const StoryPosition& position);
    void DisplaySelection();
    void DisplayImagesFromList(bool isAgain);
    void DisplayEmptyChapter();
    void ShowText(bool isBrowsing);
    void ShowAutoviewState(bool isOn);
    bool HasParagraphToEdit();
    void IndexPicture(const QString& file);

    std::unique_ptr<Ui::frmReelvane> ui_;
    PageDisplay display_{DisplayForm};
    Autoview autoview_;
};
