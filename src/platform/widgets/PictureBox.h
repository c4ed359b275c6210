// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

// A rectangle filled with one picture, which the caller scales to the box's size. Its Tag is the
// File of the album's picture that it shows, empty when it shows none.
class PictureBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Tag READ GetTag WRITE SetTag)

public:
    explicit PictureBox(QWidget* parent = nullptr);

    const QString& GetTag() const { return tag_; }
    void SetTag(const QString& tag);

    // In device pixels. A null image shows a sign for an unreadable picture.
    void SetPicture(const QImage& picture) { SetPart(picture, picture.rect()); }
    // Only that part of it, in its pixels.
    void SetPart(const QImage& picture, const QRectF& part);
    const QImage& GetPicture() const { return picture_; }

signals:
    // The second press of a double click does not count: it would undo what the first one did.
    void Pressed(Qt::MouseButton button);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent*) override {}

private:
    void PaintPicture(QPainter& painter);
    void PaintUnreadable(QPainter& painter);
    void PaintFocus(QPainter& painter);

    QString tag_;
    QImage picture_;
    QRectF part_;
};
