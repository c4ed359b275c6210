// SPDX-License-Identifier: MIT
#include "ui/main/MainWindowKeys.h"

#include "story/OrganizerKeys.h"

#include <QCoreApplication>

const WindowKeyTable& MainWindowKeys()
{
    constexpr const char* list = "lstChapter";
    static const WindowKeyTable table{
        "MainWindowKeys",
        QT_TRANSLATE_NOOP("MainWindowKeys", "Main window"),
        {
            {"Return; Enter", QT_TRANSLATE_NOOP("MainWindowKeys", "read the selected chapter"),
             "mnuReadChapter", list},
            {"F5", QT_TRANSLATE_NOOP("MainWindowKeys", "read it in full screen"),
             "mnuReadFullScreen"},
            {"F2", QT_TRANSLATE_NOOP("MainWindowKeys", "rename the selected chapter"), "mnuRename",
             list},
            {"Del", QT_TRANSLATE_NOOP("MainWindowKeys", "delete it, if it has no paragraphs"),
             "mnuDeleteChapter", list},
            {"Ctrl+Up", QT_TRANSLATE_NOOP("MainWindowKeys", "move it up"), "mnuMoveUp", list, true},
            {"Ctrl+Down", QT_TRANSLATE_NOOP("MainWindowKeys", "move it down"), "mnuMoveDown", list,
             true},
            {"Ctrl+N", QT_TRANSLATE_NOOP("MainWindowKeys", "create a new album"),
             "mnuCreateScript"},
            {"Ctrl+O", QT_TRANSLATE_NOOP("MainWindowKeys", "open an album"), "mnuOpenScript"},
            {"Ctrl+F", QT_TRANSLATE_NOOP("MainWindowKeys", "find pictures"), "mnuFindPictures"},
            {"Esc", QT_TRANSLATE_NOOP("MainWindowKeys", "end the program"), "mnuExit", nullptr,
             false, false},
            {"F1", QT_TRANSLATE_NOOP("MainWindowKeys", "open the manual"), nullptr},
            {"?", QT_TRANSLATE_NOOP("MainWindowKeys", "show this sheet"), "mnuKeys"},
        }};
    return table;
}

std::vector<KeySection> AllKeys()
{
    return {DescribeKeys(MainWindowKeys()), DescribeKeys(OrganizerKeys())};
}
