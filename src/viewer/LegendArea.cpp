// SPDX-License-Identifier: MIT
#include "viewer/LegendArea.h"

#include "platform/widgets/ClickLabel.h"
#include "viewer/ViewerFlags.h"

#include <QFontMetrics>
#include <QScrollBar>

#include <algorithm>
#include <array>

namespace {

constexpr double largePointSize = 18;
constexpr double smallestPointSize = 12; // a longer text is scrolled
constexpr int textMargin = 14;           // logical pixels above and below the text
constexpr int sideMargin = 32;
constexpr double widestEms = 52; // longer lines are hard to follow
// The text gets 2, 4 or 7 lines, so that the pictures' room does not change with every paragraph,
// and never more than this part of the page.
constexpr std::array lineSteps{2, 4, 7};
constexpr double largestPart = 0.4;

int TextHeight(const QFont& font, const QString& text, int width)
{
    constexpr qsizetype longest = 10'000; // characters; no screen has room for as many
    return QFontMetrics(font)
        .boundingRect(QRect(0, 0, width, 1), Qt::TextWordWrap, text.left(longest))
        .height();
}

} // namespace

LegendArea::LegendArea(QWidget* parent)
    : QScrollArea(parent), lblLegend_(new ClickLabel), bottomMargin_(textMargin)
{
    setObjectName(QStringLiteral("legendArea"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lblLegend_->setObjectName(QStringLiteral("lblLegend"));
    lblLegend_->setCursor(Qt::PointingHandCursor);
    setWidget(lblLegend_);
    SetTextAlignment(Qt::AlignHCenter);
    connect(lblLegend_, &ClickLabel::Clicked, this, &LegendArea::Clicked);
}

void LegendArea::Enlarge()
{
    pointSize_ = largePointSize;
}

QFont LegendArea::FontOf(double pointSize) const
{
    QFont sized = font();
    sized.setPointSizeF(pointSize * GeneralModule::TextScale);
    return sized;
}

int LegendArea::WidthOn(QSize page) const
{
    const QFontMetrics metrics(GetFullFont());
    return std::min(page.width() - 2 * sideMargin, int(widestEms * metrics.height()));
}

QSize LegendArea::SizeOn(QSize page, const QString& text) const
{
    const QFont full = GetFullFont();
    const int line = QFontMetrics(full).lineSpacing();
    const int width = WidthOn(page);
    const int wanted = TextHeight(full, text, width);
    const int largest = std::max(line, int(page.height() * largestPart) - 2 * textMargin);
    const auto step = std::find_if(lineSteps.begin(), lineSteps.end(),
                                   [&](int lines) { return wanted <= lines * line; });
    const int lines = step == lineSteps.end() ? lineSteps.back() : *step;
    const int height = std::min(std::max(lines * line, wanted), largest);
    return {width, height + 2 * textMargin};
}

void LegendArea::Place(const QRect& place, int footer)
{
    bottomMargin_ = std::max(0, textMargin - footer);
    lblLegend_->setContentsMargins(0, textMargin, 0, bottomMargin_);
    setGeometry(place.adjusted(0, 0, 0, -footer));
    Fit();
}

void LegendArea::Fit()
{
    const int room = height() - textMargin - bottomMargin_;
    double size = pointSize_;
    while (size > smallestPointSize && TextHeight(FontOf(size), lblLegend_->text(), width()) > room)
        size -= 1;
    lblLegend_->setFont(FontOf(size));
}

void LegendArea::SetText(const QString& text)
{
    lblLegend_->setText(text);
    verticalScrollBar()->setValue(0);
    Fit();
}

void LegendArea::ShowAtOnce(const QString& text)
{
    SetText(text);
    lblLegend_->repaint();
}

QString LegendArea::GetText() const
{
    return lblLegend_->text();
}

void LegendArea::SetTextAlignment(Qt::Alignment horizontal)
{
    lblLegend_->setAlignment(horizontal | Qt::AlignVCenter);
}
