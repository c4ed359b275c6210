// SPDX-License-Identifier: MIT
#pragma once

#include "core/StateReturn.h"

#include <QStringList>

namespace GeneralModule {

// Opens earlier states, each of which has the password of its day. Those that were right once are
// tried again; the first is that of the open album.
class StatePasswords
{
public:
    StatePasswords();

    // Null where none that is known fits. Throws DatabaseError for a state that no password opens.
    std::shared_ptr<OpenState> TryOpen(const QString& state) const;
    // Asks for the password until it fits; null where the user gave up.
    std::shared_ptr<OpenState> Open(const QString& state);

private:
    QStringList known_;
};

} // namespace GeneralModule
