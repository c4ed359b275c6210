// SPDX-License-Identifier: MIT
#include "ui/main/GuidanceLook.h"

#include <QEvent>
#include <QLabel>

GuidanceLook::GuidanceLook(QLabel* label, QWidget* window) : label_(label), window_(window)
{
    QFont font = label_->font();
    font.setPointSizeF(font.pointSizeF() * 1.35);
    label_->setFont(font);
    label_->setAutoFillBackground(true);
    Tint();
    window_->installEventFilter(this);
}

// A mixture stands out in any theme and glares in none.
void GuidanceLook::Tint()
{
    constexpr double share = 0.22; // of the selections' colour
    QPalette palette = window_->palette();
    const QColor ground = palette.color(QPalette::Window);
    const QColor accent = palette.color(QPalette::Highlight);
    const auto mix = [](int first, int second) {
        return int(first * (1 - share) + second * share);
    };
    palette.setColor(QPalette::Window,
                     QColor(mix(ground.red(), accent.red()), mix(ground.green(), accent.green()),
                            mix(ground.blue(), accent.blue())));
    label_->setPalette(palette);
}

bool GuidanceLook::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        Tint();
    return QObject::eventFilter(watched, event);
}
