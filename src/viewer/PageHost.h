// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;
class QPoint;
class QWidget;
class StoryPage;

// The window that reads a story, as seen by another window whose page it draws on.
class PageHost
{
public:
    virtual QWidget* GetWindow() = 0;
    // Handles the clicks on a page that is drawn on.
    virtual void TakeClicksOf(StoryPage* page) = 0;
    // Draws what is on show again, on a page that has changed.
    virtual void DisplayAgain() = 0;
    // True when the key is used up.
    virtual bool Form_KeyDown(const QKeyEvent& key) = 0;
    // Offers the commands in a menu at that place of the desktop.
    virtual void ShowMenu(const QPoint& place) = 0;

protected:
    ~PageHost() = default;
};
