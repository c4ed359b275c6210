// SPDX-License-Identifier: MIT
#include "platform/data/FilterText.h"

#include <algorithm>

namespace {

// The engine's parser holds 100 symbols. A level takes up to three, and the statement adds
// parentheses of its own.
constexpr int deepestNesting = 16;
constexpr int maxComparisons = 200'000;

class FilterParser
{
public:
    explicit FilterParser(QStringView text) : whole_(text), rest_(text) {}

    FilterNode Parse()
    {
        FilterNode node = ParseOr();
        SkipBlanks();
        if (!rest_.isEmpty())
            Fail();
        return node;
    }

private:
    FilterNode ParseOr();
    FilterNode ParseAnd();
    FilterNode ParseFactor();
    FilterNode ParseComparison();
    QString ParseField();
    QString ParseQuoted(QChar quote);
    qint64 ParseNumber();

    void SkipBlanks();
    bool TakeSymbol(QChar symbol);
    bool TakeWord(QLatin1String word);
    [[noreturn]] void Fail() const;

    QStringView whole_;
    QStringView rest_;
    int depth_ = 0;
    int comparisons_ = 0;
};

void FilterParser::SkipBlanks()
{
    while (!rest_.isEmpty() && rest_.front().isSpace())
        rest_ = rest_.sliced(1);
}

bool FilterParser::TakeSymbol(QChar symbol)
{
    SkipBlanks();
    if (!rest_.startsWith(symbol))
        return false;
    rest_ = rest_.sliced(1);
    return true;
}

bool FilterParser::TakeWord(QLatin1String word)
{
    SkipBlanks();
    if (!rest_.startsWith(word, Qt::CaseInsensitive))
        return false;
    const QStringView after = rest_.sliced(word.size());
    if (!after.isEmpty() && (after.front().isLetterOrNumber() || after.front() == u'_'))
        return false;
    rest_ = after;
    return true;
}

FilterNode FilterParser::ParseOr()
{
    FilterNode first = ParseAnd();
    if (!TakeWord(QLatin1String("OR")))
        return first;
    FilterNode node{FilterNode::Kind::Or, {}, {}, {}};
    node.operands.push_back(std::move(first));
    do
        node.operands.push_back(ParseAnd());
    while (TakeWord(QLatin1String("OR")));
    return node;
}

FilterNode FilterParser::ParseAnd()
{
    FilterNode first = ParseFactor();
    if (!TakeWord(QLatin1String("AND")))
        return first;
    FilterNode node{FilterNode::Kind::And, {}, {}, {}};
    node.operands.push_back(std::move(first));
    do
        node.operands.push_back(ParseFactor());
    while (TakeWord(QLatin1String("AND")));
    return node;
}

FilterNode FilterParser::ParseFactor()
{
    if (++depth_ > deepestNesting)
        FailTooComplex(whole_);
    FilterNode node{FilterNode::Kind::Not, {}, {}, {}};
    if (TakeWord(QLatin1String("NOT"))) {
        node.operands.push_back(ParseFactor());
    } else if (TakeSymbol(u'(')) {
        node = ParseOr();
        if (!TakeSymbol(u')'))
            Fail();
    } else {
        node = ParseComparison();
    }
    --depth_;
    return node;
}

FilterNode FilterParser::ParseComparison()
{
    if (++comparisons_ > maxComparisons)
        FailTooComplex(whole_);
    FilterNode node{FilterNode::Kind::Equals, ParseField(), {}, {}};
    if (TakeWord(QLatin1String("LIKE")))
        node.kind = FilterNode::Kind::Like;
    else if (!TakeSymbol(u'='))
        Fail();

    if (TakeSymbol(u'\''))
        node.value = ParseQuoted(u'\'');
    else if (TakeSymbol(u'"'))
        node.value = ParseQuoted(u'"');
    else if (node.kind == FilterNode::Kind::Equals)
        node.value = ParseNumber();
    else
        Fail();
    return node;
}

QString FilterParser::ParseField()
{
    if (!TakeSymbol(u'['))
        Fail();
    const qsizetype end = rest_.indexOf(u']');
    if (end <= 0)
        Fail();
    QString field = rest_.first(end).toString();
    rest_ = rest_.sliced(end + 1);
    return field;
}

// The opening quote has been taken.
QString FilterParser::ParseQuoted(QChar quote)
{
    QString value;
    while (true) {
        const qsizetype end = rest_.indexOf(quote);
        if (end < 0)
            Fail();
        value += rest_.first(end);
        rest_ = rest_.sliced(end + 1);
        if (!rest_.startsWith(quote))
            return value;
        value += quote;
        rest_ = rest_.sliced(1);
    }
}

qint64 FilterParser::ParseNumber()
{
    SkipBlanks();
    qsizetype length = rest_.startsWith(u'-') ? 1 : 0;
    while (length < rest_.size() && rest_[length] >= u'0' && rest_[length] <= u'9')
        ++length;
    bool ok = false;
    const qint64 number = rest_.first(length).toLongLong(&ok);
    if (!ok)
        Fail();
    rest_ = rest_.sliced(length);
    return number;
}

void FilterParser::Fail() const
{
    throw DatabaseError(DatabaseError::BadFilter,
                        DatabaseError::tr("Syntax error in filter '%1' at '%2'.")
                            .arg(Excerpt(whole_), Excerpt(rest_)));
}

} // namespace

FilterNode ParseFilter(QStringView text)
{
    return FilterParser(text).Parse();
}

void FailTooComplex(QStringView filter)
{
    throw DatabaseError(DatabaseError::TooComplex,
                        DatabaseError::tr("The filter is too long: '%1'").arg(Excerpt(filter)));
}

QString Excerpt(QStringView filter)
{
    constexpr qsizetype longest = 200;
    const QString text = filter.left(longest).toString();
    return text.size() == filter.size() ? text : text + QLatin1String("...");
}
