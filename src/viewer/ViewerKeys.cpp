// SPDX-License-Identifier: MIT
#include "viewer/ViewerKeys.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

// A key that is held down must not close one window after the other, nor press a button of the next
// one.
bool ActsOnce(ViewerCommand command)
{
    return command == ViewerCommand::Close || command == ViewerCommand::FullScreen ||
           command == ViewerCommand::SwitchPlace || command == ViewerCommand::ShowKeys ||
           command == ViewerCommand::LinkPicture || command == ViewerCommand::PressControl;
}

} // namespace

const std::vector<ViewerKey>& ViewerKeys()
{
    using enum ViewerCommand;
    // Plus shows more pictures and minus fewer, on purpose: they count pictures, not magnification.
    static const std::vector<ViewerKey> rows{
        {{Qt::Key_Right, Qt::Key_N},
         NextParagraph,
         QT_TRANSLATE_NOOP("ViewerKey", "Next paragraph")},
        {{Qt::Key_Left, Qt::Key_P},
         PreviousParagraph,
         QT_TRANSLATE_NOOP("ViewerKey", "Previous paragraph")},
        {{Qt::Key_Down, Qt::Key_Space},
         NextPictures,
         QT_TRANSLATE_NOOP("ViewerKey", "Next pictures")},
        {{Qt::Key_Backspace},
         PreviousPictures,
         QT_TRANSLATE_NOOP("ViewerKey", "Previous pictures")},
        {{Qt::Key_PageDown}, NextChapter, QT_TRANSLATE_NOOP("ViewerKey", "Next chapter")},
        {{Qt::Key_PageUp},
         TopOfChapter,
         QT_TRANSLATE_NOOP("ViewerKey", "Beginning of the chapter")},
        {{Qt::Key_Plus}, ZoomOut, QT_TRANSLATE_NOOP("ViewerKey", "More and smaller pictures")},
        {{Qt::Key_Minus}, ZoomIn, QT_TRANSLATE_NOOP("ViewerKey", "Fewer and bigger pictures")},
        {{Qt::Key_Asterisk, Qt::Key_T},
         SwitchAutoview,
         QT_TRANSLATE_NOOP("ViewerKey", "Autoview on and off")},
        {{Qt::Key_E}, EditParagraph, QT_TRANSLATE_NOOP("ViewerKey", "Edit the paragraph")},
        {{Qt::CTRL | Qt::Key_F}, FindPictures, QT_TRANSLATE_NOOP("ViewerKey", "Find pictures")},
        {{Qt::Key_L},
         LinkPicture,
         QT_TRANSLATE_NOOP("ViewerKey", "Link to this paragraph, or unlink: the large picture, or "
                                        "the one under the pointer"),
         false},
        {{Qt::Key_F11}, FullScreen, QT_TRANSLATE_NOOP("ViewerKey", "Full screen, and back")},
        {{Qt::Key_I}, SwitchPlace, QT_TRANSLATE_NOOP("ViewerKey", "Show or hide where you are")},
        {{Qt::Key_Z},
         ZoomPixels,
         QT_TRANSLATE_NOOP("ViewerKey", "One large picture: its pixels, and back"),
         false},
        {{Qt::CTRL | Qt::Key_Left, Qt::CTRL | Qt::Key_Right, Qt::CTRL | Qt::Key_Up,
          Qt::CTRL | Qt::Key_Down},
         MovePicture,
         QT_TRANSLATE_NOOP("ViewerKey", "One large picture: another part of it"),
         false},
        {{Qt::Key_Return, Qt::Key_Enter},
         PressControl,
         QT_TRANSLATE_NOOP("ViewerKey",
                           "Press the button or describe the picture that Tab went to"),
         false},
        {{Qt::Key_Question}, ShowKeys, QT_TRANSLATE_NOOP("ViewerKey", "This sheet of keys"), false},
        {{Qt::Key_F1}, Leave, QT_TRANSLATE_NOOP("ViewerKey", "Manual"), false},
        {{Qt::Key_Q, Qt::Key_Escape}, Close, QT_TRANSLATE_NOOP("ViewerKey", "Back")},
    };
    return rows;
}

QString ViewerKey::GetNames() const
{
    return KeyNames(QList<QKeySequence>(keys.begin(), keys.end()));
}

KeySection ViewerKeySection()
{
    KeySection section{ViewerKey::tr("Viewer"), {}};
    for (const ViewerKey& row : ViewerKeys())
        section.rows.push_back({row.GetNames(), row.GetText()});
    return section;
}

ViewerCommand CommandOf(const QKeyEvent& key)
{
    const Qt::KeyboardModifiers held =
        key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QKeyCombination pressed(held, Qt::Key(key.key()));
    for (const ViewerKey& row : ViewerKeys()) {
        if (std::find(row.keys.begin(), row.keys.end(), pressed) != row.keys.end())
            return key.isAutoRepeat() && ActsOnce(row.command) ? ViewerCommand::None : row.command;
    }
    return held ? ViewerCommand::Leave : ViewerCommand::None;
}
