// SPDX-License-Identifier: MIT
#include "ui/main/PasswordQuestions.h"

#include "core/AlbumPassword.h"
#include "core/UndoSteps.h"
#include "platform/dialogs/Dialogs.h"

#include <QCoreApplication>

using namespace GeneralModule;

namespace {

struct PasswordTexts
{
    Q_DECLARE_TR_FUNCTIONS(AlbumPassword)
};

// The album is written anew, and what led to it is not.
QString UndoWarning()
{
    return UndoName().isEmpty()
               ? QString()
               : PasswordTexts::tr("What you have done up to now cannot be undone any more after "
                                   "that.");
}

// Empty when the user gave up.
QString AskTwice()
{
    while (true) {
        const QString first =
            Dialogs::Door().AskText({.prompt = PasswordTexts::tr("Please enter the new password"),
                                     .note = UndoWarning(),
                                     .isPassword = true});
        if (first.isEmpty())
            return {};
        const QString second = Dialogs::Door().AskText(
            {.prompt = PasswordTexts::tr("Please enter the new password once more"),
             .isPassword = true});
        if (second == first)
            return first;
        if (second.isEmpty())
            return {};
        Tell(PasswordTexts::tr("The two passwords differ"), Dialogs::Icon::Warning);
    }
}

} // namespace

void AskForNewPassword()
{
    using Answer = Dialogs::Answer;
    Answer answer = Answer::No;
    if (AlbumHasPassword())
        answer = Dialogs::Door().Ask(
            {.text = PasswordTexts::tr("This album has a password. Do you want to remove it or "
                                       "to change it?"),
             .icon = Dialogs::Icon::Question,
             .buttons = Dialogs::Buttons::YesNoCancel,
             .defaultAnswer = Answer::Cancel,
             .yes = PasswordTexts::tr("Remove Password"),
             .no = PasswordTexts::tr("Change Password"),
             .note = UndoWarning()});
    if (answer == Answer::Cancel)
        return;
    const QString password = answer == Answer::Yes ? QString() : AskTwice();
    if (password.isEmpty() && answer != Answer::Yes)
        return;
    if (!SetAlbumPassword(password))
        return;
    Tell(password.isEmpty()
             ? PasswordTexts::tr("The album has no password any more.")
             : PasswordTexts::tr("The album has its new password. Without it nobody can open the "
                                 "album, so keep it well."));
}
