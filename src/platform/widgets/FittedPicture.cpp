// SPDX-License-Identifier: MIT
#include "platform/widgets/FittedPicture.h"

#include "platform/picture/PictureReader.h"
#include "platform/widgets/PictureBox.h"

#include <QPainter>

namespace {

const QColor groundColor(0x1f, 0x20, 0x23);

// Used for a picture whose size is unknown; logical pixels.
constexpr QSize unreadableSize(320, 240);

// While the window's edge is dragged the picture is stretched. It is decoded when the edge has
// rested this long (milliseconds).
constexpr int decodePause = 120;

} // namespace

FittedPicture::FittedPicture(QWidget* parent) : QWidget(parent), imgImage_(new PictureBox(this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    imgImage_->setObjectName(QStringLiteral("imgImage"));
    imgImage_->hide();
    decodeDelay_.setSingleShot(true);
    connect(&decodeDelay_, &QTimer::timeout, this, &FittedPicture::Decode);
}

void FittedPicture::ShowPicture(const QString& file, const QString& path)
{
    path_ = path;
    naturalSize_ = file.isEmpty() ? QSize() : ReadPictureInfo(path).size;
    imgImage_->SetTag(file);
    imgImage_->setVisible(!file.isEmpty());
    Place();
    Decode();
}

void FittedPicture::Place()
{
    QSizeF fitted(unreadableSize);
    if (!naturalSize_.isEmpty())
        fitted = QSizeF(naturalSize_) / devicePixelRatioF();
    if (fitted.width() > width() || fitted.height() > height())
        fitted.scale(size(), Qt::KeepAspectRatio);
    const QSize box = fitted.toSize().expandedTo({1, 1});
    imgImage_->setGeometry((width() - box.width()) / 2, (height() - box.height()) / 2, box.width(),
                           box.height());
}

void FittedPicture::Decode()
{
    decodeDelay_.stop();
    const QSize pixels = (QSizeF(imgImage_->size()) * devicePixelRatioF()).toSize();
    imgImage_->SetPicture(naturalSize_.isEmpty() ? QImage() : ReadPicture(path_, pixels));
}

void FittedPicture::resizeEvent(QResizeEvent*)
{
    Place();
    if (!imgImage_->isVisibleTo(this))
        return;
    // A picture decoded before the window had its size would be blurred.
    const double wanted = imgImage_->width() * devicePixelRatioF();
    if (imgImage_->GetPicture().width() * 2 < wanted)
        Decode();
    else
        decodeDelay_.start(decodePause);
}

void FittedPicture::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), groundColor);
}
