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

// The same rows as one unbroken chain, in order. The chain begins with preferredHead if that is a
// head, else with the first row that is one, else with the first row, and follows the forward links
// as long as they lead to a row not yet in it. Rows that it does not reach stay together as they
// are linked, and are inserted after the row that they name as previous, before the one that they
// lead to, or at the end. Every row occurs exactly once.
std::vector<ChainLink> MendChain(const std::vector<ChainLink>& rows, qint32 preferredHead = 0);

} // namespace GeneralModule
