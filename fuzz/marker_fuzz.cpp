// SPDX-License-Identifier: MIT
// Paragraphs' markers there and back, under labels of all kinds, and filled for a picture.
#include "core/AlbumSets.h"
#include "core/Parameters.h"
#include "fuzz/Trials.h"
#include "platform/data/WriteBatch.h"
#include "story/ParagraphMarkers.h"
#include "support/AlbumFixture.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using namespace GeneralModule;

const QStringList pieces{"<",
                         ">",
                         "<<",
                         ">>",
                         "<[",
                         "]>",
                         "[",
                         "]",
                         "(",
                         ")",
                         "a",
                         "b",
                         " ",
                         "0",
                         "1",
                         "10",
                         "11",
                         "12",
                         " (a)",
                         "\n",
                         "é",
                         "&",
                         "%1",
                         "<[0]>",
                         "<[1]>",
                         "<[11]>",
                         "<[01]>",
                         "\u2028",
                         "<<a (b)>>",
                         "<[Picture Legend]>",
                         "<<Picture Legend>>",
                         "Picture Legend",
                         QString(QChar(0)),
                         QString(QChar(0xD83C))};

QString AnyText(Trials& trials, int most)
{
    QString text;
    for (int i = trials.Below(most + 1); i > 0; --i)
        text += trials.AnyOf(pieces);
    return text;
}

void LabelAnew(Trials& trials)
{
    WriteBatch batch(ImageSet->GetDatabase());
    for (int group = 0; group < 4; ++group)
        SetCaractLabel(group, AnyText(trials, trials.OneIn(3) ? 4 : 1));
    for (const int column : {0, 1, 2, 3, 4, 5, 9, 10, 11})
        SetColumnLabel(column, AnyText(trials, trials.OneIn(3) ? 4 : 1));
    batch.Finish();
}

// What each marker stands for of the only picture.
std::vector<std::pair<QString, QString>> Values()
{
    std::vector<std::pair<QString, QString>> values{{"<[Picture Legend]>", "<[0]> of it"}};
    for (int column = 0; column < 12; ++column)
        values.emplace_back(QStringLiteral("<[%1]>").arg(column),
                            QStringLiteral("<[%1").arg(column));
    return values;
}

QString FilledPlainly(const QString& text, bool isKnown)
{
    static const auto values = Values();
    QString filled;
    for (qsizetype at = 0; at < text.size();) {
        const auto value = std::find_if(values.begin(), values.end(), [&](const auto& each) {
            return QStringView(text).sliced(at).startsWith(each.first);
        });
        if (value == values.end())
            filled += text[at++];
        else if (isKnown)
            filled += value->second;
        at += value == values.end() ? 0 : value->first.size();
    }
    return filled;
}

void Try(Trials& trials, const QString& picture)
{
    const std::vector<TextMarker> markers = ReadTextMarkers();
    const QString typed = AnyText(trials, 12);
    QString labels;
    for (const TextMarker& marker : markers)
        labels += marker.display + QLatin1Char(' ');
    trials.SetInput((typed + QStringLiteral(" | ") + labels).toUtf8());

    const QString stored = ToStoredMarkers(typed, markers);
    const QString shown = ToDisplayMarkers(stored, markers);
    if (ToStoredMarkers(shown, markers) != stored)
        trials.Fault(QStringLiteral("stored as '%1', shown as '%2', and then stored as '%3'")
                         .arg(stored, shown, ToStoredMarkers(shown, markers)));
    else if (shown != stored)
        trials.CountAccepted();

    const bool isKnown = trials.OneIn(2);
    const QString filled =
        FillPictureMarkers(typed, isKnown ? picture : QStringLiteral("/it's not there [*]"));
    if (filled != FilledPlainly(typed, isKnown))
        trials.Fault(QStringLiteral("filled as '%1'").arg(filled));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Trials trials(argc, argv, 10);
    AlbumFixture album;
    const QString picture = QStringLiteral("/a/it's.jpg");
    QMap<QString, QString> fields{{"Legend", "<[0]> of it"}};
    for (int column = 0; column < 12; ++column)
        fields[QStringLiteral("Car%1").arg(column)] = QStringLiteral("<[%1").arg(column);
    album.AddImageRow(picture, fields);
    return trials.Run([&] {
        LabelAnew(trials);
        for (int text = 0; text < 100; ++text)
            Try(trials, picture);
    });
}
