// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QTimer>

// A line over the pictures of a page that says for a moment what has happened. It takes no clicks.
class PageNews : public QLabel
{
public:
    explicit PageNews(QWidget* page);

    // In the middle of that area, near its top.
    void Show(const QString& text, const QRect& area);

private:
    QTimer timer_;
};
