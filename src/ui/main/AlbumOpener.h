// SPDX-License-Identifier: MIT
#pragma once

#include "ui/main/RecentMenu.h"

#include <QCoreApplication>

class ChapterList;

// Opens, makes and closes albums for the main window. The chapter list and the menu of recent
// albums then show the result.
class AlbumOpener
{
    Q_DECLARE_TR_FUNCTIONS(AlbumOpener)

public:
    // All must outlive it. onDone runs after each attempt, also one that the user gave up.
    AlbumOpener(QMenu* recent, ChapterList* chapters, std::function<void()> onDone);
    AlbumOpener(const AlbumOpener&) = delete;
    AlbumOpener& operator=(const AlbumOpener&) = delete;

    // The given album, or the one opened last when path is empty. Called once, before the window
    // is up: its first layout fills the chapter list.
    void OpenFirst(const QString& path);
    void AskAndOpen();
    void AskAndCreate();
    // Opens the user's copy of the installed sample story, which is made where there is none. When
    // that fails, the open album stays open.
    void OpenSample(const QString& sample);
    // Opens the album however it was chosen. After a failure none is open.
    void Open(const QString& path);
    // Shows those of that album, which need not be open. One of them may be open afterwards.
    void ShowEarlierStates(const QString& album);
    // Why no state of the album was kept today, if something was in the way.
    void TellStateTrouble();

private:
    static void LetReturn(const QString& album);

    RecentMenu recent_;
    ChapterList* chapters_;
    std::function<void()> onDone_;
};
