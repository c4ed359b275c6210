// SPDX-License-Identifier: MIT
#include "core/StatePasswords.h"

#include "core/AlbumSets.h"
#include "core/EarlierStates.h"
#include "platform/dialogs/Dialogs.h"

#include <QCoreApplication>

namespace GeneralModule {

StatePasswords::StatePasswords()
{
    if (const Album* album = FindOpenedAlbum())
        known_ += album->database->GetPassword();
    if (!known_.contains(QString()))
        known_ += QString();
}

std::shared_ptr<OpenState> StatePasswords::TryOpen(const QString& state) const
{
    for (const QString& password : known_) {
        try {
            return std::make_shared<OpenState>(state, password);
        } catch (const DatabaseError& error) {
            if (error.GetNumber() != DatabaseError::WrongPassword)
                throw;
        }
    }
    return nullptr;
}

std::shared_ptr<OpenState> StatePasswords::Open(const QString& state)
{
    bool wasWrong = false;
    while (true) {
        if (auto opened = TryOpen(state))
            return opened;
        const QString given = Dialogs::Door().AskText(
            {.prompt = QCoreApplication::translate(
                           "EarlierStates", "Please give the password that the album had on %1")
                           .arg(TimeText(StateTime(state))),
             .note = wasWrong ? QCoreApplication::translate("Album", "Wrong password") : QString(),
             .isPassword = true});
        if (given.isEmpty())
            return nullptr;
        known_ += given;
        wasWrong = true;
    }
}

} // namespace GeneralModule
