// SPDX-License-Identifier: MIT
#include "platform/dialogs/Dialogs.h"

#include <QtGlobal>

namespace {

Dialogs* installed = nullptr;

} // namespace

Dialogs& Dialogs::Door()
{
    Q_ASSERT_X(installed, "Dialogs::Door", "no dialogs are installed");
    return *installed;
}

void Dialogs::Install(Dialogs* dialogs)
{
    installed = dialogs;
}

void Tell(const QString& text, Dialogs::Icon icon)
{
    Dialogs::Door().Ask({text, icon});
}
