// SPDX-License-Identifier: MIT
#pragma once

#include "platform/shell/StayAwake.h"

#include <QObject>
#include <QScopeGuard>
#include <QTimer>

#include <functional>

// The delay that an answer in seconds means, in whole milliseconds: 10 seconds for what is no
// positive number, at least 1 millisecond, at most what the album's parameter holds. The decimal
// sign may be a point or a comma, and a unit may follow.
qint16 DelayFromAnswer(const QString& answer);

// What to propose for the delay: the stored one, else 10; in seconds.
QString ProposedDelay();

// Steps through the story by itself, at a delay that the user chooses. Whether it runs is kept in
// GeneralModule::AutoviewOn alone; whatever pauses the timer restores it from there.
class Autoview : public QObject
{
    Q_OBJECT

public:
    // step shows what comes next; isInFront tells whether the user sees it, for nothing moves on
    // behind another window or a message box.
    Autoview(std::function<void()> step, std::function<bool()> isInFront, QObject* parent);

    // Off when it is on; else asks for the delay, stores it, and begins. False when the user gave
    // up, and nothing has changed.
    bool Switch();
    // Off, without a word: the viewer closes.
    void End();

    // The timer stands still while the result lives, and then begins a whole delay anew. Pauses may
    // lie inside each other.
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
    void Set(bool on);
    void timImage_Timer();

    QTimer timImage_; // single-shot: a step that takes long cannot be overtaken by the next one
    StayAwake awake_;
    std::function<void()> step_;
    std::function<bool()> isInFront_;
    int delay_ = 0; // milliseconds
    int pauses_ = 0;
    bool isHeld_ = false;
};
