// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/PageHost.h"
#include "viewer/StoryPage.h"
#include "viewer/StoryReader.h"
#include "viewer/ViewerKeys.h"

#include <QDialog>

#include <memory>
#include <vector>

class QPushButton;

namespace Ui {
class frmReelvane;
}

// The viewer: reads a story paragraph by paragraph, each with its pictures above its text, or shows
// pictures that belong to no story.
//
// Whoever opens it sets the public state below and then shows it modally; showing it starts the
// display.
class frmReelvane : public QDialog, public PageHost
{
    Q_OBJECT

    StoryReader reader_; // before the names below, which refer to it

public:
    explicit frmReelvane(QWidget* parent = nullptr);
    ~frmReelvane() override;

    // The reader's own state, under the names by which other windows know it.
    qint32& CurrentChapter = reader_.Position.chapter; // 0: pictures outside the story are shown
    qint32& CurrentParagraph = reader_.Position.paragraph; // 0: none
    QString& FileSelection = reader_.FileSelection;
    QStringList& ChosenFiles = reader_.ChosenFiles;
    QString& ImageSelection = reader_.ImageSelection;
    int& Nblines = reader_.Nblines;
    const QString& LastImageDisplayed = reader_.LastImageDisplayed;
    qint32 ParagraphToLink = 0;       // that pictures outside the story can be linked to; 0: none
    StoryPage* DisplayForm = nullptr; // what is drawn on: the own page, or the full-screen view's

    void DisplayChapter() { reader_.DisplayChapter(); }
    void DisplayParagraph() { reader_.DisplayParagraph(); }
    void DisplayNextParagraph() { reader_.Go(StoryWay::NextParagraph); }
    void DisplayPreviousParagraph() { reader_.Go(StoryWay::PreviousParagraph); }
    void GoToNextChapter() { reader_.Go(StoryWay::NextChapter); }
    void GoToTopOfChapter() { reader_.Go(StoryWay::TopOfChapter); }
    void DisplayUndefined(const QString& fileSelection, int maxImages)
    {
        reader_.DisplayUndefined(fileSelection, maxImages);
    }
    void EditCurrentParagraph();
    // Closes the full-screen view as well while it is open.
    void CloseViewer();

    QWidget* GetWindow() override { return this; }
    void TakeClicksOf(StoryPage* page) override;
    void DisplayAgain() override { reader_.DisplayAgain(); }
    bool Form_KeyDown(const QKeyEvent& key) override;
    void ShowMenu(const QPoint& place) override;

    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    struct Control
    {
        ViewerCommand command; // None where no key does the same
        QPushButton* button;   // null where only a key does it
        const char* icon;
        void (frmReelvane::*handler)();
    };

    void MakeControls();
    const Control* ControlOf(ViewerCommand command) const;
    void Run(ViewerCommand command);
    ViewerCommand ChooseInMenu(const QPoint& place);
    void ConnectControls();
    void Form_Resize();
    void DrawOn(StoryPage* page);
    bool IsFullScreenOpen() const;
    // Whether no other window and no message box is in front of what is drawn on.
    bool IsInFront() const;
    void ShowAutoviewState(bool isOn);

    void cmdNextImages_Click() { reader_.ShowNextPictures(); }
    void ShowPreviousPictures() { reader_.ShowPreviousPictures(); }
    void cmdZoomIn_Click() { reader_.ZoomIn(); }
    void cmdZoomOut_Click() { reader_.ZoomOut(); }
    void cmdTimer_Click() { reader_.SwitchAutoview(); }
    void cmdRefresh_Click() { reader_.DisplaySelection(); }
    void cmdEditParagraph_Click() { EditCurrentParagraph(); }
    void FindPictures();
    void LinkPicture();
    void ShowKeys();
    void cmdHideMenu_Click();
    void lblLegend_Click() { EditCurrentParagraph(); }
    void imgImage_MouseDown(int index, Qt::MouseButton button);
    void imgFullSize_MouseDown(Qt::MouseButton) { reader_.LeaveAlone(); }
    void imgImage_MouseWheel(bool isAway);
    void ZoomPixels();
    bool MovePicture(int arrow);
    void SwitchPlace() { DisplayForm->SwitchPlace(); }
    void PressFocusedControl();

    std::unique_ptr<Ui::frmReelvane> ui_;
    std::vector<Control> controls_;
};
