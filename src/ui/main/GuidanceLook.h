// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QLabel;

// How the main window's guidance stands out: in larger letters, on a ground between the window's
// own colour and that of selections. It follows the theme.
class GuidanceLook : public QObject
{
public:
    // Both must outlive it.
    GuidanceLook(QLabel* label, QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Tint();

    QLabel* label_;
    QWidget* window_;
};
