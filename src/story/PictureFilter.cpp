// SPDX-License-Identifier: MIT
#include "story/PictureFilter.h"

#include "core/AlbumPaths.h"
#include "core/AlbumSets.h"
#include "core/TextRoutines.h"
#include "platform/files/FilePatterns.h"
#include "platform/files/PathRoutines.h"
#include "platform/text/LikePattern.h"
#include "story/FilterValues.h"

#include <QSet>

using GeneralModule::ImageSet;
using GeneralModule::LinkedImagesSet;
using GeneralModule::ReplaceText;

namespace {

constexpr int feedbackStep = 500;

// Writes one condition per restricted column, joined by AND.
class CarFilterWriter
{
public:
    void AddColumn(int column, QStringView values)
    {
        bool negated = false;
        bool firstValue = true;
        for (QString token = NextToken(values); !token.isEmpty(); token = NextToken(values)) {
            if (token == negation) {
                Open(QStringLiteral("NOT("), QStringLiteral(") AND NOT("));
                negated = true;
                // The new group takes its first value without OR.
                firstValue = true;
                continue;
            }
            if (!firstValue)
                filter_ += QLatin1String(" OR ");
            else if (!negated)
                Open(QStringLiteral("("), QStringLiteral(") AND ("));
            firstValue = false;
            filter_ += QLatin1Char('[') + CarField(column) + QLatin1String("]='") + token +
                       QLatin1Char('\'');
        }
    }

    QString Finish() const { return isFirst_ ? filter_ : filter_ + QLatin1Char(')'); }

private:
    void Open(const QString& first, const QString& later)
    {
        filter_ += isFirst_ ? first : later;
        isFirst_ = false;
    }

    QString filter_;
    bool isFirst_ = true;
};

void AddLinkedPictures(qint32 paragraph, PictureList& pictures)
{
    const QString filter = QStringLiteral("[ParagraphId]=") + QString::number(paragraph);
    const RecordSet::Walk walk(*LinkedImagesSet);
    LinkedImagesSet->FindFirst(filter);
    while (!LinkedImagesSet->NoMatch()) {
        pictures.AddLinked(LinkedImagesSet->TextOrEmpty(u"File"));
        LinkedImagesSet->FindNext(filter);
    }
}

void AddMatchingPictures(const QString& filter, PictureList& pictures, int maximum,
                         const CountFeedback& feedback)
{
    const QStringList linked = pictures.GetFiles();
    const QSet<QString> linkedFiles(linked.begin(), linked.end());
    const int file = ImageSet->FieldNumber(u"File");
    const RecordSet::Walk walk(*ImageSet);
    ImageSet->FindFirst(filter);
    while (!ImageSet->NoMatch() && pictures.Count() < maximum) {
        const QString picture = ImageSet->TextOrEmpty(file);
        if (!linkedFiles.contains(picture))
            pictures.Add(picture);
        if (pictures.Count() % feedbackStep == 0)
            feedback(pictures.Count());
        ImageSet->FindNext(filter);
    }
}

// "([File] LIKE 'folder/*.jpg')". A selection with ";" also stands for each of its patterns, all in
// that folder: people expect the same files as in a file list.
QString BuildFileFilter(const QString& selection)
{
    const QString folder = FolderOf(selection);
    QStringList conditions;
    for (const QString& pattern : SplitPatterns(FileNameOf(selection))) {
        conditions += QStringLiteral("[File] LIKE ") + GeneralModule::Quoted(folder + pattern);
        conditions += GeneralModule::RelativeFilter(folder, pattern);
    }
    conditions.removeAll(QString());
    return QLatin1Char('(') + conditions.join(QLatin1String(" OR ")) + QLatin1Char(')');
}

} // namespace

QString BuildCarFilter(const CarValues& filters)
{
    CarFilterWriter writer;
    for (int column = 0; column < columnCount; ++column) {
        // Old albums may hold filters that the editor would not store; they are read as it shows
        // them.
        const QString values = StorableFilter(filters[std::size_t(column)]);
        if (values != anyValue)
            writer.AddColumn(column, values);
    }
    return writer.Finish();
}

QString SwapCarGroups(const QString& filter)
{
    // The letters D, E, F stand for columns 3 to 5 while 6 to 8 take their place.
    const auto column = [](int number) -> QString { return QLatin1Char('[') + CarField(number); };
    const auto marker = [](int number) { return QStringLiteral("[Car") + QChar(u'A' + number); };
    QString swapped = filter;
    for (int i = 3; i <= 5; ++i)
        swapped = ReplaceText(swapped, column(i), marker(i), 1);
    for (int i = 6; i <= 8; ++i)
        swapped = ReplaceText(swapped, column(i), column(i - 3), 1);
    for (int i = 3; i <= 5; ++i)
        swapped = ReplaceText(swapped, marker(i), column(i + 3), 1);
    return swapped;
}

QString PatternOfSelection(const QString& selection)
{
    return EscapedForLike(FolderOf(selection)) + AsLikePatterns(FileNameOf(selection));
}

QString BuildPictureFilter(const PictureQuery& query)
{
    QString carFilter = BuildCarFilter(query.values);
    const QString swapped = SwapCarGroups(carFilter);
    if (swapped != carFilter)
        carFilter += QLatin1String(" OR ") + swapped;
    if (query.fileSelection.isEmpty())
        return carFilter;
    const QString fileFilter = BuildFileFilter(query.fileSelection);
    return carFilter.isEmpty()
               ? fileFilter
               : fileFilter + QLatin1String(" AND (") + carFilter + QLatin1Char(')');
}

void BuildPictureList(const PictureQuery& query, PictureList& pictures, int maximum,
                      const CountFeedback& feedback)
{
    pictures.Clear();
    if (query.linkedTo > 0)
        AddLinkedPictures(query.linkedTo, pictures);
    AddMatchingPictures(BuildPictureFilter(query), pictures, maximum, feedback);
    feedback(pictures.Count());
}
