// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Two windows may have one album open. What a person edits is written over what was shown to them,
// not over what somebody else has written there meanwhile.
namespace GeneralModule {

// Whether a field was edited here, and meanwhile changed to something else in the album. The three
// are what was shown, what a person made of it, and what the album holds now.
bool IsConflict(const QString& shown, const QString& edited, const QString& stored);

// What was edited laid over what is stored: the edited text where there was an edit, the stored one
// where there was none. Where both were changed prefersEdited says which.
QString MergeEdit(const QString& shown, const QString& edited, const QString& stored,
                  bool prefersEdited);

enum class ConflictChoice { KeepMine, TakeStored, Stay };

// Asks which of the two versions counts. Subject names what was edited: "This paragraph". Long
// versions are shown by their beginnings. Call with no batch open: the box may be up for long.
ConflictChoice AskAboutConflict(const QString& subject, const QString& edited,
                                const QString& stored);

} // namespace GeneralModule
