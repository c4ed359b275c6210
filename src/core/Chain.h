// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/ReadLock.h"
#include "platform/data/RecordSet.h"

#include <QSet>
#include <QStringView>

#include <vector>

namespace GeneralModule {

enum class ChainDirection { Previous, Next };

// The rows of a record set as a doubly linked chain: each names the row before it and the row after
// it by their identifiers, 0 for none. A link to a row that is not there, or to the row itself,
// counts as none, and no walk visits a row twice.
//
// Links need not be mutual: what is created is led to before the row after it leads back (LeadTo),
// or leads to its neighbours before they lead to it (LinkNeighbours). So the row before another one
// in reading order is found by a walk (FindWay); its own link may name an older neighbour.
//
// All of it moves the set's current row and throws DatabaseError. Changes that belong together are
// the caller's to batch.
class Chain
{
public:
    // The names of the fields must outlive the chain.
    Chain(RecordSet& set, QStringView previousField, QStringView nextField)
        : set_(set), previousField_(previousField), nextField_(nextField)
    {
    }

    // Goes to the row and returns its identifier; 0, and the set stays, when there is none.
    qint32 Find(qint32 row) const;
    // The row that this one leads to, where the set then stands; 0 for none.
    qint32 Neighbour(qint32 row, ChainDirection direction) const;
    qint32 Previous(qint32 row) const { return Neighbour(row, ChainDirection::Previous); }
    qint32 Next(qint32 row) const { return Neighbour(row, ChainDirection::Next); }
    // The current row's link as it is stored, which may lead nowhere; 0 for Null.
    qint32 StoredLink(ChainDirection direction) const;

    // Calls visit on the identifier of each row from the first one on until it returns false. The
    // set stands on the row that is visited; visit may move it.
    template<typename Visit>
    void Walk(qint32 first, ChainDirection direction, const Visit& visit) const
    {
        const ReadLock lock(*set_.GetDatabase());
        QSet<qint32> visited;
        for (qint32 row = Find(first); row != 0 && !visited.contains(row);) {
            visited.insert(row);
            const qint32 following = StoredLink(direction);
            if (!visit(row))
                return;
            row = Find(following);
        }
    }
    // The identifiers of the whole walk; none when the first row is not there.
    std::vector<qint32> Rows(qint32 first, ChainDirection direction) const;
    // The last of them; 0 when the first row is not there.
    qint32 End(qint32 first, ChainDirection direction) const;

    // How a walk forward from the first row comes to another.
    struct Way
    {
        bool isReached = false;
        qint32 last =
            0; // the row that leads to it, 0 for none; the walk's end if it is not reached
    };
    Way FindWay(qint32 first, qint32 row) const;

    // These change nothing of a row that is not there; 0 stands for what is before the first row or
    // after the last one.

    // One way only: the other row keeps its own link.
    void LeadTo(qint32 row, qint32 next) const;
    void LeadBackTo(qint32 row, qint32 previous) const;
    // Makes two rows neighbours, as after the removal of what was between them.
    void Join(qint32 previous, qint32 next) const;
    // Makes the neighbours of a row, which holds its own links already, lead to it.
    void LinkNeighbours(qint32 previous, qint32 row, qint32 next) const;
    void SetLinks(qint32 row, qint32 previous, qint32 next) const;
    // Exchanges two neighbours, of which the row before leads to the upper one.
    void Exchange(qint32 before, qint32 upper, qint32 lower) const;

private:
    RecordSet& set_;
    QStringView previousField_;
    QStringView nextField_;
};

// The identifier in that field of the set's current row; 0 for Null.
qint32 LinkIn(RecordSet& set, QStringView field);

// Sets a link of the row of that identifier, unless it holds it already; nothing happens when there
// is no such row.
void SetLink(RecordSet& set, qint32 row, QStringView field, qint32 value);

} // namespace GeneralModule
