// SPDX-License-Identifier: MIT
#include "story/FilterSentence.h"

#include "platform/widgets/LiteralText.h"

#include <QCoreApplication>

namespace {

// Whole patterns, not joined words: other languages put them in another order.
struct SentenceText
{
    Q_DECLARE_TR_FUNCTIONS(FilterSentence)
};

struct Condition
{
    bool isNegated = false;
    QStringList values;
};

// As the filter is built: a "!" begins another condition.
QList<Condition> ConditionsOf(const QString& filter)
{
    QList<Condition> conditions;
    for (const QString& token : FilterTokens(StorableFilter(filter))) {
        if (token == negation)
            conditions += Condition{.isNegated = true, .values = {}};
        else if (conditions.isEmpty())
            conditions += Condition{.isNegated = false, .values = {token}};
        else
            conditions.back().values += token;
    }
    return conditions;
}

QString OneOf(const QString& name, const QStringList& values)
{
    if (values.size() == 1)
        return SentenceText::tr("%1 is %2").arg(name, values[0]);
    if (values.size() == 2)
        return SentenceText::tr("%1 is %2 or %3").arg(name, values[0], values[1]);
    if (values.size() == 3)
        return SentenceText::tr("%1 is %2, %3 or %4").arg(name, values[0], values[1], values[2]);
    return SentenceText::tr("%1 is %2, %3 or one of %n others", nullptr, int(values.size()) - 2)
        .arg(name, values[0], values[1]);
}

QString NoneOf(const QString& name, const QStringList& values)
{
    if (values.size() == 1)
        return SentenceText::tr("%1 is not %2").arg(name, values[0]);
    if (values.size() == 2)
        return SentenceText::tr("%1 is neither %2 nor %3").arg(name, values[0], values[1]);
    if (values.size() == 3)
        return SentenceText::tr("%1 is none of %2, %3 and %4")
            .arg(name, values[0], values[1], values[2]);
    return SentenceText::tr("%1 is none of %2, %3 and %n others", nullptr, int(values.size()) - 2)
        .arg(name, values[0], values[1]);
}

QString InWords(const QString& name, const Condition& condition)
{
    QStringList values;
    for (const QString& value : condition.values)
        values += value == noValue ? SentenceText::tr("not given") : AsPhrase(value);
    if (condition.isNegated && condition.values == QStringList(noValue))
        return SentenceText::tr("%1 is given").arg(name);
    return condition.isNegated ? NoneOf(name, values) : OneOf(name, values);
}

QString Linked(const QString& text, int column)
{
    return QStringLiteral("<a href=\"%1\">%2</a>")
        .arg(QString::number(column), text.toHtmlEscaped());
}

QStringList OtherConditions(const SearchTerms& terms)
{
    QStringList conditions;
    if (!terms.query.fileSelection.isEmpty())
        conditions += SentenceText::tr("the file is %1").arg(AsPhrase(terms.query.fileSelection));
    if (!terms.words.simplified().isEmpty())
        conditions += SentenceText::tr("the words are %1").arg(AsPhrase(terms.words.simplified()));
    if (!terms.folder.isEmpty())
        conditions += SentenceText::tr("the folder is %1").arg(AsPhrase(terms.folder));
    if (terms.isNotIndexed)
        conditions += SentenceText::tr("not indexed");
    if (terms.isMissing)
        conditions += SentenceText::tr("the file is missing");
    for (QString& condition : conditions)
        condition = condition.toHtmlEscaped();
    return conditions;
}

QString Joined(QStringList conditions)
{
    while (conditions.size() > 3)
        conditions[0] = SentenceText::tr("%1, %2").arg(conditions[0], conditions.takeAt(1));
    switch (conditions.size()) {
    case 0:
        return SentenceText::tr("Any picture");
    case 1:
        return conditions[0];
    case 2:
        return SentenceText::tr("%1, and %2").arg(conditions[0], conditions[1]);
    default:
        return SentenceText::tr("%1, %2, and %3").arg(conditions[0], conditions[1], conditions[2]);
    }
}

} // namespace

QString FilterSentence(const SearchTerms& terms, const ColumnTexts& titles)
{
    QStringList conditions;
    for (int column = 0; column < columnCount; ++column) {
        const QList<Condition> ofColumn = ConditionsOf(terms.query.values[std::size_t(column)]);
        const QString name = AsPhrase(titles[std::size_t(column)]);
        for (const Condition& condition : ofColumn)
            conditions += Linked(InWords(name, condition), column);
    }
    return Joined(conditions + OtherConditions(terms));
}

QString WithCount(const QString& sentence, std::optional<int> pictures)
{
    if (!pictures)
        return SentenceText::tr("%1: ...").arg(sentence);
    return *pictures > 0 ? SentenceText::tr("%1: %n pictures", nullptr, *pictures).arg(sentence)
                         : SentenceText::tr("%1: no picture fits").arg(sentence);
}
