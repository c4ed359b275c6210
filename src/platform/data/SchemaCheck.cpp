// SPDX-License-Identifier: MIT
#include "platform/data/SchemaCheck.h"

#include "platform/data/Statement.h"

#include <QRegularExpression>
#include <QSet>

namespace {

constexpr int mostObjects =
    500; // an album has about twenty; tens of thousands slow every statement

// The engine writes a definition back with exactly these beginnings, whatever the author typed.
bool IsPlainTable(const QString& type, const QString& sql)
{
    static const QRegularExpression unwanted(
        QStringLiteral(R"(\bCHECK\b|\bDEFAULT\s*\(|\bAS\s*\()"),
        QRegularExpression::CaseInsensitiveOption);
    return type == QLatin1String("table") && sql.startsWith(QLatin1String("CREATE TABLE ")) &&
           !sql.contains(unwanted);
}

bool IsPlainIndex(const QString& type, const QString& sql)
{
    static const QRegularExpression plain(
        QStringLiteral(R"(^CREATE (UNIQUE )?INDEX [^(]+\([^()]*\)$)"));
    return type == QLatin1String("index") && (sql.isEmpty() || plain.match(sql).hasMatch());
}

bool UsesKnownCollations(const QString& sql)
{
    static const QRegularExpression collation(QStringLiteral(R"(\bCOLLATE\s+["'`\[]?(\w+))"),
                                              QRegularExpression::CaseInsensitiveOption);
    auto matches = collation.globalMatch(sql);
    while (matches.hasNext()) {
        const QString name = matches.next().captured(1).toUpper();
        if (name != QLatin1String("NOCASE") && name != QLatin1String("BINARY") &&
            name != QLatin1String("RTRIM"))
            return false;
    }
    return true;
}

[[noreturn]] void Refuse(const QString& name)
{
    throw DatabaseError(
        DatabaseError::NotADatabase,
        DatabaseError::tr("This file is not an album: it holds '%1', which no album has.")
            .arg(name));
}

qint64 PageCount(sqlite3* engine)
{
    Statement statement(engine, "PRAGMA page_count");
    return statement.Step() ? statement.GetInteger(0) : 0;
}

} // namespace

void CheckSchema(sqlite3* engine)
{
    const qint64 pages = PageCount(engine);
    QSet<qint64> roots;
    Statement objects(engine, "SELECT type, name, sql, rootpage FROM sqlite_master");
    while (objects.Step()) {
        const auto textAt = [&objects](int column) {
            const std::string_view text = objects.GetUtf8(column);
            return QString::fromUtf8(text.data(), qsizetype(text.size()));
        };
        const QString type = textAt(0);
        const QString name = textAt(1);
        const QString sql = textAt(2);
        const qint64 root = objects.GetInteger(3);
        const bool plain = IsPlainTable(type, sql) || IsPlainIndex(type, sql);
        if (!plain || !UsesKnownCollations(sql) || roots.size() >= mostObjects)
            Refuse(name);
        if (root < 1 || root > pages || roots.contains(root)) {
            throw DatabaseError(DatabaseError::Damaged,
                                DatabaseError::tr("The album file is damaged."));
        }
        roots.insert(root);
    }
}
