// SPDX-License-Identifier: MIT
// The part of the paragraph editor that shows, links and opens the paragraph's pictures.
#include "story/frmEditParagraph.h"
#include "ui_frmEditParagraph.h"

#include "catalogue/frmEditImage.h"
#include "core/Album.h"
#include "core/PictureFile.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/PictureBox.h"
#include "platform/widgets/TextWrapping.h"
#include "story/ParagraphLinks.h"
#include "story/PictureFilter.h"

#include <QScopeGuard>

using GeneralModule::FindById;
using GeneralModule::ParagraphSet;

namespace {

constexpr int mostPreviewed = 5000; // pictures

} // namespace

void frmEditParagraph::SetPreviewMode(bool isPreview)
{
    isPreview_ = isPreview;
    ui_->txtParagraph->setVisible(!isPreview);
    ui_->cmdPreview->setVisible(!isPreview);
    ui_->txtParagraphPreview->setVisible(isPreview);
    ui_->cmdNextImage->setVisible(isPreview);
    ui_->lblFeedback->setVisible(isPreview);
    ShowInsertList(false);
}

void frmEditParagraph::ClearPreview()
{
    SetPreviewMode(false);
    ShowPicture({});
    pictures_.clear();
}

void frmEditParagraph::cmdPreview_Click()
{
    if (!SettleConflict())
        return;
    SetPreviewMode(true);
    ui_->cmdNextImage->setFocus();
    RefreshPictureList();
}

void frmEditParagraph::RefreshPictureList()
{
    if (!SaveParagraph())
        return;
    const BusyPointer busy;
    pictures_.clear();
    ui_->lblFeedback->clear();
    ShowPicture({});
    FillPreviewText();
    FindById(*ParagraphSet, CurrentParagraph);
    PictureList found;
    BuildPictureList(*ParagraphSet, found, mostPreviewed, [this](int count) {
        ui_->lblFeedback->setText(QString::number(count) + tr(" images found"));
        ui_->lblFeedback->repaint();
    });
    pictures_ = found.GetFiles();
    ShowPicture(pictures_.isEmpty() ? QString() : pictures_.takeFirst());
    FillPreviewText();
}

void frmEditParagraph::cmdNextImage_Click()
{
    if (pictures_.isEmpty())
        return lblText_Click();
    ShowPicture(pictures_.takeFirst());
    FillPreviewText();
    ui_->lblFeedback->setText(QString::number(pictures_.size()) + tr(" images left"));
}

// A preview shows at once what a changed filter finds.
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

void frmEditParagraph::FillPreviewText()
{
    const QString text = FillPictureMarkers(GetContent().text, imgImage_->GetTag());
    ui_->txtParagraphPreview->clear(); // which costs nothing to wrap anew
    ui_->txtParagraphPreview->setWordWrapMode(WrapModeFor(text));
    ui_->txtParagraphPreview->setPlainText(text);
}

void frmEditParagraph::ShowPicture(const QString& file)
{
    ui_->stage->setVisible(!file.isEmpty());
    ui_->lblNoPicture->setVisible(file.isEmpty());
    ui_->stage->ShowPicture(file, file.isEmpty() ? file : GeneralModule::ResolvePictureFile(file));
    const QSignalBlocker quiet(ui_->chkLinkedImage);
    ui_->chkLinkedImage->setEnabled(!file.isEmpty());
    ui_->chkLinkedImage->setChecked(!file.isEmpty() && IsLinked(CurrentParagraph, file));
}

void frmEditParagraph::chkLinkedImage_Click()
{
    const QString& file = imgImage_->GetTag();
    if (!file.isEmpty())
        SetLinked(CurrentParagraph, file, ui_->chkLinkedImage->isChecked());
}

void frmEditParagraph::imgImage_MouseDown()
{
    const QString file = imgImage_->GetTag();
    if (SaveParagraph())
        EditPicture(file);
}

// Everything may have changed there: the picture, labels, values, and the paragraph with them.
void frmEditParagraph::EditPicture(const QString& file)
{
    frmEditImage window(this);
    window.CurrentImage = file;
    window.IsSinglePicture = true;
    window.exec();
    // What cannot be read again must not be saved either: a value may have got another name.
    auto leave = qScopeGuard([this] { LeaveUnsaved(); });
    FillFromAlbum();
    leave.dismiss();
    if (!window.TakenOut.contains(file))
        ShowPicture(file);
    else if (isPreview_)
        return cmdNextImage_Click();
    else
        ShowPicture({});
    FillPreviewText();
}
