// SPDX-License-Identifier: MIT
// What the paragraph editor does with pictures: the preview, the windows that change them, and
// files dropped on it.
#include "story/frmEditParagraph.h"
#include "ui_frmEditParagraph.h"

#include "catalogue/frmEditImage.h"
#include "story/DroppedPictures.h"
#include "story/MarkerInsertion.h"
#include "story/ParagraphPreview.h"
#include "story/PictureWindows.h"

#include <QScopeGuard>

void frmEditParagraph::SetPreviewMode(bool isPreview)
{
    isPreview_ = isPreview;
    ui_->txtParagraph->setVisible(!isPreview);
    ui_->cmdPreview->setVisible(!isPreview);
    ui_->txtParagraphPreview->setVisible(isPreview);
    ui_->cmdNextImage->setVisible(isPreview);
    ui_->lblFeedback->setVisible(isPreview);
    ui_->cmdInsertCar->setEnabled(!isPreview);
    insertion_->Hide();
}

void frmEditParagraph::ClearPreview()
{
    SetPreviewMode(false);
    preview_->Begin(CurrentParagraph);
}

void frmEditParagraph::cmdPreview_Click()
{
    if (!edit_.SettleConflict(CurrentParagraph))
        return;
    SetPreviewMode(true);
    ui_->cmdNextImage->setFocus();
    RefreshPictureList();
}

void frmEditParagraph::RefreshPictureList()
{
    if (!SaveParagraph())
        return;
    preview_->Begin(CurrentParagraph);
    preview_->ShowText(GetContent().text); // for as long as the search takes
    preview_->FindPictures();
    preview_->ShowText(GetContent().text);
}

void frmEditParagraph::cmdNextImage_Click()
{
    if (preview_->ShowNext())
        preview_->ShowText(GetContent().text);
    else
        lblText_Click();
}

// The preview is updated at once when the filter changes.
void frmEditParagraph::filterPanel_Change()
{
    if (isPreview_)
        RefreshPictureList();
}

void frmEditParagraph::lblText_Click()
{
    SetPreviewMode(false);
    ui_->txtParagraph->setFocus();
}

void frmEditParagraph::imgImage_MouseDown()
{
    const QString file = preview_->GetPicture();
    if (SaveParagraph())
        EditPicture(file);
}

void frmEditParagraph::cmdFindPictures_Click()
{
    Visit([this] {
        FindRequest request;
        request.parent = this;
        request.paragraph = CurrentParagraph;
        FindPictures(request);
    });
}

void frmEditParagraph::cmdLinkedPictures_Click()
{
    Visit([this] { ShowLinkedPictures(this, CurrentParagraph); });
}

void frmEditParagraph::Visit(const std::function<void()>& openWindow)
{
    if (!SaveParagraph())
        return;
    openWindow();
    ReadAgain();
    if (isPreview_)
        RefreshPictureList();
}

void frmEditParagraph::TakeDropped(const QList<QUrl>& urls)
{
    if (!SaveParagraph())
        return;
    const QStringList linked = LinkDroppedFiles(CurrentParagraph, urls);
    if (isPreview_)
        RefreshPictureList();
    if (linked.isEmpty())
        return;
    preview_->ShowPicture(linked.front());
    preview_->ShowText(GetContent().text);
}

// The picture, labels, values, and the paragraph with them may have changed in another window. What
// cannot be read again must not be saved: a value may have been replaced.
void frmEditParagraph::ReadAgain()
{
    auto leave = qScopeGuard([this] { LeaveUnsaved(); });
    FillFromAlbum();
    leave.dismiss();
}

void frmEditParagraph::EditPicture(const QString& file)
{
    frmEditImage window(this);
    window.CurrentImage = file;
    window.IsSinglePicture = true;
    window.exec();
    ReadAgain();
    const bool isTakenOut = window.TakenOut.contains(file);
    if (isTakenOut && isPreview_)
        return cmdNextImage_Click();
    preview_->ShowPicture(isTakenOut ? QString() : file);
    preview_->ShowText(GetContent().text);
}
