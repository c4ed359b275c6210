// SPDX-License-Identifier: MIT
#include "ui/main/MainWindowKeys.h"

#include "catalogue/IndexingKeys.h"
#include "story/EditorKeys.h"
#include "story/OrganizerKeys.h"
#include "viewer/ViewerKeys.h"

#include <QCoreApplication>

const WindowKeyTable& MainWindowKeys()
{
    constexpr const char* list = "lstChapter";
    static const WindowKeyTable table{
        "MainWindowKeys",
        QT_TRANSLATE_NOOP("MainWindowKeys", "Main window"),
        {
            {"Return; Enter", QT_TRANSLATE_NOOP("MainWindowKeys", "Read the selected chapter"),
             "mnuReadChapter", list},
            {"F5", QT_TRANSLATE_NOOP("MainWindowKeys", "Read it in full screen"),
             "mnuReadFullScreen"},
            {"F2", QT_TRANSLATE_NOOP("MainWindowKeys", "Rename the selected chapter"), "mnuRename",
             list},
            {"Del", QT_TRANSLATE_NOOP("MainWindowKeys", "Delete it, if it has no paragraphs"),
             "mnuDeleteChapter", list},
            {"Ctrl+Up", QT_TRANSLATE_NOOP("MainWindowKeys", "Move it up"), "mnuMoveUp", list, true},
            {"Ctrl+Down", QT_TRANSLATE_NOOP("MainWindowKeys", "Move it down"), "mnuMoveDown", list,
             true},
            {"Ctrl+N", QT_TRANSLATE_NOOP("MainWindowKeys", "Create a new album"),
             "mnuCreateScript"},
            {"Ctrl+O", QT_TRANSLATE_NOOP("MainWindowKeys", "Open an album"), "mnuOpenScript"},
            {"Ctrl+Z",
             QT_TRANSLATE_NOOP("MainWindowKeys", "In every window: undo what was done last"),
             "mnuUndo"},
            {"Ctrl+Shift+Z", QT_TRANSLATE_NOOP("MainWindowKeys", "In every window: redo it"),
             "mnuRedo"},
            {"Ctrl+F", QT_TRANSLATE_NOOP("MainWindowKeys", "Find pictures"), "mnuFindPictures"},
            {"Esc", QT_TRANSLATE_NOOP("MainWindowKeys", "End the program"), "mnuExit", nullptr,
             false, false},
            {"F1", QT_TRANSLATE_NOOP("MainWindowKeys", "Open the manual"), nullptr},
            {"?", QT_TRANSLATE_NOOP("MainWindowKeys", "Show this sheet"), "mnuKeys"},
        }};
    return table;
}

std::vector<KeySection> AllKeys()
{
    return {DescribeKeys(MainWindowKeys()), ViewerKeySection(), EditorKeySection(),
            DescribeKeys(OrganizerKeys()), IndexingKeySection()};
}
