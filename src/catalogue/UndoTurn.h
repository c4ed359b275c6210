// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

// Take back the last steps of the open album, or make them again, and say so in the window for a
// moment: what was done, or why there is nothing to do. What the user has changed in a window and
// not saved is saved first, so that it is the last step. A large step shows its progress and can be
// stopped; then nothing is changed. Errors are shown.
void TakeBack(QWidget* window, int steps = 1);
void MakeAgain(QWidget* window);
