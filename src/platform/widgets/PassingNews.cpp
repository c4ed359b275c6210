// SPDX-License-Identifier: MIT
#include "platform/widgets/PassingNews.h"

#include <QAccessible>
#include <QPalette>

#include <algorithm>

namespace {

// It lies on pictures of any colour.
const QColor newsGround(0, 0, 0, 200);
const QColor newsInk(Qt::white);

constexpr int padding = 10;    // logical pixels
constexpr int edgeMargin = 24; // logical pixels

} // namespace

PassingNews::PassingNews(QWidget* page) : QLabel(page)
{
    setObjectName(QStringLiteral("lblNews"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setMargin(padding);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, newsGround);
    colors.setColor(QPalette::WindowText, newsInk);
    setPalette(colors);
    hide();
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &QWidget::hide);
}

void PassingNews::Show(const QString& text, const QRect& area, Edge edge,
                       std::chrono::milliseconds time)
{
    setText(text);
    const QFontMetrics metrics(font());
    const int widest = std::max(1, area.width() - 2 * edgeMargin);
    const int width = std::min(widest, metrics.horizontalAdvance(text) + 3 * padding);
    const int height = heightForWidth(width);
    const int top =
        edge == Edge::Top ? area.top() + edgeMargin : area.bottom() - edgeMargin - height;
    setGeometry(area.left() + (area.width() - width) / 2, top, width, height);
    raise();
    show();
    QAccessibleEvent news(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
    timer_.start(time);
}
