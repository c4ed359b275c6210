// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// A label for text of users, which is never taken for markup, that can be clicked.
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
