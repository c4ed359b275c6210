// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Two windows may have one album open. An edit replaces what was shown to the user, never what
// another window has written there since.
namespace GeneralModule {

// Whether a field was edited here and has been changed differently in the album. The arguments are
// the text that was shown, the edited one, and the one that the album holds now.
bool IsConflict(const QString& shown, const QString& edited, const QString& stored);

// The edited text if there was an edit, else the stored one. If both were changed, prefersEdited
// decides.
QString MergeEdit(const QString& shown, const QString& edited, const QString& stored,
                  bool prefersEdited);

enum class ConflictChoice { KeepMine, TakeStored, Stay };

// Asks the user which of the two versions to keep. The subject names what was edited, for example
// "This paragraph". Long versions are shown shortened. Do not call with a batch open: the box may
// stay up for long.
ConflictChoice AskAboutConflict(const QString& subject, const QString& edited,
                                const QString& stored);

} // namespace GeneralModule
