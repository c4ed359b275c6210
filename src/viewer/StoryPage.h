// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/PictureScreen.h"

#include <QWidget>

#include <array>
#include <vector>

class ClickLabel;
class PictureBox;
class QLabel;
class QScrollArea;

// The surface that a story is drawn on: a band of pictures with the text below it. The viewer has
// one and the full-screen view another.
class StoryPage : public QWidget
{
    Q_OBJECT

public:
    explicit StoryPage(QWidget* parent = nullptr);

    // Makes it a page for a whole screen: the text, too, stands on the pictures' dark ground, and
    // is larger.
    void Darken();

    // Divides the page between pictures and text, for a text of about that length. Pictures on show
    // stay where they are; fill the screen again.
    void Arrange(const QString& text);
    // The screen as it is arranged now, for that many lines.
    ScreenShape GetShape(int lines) const;

    // Places, pictures and tags of the boxes; boxes without a picture are hidden. images holds a
    // picture for each entry of pictures.
    void ShowPictures(const std::vector<ShownPicture>& pictures, std::vector<QImage> images);
    // One picture alone, the others hidden; and back again.
    void ShowFullSize(const ShownPicture& picture, const QImage& image);
    void LeaveFullSize();
    bool IsFullSize() const;

    // Says in the middle of the band why there are no pictures; empty says nothing.
    void SetNotice(const QString& text);

    void SetLegend(const QString& text);
    // As SetLegend, on the screen at once: for the middle of long work.
    void ShowFeedback(const QString& text);
    QString GetLegend() const;
    void SetLegendAlignment(Qt::Alignment alignment);

    // What a box says when the mouse rests on it; but nothing covers a picture on a whole screen,
    // or while autoview runs.
    void SetPictureToolTip(const QString& text);

signals:
    void PicturePressed(int index, Qt::MouseButton button);
    void FullSizePressed(Qt::MouseButton button);
    void LegendClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void CreateBoxes();
    void CreateLegend();
    void CreateNotice();
    int LegendHeightFor(const QString& text) const;
    int LegendWidth() const;
    void FitLegend();

    std::array<PictureBox*, mostPictures> imgImage_{};
    PictureBox* imgFullSize_ = nullptr;
    QScrollArea* legendArea_ = nullptr;
    ClickLabel* lblLegend_ = nullptr;
    QLabel* lblNotice_ = nullptr;
    bool isDark_ = false;
    int legendHeight_ = 0;
    double legendPointSize_ = 15; // read from an arm's length away
};
