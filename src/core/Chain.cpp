// SPDX-License-Identifier: MIT
#include "core/Chain.h"

#include "core/AlbumSets.h"

namespace GeneralModule {

qint32 LinkIn(RecordSet& set, QStringView field)
{
    return set.IsNull(field) ? 0 : set.Number(field);
}

void SetLink(RecordSet& set, qint32 row, QStringView field, qint32 value)
{
    if (row == 0 || !FindById(set, row) || (!set.IsNull(field) && set.Number(field) == value))
        return;
    set.Edit();
    set.Set(field, value);
    set.Update();
}

qint32 Chain::Find(qint32 row) const
{
    return row != 0 && FindById(set_, row) ? row : 0;
}

qint32 Chain::StoredLink(ChainDirection direction) const
{
    return LinkIn(set_, direction == ChainDirection::Next ? nextField_ : previousField_);
}

qint32 Chain::Neighbour(qint32 row, ChainDirection direction) const
{
    if (Find(row) == 0)
        return 0;
    const qint32 neighbour = StoredLink(direction);
    return neighbour == row ? 0 : Find(neighbour);
}

std::vector<qint32> Chain::Rows(qint32 first, ChainDirection direction) const
{
    std::vector<qint32> rows;
    Walk(first, direction, [&rows](qint32 row) {
        rows.push_back(row);
        return true;
    });
    return rows;
}

qint32 Chain::End(qint32 first, ChainDirection direction) const
{
    qint32 end = 0;
    Walk(first, direction, [&end](qint32 row) {
        end = row;
        return true;
    });
    return end;
}

Chain::Way Chain::FindWay(qint32 first, qint32 row) const
{
    Way way;
    Walk(first, ChainDirection::Next, [&way, row](qint32 visited) {
        way.isReached = visited == row;
        if (!way.isReached)
            way.last = visited;
        return !way.isReached;
    });
    return way;
}

void Chain::LeadTo(qint32 row, qint32 next) const
{
    SetLink(set_, row, nextField_, next);
}

void Chain::LeadBackTo(qint32 row, qint32 previous) const
{
    SetLink(set_, row, previousField_, previous);
}

void Chain::Join(qint32 previous, qint32 next) const
{
    LeadTo(previous, next);
    LeadBackTo(next, previous);
}

void Chain::LinkNeighbours(qint32 previous, qint32 row, qint32 next) const
{
    LeadTo(previous, row);
    LeadBackTo(next, row);
}

void Chain::SetLinks(qint32 row, qint32 previous, qint32 next) const
{
    if (Find(row) == 0)
        return;
    set_.Edit();
    set_.Set(previousField_, previous);
    set_.Set(nextField_, next);
    set_.Update();
}

void Chain::Exchange(qint32 before, qint32 upper, qint32 lower) const
{
    // As it is stored: a row that is missing now leaves its trace for the album's repair.
    const qint32 stored = Find(lower) != 0 ? StoredLink(ChainDirection::Next) : 0;
    const qint32 after = stored == lower ? 0 : stored;
    SetLinks(lower, before, upper);
    SetLinks(upper, lower, after);
    LeadTo(before, lower);
    LeadBackTo(after, upper);
}

} // namespace GeneralModule
