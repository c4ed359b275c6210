// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QTimer>

#include <chrono>

// A line over the contents of a window that says for a moment what has happened. It takes no
// clicks.
class PassingNews : public QLabel
{
public:
    enum class Edge { Top, Bottom };

    explicit PassingNews(QWidget* page);

    // In the middle of that area, near the edge.
    void Show(const QString& text, const QRect& area, Edge edge = Edge::Top,
              std::chrono::milliseconds time = std::chrono::milliseconds(2500));

private:
    QTimer timer_;
};
