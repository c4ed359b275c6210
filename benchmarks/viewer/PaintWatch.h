// SPDX-License-Identifier: MIT
#pragma once

#include "platform/picture/PictureReader.h"
#include "platform/widgets/PictureBox.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <chrono>
#include <vector>

// Notes when a window's changes are on the screen.
class PaintWatch : public QObject
{
public:
    using Clock = std::chrono::steady_clock;

    explicit PaintWatch(QWidget& window) : window_(window) { qApp->installEventFilter(this); }

    Clock::time_point painted; // the last time

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched != &window_ || event->type() != QEvent::UpdateRequest || isInside_)
            return false;
        isInside_ = true;
        QCoreApplication::sendEvent(watched, event);
        isInside_ = false;
        painted = Clock::now();
        return true;
    }

private:
    QWidget& window_;
    bool isInside_ = false;
};

// What it takes to decode the pictures on show once more.
inline std::vector<PictureRequest> OnScreen(const QWidget& window)
{
    std::vector<PictureRequest> requests;
    for (const PictureBox* box : window.findChildren<PictureBox*>()) {
        if (box->isVisible())
            requests.push_back({box->GetTag(), box->size()});
    }
    return requests;
}
