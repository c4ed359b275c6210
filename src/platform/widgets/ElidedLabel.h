// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// Shows a plain text on one line. A text that is too long is elided in the middle, shown whole in
// the tool tip, and makes no window wider. A short text is never cut, unless the form ignores its
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
