// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

class QWidget;

// Hides the mouse pointer over a window where the mouse has been idle for a moment, and shows it
// again at the next movement. Other windows in front keep their pointer. The window owns it.
class IdlePointer : public QObject
{
    Q_OBJECT

public:
    explicit IdlePointer(QWidget* window, int patience = 2000 /* milliseconds */);
    ~IdlePointer() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Hide();
    void Show();

    QWidget* window_;
    QTimer idle_;
    QPoint place_;
    bool isHidden_ = false;
};
