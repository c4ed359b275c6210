// SPDX-License-Identifier: MIT
#include "story/PictureSearch.h"

#include "core/AlbumPaths.h"
#include "core/AlbumSets.h"
#include "core/LocalCopy.h"
#include "core/TextRoutines.h"
#include "platform/text/LikePattern.h"
#include "story/PictureFilter.h"

#include <QDir>

#include <algorithm>

using GeneralModule::Quoted;

namespace {

constexpr qsizetype maxWords = 20; // more make a filter too complex

QString Contains(const QString& field, const QString& pattern)
{
    return QLatin1Char('[') + field + QLatin1String("] LIKE ") + Quoted(pattern);
}

// Paths compare with regard to case, so each letter stands in both.
QString InEitherCase(const QString& word)
{
    QString pattern;
    for (const QChar letter : word) {
        const QChar lower = letter.toLower();
        const QChar upper = letter.toUpper();
        if (lower == upper)
            pattern += EscapedForLike(letter);
        else
            pattern += QLatin1Char('[') + QString(lower) + upper + QLatin1Char(']');
    }
    return pattern;
}

QString FilterOfWord(const QString& word)
{
    const auto within = [](const QString& pattern) -> QString {
        return QLatin1Char('*') + pattern + QLatin1Char('*');
    };
    const QString pattern = within(EscapedForLike(word));
    QStringList conditions{Contains(QStringLiteral("Legend"), pattern),
                           Contains(QStringLiteral("File"), within(InEitherCase(word)))};
    for (int column = 0; column < columnCount; ++column)
        conditions += Contains(CarField(column), pattern);
    return conditions.join(QLatin1String(" OR "));
}

QString FilterOfFolder(QString folder)
{
    folder = QDir::toNativeSeparators(folder);
    if (!folder.endsWith(QDir::separator()))
        folder += QDir::separator();
    const QString any = QStringLiteral("*");
    const QString pattern = EscapedForLike(folder);
    const QString filter = Contains(QStringLiteral("File"), pattern + any);
    const QString relative = GeneralModule::RelativeFilter(pattern, any);
    return relative.isEmpty() ? filter : filter + QLatin1String(" OR ") + relative;
}

} // namespace

QString BuildSearchFilter(const SearchTerms& terms)
{
    QStringList conditions;
    const auto add = [&conditions](const QString& condition) {
        if (!condition.isEmpty())
            conditions += QLatin1Char('(') + condition + QLatin1Char(')');
    };
    add(BuildPictureFilter(terms.query));
    const QStringList words = terms.words.simplified().split(u' ', Qt::SkipEmptyParts);
    for (const QString& word : words.first(std::min(maxWords, words.size())))
        add(FilterOfWord(word));
    if (!terms.folder.isEmpty())
        add(FilterOfFolder(terms.folder));
    if (terms.isNotIndexed) {
        PictureQuery query;
        query.values.fill(noValue);
        add(BuildPictureFilter(query));
    }
    return conditions.join(QLatin1String(" AND "));
}

PictureSearch::PictureSearch(const SearchTerms& terms)
    : scan_(GeneralModule::AlbumDatabase, QStringLiteral("Image"), BuildSearchFilter(terms),
            terms.isMissing ? QStringList{QStringLiteral("File"), QStringLiteral("SourceFile")}
                            : QStringList()),
      isMissing_(terms.isMissing)
{
}

bool PictureSearch::Work(std::chrono::milliseconds time)
{
    return scan_.Work(time, [this](const Statement& picture) {
        if (isMissing_ && GeneralModule::IsPictureThere(QString::fromUtf8(picture.GetUtf8(1)),
                                                        QString::fromUtf8(picture.GetUtf8(2))))
            return;
        found_.push_back(qint32(picture.GetInteger(0)));
    });
}
