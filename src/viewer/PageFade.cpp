// SPDX-License-Identifier: MIT
#include "viewer/PageFade.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int fadeTime = 400; // milliseconds
constexpr int frameTime = 33; // leaves half of the time to whatever is made ready

} // namespace

PageFade::PageFade(QWidget* page) : QWidget(page)
{
    setObjectName(QStringLiteral("fade"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    frames_.setTimerType(Qt::PreciseTimer);
    connect(&frames_, &QTimer::timeout, this, [this] {
        if (time_.elapsed() < fadeTime)
            update();
        else
            End();
    });
}

void PageFade::Keep(std::vector<Picture> pictures, const QColor& ground)
{
    kept_ = std::move(pictures);
    ground_ = ground;
}

void PageFade::Begin(const QRect& band)
{
    End();
    if (!kept_)
        return;
    fading_ = *std::exchange(kept_, {});
    setGeometry(band);
    raise();
    show();
    time_.start();
    frames_.start(frameTime);
}

void PageFade::Forget()
{
    kept_.reset();
}

void PageFade::End()
{
    frames_.stop();
    fading_.clear();
    hide();
}

double PageFade::Opacity() const
{
    return 1 - std::min(1.0, double(time_.elapsed()) / fadeTime);
}

void PageFade::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setOpacity(Opacity());
    QRegion ground(rect());
    for (const Picture& picture : fading_) {
        const QRect place = picture.place.translated(-pos());
        ground -= place;
        if (picture.image.hasAlphaChannel())
            painter.fillRect(place, Qt::white);
        painter.drawImage(place, picture.image);
    }
    painter.setClipRegion(ground);
    painter.fillRect(rect(), ground_);
}
