// SPDX-License-Identifier: MIT
#include "gallery/LinkedPicturesKeys.h"

#include <QCoreApplication>

const WindowKeyTable& LinkedPicturesKeys()
{
    constexpr const char* sheet = "sheet";
    static const WindowKeyTable table{
        "LinkedPicturesKeys",
        QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Linked pictures"),
        {
            {"Ctrl+Up", QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Show the chosen pictures earlier"),
             "mnuEarlier", sheet, true},
            {"Ctrl+Down", QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Show the chosen pictures later"),
             "mnuLater", sheet, true},
            {"Del", QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Take the chosen pictures out"),
             "mnuTakeOut", sheet},
            {"Ctrl+A", QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Choose all pictures"), nullptr},
            {"Return; Enter",
             QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Show the picture large, and back"), nullptr},
            {"Ctrl++; Ctrl+-",
             QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Larger and smaller pictures"), nullptr},
            {"Ctrl+F", QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Find pictures, and link them"),
             "mnuFindPictures"},
            {"Esc", QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Go back to the editor"), nullptr},
            {"F1", QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Open the manual"), nullptr},
            {"?", QT_TRANSLATE_NOOP("LinkedPicturesKeys", "Show this sheet"), "mnuKeys"},
        }};
    return table;
}
