// SPDX-License-Identifier: MIT
#include "ui/main/TransitionOption.h"

#include "core/Settings.h"
#include "viewer/ViewerFlags.h"

#include <QAction>
#include <QApplication>
#include <QStyle>

using namespace GeneralModule;

namespace {

const QString section = QStringLiteral("Viewer");
const QString key = QStringLiteral("SoftTransitions");

bool IsChosen()
{
    const QString stored = GetUserSetting(section, key);
    if (!stored.isEmpty())
        return stored != QLatin1String("0");
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

} // namespace

void OfferSoftTransitions(QAction& entry)
{
    SoftTransitions = IsChosen();
    entry.setChecked(SoftTransitions);
    QObject::connect(&entry, &QAction::toggled, &entry, [](bool isOn) {
        SoftTransitions = isOn;
        SaveUserSetting(section, key, QString::number(int(isOn)));
    });
}
