// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/KeyRows.h"

class QKeyEvent;

// What a key asks of the paragraph editor.
enum class EditorCommand {
    None, // a key for the control that has the focus
    CreateNext,
    FindPictures,
    FullScreen, // there and back
    Exit,
    Nothing, // a command's key that is held down, which acts once
};

// A "q" typed into the text is no command.
EditorCommand EditorCommandOf(const QKeyEvent& key, bool isWriting);

KeyRows EditorKeyRows();
