// SPDX-License-Identifier: MIT
#include "ui/main/LookOptions.h"

#include "core/Settings.h"
#include "platform/widgets/ColorScheme.h"
#include "ui/main/MenuChoice.h"
#include "viewer/ViewerFlags.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QMenu>

#include <algorithm>

using namespace GeneralModule;

namespace {

struct LookOptions
{
    Q_DECLARE_TR_FUNCTIONS(LookOptions)
};

const QString viewerSection = QStringLiteral("Viewer");
const QString textSizeKey = QStringLiteral("TextSize");
const QString userSection = QStringLiteral("User");
const QString colorsKey = QStringLiteral("Colors");
const QString desktops = QStringLiteral("Desktop");

// What was stored, if it is one of the choices.
QString StoredChoice(const QString& section, const QString& key,
                     const std::vector<MenuChoice>& choices, const QString& usual)
{
    const QString stored = GetUserSetting(section, key);
    const bool isKnown = std::any_of(choices.begin(), choices.end(),
                                     [&](const MenuChoice& each) { return each.value == stored; });
    return isKnown ? stored : usual;
}

void UseTextSize(const QString& size)
{
    if (size == QLatin1String("Small"))
        TextScale = 0.8;
    else if (size == QLatin1String("Large"))
        TextScale = 1.3;
    else if (size == QLatin1String("VeryLarge"))
        TextScale = 1.7;
    else
        TextScale = 1;
}

void UseColors(const QString& colors)
{
    if (colors == QLatin1String("Light"))
        ShowColors(ColorScheme::Light);
    else if (colors == QLatin1String("Dark"))
        ShowColors(ColorScheme::Dark);
    else
        ShowColors(ColorScheme::Desktop);
}

// In that language itself: "Français".
QString NameOfLanguage(const QString& code)
{
    if (code == QLatin1String("en")) // the toolkit would name a country too
        return QStringLiteral("English");
    QString name = QLocale(code).nativeLanguageName();
    return name.replace(0, 1, name.left(1).toUpper());
}

QStringList LanguagesPresent()
{
    QStringList codes{QStringLiteral("en")};
    const QString prefix = QStringLiteral("lumenark_");
    const QDir translations(QStringLiteral(":/translations"));
    for (const QString& file : translations.entryList({prefix + QStringLiteral("*.qm")})) {
        const QString code = file.mid(prefix.size()).section(u'.', 0, 0);
        if (!codes.contains(code))
            codes += code;
    }
    return codes;
}

} // namespace

void OfferTextSizes(QMenu& menu)
{
    const QString normal = QStringLiteral("Normal");
    const std::vector<MenuChoice> choices{
        {QStringLiteral("Small"), LookOptions::tr("Small")},
        {normal, LookOptions::tr("Normal")},
        {QStringLiteral("Large"), LookOptions::tr("Large")},
        {QStringLiteral("VeryLarge"), LookOptions::tr("Very Large")}};
    const QString chosen = StoredChoice(viewerSection, textSizeKey, choices, normal);
    UseTextSize(chosen);
    OfferChoices(menu, choices, chosen, [](const QString& size) {
        UseTextSize(size);
        SaveUserSetting(viewerSection, textSizeKey, size);
    });
}

void OfferColors(QMenu& menu)
{
    const std::vector<MenuChoice> choices{{desktops, LookOptions::tr("As on the Desktop")},
                                          {QStringLiteral("Light"), LookOptions::tr("Light")},
                                          {QStringLiteral("Dark"), LookOptions::tr("Dark")}};
    const QString chosen = StoredChoice(userSection, colorsKey, choices, desktops);
    UseColors(chosen);
    OfferChoices(menu, choices, chosen, [](const QString& colors) {
        UseColors(colors);
        SaveUserSetting(userSection, colorsKey, colors);
    });
}

void OfferLanguages(QMenu& menu)
{
    std::vector<MenuChoice> choices{{desktops, LookOptions::tr("As on the Desktop")}};
    for (const QString& code : LanguagesPresent())
        choices.push_back({code, NameOfLanguage(code)});
    const QString language = GetLanguage();
    OfferChoices(menu, choices, language.isEmpty() ? desktops : language,
                 [](const QString& code) { SaveLanguage(code == desktops ? QString() : code); });
    menu.addSeparator();
    QAction* note = menu.addAction(LookOptions::tr("Changes at the next start of the program"));
    note->setObjectName(QStringLiteral("mnuLanguageNote"));
    note->setEnabled(false);
}
