// SPDX-License-Identifier: MIT
#include "core/ChainMending.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <list>

namespace GeneralModule {

namespace {

class Mender
{
public:
    explicit Mender(const std::vector<ChainLink>& rows) : rows_(rows)
    {
        for (const ChainLink& row : rows) {
            byId_.insert(row.id, &row);
            if (row.next != row.id)
                leadTo_[row.next].append(row.id);
        }
    }

    std::vector<ChainLink> Mend(qint32 preferredHead)
    {
        if (rows_.empty())
            return {};
        Place(FragmentFrom(Head(preferredHead)));
        // First the fragments that have a beginning, then the rest: cycles.
        for (const bool beginsSomewhere : {true, false}) {
            for (const ChainLink& row : rows_) {
                if (!taken_.contains(row.id) && (!beginsSomewhere || !IsLedTo(row.id)))
                    Place(FragmentFrom(row.id));
            }
        }
        return Linked();
    }

private:
    using Order = std::list<qint32>;

    qint32 Head(qint32 preferred) const
    {
        const auto isHead = [](const ChainLink& row) { return row.previous == 0; };
        if (byId_.contains(preferred) && isHead(*byId_[preferred]))
            return preferred;
        const auto head = std::find_if(rows_.begin(), rows_.end(), isHead);
        return head == rows_.end() ? rows_.front().id : head->id;
    }

    // Whether a row that found no place yet leads to this one.
    bool IsLedTo(qint32 id) const
    {
        const QList<qint32> leaders = leadTo_.value(id);
        return std::any_of(leaders.begin(), leaders.end(),
                           [this](qint32 leader) { return !taken_.contains(leader); });
    }

    Order FragmentFrom(qint32 id)
    {
        Order fragment;
        while (byId_.contains(id) && !taken_.contains(id)) {
            taken_.insert(id);
            fragment.push_back(id);
            id = byId_[id]->next;
        }
        return fragment;
    }

    void Place(Order fragment)
    {
        const auto previous = places_.constFind(byId_[fragment.front()]->previous);
        const auto before = places_.constFind(byId_[fragment.back()]->next);
        Order::iterator place = order_.end();
        if (previous != places_.constEnd())
            place = std::next(*previous);
        else if (before != places_.constEnd() && *before != order_.begin())
            place = *before;
        for (auto row = fragment.begin(); row != fragment.end(); ++row)
            places_.insert(*row, row);
        order_.splice(place, fragment);
    }

    std::vector<ChainLink> Linked() const
    {
        std::vector<ChainLink> chain;
        for (const qint32 id : order_) {
            chain.push_back({id, chain.empty() ? 0 : chain.back().id, 0});
            if (chain.size() > 1)
                chain[chain.size() - 2].next = id;
        }
        return chain;
    }

    const std::vector<ChainLink>& rows_;
    QHash<qint32, const ChainLink*> byId_;
    QHash<qint32, QList<qint32>> leadTo_;
    QSet<qint32> taken_;
    Order order_;
    QHash<qint32, Order::iterator> places_;
};

// The rows in the order of their chain, if they are one already; else none. Most are, and telling
// so takes much less than mending.
std::vector<ChainLink> WholeChain(const std::vector<ChainLink>& rows)
{
    QHash<qint32, const ChainLink*> byId;
    byId.reserve(qsizetype(rows.size()));
    const ChainLink* row = nullptr;
    for (const ChainLink& each : rows) {
        byId.insert(each.id, &each);
        if (each.previous == 0)
            row = &each;
    }
    std::vector<ChainLink> chain;
    chain.reserve(rows.size());
    for (qint32 previous = 0; row && row->previous == previous; row = byId.value(row->next)) {
        chain.push_back(*row);
        previous = row->id;
    }
    const bool isWhole =
        chain.size() == rows.size() && !row && !chain.empty() && chain.back().next == 0;
    return isWhole ? chain : std::vector<ChainLink>();
}

} // namespace

std::vector<ChainLink> MendChain(const std::vector<ChainLink>& rows, qint32 preferredHead)
{
    std::vector<ChainLink> whole = WholeChain(rows);
    if (!whole.empty())
        return whole;
    return Mender(rows).Mend(preferredHead);
}

} // namespace GeneralModule
