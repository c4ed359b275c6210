// SPDX-License-Identifier: MIT
#include "viewer/ViewerKeys.h"

#include <QHash>
#include <QKeyEvent>

namespace {

// A key that is held down must not close one window after the other, nor press a button of the next
// one.
bool ActsOnce(ViewerCommand command)
{
    return command == ViewerCommand::Close || command == ViewerCommand::FullScreen ||
           command == ViewerCommand::PressButton;
}

} // namespace

ViewerCommand CommandOf(const QKeyEvent& key)
{
    // Plus shows more pictures and minus fewer, on purpose: they count pictures, not magnification.
    static const QHash<int, ViewerCommand> commands{
        {Qt::Key_F1, ViewerCommand::Leave},
        {Qt::Key_E, ViewerCommand::EditParagraph},
        {Qt::Key_Down, ViewerCommand::NextPictures},
        {Qt::Key_Space, ViewerCommand::NextPictures},
        {Qt::Key_Right, ViewerCommand::NextParagraph},
        {Qt::Key_N, ViewerCommand::NextParagraph},
        {Qt::Key_Left, ViewerCommand::PreviousParagraph},
        {Qt::Key_P, ViewerCommand::PreviousParagraph},
        {Qt::Key_PageDown, ViewerCommand::NextChapter},
        {Qt::Key_PageUp, ViewerCommand::TopOfChapter},
        {Qt::Key_Plus, ViewerCommand::ZoomOut},
        {Qt::Key_Minus, ViewerCommand::ZoomIn},
        {Qt::Key_Asterisk, ViewerCommand::SwitchAutoview},
        {Qt::Key_T, ViewerCommand::SwitchAutoview},
        {Qt::Key_F11, ViewerCommand::FullScreen},
        {Qt::Key_Return, ViewerCommand::PressButton},
        {Qt::Key_Enter, ViewerCommand::PressButton},
        {Qt::Key_Q, ViewerCommand::Close},
        {Qt::Key_Escape, ViewerCommand::Close},
    };
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return ViewerCommand::Leave;
    const ViewerCommand command = commands.value(key.key(), ViewerCommand::None);
    return key.isAutoRepeat() && ActsOnce(command) ? ViewerCommand::None : command;
}
