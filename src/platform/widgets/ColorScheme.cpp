// SPDX-License-Identifier: MIT
#include "platform/widgets/ColorScheme.h"

#include "platform/widgets/OutlinedTicks.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

#include <cmath>
#include <optional>

namespace {

const QString fusion = QStringLiteral("Fusion");

struct Colors
{
    QRgb window;
    QRgb base; // of lists and text fields
    QRgb alternate;
    QRgb button;
    QRgb text;
    QRgb disabled; // text
    QRgb highlight;
    QRgb link;
    // Of edges, from the lightest to the darkest.
    QRgb light;
    QRgb midlight;
    QRgb mid;
    QRgb dark;
    QRgb shadow;
};

constexpr Colors lightColors{0xfff3f3f4, 0xffffffff, 0xfff6f7f9, 0xfffafafa, 0xff1d1e20,
                             0xff8c8e93, 0xff2f6fb5, 0xff1b5fa8, 0xffffffff, 0xffe6e7e9,
                             0xffc2c4c8, 0xffa4a6ab, 0xff6c6e73};
constexpr Colors darkColors{0xff2b2c2f, 0xff1f2023, 0xff26272a, 0xff3a3b3f, 0xffe7e7e8,
                            0xff86888d, 0xff3874b8, 0xff82b8f2, 0xff4b4c51, 0xff424347,
                            0xff303135, 0xff202124, 0xff101113};

QPalette MakePalette(const Colors& colors)
{
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb color) {
        palette.setColor(QPalette::All, role, QColor(color));
    };
    set(QPalette::Window, colors.window);
    set(QPalette::Base, colors.base);
    set(QPalette::AlternateBase, colors.alternate);
    set(QPalette::Button, colors.button);
    set(QPalette::ToolTipBase, colors.button);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        set(role, colors.text);
        palette.setColor(QPalette::Disabled, role, QColor(colors.disabled));
    }
    set(QPalette::PlaceholderText, colors.disabled);
    set(QPalette::Highlight, colors.highlight);
    set(QPalette::HighlightedText, 0xffffffff);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colors.mid));
    set(QPalette::Link, colors.link);
    set(QPalette::LinkVisited, colors.link);
    palette.setColor(QPalette::Disabled, QPalette::Link, QColor(colors.disabled));
    set(QPalette::Light, colors.light);
    set(QPalette::Midlight, colors.midlight);
    set(QPalette::Mid, colors.mid);
    set(QPalette::Dark, colors.dark);
    set(QPalette::Shadow, colors.shadow);
    return palette;
}

// Grey steps, from 0 to 255, that a color stands out from one it is painted on.
int StandsOut(const QColor& color, const QColor& ground)
{
    return int(std::abs(qGray(color.rgb()) - qGray(ground.rgb())) * color.alphaF());
}

// Many dark schemes of desktops tell no color for links and for the grey texts of empty fields,
// which then are those of a light one.
void MendDesktopColors()
{
    constexpr int legible = 64;
    const QPalette desktop = QApplication::palette();
    const QColor base = desktop.color(QPalette::Base);
    QPalette mended;
    if (StandsOut(desktop.color(QPalette::PlaceholderText), base) < legible) {
        QColor grey = desktop.color(QPalette::Text);
        grey.setAlpha(150);
        mended.setColor(QPalette::PlaceholderText, grey);
    }
    if (StandsOut(desktop.color(QPalette::Link), desktop.color(QPalette::Window)) < legible) {
        const bool isDark = qGray(base.rgb()) < 128;
        mended.setColor(QPalette::Link, QColor(isDark ? darkColors.link : lightColors.link));
    }
    QApplication::setPalette(mended);
}

} // namespace

void ShowColors(ColorScheme scheme)
{
    static std::optional<QString> desktopStyle; // while another one is in use
    if (scheme == ColorScheme::Desktop) {
        QApplication::setPalette(QPalette());
        // Other styles know how their own boxes are seen.
        const QString style = desktopStyle.value_or(QApplication::style()->objectName());
        if (style.toLower() == fusion.toLower())
            QApplication::setStyle(new OutlinedTicks(fusion));
        else if (desktopStyle)
            QApplication::setStyle(style);
        desktopStyle.reset();
        return MendDesktopColors();
    }
    if (!desktopStyle)
        desktopStyle = QApplication::style()->objectName();
    QApplication::setStyle(new OutlinedTicks(fusion));
    QApplication::setPalette(MakePalette(scheme == ColorScheme::Dark ? darkColors : lightColors));
}
