// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/WheelNotches.h"
#include "viewer/StorySurface.h"

#include <QWidget>

#include <array>

class LargePictureBox;
class LegendArea;
class PageFade;
class PassingNews;
class PictureBox;
class QLabel;

// The surface of a window: the viewer has one and the full-screen view another.
class StoryPage : public QWidget, public StorySurface
{
    Q_OBJECT

public:
    explicit StoryPage(QWidget* parent = nullptr);

    // Makes it a page for a whole screen: the text also stands on the pictures' dark ground, and is
    // larger.
    void Darken();
    // Says where the reader is, or no longer; the next page of its kind does the same.
    void SwitchPlace();

    void SetTitle(const QString& title) override;
    void Arrange(const QString& text) override;
    ScreenShape GetShape(int lines) const override;
    ScreenShape ShapeFor(const QString& text, int lines) const override;
    // Each box's tag is its picture's File; boxes without a picture are hidden.
    void ShowPictures(const std::vector<ShownPicture>& pictures,
                      std::vector<QImage> images) override;
    std::shared_ptr<void> FadeIntoNext() override;
    void ShowFullSize(const ShownPicture& picture, const QImage& image) override;
    void ShowFullSizePart(const QRect& place, const QImage& image, const QRectF& part) override;
    void LeaveFullSize() override;
    void SetNotice(const QString& text) override;
    void SetPlace(const QString& text) override;
    void SetLegend(const QString& text) override;
    void ShowFeedback(const QString& text) override;
    void SetLegendAlignment(Qt::Alignment alignment) override;
    // Not shown on a whole screen or while autoview runs, so that nothing covers a picture.
    void SetPictureToolTip(const QString& text) override;
    void LetPicturesTakeFocus(bool mayTake) override { canTakeFocus_ = mayTake; }
    std::shared_ptr<void> BeginWork() override;

    // The index of the picture that has the focus, else of the one under the pointer; -1 for none.
    int GetPictureMeant() const;
    // File of the picture that is alone, else of the one meant or the only one; empty for none.
    QString GetFileMeant() const;
    // Says something over the pictures for a moment.
    void ShowNews(const QString& text);

signals:
    void PicturePressed(int index, Qt::MouseButton button);
    void FullSizePressed(Qt::MouseButton button);
    void LegendClicked();
    // Over the pictures, by one notch: away from the user or not.
    void WheelTurned(bool isAway);
    // The same where one picture is alone, at that place of the page.
    void FullSizeTurned(bool isAway, const QPointF& at);
    void FullSizeDragged(const QPointF& by);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void CreateBoxes();
    void CreateNotice();
    void CreatePlace();
    bool& IsPlaceShown() const;
    void PlaceLegend();
    ScreenShape ShapeWith(int bandHeight, int lines) const;

    std::array<PictureBox*, maxPictures> imgImage_{};
    LargePictureBox* imgFullSize_ = nullptr;
    LegendArea* legend_ = nullptr;
    QLabel* lblNotice_ = nullptr;
    QLabel* lblPlace_ = nullptr;
    PassingNews* news_ = nullptr;
    PageFade* fade_ = nullptr;
    bool isDark_ = false;
    bool canTakeFocus_ = false; // the pictures
    int bandHeight_ = 0;        // logical pixels
    QSize legendSize_;
    WheelNotches wheel_;
};
