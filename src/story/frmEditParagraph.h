// SPDX-License-Identifier: MIT
#pragma once

#include "story/ChapterPlaces.h"
#include "story/ParagraphEdit.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <vector>

class FilterCounting;
class MarkerInsertion;
class ParagraphPreview;
class QKeyEvent;

namespace Ui {
class frmEditParagraph;
}

// The paragraph editor: text, picture filter and linked pictures of one paragraph, with steps to
// the other paragraphs of its chapter. Every way out of a paragraph saves it.
//
// Set chapter and paragraph before showing it modally, and read them afterwards: the user may have
// gone elsewhere, or no paragraph may be left.
class frmEditParagraph : public QDialog
{
    Q_OBJECT

public:
    explicit frmEditParagraph(QWidget* parent = nullptr);
    ~frmEditParagraph() override;

    qint32 CurrentChapter = 0;
    qint32 CurrentParagraph = 0; // 0: none

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void LeadFromTextToFilter();
    void ConnectControls();
    bool Form_KeyDown(QKeyEvent& key);
    void SwitchFullScreen() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

    void ShowParagraph();
    void FillFromAlbum();
    ParagraphPlace GetPlace() const { return {CurrentChapter, CurrentParagraph}; }
    // Throws and stays when the paragraph there cannot be read.
    void GoTo(const ParagraphPlace& place);
    void GoToOrLeave(const std::function<ParagraphPlace()>& findPlace);
    void ShowPlace(const ChapterPlace& place);
    void LeaveUnsaved();
    void SetContent(const ParagraphContent& content);
    void ClearPreview();
    ParagraphContent GetContent() const;
    QString Describe(const ParagraphContent& content) const;
    // False when the user wants to stay; then do not go on with the intended action.
    bool SaveParagraph();

    void cmdFirstParagraph_Click();
    void cmdPreviousParagraph_Click();
    void cmdNextParagraph_Click();
    void cmdEndOfChapter_Click();
    void StepTo(ChainStep step, const QPushButton* button);
    void cmdCreateNext_Click();
    void cmdDelete_Click();
    void cmdOrganize_Click();
    void cmdExit_Click();

    void cmdInsertCar_Click();
    void cmdCancelInsert_Click();

    void SetPreviewMode(bool isPreview);
    void cmdPreview_Click();
    void cmdNextImage_Click();
    void RefreshPictureList();
    void filterPanel_Change();
    void filterPanel_LabelsWanted();
    void lblText_Click();
    void txtParagraphPreview_GotFocus();
    void imgImage_MouseDown();
    void cmdFindPictures_Click();
    void cmdLinkedPictures_Click();
    // Opens a window in which pictures and links may change.
    void Visit(const std::function<void()>& openWindow);
    void EditPicture(const QString& file);
    void TakeDropped(const QList<QUrl>& urls);
    void ReadAgain();
    bool SaveForUndo();
    void ShowAfterUndo();

    std::unique_ptr<Ui::frmEditParagraph> ui_;
    ParagraphPreview* preview_;
    MarkerInsertion* insertion_;
    FilterCounting* counting_;
    ParagraphEdit edit_; // loaded while the controls hold CurrentParagraph
    ChapterPlaces places_;
    std::vector<qint32> nearby_; // where to go if the paragraph is gone after an undo
    bool isPreview_ = false;
};
