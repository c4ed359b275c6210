// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

// What a key asks of the viewer; the full-screen view knows the same keys.
enum class ViewerCommand {
    None,  // a key without a meaning
    Leave, // a key for the desktop or the window's help, which does not even pause autoview
    EditParagraph,
    NextPictures,
    NextParagraph,
    PreviousParagraph,
    NextChapter,
    TopOfChapter,
    ZoomOut,
    ZoomIn,
    SwitchAutoview,
    FullScreen,  // there and back
    PressButton, // that has the focus
    Close,
};

ViewerCommand CommandOf(const QKeyEvent& key);
