// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/KeySheet.h"

class QKeyEvent;

// What a key asks of the paragraph editor.
enum class EditorCommand {
    None, // a key for the control that has the focus
    CreateNext,
    FindPictures,
    ShowLinked,
    FullScreen, // there and back
    ShowKeys,
    Exit,
    Nothing, // a command's key that is held down, which acts once
};

// A letter typed into a text is no command.
EditorCommand EditorCommandOf(const QKeyEvent& key, bool isWriting);

KeySection EditorKeySection();
