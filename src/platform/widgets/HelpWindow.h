// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

// Shows the program's help file, which is written in HTML.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    HelpWindow(const QString& file, QWidget* parent);
};
