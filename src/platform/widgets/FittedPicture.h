// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>

class PictureBox;

// A dark ground with one picture in its middle, made smaller where it must be to fit, never larger.
// The picture's box is named imgImage.
class FittedPicture : public QWidget
{
    Q_OBJECT

public:
    explicit FittedPicture(QWidget* parent = nullptr);

    // Shows the album's picture file, read from path (the same, or its local copy). An empty file
    // shows none.
    void ShowPicture(const QString& file, const QString& path);

    QSize sizeHint() const override { return {480, 320}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Place();
    void Decode();

    PictureBox* imgImage_;
    QString path_;
    QSize naturalSize_; // device pixels; empty for a picture that cannot be read
    QTimer decodeDelay_;
};
