// SPDX-License-Identifier: MIT
#include "story/ParagraphPreview.h"

#include "core/LocalCopy.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/FittedPicture.h"
#include "platform/widgets/PictureBox.h"
#include "platform/widgets/TextWrapping.h"
#include "story/ParagraphLinks.h"
#include "story/ParagraphMarkers.h"
#include "story/PictureFilter.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>

namespace {

constexpr int maxPreviewed = 5000; // pictures

} // namespace

ParagraphPreview::ParagraphPreview(const Controls& controls, QObject* parent)
    : QObject(parent),
      controls_(controls),
      imgImage_(controls.stage->findChild<PictureBox*>()),
      invitation_(controls.noPicture->text())
{
    imgImage_->setToolTip(tr("Click to edit image"));
    connect(controls_.isLinked, &QCheckBox::toggled, this,
            Guarded(this, &ParagraphPreview::chkLinkedImage_Click));
    connect(imgImage_, &PictureBox::Pressed, this, &ParagraphPreview::PicturePressed);
    ShowPicture({});
}

void ParagraphPreview::Begin(qint32 paragraph)
{
    paragraph_ = paragraph;
    pictures_.clear();
    controls_.feedback->clear();
    controls_.noPicture->setText(invitation_);
    ShowPicture({});
}

void ParagraphPreview::FindPictures()
{
    const BusyPointer busy;
    const std::optional<Paragraph> paragraph = ReadParagraph(paragraph_);
    if (!paragraph)
        return;
    PictureList found;
    BuildPictureList(paragraph->GetQuery(), found, maxPreviewed, [this](int count) {
        controls_.feedback->setText(tr("%n images found", nullptr, count));
        controls_.feedback->repaint();
    });
    pictures_ = found.GetFiles();
    if (pictures_.isEmpty())
        controls_.noPicture->setText(tr("No picture fits."));
    ShowPicture(pictures_.isEmpty() ? QString() : pictures_.takeFirst());
}

bool ParagraphPreview::ShowNext()
{
    if (pictures_.isEmpty())
        return false;
    ShowPicture(pictures_.takeFirst());
    controls_.feedback->setText(tr("%n images left", nullptr, int(pictures_.size())));
    return true;
}

void ParagraphPreview::ShowPicture(const QString& file)
{
    const bool isShown = !file.isEmpty();
    controls_.stage->setVisible(isShown);
    controls_.noPicture->setVisible(!isShown);
    controls_.stage->ShowPicture(file, isShown ? GeneralModule::ResolvePictureFile(file) : file);
    const QSignalBlocker quiet(controls_.isLinked);
    controls_.isLinked->setEnabled(isShown);
    controls_.isLinked->setChecked(isShown && IsLinked(paragraph_, file));
}

QString ParagraphPreview::GetPicture() const
{
    return imgImage_->GetTag();
}

void ParagraphPreview::ShowText(const QString& stored)
{
    const QString text = FillPictureMarkers(stored, GetPicture());
    controls_.text->clear(); // an empty text costs nothing to wrap again
    controls_.text->setWordWrapMode(WrapModeFor(text));
    controls_.text->setPlainText(text);
}

void ParagraphPreview::chkLinkedImage_Click()
{
    if (!GetPicture().isEmpty())
        SetLinked(paragraph_, GetPicture(), controls_.isLinked->isChecked());
}
