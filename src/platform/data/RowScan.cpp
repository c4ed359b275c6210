// SPDX-License-Identifier: MIT
#include "platform/data/RowScan.h"

#include "platform/data/FilterSql.h"
#include "platform/data/ReadLock.h"
#include "platform/data/TableLayout.h"

#include <QScopeGuard>

#include <limits>
#include <utility>

namespace {

// Of which none meets a costly filter, they take some milliseconds; visited ones are timed.
constexpr qint64 rowsTogether = 2000;

auto WithoutWaiting(Database& database)
{
    const bool wasWaiting = database.SetWaiting(false);
    return qScopeGuard([&database, wasWaiting] { database.SetWaiting(wasWaiting); });
}

} // namespace

RowScan::RowScan(std::shared_ptr<Database> database, const QString& table, const QString& filter,
                 const QStringList& fields)
    : database_(std::move(database)), before_(std::numeric_limits<qint64>::min())
{
    const auto noWaiting = WithoutWaiting(*database_);
    const TableLayout layout(database_->GetEngine(), table);
    const FilterSql condition = TranslateFilter(filter, layout);
    parameterOfEnd_ = int(condition.values.size()) + 2; // after ?1 and the filter's values
    QByteArray sql = "SELECT rowid";
    for (const QString& field : fields)
        sql += ',' + QuotedName(field.toUtf8());
    const QByteArray from = " FROM " + QuotedName(layout.GetTable()) + " WHERE rowid";
    sql += from + ">=?1 AND rowid<=?" + QByteArray::number(parameterOfEnd_);
    if (!condition.condition.isEmpty())
        sql += " AND (" + condition.condition + ')';
    rows_ = Statement(database_->GetEngine(), sql);
    int parameter = 2;
    for (const FieldValue& value : condition.values)
        rows_.Bind(parameter++, value);
    first_ = Statement(database_->GetEngine(), "SELECT rowid" + from + ">?1 LIMIT 1");
}

bool RowScan::Work(std::chrono::milliseconds time, const Visit& visit)
{
    const auto deadline = std::chrono::steady_clock::now() + time;
    const auto noWaiting = WithoutWaiting(*database_);
    const ReadLock together(*database_);
    while (VisitNext(deadline, visit)) {
        if (std::chrono::steady_clock::now() >= deadline)
            return true;
    }
    return false;
}

// Row numbers may have gaps of any size, so each range begins with a row.
bool RowScan::VisitNext(Time deadline, const Visit& visit)
{
    first_.Bind(1, before_);
    if (!first_.Step())
        return false;
    const qint64 begin = first_.GetInteger(0);
    first_.Reset();
    before_ = begin > std::numeric_limits<qint64>::max() - rowsTogether
                  ? std::numeric_limits<qint64>::max()
                  : begin + rowsTogether;
    rows_.Bind(1, begin);
    rows_.Bind(parameterOfEnd_, before_);
    const auto reset = qScopeGuard([this] { rows_.Reset(); });
    while (rows_.Step()) {
        visit(rows_);
        if (std::chrono::steady_clock::now() >= deadline) {
            before_ = rows_.GetInteger(0);
            break;
        }
    }
    return true;
}
