// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

class QKeyEvent;

// Gives a window every key before the focused control gets it, so that the window's keys work
// whichever button was used last. The window owns it.
class KeyPreview : public QObject
{
    Q_OBJECT

public:
    // Returns true when the key is used.
    using Handler = std::function<bool(QKeyEvent&)>;

    KeyPreview(QWidget* window, Handler handler);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* window_;
    Handler handler_;
    const QEvent* seen_ = nullptr; // for comparison only
    QPointer<QWidget> seenBy_;
};
