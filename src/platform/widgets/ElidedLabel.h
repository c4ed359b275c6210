// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// Shows a plain text on one line. One that is too long loses its middle, is shown whole in the tool
// tip, and makes no window wider. One that is short is never cut, unless the form ignores its
// width.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
