// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// A clickable label for users' text, which is never taken for markup.
class ClickLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ClickLabel(QWidget* parent = nullptr);

signals:
    void Clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};
