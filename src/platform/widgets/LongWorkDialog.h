// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dialogs/Dialogs.h"

#include <QDialog>

#include <atomic>

class QPushButton;

// Shows that long work goes on in another thread, and lets the user stop it. Appears only when the
// work takes a while.
class LongWorkDialog : public QDialog
{
    Q_OBJECT

public:
    LongWorkDialog(const QString& text, bool canStop, QWidget* parent);

    // Returns when the work is done; throws what it threw.
    void Run(const Dialogs::Work& work);

    // Stops the work if possible; the dialog closes when the work has ended.
    void reject() override;

private:
    QPushButton* cmdStop_;
    std::atomic<bool> isStopped_ = false;
};
