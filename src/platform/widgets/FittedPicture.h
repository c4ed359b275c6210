// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>

class PictureBox;

// A dark background with one picture in its middle, scaled down to fit if necessary, never up. The
// picture's box is named imgImage.
class FittedPicture : public QWidget
{
    Q_OBJECT

public:
    explicit FittedPicture(QWidget* parent = nullptr);

    // Shows the album's picture file, read from path (the same, or its local copy). Shows none for
    // an empty file.
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
    QSize naturalSize_; // device pixels; empty for an unreadable picture
    QTimer decodeDelay_;
};
