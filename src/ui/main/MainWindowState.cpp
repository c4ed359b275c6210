// SPDX-License-Identifier: MIT
#include "ui/main/MainWindowState.h"

#include "core/Album.h"

namespace {

QString WarningFor(const AlbumFacts& facts)
{
    if (!facts.isOpen)
        return MainWindowState::tr("Please OPEN or CREATE an ALBUM\nPress F1 for Help");
    if (facts.isReadOnly)
        return GeneralModule::ReadOnlyReason();
    if (!facts.hasPictures)
        return MainWindowState::tr("Please LOAD and INDEX Pictures\nPress F1 for Help");
    if (facts.chapters == 0)
        return MainWindowState::tr("Please Create the first Chapter of your Album");
    return {};
}

} // namespace

MainWindowState DescribeMainWindow(const AlbumFacts& facts)
{
    MainWindowState state;
    // The album's name tells two windows apart in the desktop's list.
    state.caption = facts.isOpen ? MainWindowState::tr("Choose the chapter you want to read") +
                                       QStringLiteral(" - ") + facts.fileName
                                 : MainWindowState::tr("First Open or Create an Album");
    state.warning = WarningFor(facts);
    state.offersAlbumCommands = facts.isOpen;
    state.offersPictureCommands = facts.isOpen && facts.hasPictures;
    const bool hasSelection = facts.selected >= 0 && facts.selected < facts.chapters;
    state.offersChapterCommands = facts.isOpen && hasSelection;
    state.isReadOnly = facts.isOpen && facts.isReadOnly;
    state.canMoveUp = state.offersChapterCommands && facts.selected > 0;
    state.canMoveDown = state.offersChapterCommands && facts.selected + 1 < facts.chapters;
    return state;
}
