// SPDX-License-Identifier: MIT
#include "ui/main/PasswordQuestions.h"

#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "core/EarlierStates.h"
#include "core/UndoSteps.h"
#include "platform/dialogs/Dialogs.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

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

// They hold what the password now shuts off.
void AskAboutPlainStates()
{
    using Answer = Dialogs::Answer;
    const std::vector<EarlierState> plain = PlainStatesOf(OpenAlbumPath());
    if (plain.empty())
        return;
    const Answer answer = Dialogs::Door().Ask(
        {.text = PasswordTexts::tr("%n earlier state(s) of this album have no password: whoever "
                                   "gets at your files can read what the album held then. Shall "
                                   "they be deleted?",
                                   nullptr, int(plain.size())),
         .icon = Dialogs::Icon::Question,
         .buttons = Dialogs::Buttons::YesNo,
         .defaultAnswer = Answer::No});
    if (answer != Answer::Yes)
        return;
    const auto left = std::count_if(plain.begin(), plain.end(),
                                    [](const EarlierState& state) { return !RemoveState(state); });
    if (left > 0)
        Tell(PasswordTexts::tr("%n of them could not be deleted.", nullptr, int(left)),
             Dialogs::Icon::Warning);
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
    if (!password.isEmpty())
        AskAboutPlainStates();
}
