// SPDX-License-Identifier: MIT
#include "story/OrganizerKeys.h"

#include <QCoreApplication>

const WindowKeyTable& OrganizerKeys()
{
    constexpr const char* list = "lstParagraph";
    static const WindowKeyTable table{
        "OrganizerKeys",
        QT_TRANSLATE_NOOP("OrganizerKeys", "Paragraph organiser"),
        {
            {"Up", QT_TRANSLATE_NOOP("OrganizerKeys", "select the paragraph above"), "mnuUp", list,
             true},
            {"Down", QT_TRANSLATE_NOOP("OrganizerKeys", "select the paragraph below"), "mnuDown",
             list, true},
            {"Ctrl+Up", QT_TRANSLATE_NOOP("OrganizerKeys", "move the selected paragraph up"),
             "mnuMoveUp", list, true},
            {"Ctrl+Down", QT_TRANSLATE_NOOP("OrganizerKeys", "move the selected paragraph down"),
             "mnuMoveDown", list, true},
            {"PgUp", QT_TRANSLATE_NOOP("OrganizerKeys", "show the previous chapter"),
             "mnuPreviousChapter", list, true},
            {"PgDown", QT_TRANSLATE_NOOP("OrganizerKeys", "show the next chapter"),
             "mnuNextChapter", list, true},
            {"Return; Enter",
             QT_TRANSLATE_NOOP("OrganizerKeys", "open the selected paragraph in the editor"),
             "mnuEditParagraph", list},
            {"Esc", QT_TRANSLATE_NOOP("OrganizerKeys", "go back to the editor"), nullptr},
            {"F1", QT_TRANSLATE_NOOP("OrganizerKeys", "open the manual"), nullptr},
            {"?", QT_TRANSLATE_NOOP("OrganizerKeys", "show this sheet"), "mnuKeys"},
        }};
    return table;
}
