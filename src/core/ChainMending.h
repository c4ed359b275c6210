// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

namespace GeneralModule {

// A row of a doubly linked chain; 0 means none.
struct ChainLink
{
    qint32 id;
    qint32 previous;
    qint32 next;

    bool operator==(const ChainLink&) const = default;
};

// The same rows as one whole chain, in its order. The chain begins with preferredHead when that is
// a head, else with the first row that is one, else with the first row, and goes on along the
// forward links that lead to a row of the chain and not back. Rows that it does not reach keep
// together as their links do, and are put behind the row that they name as previous, before the one
// that they lead to, or at the end. No row is left out and none comes twice.
std::vector<ChainLink> MendChain(const std::vector<ChainLink>& rows, qint32 preferredHead = 0);

} // namespace GeneralModule
