// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/EarlierScreens.h"
#include "viewer/LargePicture.h"
#include "viewer/PageContent.h"
#include "viewer/PagePlace.h"
#include "viewer/PictureScreen.h"

#include <QString>
#include <QStringList>

#include <exception>
#include <vector>

class LookAhead;
class StorySurface;

// What stands on a surface: a screenful of pictures from a list, and a text that may speak of the
// last of them.
class PageDisplay
{
public:
    explicit PageDisplay(LookAhead& lookAhead) : lookAhead_(lookAhead) {}

    // Everything below is shown there; what stands on another surface stays.
    void DrawOn(StorySurface& surface)
    {
        surface_ = &surface;
        large_.Forget();
    }
    StorySurface& Surface() const { return *surface_; }

    // Begins a page: divides the surface for its text, which is not shown yet.
    void Begin(const PageText& page);
    // Shows what a search has found so far.
    void ShowCountFound(int count);
    // Takes the page's pictures, of which none is on the screen yet.
    void SetFound(FoundPictures found);
    // Reports in a message box what the search failed with, if it did. Call it when the page is
    // whole: while the box is up the window may be resized and be drawn again.
    void TellFailure();

    void ShowNextScreen(int lines);
    // The pictures of the screen once more, as many as now find room.
    void ShowScreenAgain(int lines);
    // The screen before, see EarlierScreens. Call it where there is one.
    void ShowEarlierScreen(int lines);

    // The text with its markers filled for the last picture on the screen.
    void ShowText();
    void ShowCountLeft();
    // One picture of the screen alone, with the text as it reads for that picture or, where there
    // is none, with the picture's legend; else with its file name.
    void ShowAlone(const ShownPicture& picture, bool hasText);
    void LeaveAlone();
    LargePicture& GetLarge() { return large_; }

    const std::vector<ShownPicture>& GetDisplayed() const { return displayed_; }
    QString GetLastDisplayed() const; // empty when the screen is
    const PictureList& GetList() const { return list_; }
    const EarlierScreens& GetEarlier() const { return earlier_; }
    const PageText& GetPage() const { return page_; }
    // The place among the page's pictures.
    PagePlace GetPlace() const;
    // What is left of the list, without pictures that were seen elsewhere.
    void SetList(const PictureList& list);
    // Forgets pictures that are no longer in the album; the surface still shows them.
    void Remove(const QStringList& files);

private:
    enum class Way { On, Back };
    void Show(int lines, PictureList list, EarlierScreens earlier, Way way);
    PictureList ListFromScreenOn() const;
    QString Notice() const;

    LookAhead& lookAhead_;
    StorySurface* surface_ = nullptr;
    EarlierScreens earlier_;
    PictureList list_;
    std::exception_ptr failure_; // not yet reported
    int found_ = 0;              // pictures, whether their files are there or not
    int seenElsewhere_ = 0;      // of them
    std::vector<ShownPicture> displayed_;
    LargePicture large_;
    PageText page_;
};
