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

constexpr int screensHeld = 2; // besides the one on show

} // namespace

FittedPicture::FittedPicture(QWidget* parent)
    : QWidget(parent), imgImage_(new PictureBox(this)), lookAhead_([this] { return isVisible(); })
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
    expected_.clear();
    naturalSize_ = file.isEmpty() ? QSize() : ReadPictureInfo(path).size;
    imgImage_->SetTag(file);
    imgImage_->setVisible(!file.isEmpty());
    Place();
    Decode();
}

void FittedPicture::Expect(const QString& path)
{
    expected_ = path;
    BeginLookingAhead();
}

// Where nothing is expected, what was made ready before is given up.
void FittedPicture::BeginLookingAhead()
{
    lookAhead_.Begin({[this]() -> std::vector<PictureRequest> {
        const QSize naturalSize = expected_.isEmpty() ? QSize() : ReadPictureInfo(expected_).size;
        if (naturalSize.isEmpty())
            return {};
        return {{expected_, ToPixels(SizeFor(naturalSize))}};
    }});
}

QSize FittedPicture::ToPixels(QSize box) const
{
    return (QSizeF(box) * devicePixelRatioF()).toSize();
}

// Logical pixels.
QSize FittedPicture::SizeFor(QSize naturalSize) const
{
    QSizeF fitted(unreadableSize);
    if (!naturalSize.isEmpty())
        fitted = QSizeF(naturalSize) / devicePixelRatioF();
    if (fitted.width() > width() || fitted.height() > height())
        fitted.scale(size(), Qt::KeepAspectRatio);
    return fitted.toSize().expandedTo({1, 1});
}

void FittedPicture::Place()
{
    const QSize box = SizeFor(naturalSize_);
    imgImage_->setGeometry((width() - box.width()) / 2, (height() - box.height()) / 2, box.width(),
                           box.height());
}

void FittedPicture::Decode()
{
    decodeDelay_.stop();
    lookAhead_.SetRoom(ToPixels(size()), screensHeld);
    QImage picture;
    if (!naturalSize_.isEmpty())
        picture = lookAhead_.Take({{path_, ToPixels(imgImage_->size())}}).front();
    imgImage_->SetPicture(picture);
    BeginLookingAhead();
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
