// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// Shows a path in plain text on one line; one that is too long loses its middle, and is told whole
// in the tool tip.
class PathLabel : public QLabel
{
    Q_OBJECT

public:
    explicit PathLabel(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
