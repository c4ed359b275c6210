// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

class ClickLabel;

// The text below the pictures. A text that is a little too long for its room is written a little
// smaller; one that is much too long can be scrolled.
class LegendArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit LegendArea(QWidget* parent = nullptr);

    // For a whole screen, which is read from across the room.
    void Enlarge();

    // Logical pixels that the area takes at the bottom of a page of that size, for a text of about
    // that length.
    QSize SizeOn(QSize page, const QString& text) const;
    // The footer are logical pixels at the bottom that are left to something else; as far as they
    // find room in the margin, the text stays where it is.
    void Place(const QRect& place, int footer);

    void SetText(const QString& text);
    // As SetText, on the screen at once.
    void ShowAtOnce(const QString& text);
    QString GetText() const;
    void SetTextAlignment(Qt::Alignment horizontal);
    // Of a text that has room enough.
    QFont GetFullFont() const { return FontOf(pointSize_); }

signals:
    void Clicked();

private:
    QFont FontOf(double pointSize) const;
    int WidthOn(QSize page) const;
    void Fit();

    ClickLabel* lblLegend_;
    int bottomMargin_;
    double pointSize_ = 15; // read from an arm's length away
};
