// SPDX-License-Identifier: MIT
#include "ui/main/MainWindowCommand.h"

#include "core/Album.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/ThemedIcon.h"

#include <QAction>
#include <QPushButton>

void ConnectCommand(const MainWindowCommand& command)
{
    const QIcon drawing = ThemedIcon(QString::fromLatin1(command.icon));
    if (command.button) {
        command.button->setIcon(drawing);
        QObject::connect(command.button, &QPushButton::clicked, command.button, command.handler);
    }
    if (command.entry) {
        command.entry->setIcon(drawing);
        QObject::connect(command.entry, &QAction::triggered, command.entry, command.handler);
    }
}

void OfferCommand(const MainWindowCommand& command, const MainWindowState& state)
{
    if (!command.offered)
        return;
    const bool isOffered = state.*command.offered;
    const QString reason =
        command.changesAlbum && state.isReadOnly ? GeneralModule::ReadOnlyReason() : QString();
    if (command.button)
        OfferUnless(*command.button, isOffered, reason);
    if (command.entry)
        OfferUnless(*command.entry, isOffered, reason);
}
