// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

class QWidget;

// Reports the size of a window on the screen: its first size at once, and only a few of the sizes
// while an edge is dragged. Reports nothing for a closed window. The window owns it.
class SettledResize : public QObject
{
public:
    SettledResize(QWidget* window, std::function<void()> handler);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Tell();

    std::function<void()> handler_;
    QTimer delay_;
    QElapsedTimer sinceTold_;
};
