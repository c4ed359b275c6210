// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

// Gives an application without windows the program's name and version.
void NameProgram();

// Shows exceptions that no handler has caught, and goes on.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
};
