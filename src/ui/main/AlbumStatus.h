// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/PictureCensus.h"
#include "platform/shell/IdleWork.h"

#include <QObject>

class QLabel;
class QPushButton;

// The main window's last line: which album is open, how many pictures it holds, how many of them
// are not indexed, and how many of their files are missing. It counts in idle slices while no other
// window is in front, and only what has changed.
class AlbumStatus : public QObject
{
    Q_OBJECT

public:
    struct Controls
    {
        QWidget* row; // holds the others
        QLabel* album;
        QLabel* pictures;
        QPushButton* notIndexed;
        QPushButton* missing;
    };

    // All must outlive it.
    explicit AlbumStatus(const Controls& controls);

    // Shows the open album. Counts again if it has changed.
    void Refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LookLikeLinks();
    bool CountOn(std::chrono::milliseconds time);
    void ShowCounts();

    Controls controls_;
    PictureCensus census_;
    IdleWork counting_;
};
