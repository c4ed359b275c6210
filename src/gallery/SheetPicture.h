// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

class FittedPicture;
class QLabel;

// One picture over all of a window, with a line of text below, until the user goes back. It keeps
// the keyboard meanwhile, and the window's size.
class SheetPicture : public QWidget
{
    Q_OBJECT

public:
    explicit SheetPicture(QWidget* window);

    // Shows the album's picture file, read from path (the same, or its local copy).
    void Show(const QString& file, const QString& path, const QString& caption);
    // This path will probably be shown next.
    void Expect(const QString& path);

signals:
    // 1 for the next picture, -1 for the one before.
    void StepWanted(int step);
    void BackWanted();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    FittedPicture* picture_;
    QLabel* lblCaption_;
};
