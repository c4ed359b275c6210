// SPDX-License-Identifier: MIT
#include "viewer/PageNews.h"

#include <QAccessible>
#include <QPalette>

#include <algorithm>

namespace {

// It lies on pictures of any colour.
const QColor ground(0, 0, 0, 200);
const QColor ink(Qt::white);

constexpr int padding = 10;   // logical pixels
constexpr int topMargin = 24; // logical pixels
constexpr std::chrono::milliseconds readingTime(2500);

} // namespace

PageNews::PageNews(QWidget* page) : QLabel(page)
{
    setObjectName(QStringLiteral("lblNews"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setMargin(padding);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, ground);
    colors.setColor(QPalette::WindowText, ink);
    setPalette(colors);
    hide();
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &QWidget::hide);
}

void PageNews::Show(const QString& text, const QRect& area)
{
    setText(text);
    const QFontMetrics metrics(font());
    const int widest = std::max(1, area.width() - 2 * topMargin);
    const int width = std::min(widest, metrics.horizontalAdvance(text) + 3 * padding);
    setGeometry(area.left() + (area.width() - width) / 2, area.top() + topMargin, width,
                heightForWidth(width));
    raise();
    show();
    QAccessibleEvent news(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
    timer_.start(readingTime);
}
