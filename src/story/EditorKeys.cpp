// SPDX-License-Identifier: MIT
#include "story/EditorKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>

namespace {

struct EditorKey
{
    Q_DECLARE_TR_FUNCTIONS(EditorKey)

public:
    QList<QKeySequence> keys;
    EditorCommand command;
    const char* text;

    QString GetText() const { return tr(text); }
};

const std::vector<EditorKey>& EditorKeys()
{
    using enum EditorCommand;
    static const std::vector<EditorKey> rows{
        {{QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)},
         CreateNext,
         QT_TRANSLATE_NOOP("EditorKey", "New paragraph after this one")},
        {{QKeySequence(Qt::CTRL | Qt::Key_F)},
         FindPictures,
         QT_TRANSLATE_NOOP("EditorKey", "Find pictures, and link them")},
        {{QKeySequence(Qt::CTRL | Qt::Key_L)},
         ShowLinked,
         QT_TRANSLATE_NOOP("EditorKey", "The linked pictures, and their order")},
        {{QKeySequence(Qt::Key_F11)},
         FullScreen,
         QT_TRANSLATE_NOOP("EditorKey", "Full screen, and back")},
        {{QKeySequence(Qt::Key_Question)},
         ShowKeys,
         QT_TRANSLATE_NOOP("EditorKey", "This sheet of keys, outside the text")},
        {{QKeySequence(Qt::Key_Escape)}, Exit, QT_TRANSLATE_NOOP("EditorKey", "Save and leave")},
        {{QKeySequence(Qt::Key_Q)},
         Exit,
         QT_TRANSLATE_NOOP("EditorKey", "Save and leave, outside the text")},
    };
    return rows;
}

} // namespace

EditorCommand EditorCommandOf(const QKeyEvent& key, bool isWriting)
{
    if (key.key() == Qt::Key_Escape)
        return EditorCommand::Exit;
    if (isWriting && (key.key() == Qt::Key_Q || key.key() == Qt::Key_Question))
        return EditorCommand::None;
    const int pressed =
        key.key() | (key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)).toInt();
    for (const EditorKey& row : EditorKeys()) {
        if (row.keys.contains(QKeySequence(pressed)))
            return key.isAutoRepeat() ? EditorCommand::Nothing : row.command;
    }
    return EditorCommand::None;
}

KeySection EditorKeySection()
{
    KeySection section{EditorKey::tr("Paragraph editor"), {}};
    for (const EditorKey& row : EditorKeys())
        section.rows.push_back({KeyNames(row.keys), row.GetText()});
    return section;
}
