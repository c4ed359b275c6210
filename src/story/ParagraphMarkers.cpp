// SPDX-License-Identifier: MIT
#include "story/ParagraphMarkers.h"

#include "catalogue/CharacteristicModel.h"
#include "catalogue/ColumnTitles.h"
#include "core/AlbumSets.h"
#include "core/Parameters.h"
#include "core/TextRoutines.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

const QString opening = QStringLiteral("<[");
const QString closing = QStringLiteral("]>");

// The picture's field for a placeholder; none when it is not a placeholder.
std::optional<QString> FieldOf(const QString& marker)
{
    if (marker == QLatin1String("Picture Legend"))
        return QStringLiteral("Legend");
    bool isNumber = false;
    const int column = marker.toInt(&isNumber);
    if (isNumber && column >= 0 && column < columnCount && marker == QString::number(column))
        return CarField(column);
    return std::nullopt;
}

// The text from there to the closing sign; empty when that is further away than in the longest
// marker, "Picture Legend". Searching further would read a long text again and again.
QString MarkerAt(const QString& text, qsizetype inside)
{
    const QString start = text.mid(inside, 14 + closing.size());
    return start.first(std::max<qsizetype>(0, start.indexOf(closing)));
}

QString ValueOf(const QString& field, bool isKnownPicture)
{
    return isKnownPicture ? GeneralModule::ImageSet->TextOrEmpty(field) : QString();
}

// A marker ends at the first ">>", is on one line, and must not merge with a "<" before it.
bool CanNameMarker(const QString& label)
{
    static const QRegularExpression bad(QStringLiteral("^<|<<|>>|[\\x00-\\x1f\\x{2028}\\x{2029}]"));
    return !label.contains(bad);
}

QString TitleOf(const QString& name, const QString& group)
{
    return group.isEmpty() ? name : name + QStringLiteral(" (") + group + QLatin1Char(')');
}

bool IsTaken(const std::vector<TextMarker>& markers, QString TextMarker::*part, const QString& text)
{
    return std::any_of(markers.begin(), markers.end(),
                       [&](const TextMarker& marker) { return marker.*part == text; });
}

QString Replaced(const QString& text, const std::vector<TextMarker>& markers,
                 QString TextMarker::*from, QString TextMarker::*to)
{
    QString result;
    qsizetype done = 0;
    for (qsizetype begin = text.indexOf(u'<'); begin >= 0; begin = text.indexOf(u'<', begin)) {
        const QStringView rest = QStringView(text).sliced(begin);
        const auto found =
            std::find_if(markers.begin(), markers.end(),
                         [&](const TextMarker& marker) { return rest.startsWith(marker.*from); });
        if (found == markers.end()) {
            ++begin;
            continue;
        }
        result.append(QStringView(text).sliced(done, begin - done));
        result += (*found).*to;
        begin += ((*found).*from).size();
        done = begin;
    }
    return result.append(QStringView(text).sliced(done));
}

} // namespace

std::vector<TextMarker> ReadTextMarkers()
{
    const QString legend = QStringLiteral("Picture Legend");
    std::vector<TextMarker> markers{{opening + legend + closing, "<<" + legend + ">>", legend}};
    for (int column = 0; column < columnCount; ++column) {
        const QString label = GeneralModule::ColumnLabel(LabelledColumnOf(column));
        const QString group = GeneralModule::CaractLabel(GroupOf(column));
        const QString stored = opening + QString::number(column) + closing;
        const QString display = "<<" + label + " (" + group + ")>>";
        const bool isPlain = CanNameMarker(label) && CanNameMarker(group) &&
                             !IsTaken(markers, &TextMarker::display, display);
        QString title = TitleOf(ColumnTitle(column), group);
        if (IsTaken(markers, &TextMarker::title, title))
            title += QLatin1Char(' ') + stored;
        markers.push_back({stored, isPlain ? display : stored, title});
    }
    return markers;
}

QString ToDisplayMarkers(const QString& text, const std::vector<TextMarker>& markers)
{
    return Replaced(text, markers, &TextMarker::stored, &TextMarker::display);
}

QString ToStoredMarkers(const QString& text, const std::vector<TextMarker>& markers)
{
    return Replaced(text, markers, &TextMarker::display, &TextMarker::stored);
}

QString FillPictureMarkers(const QString& text, const QString& pictureFile)
{
    if (!text.contains(opening))
        return text;
    GeneralModule::ImageSet->FindFirst(QStringLiteral("[File]=") +
                                       GeneralModule::Quoted(pictureFile));
    const bool isKnownPicture = !GeneralModule::ImageSet->NoMatch();

    // Filled-in text is not searched again: a legend may contain "<[" itself.
    QString filled;
    qsizetype done = 0;
    while (true) {
        const qsizetype begin = text.indexOf(opening, done);
        if (begin < 0)
            return filled + text.sliced(done);
        const qsizetype inside = begin + opening.size();
        const QString marker = MarkerAt(text, inside);
        const std::optional<QString> field = FieldOf(marker);
        filled += text.sliced(done, begin - done);
        filled += field ? ValueOf(*field, isKnownPicture) : opening;
        done = field ? inside + marker.size() + closing.size() : inside;
    }
}
