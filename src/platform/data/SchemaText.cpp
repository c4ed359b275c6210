// SPDX-License-Identifier: MIT
#include "platform/data/SchemaText.h"

#include <QRegularExpression>

#include <string_view>

namespace {

constexpr qsizetype longestDefinition = 1 << 20; // bytes; the longest in an album has about 500

// Length of the quoted name, quoted text or comment at the beginning; 0 when there is none.
std::size_t EndOfQuoted(std::string_view sql)
{
    std::string_view end;
    if (sql.starts_with("--"))
        end = "\n";
    else if (sql.starts_with("/*"))
        end = "*/";
    else if (sql.front() == '[')
        end = "]";
    else if (std::string_view("'\"`").find(sql.front()) != std::string_view::npos)
        end = sql.substr(0, 1);
    else
        return 0;
    const std::size_t found = sql.find(end, sql.front() == '/' ? 2 : 1);
    return found == std::string_view::npos ? sql.size() : found + end.size();
}

// The definition without quoted names, quoted texts and comments, with single blanks.
QString Bare(const QByteArray& definition)
{
    QByteArray bare;
    std::string_view sql(definition.constData(), std::size_t(definition.size()));
    while (!sql.empty()) {
        const std::size_t quoted = EndOfQuoted(sql);
        bare += quoted > 0 ? ' ' : sql.front();
        sql.remove_prefix(quoted > 0 ? quoted : 1);
    }
    return QString::fromUtf8(bare).simplified();
}

} // namespace

// The engine stores every definition with exactly this beginning, whatever the author typed. None
// of the words can be an unquoted name. A default in parentheses may be a number or a text, which
// Bare has removed. Options after the columns change how rows are stored.
bool IsPlainTable(const QByteArray& sql)
{
    static const QRegularExpression active(
        QStringLiteral(
            R"(\b(CHECK|AS)\b|\bON CONFLICT\b|\bDEFAULT ?\((?! ?([-+]?[\d.]+|NULL)? ?\)))"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    if (!sql.startsWith("CREATE TABLE ") || sql.size() > longestDefinition)
        return false;
    const QString bare = Bare(sql);
    return bare.endsWith(u')') && !bare.contains(active);
}

// A condition would follow the columns; a call or a query would add parentheses.
bool IsPlainIndex(const QByteArray& sql)
{
    if ((!sql.startsWith("CREATE INDEX ") && !sql.startsWith("CREATE UNIQUE INDEX ")) ||
        sql.size() > longestDefinition)
        return false;
    const QString bare = Bare(sql);
    return bare.endsWith(u')') && bare.count(u'(') == 1;
}
