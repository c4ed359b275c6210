// SPDX-License-Identifier: MIT
#pragma once

#include "core/UndoSteps.h"

#include <QObject>

class QKeyEvent;
class QWidget;

// Makes Ctrl+Z and Ctrl+Shift+Z take back and make again what was done to the album, and has the
// window show the album as it is whenever that has happened, in this window or another one. A field
// where the user has typed keeps these keys as long as it has something to take back itself. The
// window owns it.
class UndoWindow : public QObject
{
    Q_OBJECT

public:
    // See UndoListener; both are called only while the window is visible.
    explicit UndoWindow(
        QWidget* window, const GeneralModule::UndoListener::Show& show = [] {},
        const GeneralModule::UndoListener::Save& save = [] { return true; });

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* window_;
    GeneralModule::UndoListener listener_;
};
