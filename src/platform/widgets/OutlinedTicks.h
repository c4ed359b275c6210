// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

// A style that gives boxes to tick and round buttons an outline on dark windows, where the one that
// it stands on draws theirs darker than the window.
class OutlinedTicks : public QProxyStyle
{
    Q_OBJECT

public:
    // On the style of that name.
    explicit OutlinedTicks(const QString& style);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
