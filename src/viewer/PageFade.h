// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include <vector>

// Lies over a page's band of pictures and lets the pictures that were there fade away. What is
// below it is the new page from the beginning, so that nothing is late, and clicks go there.
class PageFade : public QWidget
{
public:
    explicit PageFade(QWidget* page);

    struct Picture
    {
        QRect place; // logical pixels of the page
        QImage image;
    };

    // Keeps what is to fade away; the ground is what stands between the pictures.
    void Keep(std::vector<Picture> pictures, const QColor& ground);
    // Lets it fade away over the band; where nothing was kept since the last time, ends a fade.
    void Begin(const QRect& band);
    void End();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double Opacity() const;

    std::vector<Picture> pictures_;
    QColor ground_;
    bool isKept_ = false; // and not yet shown
    QElapsedTimer time_;
    QTimer frames_;
};
