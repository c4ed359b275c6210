// SPDX-License-Identifier: MIT
#pragma once

#include "platform/picture/LookAhead.h"
#include "viewer/Autoview.h"
#include "viewer/Foresight.h"
#include "viewer/PageDisplay.h"

#include <QObject>

#include <functional>
#include <random>

enum class StoryMode {
    Story,        // a paragraph is read
    EmptyChapter, // a chapter without paragraphs: every picture of the album is shown
    Selection,    // pictures outside the story
};

// Reads a story, or the pictures of a selection, page by page and draws them on whatever surface it
// is given. It knows no window. While the event loop waits, it makes ready what may be shown next;
// the same pictures are shown without.
class StoryReader : public QObject
{
    Q_OBJECT

public:
    // isInFront tells whether the user sees the surface; autoview waits while it is covered, and
    // nothing is made ready.
    explicit StoryReader(const std::function<bool()>& isInFront, QObject* parent = nullptr);

    // What is read. Whoever changes it calls DisplayAgain, or takes a step from there.
    StoryPosition Position;
    QString FileSelection;                        // paths of a selection; empty for any
    QStringList ChosenFiles;                      // instead of those two, if there are any
    QString ImageSelection = QStringLiteral("*"); // "*": any picture, "-": not yet indexed
    int Nblines = 1;                              // lines of pictures on a screen, 0 to 4
    QString LastImageDisplayed;                   // File of the screen's last picture, or empty

    StoryMode GetMode() const;
    // To be called before anything is displayed.
    void DrawOn(StorySurface& surface) { display_.DrawOn(surface); }

    // Where the step leads, and what it would show on the surface; its pictures are empty where the
    // same ones stay. Nothing is shown or changed, but for the current rows of the album's record
    // sets. Throws DatabaseError.
    Outlook Foresee(StoryWay way);
    Outlook Foresee(LikelyMove move);
    // Whether what may come next is being made ready.
    bool IsLookingAhead() const { return lookAhead_.IsWorking(); }
    // Takes the step, or emits Ended when there is nothing left to read. A step that fails throws
    // DatabaseError and leaves the position where it was.
    void Go(StoryWay way);
    // Shows that position's paragraph; emits Ended when it has none.
    void GoTo(const StoryPosition& position);

    // Each shows its page from the first picture on, and does nothing where there is no such page.
    void DisplayParagraph();
    void DisplayChapter(); // from its first paragraph
    void DisplaySelection();
    // At most maxImages of the album's pictures that fit ImageSelection and that selection of
    // paths.
    void DisplayUndefined(const QString& fileSelection, int maxImages);
    // Draws the page on show again: the paragraph, else the chapter or the selection.
    void DisplayAgain();
    // The same from the chapter's beginning and with one line of pictures.
    void DisplayFromBeginning();

    // The page's next pictures; after the last ones of a paragraph the next paragraph.
    void ShowNextPictures();
    // The screen before, as it was; before a page's first one the page before.
    void ShowPreviousPictures();
    void ZoomIn();  // fewer and larger pictures
    void ZoomOut(); // more and smaller ones
    // One picture of the screen alone; autoview waits until others are shown.
    void ShowAlone(const ShownPicture& picture);
    void LeaveAlone();
    LargePicture& GetLargePicture() { return display_.GetLarge(); }

    // The pictures on the screen, and those that come after them.
    const std::vector<ShownPicture>& GetDisplayed() const { return display_.GetDisplayed(); }
    const PictureList& GetUpcoming() const { return display_.GetList(); }
    // To be called after pictures were indexed: upcoming is what indexing left of GetUpcoming(),
    // and takenOut the files that are no longer in the album.
    void ShowIndexed(const PictureList& upcoming, const QStringList& takenOut);

    Autoview& GetAutoview() { return autoview_; }
    void SwitchAutoview();

signals:
    // There is nothing left to read.
    void Ended();

private:
    using Search = std::function<FoundPictures(const CountFeedback&)>;

    void Step(StoryWay way);
    void ShowPosition();
    void ShowPage(const PageText& page, const Search& search);
    void ShowScreenAgain();
    void ScreenChanged();
    Outlook GetOutlook() const;
    std::vector<LikelyMove> MovesToExpect() const;
    void BeginLookingAhead();
    void ShowPlace();
    void ShowText(bool isCounting);
    void StepByItself();

    LookAhead lookAhead_;
    PageDisplay display_;
    Autoview autoview_;
    FoundAhead found_;
    ChapterPlaces places_;
    StoryMove lastMove_ = StoryMove::NextParagraph;
    std::mt19937 seeds_; // see Outlook
};
