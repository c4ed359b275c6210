// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/KeySheet.h"

#include <QCoreApplication>
#include <QKeyCombination>

#include <vector>

class QKeyEvent;

// What a key asks of the viewer; the full-screen view knows the same keys.
enum class ViewerCommand {
    None,  // a key without a meaning
    Leave, // a key for the desktop or the window's help, which does not even pause autoview
    EditParagraph,
    FindPictures,
    LinkPicture, // to the paragraph, or unlinks it
    NextPictures,
    PreviousPictures,
    NextParagraph,
    PreviousParagraph,
    NextChapter,
    TopOfChapter,
    ZoomOut,
    ZoomIn,
    SwitchAutoview,
    ZoomPixels,  // of a picture that is alone: to its pixels, and back
    MovePicture, // of such a picture the part that is seen
    FullScreen,  // there and back
    ShowKeys,
    SwitchPlace,  // says where the reader is, or no longer
    PressControl, // that has the focus
    Close,
};

// One row for each command, in the order in which a person reads them.
struct ViewerKey
{
    Q_DECLARE_TR_FUNCTIONS(ViewerKey)

public:
    std::vector<QKeyCombination> keys;
    ViewerCommand command;
    const char* text;
    bool isInMenu = true;

    QString GetNames() const;
    QString GetText() const { return tr(text); }
};

const std::vector<ViewerKey>& ViewerKeys();
KeySection ViewerKeySection();

ViewerCommand CommandOf(const QKeyEvent& key);
