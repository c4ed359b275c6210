// SPDX-License-Identifier: MIT
#pragma once

#include "platform/shell/StayAwake.h"

#include <QElapsedTimer>
#include <QObject>
#include <QScopeGuard>
#include <QTimer>

#include <functional>

// The delay that an answer in seconds means, in whole milliseconds: 10 seconds for anything but a
// positive number, at least 1 millisecond, at most what the album's parameter can hold. The decimal
// separator may be a dot or a comma, and a unit may follow.
qint16 DelayFromAnswer(const QString& answer);

// The delay to propose, in seconds: the stored one, else 10.
QString ProposedDelay();

// Steps through the story by itself, at a delay that the user chooses. Whether it runs is kept in
// GeneralModule::AutoviewOn alone; whatever pauses the timer restores it from there.
class Autoview : public QObject
{
    Q_OBJECT

public:
    // step shows what comes next. It is not called while isInFront says that another window or a
    // message box covers the page.
    Autoview(std::function<void()> step, std::function<bool()> isInFront, QObject* parent);

    // Switches off when it is on; else asks for the delay, stores it, and begins. False when the
    // user cancelled, and nothing has changed.
    bool Switch();
    // Switches off without a message, for when the viewer closes.
    void End();

    // The timer is stopped while the result lives, and then starts with a whole delay. Pauses may
    // be nested.
    [[nodiscard]] auto Pause()
    {
        BeginPause();
        return qScopeGuard([this] { EndPause(); });
    }
    // Stops the timer until Release or the end of the next pause, whichever comes first.
    void Hold();
    void Release();

signals:
    void Switched(bool on);

private:
    void BeginPause();
    void EndPause();
    void Restore();
    void WaitUntil(qint64 due);
    void Set(bool on);
    void timImage_Timer();

    QTimer timImage_; // single-shot: a step that takes long cannot be overtaken by the next one
    StayAwake awake_;
    std::function<void()> step_;
    std::function<bool()> isInFront_;
    QElapsedTimer clock_;
    qint64 due_ = 0; // of the next step, milliseconds of the clock
    int delay_ = 0;  // milliseconds
    int pauses_ = 0;
    bool isHeld_ = false;
};
