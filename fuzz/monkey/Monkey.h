// SPDX-License-Identifier: MIT
#pragma once

#include <QEventLoop>
#include <QMap>
#include <QObject>

class QWidget;
class Trials;

// Presses keys and clicks at random in whatever window is in front, from inside its event loop.
class Monkey : public QObject
{
    Q_OBJECT

public:
    explicit Monkey(Trials& trials) : trials_(trials) {}

    // Plays with the window and all that it opens, and then closes all but the window itself.
    void Play(QWidget& window, int actions);

    // How often each window was in front.
    const QMap<QString, int>& GetVisits() const { return visits_; }

private:
    void Tick();
    void CloseFront();
    void Act(QWidget& front);
    void ActOnPopup(QWidget& popup);
    void PressButton(QWidget& front);
    void ClickAnywhere(QWidget& front);
    void Click(QWidget& front, const QList<QWidget*>& controls);
    void PressKey(QWidget& front);
    void Type(QWidget& front);
    void Choose(QWidget& front);
    void Shake(QWidget& front);
    void Note(const char* what, const QWidget& widget, const QString& more = {});

    Trials& trials_;
    QEventLoop loop_;
    QWidget* window_ = nullptr;
    QMap<QString, int> visits_;
    qint64 tickBegan_ = 0; // processor time, milliseconds
    int left_ = 0;
    int refusals_ = 0; // of a window to close
};
