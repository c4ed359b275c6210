// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

// A rectangle filled with one picture, which is brought to the box's size before it is given. Its
// Tag tells which picture of the album it shows: the picture's File, empty when it shows none.
class PictureBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Tag READ GetTag WRITE SetTag)

public:
    explicit PictureBox(QWidget* parent = nullptr);

    const QString& GetTag() const { return tag_; }
    void SetTag(const QString& tag);

    // In device pixels. A null image shows a sign for a picture that could not be read.
    void SetPicture(const QImage& picture);
    const QImage& GetPicture() const { return picture_; }

signals:
    // The second press of a double click is none of its own: it would undo at once what the first
    // one did.
    void Pressed(Qt::MouseButton button);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent*) override {}

private:
    void PaintUnreadable(QPainter& painter);

    QString tag_;
    QImage picture_;
};
