// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/DatabaseCopy.h"

#include <QString>

#include <chrono>
#include <optional>

// When and how an album's earlier states come to be.
namespace GeneralModule {

// From then on a state of the album is kept before its first change on each day, unless the newest
// one is the same as the album or the user does not want any. What keeps it from being kept is for
// TakeStateTrouble and never keeps the change from being made. The longest that this may take
// unless the user has agreed to more is longestUnasked. Nothing for an album that can only be read.
void KeepStatesOf(Database& database);

constexpr std::chrono::milliseconds longestUnasked(2000);

// Keeps a state of the open album now. The state that shall be replaced by an earlier one is marked
// so, and kept even if it is damaged. Returns its path; empty when progress stopped it. Throws
// DatabaseError when it cannot be kept, Damaged when the album is not sound.
QString KeepState(
    bool isReplaced, const CopyProgress& progress = [](int) { return true; });

// The same for an album that cannot be opened, by its bytes.
QString KeepUnopenedState(const QString& album);

// Throws DatabaseError, WrongPassword or Damaged among others, unless the state opens with the
// password and the engine finds nothing wrong with it.
void RequireSound(const QString& state, const QString& password);

// What kept today's state from being kept, once; a text for the user, or none.
struct StateTrouble
{
    QString text;
    bool isDamaged = false; // the album itself
};
std::optional<StateTrouble> TakeStateTrouble();

// Whether a state of the album is kept before each day's first change. A large album has to be
// asked about first.
enum class StateWish { Keep, DoNotKeep, NotAsked };
StateWish StateWishFor(const QString& album);
void SetStateWish(const QString& album, StateWish wish);

// How long it takes to keep a state of that many bytes, as far as earlier ones tell.
std::chrono::milliseconds TimeToKeep(qint64 bytes, bool isEncrypted);

// Asks once for each album for which it takes longer than longestUnasked.
void AskAboutLargeAlbum(const QString& album, bool isEncrypted);

} // namespace GeneralModule
