// SPDX-License-Identifier: MIT
#include "platform/data/FilterSql.h"

#include "platform/data/SqlFunctions.h"
#include "platform/text/LikePattern.h"

#include <algorithm>
#include <span>

namespace {

constexpr std::size_t maxValues = 900;     // the oldest engine takes 999 parameters
constexpr std::size_t fewestLookedUp = 24; // fewer are faster to compare one by one

bool IsAscii(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

class Translator
{
public:
    Translator(QStringView text, const TableLayout& table, FilterSql& result)
        : text_(text), table_(table), result_(result)
    {
    }

    void Translate(const FilterNode& node)
    {
        switch (node.kind) {
        case FilterNode::Kind::Equals:
            return TranslateEquals(node);
        case FilterNode::Kind::Like:
            return TranslateLike(node);
        case FilterNode::Kind::Not:
            result_.condition += "NOT (";
            Translate(node.operands.front());
            result_.condition += ')';
            return;
        case FilterNode::Kind::And:
            return TranslateJoined(node.operands, " AND ");
        case FilterNode::Kind::Or:
            return TranslateOr(node);
        }
    }

private:
    void TranslateOr(const FilterNode& node)
    {
        if (!TranslateAnyOf(node))
            TranslateJoined(node.operands, " OR ");
    }

    // Many values for one field become one parameter and one look-up per row instead of many
    // comparisons. False when the node is not such a condition.
    bool TranslateAnyOf(const FilterNode& node)
    {
        if (node.operands.size() < fewestLookedUp)
            return false;
        const int field = table_.Find(node.operands.front().field);
        QStringList values;
        for (const FilterNode& operand : node.operands) {
            const auto* value = std::get_if<QString>(&operand.value);
            if (operand.kind != FilterNode::Kind::Equals || !value ||
                table_.Find(operand.field) != field)
                return false;
            values += *value;
        }
        if (field < 0 || table_.At(field).isNumber || !table_.At(field).ignoresCase)
            return false;
        result_.condition += QByteArray(anyOfFunction) + '(' + AddValue(JoinedForAnyOf(values)) +
                             ',' + QuotedName(table_.At(field).name) + ')';
        return true;
    }

    // Nested by halves: for the engine a chain of conditions is as deep as it is long.
    void TranslateJoined(std::span<const FilterNode> operands, const char* word)
    {
        if (operands.size() == 1)
            return Translate(operands.front());
        const std::size_t half = operands.size() / 2;
        result_.condition += '(';
        TranslateJoined(operands.first(half), word);
        result_.condition += word;
        TranslateJoined(operands.subspan(half), word);
        result_.condition += ')';
    }

    void TranslateEquals(const FilterNode& node)
    {
        const TableLayout::Field& field = FindField(node.field);
        const auto* value = std::get_if<QString>(&node.value);
        if (field.isNumber == (value != nullptr))
            FailMismatch(node.field);
        result_.condition += QuotedName(field.name) + '=' + AddValue(node.value);
        // The engine's own comparison ignores the case of ASCII letters only, but can use an index.
        if (value && field.ignoresCase && !IsAscii(*value))
            result_.condition += QByteArrayLiteral(" COLLATE ") + foldedCollation;
    }

    void TranslateLike(const FilterNode& node)
    {
        const TableLayout::Field& field = FindField(node.field);
        if (field.isNumber)
            FailMismatch(node.field);
        const QByteArray pattern = std::get<QString>(node.value).toUtf8();
        RequireUsable(LikePattern(pattern.toStdString(), LikePattern::Case::Insensitive));
        result_.condition += QByteArray(field.ignoresCase ? likeFunction : pathLikeFunction) + '(' +
                             AddValue(node.value) + ',' + QuotedName(field.name) + ')';
    }

    void RequireUsable(const LikePattern& pattern) const
    {
        if (pattern.IsTooCostly())
            throw DatabaseError(
                DatabaseError::TooComplex,
                DatabaseError::tr("A part of the pattern is too long in filter '%1'.")
                    .arg(Excerpt(text_)));
        if (!pattern.IsValid())
            throw DatabaseError(
                DatabaseError::InvalidPattern,
                DatabaseError::tr("Invalid pattern in filter '%1'.").arg(Excerpt(text_)));
    }

    QByteArray AddValue(const FieldValue& value)
    {
        if (result_.values.size() >= maxValues)
            FailTooComplex(text_);
        result_.values.push_back(value);
        return '?' + QByteArray::number(qsizetype(result_.values.size()) + 1);
    }

    const TableLayout::Field& FindField(const QString& name) const
    {
        const int field = table_.Find(name);
        if (field < 0) {
            throw DatabaseError(DatabaseError::UnknownFieldInFilter,
                                DatabaseError::tr("Unknown field '%1' in filter '%2'.")
                                    .arg(Excerpt(name), Excerpt(text_)));
        }
        return table_.At(field);
    }

    [[noreturn]] void FailMismatch(const QString& field) const
    {
        throw DatabaseError(
            DatabaseError::TypeMismatch,
            DatabaseError::tr("Field '%1' is compared with a value of another type in '%2'.")
                .arg(Excerpt(field), Excerpt(text_)));
    }

    QStringView text_;
    const TableLayout& table_;
    FilterSql& result_;
};

} // namespace

FilterSql TranslateFilter(QStringView text, const TableLayout& table)
{
    FilterSql result;
    if (!text.isEmpty())
        Translator(text, table, result).Translate(ParseFilter(text));
    return result;
}
