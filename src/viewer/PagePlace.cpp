// SPDX-License-Identifier: MIT
#include "viewer/PagePlace.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PagePlace)

public:
    static QString Pictures(const PagePlace& place)
    {
        if (place.first == 0)
            return {};
        if (place.first == place.last)
            return tr("picture %1 of %2").arg(place.first).arg(place.found);
        return tr("pictures %1-%2 of %3").arg(place.first).arg(place.last).arg(place.found);
    }

    static QStringList All(const PagePlace& place)
    {
        QStringList texts{Pictures(place)};
        if (place.paragraph.number > 0)
            texts.prepend(
                tr("paragraph %1 of %2").arg(place.paragraph.number).arg(place.paragraph.count));
        if (place.missing > 0)
            texts += tr("%n missing", "picture files", place.missing);
        texts.removeAll(QString());
        return texts;
    }

    static QString Listed(const QStringList& texts)
    {
        QString list = texts.value(0);
        for (const QString& text : texts.mid(1))
            list = tr("%1, %2", "a list").arg(list, text);
        return list;
    }

    static QString WithHint(const QString& text)
    {
        return tr("%1 \u2013 Tab goes to a picture, Enter describes it").arg(text);
    }
};

} // namespace

QString Describe(const PagePlace& place)
{
    const QString text = Texts::Listed(Texts::All(place));
    return place.isSelection && place.first > 0 ? Texts::WithHint(text) : text;
}
