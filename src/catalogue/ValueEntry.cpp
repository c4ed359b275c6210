// SPDX-License-Identifier: MIT
#include "catalogue/ValueEntry.h"

#include "catalogue/CharacteristicModel.h"
#include "platform/dialogs/Dialogs.h"

#include <QCoreApplication>

QString AskForValue(const QString& prompt, const QString& proposal)
{
    QString answer = Dialogs::Door().AskText({.prompt = prompt, .proposal = proposal});
    while (!answer.isEmpty()) {
        QString cleaned = answer;
        cleaned.remove(u';').replace(u'\'', u' ');
        if (!IsSpecialMarker(cleaned))
            return CleanValue(cleaned);
        answer = Dialogs::Door().AskText(
            {.prompt = QCoreApplication::translate(
                 "ValueEntry", "Caracteristics must begin with a letter or a figure")});
    }
    return {};
}
