// SPDX-License-Identifier: MIT
#include "core/EditConflict.h"

#include "platform/dialogs/Dialogs.h"

#include <QCoreApplication>

namespace {

struct ConflictTexts
{
    Q_DECLARE_TR_FUNCTIONS(EditConflict)
};

QString Beginning(const QString& version)
{
    constexpr qsizetype longest = 300; // characters that a box has room for
    if (version.isEmpty())
        return ConflictTexts::tr("(nothing)");
    return version.size() <= longest ? version : version.first(longest) + QStringLiteral(" ...");
}

} // namespace

namespace GeneralModule {

bool IsConflict(const QString& shown, const QString& edited, const QString& stored)
{
    return edited != shown && stored != shown && stored != edited;
}

QString MergeEdit(const QString& shown, const QString& edited, const QString& stored,
                  bool prefersEdited)
{
    const bool takesEdited =
        edited != shown && (prefersEdited || !IsConflict(shown, edited, stored));
    return takesEdited ? edited : stored;
}

ConflictChoice AskAboutConflict(const QString& subject, const QString& edited,
                                const QString& stored)
{
    using Answer = Dialogs::Answer;
    const Answer answer = Dialogs::Door().Ask(
        {.text = ConflictTexts::tr("%1 was changed in another window after it was opened "
                                   "here.\n\nThe other version:\n%2\n\nYour version:\n%3")
                     .arg(subject, Beginning(stored), Beginning(edited)),
         .icon = Dialogs::Icon::Question,
         .buttons = Dialogs::Buttons::YesNoCancel,
         .defaultAnswer = Answer::Cancel,
         .yes = ConflictTexts::tr("Keep Mine"),
         .no = ConflictTexts::tr("Take the Other")});
    if (answer == Answer::Yes)
        return ConflictChoice::KeepMine;
    return answer == Answer::No ? ConflictChoice::TakeStored : ConflictChoice::Stay;
}

} // namespace GeneralModule
