// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QProgressBar;
class QPushButton;

// A bar that shows how far a long piece of work has come and keeps the windows alive meanwhile. As
// long as the work runs, nothing else in the program takes keys or clicks but the stop button, and
// Esc, which presses it. Hidden when there is no work.
class WorkProgress : public QWidget
{
    Q_OBJECT

public:
    explicit WorkProgress(QWidget* parent = nullptr);

    // total 0: it is not known how much there is to do.
    void Begin(int total, bool canStop);
    // Call often; costs next to nothing between two updates of the screen. False once the work
    // shall stop.
    bool Advance(int done);
    // Whether the last Advance updated the screen: what else tells of the work is updated with it.
    bool HasShown() const { return hasShown_; }
    void End();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Stop();

    QProgressBar* bar_;
    QPushButton* cmdStop_;
    QElapsedTimer sinceShown_;
    bool isWorking_ = false;
    bool isStopped_ = false;
    bool hasShown_ = false;
};
