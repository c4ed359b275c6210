// SPDX-License-Identifier: MIT
// Filters, made by their grammar and then often damaged: what the record set finds is what the
// filter's tree says of each row, and what is refused ends in an error that names the filter.
#include "core/AlbumSets.h"
#include "fuzz/Trials.h"
#include "platform/data/DatabaseError.h"
#include "platform/data/FilterText.h"
#include "platform/text/LikePattern.h"
#include "platform/text/TextFold.h"
#include "support/AlbumFixture.h"

#include <QCoreApplication>

#include <map>
#include <set>

namespace {

using Row = std::map<QString, FieldValue>; // field's name in capitals
using Verdict = std::optional<bool>;       // none where a Null decides

const QStringList texts{"a",
                        "A",
                        "b",
                        "ab",
                        "é",
                        "É",
                        "ß",
                        "",
                        "'",
                        "''",
                        "\"",
                        "[",
                        "]",
                        "*",
                        "%",
                        "_",
                        "a b",
                        "1",
                        "-",
                        "ſ",
                        "\u212A",
                        "a;b",
                        "#7",
                        "7",
                        "\U0001F305",
                        "\\",
                        "?1",
                        "--",
                        QString(QChar(0))};
const QStringList patterns{"*", "?", "#", "[a-c]", "[!a]", "[]", "[", "*é*", "a*", "*[?]", "[z-a]"};
const QStringList fields{"Car0", "CAR1", "car2", "Text", "Id", "Chapter", "Id ", "", "rowid", "x]"};

QString Quoted(const QString& text, Trials& trials)
{
    const QString quote = trials.OneIn(4) ? QStringLiteral("\"") : QStringLiteral("'");
    return quote + QString(text).replace(quote, quote + quote) + quote;
}

QString AnyComparison(Trials& trials)
{
    const bool isSound = !trials.OneIn(40);
    const int kind = trials.Below(3);
    const auto fieldFrom = [&](int first, int count) {
        return '[' + fields[isSound ? first + trials.Below(count) : trials.Below(fields.size())] +
               ']';
    };
    if (kind == 0)
        return fieldFrom(4, 2) + '=' + QString::number(trials.Below(14) - 2);
    if (kind == 1)
        return fieldFrom(0, 4) + (trials.OneIn(3) ? " = " : "=") +
               Quoted(trials.AnyOf(texts), trials);
    QString pattern;
    for (int i = trials.Below(4); i > 0; --i)
        pattern += trials.OneIn(2) ? trials.AnyOf(patterns) : trials.AnyOf(texts);
    return fieldFrom(0, 4) + (trials.OneIn(3) ? " like " : " LIKE ") + Quoted(pattern, trials);
}

QString AnyFilter(Trials& trials, int depth)
{
    const int kind = depth == 0 ? 0 : trials.Below(6);
    if (kind < 2)
        return AnyComparison(trials);
    if (kind == 2)
        return "NOT " + AnyFilter(trials, depth - 1);
    if (kind == 3)
        return '(' + AnyFilter(trials, depth - 1) + ')';
    const QString word = kind == 4 ? " AND " : " OR ";
    QString filter = AnyFilter(trials, depth - 1);
    for (int i = trials.Below(3); i >= 0; --i)
        filter += word + AnyFilter(trials, depth - 1);
    return filter;
}

// Near and beyond what is allowed.
QString LargeFilter(Trials& trials)
{
    QString filter = AnyComparison(trials);
    const QString more = (trials.OneIn(2) ? " OR " : " AND ") + AnyComparison(trials);
    filter += more.repeated(trials.Below(950));
    if (trials.OneIn(2))
        filter = AnyComparison(trials);
    static const QStringList levels{"NOT (", "(", "([Car0]='a' AND ", "NOT ([Id]=3 OR "};
    const int deep = trials.Below(110);
    return trials.AnyOf(levels).repeated(deep) + filter + QString(deep, u')');
}

void Damage(QString& filter, Trials& trials)
{
    static const QStringList pieces{"'", "\"",  "[",   "]",  "(",    ")", "=",
                                    " ", "NOT", "AND", "OR", "LIKE", "-", "9223372036854775808",
                                    ";", "?2",  "é",   "\n"};
    for (int i = trials.Below(3); i >= 0 && !filter.isEmpty(); --i) {
        const int at = trials.Below(filter.size());
        if (trials.OneIn(2))
            filter.insert(at, trials.AnyOf(pieces));
        else
            filter.remove(at, 1 + trials.Below(3));
    }
}

std::string Utf8(const QString& text)
{
    return text.toUtf8().toStdString();
}

Verdict Compare(const FilterNode& node, const FieldValue& value)
{
    if (std::holds_alternative<std::monostate>(value))
        return std::nullopt;
    if (const auto* number = std::get_if<qint64>(&value))
        return *number == std::get<qint64>(node.value);
    const std::string own = Utf8(std::get<QString>(value));
    const std::string given = Utf8(std::get<QString>(node.value));
    return node.kind == FilterNode::Kind::Equals
               ? CompareFolded(own, given) == 0
               : LikePattern(given, LikePattern::Case::Insensitive).Matches(own);
}

Verdict Evaluate(const FilterNode& node, const Row& row)
{
    if (node.kind == FilterNode::Kind::Equals || node.kind == FilterNode::Kind::Like)
        return Compare(node, row.at(node.field.toUpper()));
    if (node.kind == FilterNode::Kind::Not) {
        const Verdict verdict = Evaluate(node.operands.front(), row);
        return verdict ? Verdict(!*verdict) : verdict;
    }
    const bool decides = node.kind == FilterNode::Kind::Or;
    Verdict result = !decides;
    for (const FilterNode& operand : node.operands) {
        const Verdict verdict = Evaluate(operand, row);
        if (verdict == decides)
            return decides;
        result = verdict ? result : std::nullopt;
    }
    return result;
}

std::map<qint64, Row> MakeRows()
{
    std::map<qint64, Row> rows;
    RecordSet& set = *GeneralModule::ParagraphSet;
    std::mt19937 random(1);
    const auto anyText = [&random] { return texts[qsizetype(random() % quint32(texts.size()))]; };
    for (int i = 0; i < 40; ++i) {
        set.AddNew();
        const qint64 id = set.Number(u"Id");
        Row row{{"ID", id}, {"CHAPTER", qint64(i % 7)}};
        set.Set(u"Chapter", i % 7);
        for (const QString field : {"CAR0", "CAR1", "CAR2", "TEXT"}) {
            if (random() % 6 == 0) {
                row[field] = {};
                continue;
            }
            const QString text = anyText() + (random() % 2 == 0 ? anyText() : QString());
            row[field] = text;
            set.Set(field, text);
        }
        set.Update();
        rows[id] = row;
    }
    return rows;
}

// Whether the error is one that a filter may end in.
bool IsRefusal(const DatabaseError& error)
{
    static const std::set<int> numbers{DatabaseError::BadFilter, DatabaseError::TooComplex,
                                       DatabaseError::UnknownFieldInFilter,
                                       DatabaseError::TypeMismatch, DatabaseError::InvalidPattern};
    return numbers.contains(error.GetNumber()) && !error.GetDescription().isEmpty();
}

void Try(Trials& trials, const QString& filter, const std::map<qint64, Row>& rows)
{
    std::set<qint64> found;
    try {
        RecordSet set(GeneralModule::ParagraphSet->GetDatabase(), QStringLiteral("Paragraph"));
        for (set.FindFirst(filter); !set.NoMatch(); set.FindNext(filter))
            found.insert(set.Number(u"Id"));
    } catch (const DatabaseError& error) {
        if (!IsRefusal(error))
            trials.Fault(
                QStringLiteral("%1 %2").arg(error.GetNumber()).arg(error.GetDescription()));
        return;
    }
    std::set<qint64> expected;
    for (const auto& [id, row] : rows) {
        if (filter.isEmpty() || Evaluate(ParseFilter(filter), row) == true)
            expected.insert(id);
    }
    trials.CountAccepted();
    if (found == expected)
        return;
    QString differ;
    for (const auto& [id, row] : rows) {
        if (found.contains(id) != expected.contains(id))
            differ += QString::number(id) + ' ';
    }
    trials.Fault(QStringLiteral("these rows differ: ") + differ);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const AlbumFixture album;
    const std::map<qint64, Row> rows = MakeRows();
    Trials trials(argc, argv, 10);
    return trials.Run([&] {
        QString filter =
            trials.OneIn(40) ? LargeFilter(trials) : AnyFilter(trials, trials.Below(5));
        if (trials.OneIn(3))
            Damage(filter, trials);
        trials.SetInput(filter.toUtf8());
        Try(trials, filter, rows);
    });
}
