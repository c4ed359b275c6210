// SPDX-License-Identifier: MIT
#include "story/ParagraphMarkers.h"

#include "catalogue/CharacteristicModel.h"
#include "core/Album.h"
#include "core/TextRoutines.h"

#include <optional>

namespace {

const QString opening = QStringLiteral("<[");
const QString closing = QStringLiteral("]>");

// Field of the picture that a placeholder stands for; none when it is no placeholder.
std::optional<QString> FieldOf(const QString& marker)
{
    if (marker == QLatin1String("Picture Legend"))
        return QStringLiteral("Legend");
    bool isNumber = false;
    const int column = marker.toInt(&isNumber);
    if (isNumber && column >= 0 && column < columnCount && marker == QString::number(column))
        return QStringLiteral("Car%1").arg(column);
    return std::nullopt;
}

QString ValueOf(const QString& field, bool isKnownPicture)
{
    return isKnownPicture ? GeneralModule::ImageSet->TextOrEmpty(field) : QString();
}

} // namespace

QString FillPictureMarkers(const QString& text, const QString& pictureFile)
{
    if (!text.contains(opening))
        return text;
    GeneralModule::ImageSet->FindFirst(QStringLiteral("[File]=") +
                                       GeneralModule::Quoted(pictureFile));
    const bool isKnownPicture = !GeneralModule::ImageSet->NoMatch();

    // What was filled in is not looked at again: a legend may hold "<[" itself.
    QString filled;
    qsizetype done = 0;
    while (true) {
        const qsizetype begin = text.indexOf(opening, done);
        const qsizetype end = begin < 0 ? -1 : text.indexOf(closing, begin + opening.size());
        if (end < 0)
            return filled + text.sliced(done);
        const qsizetype inside = begin + opening.size();
        const std::optional<QString> field = FieldOf(text.sliced(inside, end - inside));
        filled += text.sliced(done, begin - done);
        filled += field ? ValueOf(*field, isKnownPicture) : opening;
        done = field ? end + closing.size() : inside;
    }
}
