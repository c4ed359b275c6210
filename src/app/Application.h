// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

// Shows what no handler has caught, and goes on.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
};
