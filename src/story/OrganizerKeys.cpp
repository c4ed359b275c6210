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
            {"Up", QT_TRANSLATE_NOOP("OrganizerKeys", "Select the paragraph above"), "mnuUp", list,
             true},
            {"Down", QT_TRANSLATE_NOOP("OrganizerKeys", "Select the paragraph below"), "mnuDown",
             list, true},
            {"Ctrl+Up", QT_TRANSLATE_NOOP("OrganizerKeys", "Move the selected paragraph up"),
             "mnuMoveUp", list, true},
            {"Ctrl+Down", QT_TRANSLATE_NOOP("OrganizerKeys", "Move the selected paragraph down"),
             "mnuMoveDown", list, true},
            {"PgUp", QT_TRANSLATE_NOOP("OrganizerKeys", "Show the previous chapter"),
             "mnuPreviousChapter", list, true},
            {"PgDown", QT_TRANSLATE_NOOP("OrganizerKeys", "Show the next chapter"),
             "mnuNextChapter", list, true},
            {"Return; Enter",
             QT_TRANSLATE_NOOP("OrganizerKeys", "Open the selected paragraph in the editor"),
             "mnuEditParagraph", list},
            {"Esc", QT_TRANSLATE_NOOP("OrganizerKeys", "Go back to the editor"), nullptr},
            {"F1", QT_TRANSLATE_NOOP("OrganizerKeys", "Open the manual"), nullptr},
            {"?", QT_TRANSLATE_NOOP("OrganizerKeys", "Show this sheet"), "mnuKeys"},
        }};
    return table;
}
