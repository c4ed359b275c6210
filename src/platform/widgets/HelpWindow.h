// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;

// Shows the program's help file, which is written in HTML: contents on the left, a field to search
// above. Its chapters are headings with an anchor, named after the windows that they tell about.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    HelpWindow(const QString& file, QWidget* parent);

    // Goes to the chapter of that name, or stays at the beginning when there is none.
    void GoTo(const QString& chapter);

private:
    void Layout();
    void Read(const QString& file);
    void Search();
    void ScrollTo(const QString& chapter);
    // Marks the chapter in the contents that the upper edge of the text lies in.
    void FollowText();

    QListWidget* lstContents_;
    QLineEdit* txtSearch_;
    QLabel* lblNotFound_;
    QTextBrowser* txtHelp_;
    bool isGuided_ = false; // the text moves because a chapter was chosen
};

// From now on F1 shows the help file at the chapter of the window in front.
void InstallHelpKey(const QString& file);
