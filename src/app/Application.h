// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/QtDialogs.h"

#include <QApplication>

// Gives an application without windows the program's name and version.
void NameProgram();

// Made before the first window: brings the translations, the boxes and the keys that work in every
// window. Shows exceptions that no handler has caught, and goes on.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    QtDialogs dialogs_;
};
