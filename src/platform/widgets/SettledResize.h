// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

class QWidget;

// Tells a window's new size once it is on the screen: its first size at once, and the sizes that
// come while an edge is dragged gathered into few. Nothing is told of a window that was closed. The
// window owns it.
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
