// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QTemporaryDir>

#include <functional>

class Dialogs;

// An open album with photographs of 24 megapixels and a story about them, for the life of this.
class StoryOfPhotographs
{
public:
    StoryOfPhotographs();
    ~StoryOfPhotographs();

    // False when it could not be made.
    bool IsThere() const { return isThere_; }

    static constexpr int singleChapter = 1; // each paragraph has one photograph
    static constexpr int fullChapter = 2;   // each paragraph has all of them
    static constexpr int paragraphs = 12;   // of each chapter
    static constexpr int screens = 4;       // full ones that a paragraph of the second chapter has

private:
    bool AddPictures();
    static void AddSingles();

    QTemporaryDir folder_;
    bool isThere_ = false;
};

// Runs it while such a story is open, without a display unless one is asked for. Returns the
// program's status.
int RunWithStory(int argc, char** argv, Dialogs& dialogs, const std::function<void()>& run);
