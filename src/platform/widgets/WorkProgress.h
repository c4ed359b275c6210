// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QProgressBar;
class QPushButton;

// A bar that shows the progress of long work and keeps the windows alive. While the work runs, the
// program takes no keys or clicks except on the stop button, and Esc, which presses it. Hidden when
// there is no work.
class WorkProgress : public QWidget
{
    Q_OBJECT

public:
    explicit WorkProgress(QWidget* parent = nullptr);

    // total 0: the amount of work is unknown.
    void Begin(int total, bool canStop);
    // Call often; it costs next to nothing between two updates of the screen. False once the work
    // must stop.
    bool Advance(int done);
    // Whether the last Advance updated the screen; update other progress displays then.
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
