// SPDX-License-Identifier: MIT
#pragma once

#include "story/PictureWindows.h"

#include <QString>

#include <vector>

class QWidget;

// The viewer as the main window opens it, without autoview. They return when the user has left it.

// On a chapter's first paragraph.
void ReadChapter(QWidget* parent, qint32 chapter);
// The same, in full screen from the beginning.
void ReadFullScreen(QWidget* parent, qint32 chapter);

// On pictures outside the story. The image selection is what is shown of each characteristic: "*"
// for any value, "-" for none; the file selection a folder and a pattern after it, or empty.
void BrowsePictures(QWidget* parent, const QString& imageSelection,
                    const QString& fileSelection = {});

// The window that finds pictures; reads them in the viewer, in their order.
void OpenPictureFinder(const FindRequest& request, bool isMissing = false);

// The pictures linked to a paragraph, to be put in order.
void OpenLinkedPictures(QWidget* parent, qint32 paragraph);

// Many pictures at once.
void DescribeTogether(QWidget* parent, const std::vector<qint32>& pictures);

// On pictures of a folder that the user chooses. False when none was chosen.
bool BrowseChosenFolder(QWidget* parent, const QString& imageSelection);
