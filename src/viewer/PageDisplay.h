// SPDX-License-Identifier: MIT
#pragma once

#include "core/PictureList.h"
#include "viewer/PictureScreen.h"

#include <QString>
#include <QStringList>

#include <exception>
#include <vector>

struct PictureQuery;
class StoryPage;

// What stands on the viewer's page: a screenful of pictures from a list, and a text that may speak
// of the last of them.
class PageDisplay
{
public:
    // page is the variable that tells which page is drawn on; it may change between calls.
    explicit PageDisplay(StoryPage* const& page) : page_(page) {}

    // Lists the pictures that are meant, and counts them aloud on the page. A filter
    // that the engine refuses costs the page its pictures only.
    void FindPictures(const PictureQuery& query, int maximum);
    // Reports in a message box what FindPictures failed with, if it did. Call it when the page is
    // whole: while the box is up the window may be resized, and be drawn anew.
    void TellFailure();
    // Fills the page from the list, with that many lines: with the pictures of the screen before,
    // or with the next ones.
    void ShowScreen(int lines, bool isAgain);

    // Divides the page for a text, which is not shown yet.
    void Arrange(const QString& text);
    void SetText(const QString& text) { text_ = text; }
    // The text with its markers filled for the last picture on the screen.
    void ShowText();
    void ShowCountLeft();
    // One picture of the screen alone, with the text as it reads for that picture or, where there
    // is none, with the picture's legend; else with its file name.
    void ShowLarge(const ShownPicture& picture, bool hasText);

    const std::vector<ShownPicture>& GetDisplayed() const { return displayed_; }
    QString GetLastDisplayed() const; // empty when the screen is
    const PictureList& GetList() const { return list_; }
    void SetList(const PictureList& list) { list_ = list; }
    // Forgets pictures that are in the album no more; the screen still shows them.
    void Remove(const QStringList& files);

private:
    QString Notice() const;

    StoryPage* const& page_;
    PictureList list_;
    std::exception_ptr failure_; // that is not yet reported
    bool hasFound_ = false;      // pictures, whether their files are there or not
    std::vector<ShownPicture> displayed_;
    QString text_; // before its markers are filled
};
