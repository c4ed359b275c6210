// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QPointF>
#include <QString>
#include <QTextLayout>

#include <memory>
#include <vector>

// Lengths on a book's pages are in PostScript points, from the page's top left corner. The
// painter's device has this many dots in one, so that fonts need no fractions of a pixel.
constexpr int bookDotsPerPoint = 20;

enum class BookFont { Cover, Heading, Body, Legend, Number };

// A text broken into lines. Each of its paragraphs runs in the direction of its contents, from the
// side where that begins.
class BookText
{
public:
    BookText(const QString& text, BookFont font, qreal width,
             Qt::Alignment alignment = Qt::AlignLeft);

    qreal Width() const { return width_; }
    int CountLines() const { return int(lines_.size()); }
    // Of the lines from the first to before the last.
    qreal HeightOf(int first, int last) const;
    qreal Height() const { return HeightOf(0, CountLines()); }
    // How many lines from the first on stand in that height.
    int LinesWithin(int first, qreal height) const;
    bool IsRightToLeft() const { return isRightToLeft_; }

    // The top left corner is that of the first of these lines.
    void Paint(QPainter& painter, QPointF place, int first, int last) const;

private:
    void AddParagraph(const QString& text, const QTextOption& option);

    struct Line
    {
        std::size_t layout;
        int number; // in that
        qreal top;
        qreal bottom;
    };

    BookFont font_;
    qreal width_;
    bool isRightToLeft_;
    std::vector<std::unique_ptr<QTextLayout>> layouts_;
    std::vector<Line> lines_;
};
