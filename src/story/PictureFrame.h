// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>

class PictureBox;

// Room for one picture of the album, shown whole and never larger than it is. Its picture box,
// imgImage, takes just the picture's place; without a picture it is hidden.
class PictureFrame : public QWidget
{
    Q_OBJECT

public:
    explicit PictureFrame(QWidget* parent = nullptr);

    // By the File that the album knows it by; an empty one shows none. Throws DatabaseError.
    void Show(const QString& file);
    const QString& GetFile() const;

    // What the empty room says.
    void SetHint(const QString& hint);

signals:
    void Pressed();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Fit();

    PictureBox* imgImage_;
    QString path_;
    QSize size_; // of the picture, in its own pixels
    QString hint_;
    QTimer fitDelay_;
};
