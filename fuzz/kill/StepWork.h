// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Work of many small steps, as a person does it: what a step does depends on its number and on what
// is in the open album. All of it throws where the album refuses.

void ChangeChapters(const QString& folder, int step);
void ChangeParagraphs(const QString& folder, int step);
void Describe(const QString& folder, int step);
// A state is kept, the album changes, and the state is taken back whole or in part.
void ComeAndGo(const QString& folder, int step);
// A change is made, taken back and made again; one that adds no row, since the numbers of new rows
// are not taken back. It depends on the album alone, because a program that was killed has
// forgotten what could be undone.
void UndoAndRedo(const QString& folder, int step);

// Ends the work where that is false.
void Require(bool isDone);
