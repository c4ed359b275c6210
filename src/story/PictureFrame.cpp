// SPDX-License-Identifier: MIT
#include "story/PictureFrame.h"

#include "core/PictureFile.h"
#include "platform/picture/PictureReader.h"
#include "platform/widgets/PictureBox.h"

#include <QPainter>

namespace {

constexpr QSize unreadableSize(320, 240); // logical pixels
constexpr int hintMargin = 16;
constexpr int fitPause = 60; // milliseconds; a window that is dragged decodes when it rests

} // namespace

PictureFrame::PictureFrame(QWidget* parent) : QWidget(parent), imgImage_(new PictureBox(this))
{
    imgImage_->setObjectName(QStringLiteral("imgImage"));
    imgImage_->setToolTip(tr("Click to edit image"));
    imgImage_->hide();
    connect(imgImage_, &PictureBox::Pressed, this, &PictureFrame::Pressed);
    fitDelay_.setSingleShot(true);
    fitDelay_.setInterval(fitPause);
    connect(&fitDelay_, &QTimer::timeout, this, &PictureFrame::Fit);
}

void PictureFrame::Show(const QString& file)
{
    path_ = file.isEmpty() ? QString() : GeneralModule::ResolvePictureFile(file);
    size_ = file.isEmpty() ? QSize() : ReadPictureInfo(path_).size;
    imgImage_->SetTag(file);
    Fit();
    update();
}

const QString& PictureFrame::GetFile() const
{
    return imgImage_->GetTag();
}

void PictureFrame::SetHint(const QString& hint)
{
    hint_ = hint;
    update();
}

void PictureFrame::Fit()
{
    imgImage_->setVisible(!GetFile().isEmpty());
    if (GetFile().isEmpty() || size().isEmpty())
        return imgImage_->SetPicture({});
    const double ratio = devicePixelRatioF();
    QSize shown = size_.isEmpty() ? unreadableSize * ratio : size_;
    const QSize room = size() * ratio;
    if (shown.width() > room.width() || shown.height() > room.height())
        shown.scale(room, Qt::KeepAspectRatio);
    shown = shown.expandedTo({1, 1});
    const QSize place = (QSizeF(shown) / ratio).toSize().expandedTo({1, 1}).boundedTo(size());
    imgImage_->setGeometry(
        QRect(QPoint((width() - place.width()) / 2, (height() - place.height()) / 2), place));
    imgImage_->SetPicture(size_.isEmpty() ? QImage() : ReadPicture(path_, shown));
}

void PictureFrame::resizeEvent(QResizeEvent*)
{
    if (!GetFile().isEmpty())
        fitDelay_.start();
}

void PictureFrame::paintEvent(QPaintEvent*)
{
    if (!GetFile().isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect().adjusted(hintMargin, hintMargin, -hintMargin, -hintMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, hint_);
}
