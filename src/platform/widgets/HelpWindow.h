// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/KeySheet.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;

// Shows the program's help file, which is written in HTML: contents on the left, a search field
// above. Its chapters are headings with anchors, named after the windows that they describe.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    // The keys take the place of the comment "<!--keys-->" in the file.
    HelpWindow(const QString& file, QWidget* parent, const std::vector<KeySection>& keys = {});

    // Goes to the chapter with that name; stays at the beginning when there is none.
    void GoTo(const QString& chapter);

private:
    void Layout();
    void Read(const QString& file, const std::vector<KeySection>& keys);
    void Search();
    void ScrollTo(const QString& chapter);
    // Marks in the contents the chapter at the upper edge of the text.
    void FollowText();

    QListWidget* lstContents_;
    QLineEdit* txtSearch_;
    QLabel* lblNotFound_;
    QTextBrowser* txtHelp_;
    bool isGuided_ = false; // the text moves because a chapter was chosen
};

// A window's dynamic property: its chapter, where that is not the one of the window's name.
inline constexpr char helpChapterProperty[] = "HelpChapter";

// From now on F1 shows the front window's chapter of the help file, with those keys in it.
using KeyTables = std::vector<KeySection> (*)();
void InstallHelpKey(const QString& file, KeyTables keys = nullptr);
