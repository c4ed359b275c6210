// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;
class QWidget;
class StoryPage;

// The window that reads a story, as it is known to another window that it draws on.
class PageHost
{
public:
    virtual QWidget* GetWindow() = 0;
    // Handles the clicks on a page that is drawn on.
    virtual void TakeClicksOf(StoryPage* page) = 0;
    // Shows once more what is on show, for a page that has changed.
    virtual void DisplayAgain() = 0;
    // True when the key is used up.
    virtual bool Form_KeyDown(const QKeyEvent& key) = 0;

protected:
    ~PageHost() = default;
};
