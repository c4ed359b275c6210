// SPDX-License-Identifier: MIT
#pragma once

#include "platform/picture/LookAhead.h"

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
    // This path will probably be shown next, and is made ready while the user looks at the picture.
    void Expect(const QString& path);

    QSize sizeHint() const override { return {480, 320}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QSize SizeFor(QSize naturalSize) const;
    QSize ToPixels(QSize box) const;
    void Place();
    void Decode();
    void BeginLookingAhead();

    PictureBox* imgImage_;
    QString path_;
    QSize naturalSize_; // device pixels; empty for an unreadable picture
    QString expected_;  // empty for none
    QTimer decodeDelay_;
    LookAhead lookAhead_;
};
