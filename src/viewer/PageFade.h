// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include <optional>
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
    // Lets it fade away over the band; where nothing is kept, ends a fade.
    void Begin(const QRect& band);
    // Does not keep it any longer. A fade that has begun goes on.
    void Forget();
    void End();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double Opacity() const;

    std::optional<std::vector<Picture>> kept_; // for the next fade
    std::vector<Picture> fading_;              // in the one that is seen
    QColor ground_;
    QElapsedTimer time_;
    QTimer frames_;
};
