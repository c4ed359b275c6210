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

void Dialogs::RunLong(const QString&, bool, const Work& work)
{
    work([] { return false; });
}

QString Dialogs::AskFolder(const FileChoice&)
{
    return {};
}

void Dialogs::Install(Dialogs* dialogs)
{
    installed = dialogs;
}

void RunLong(const QString& text, bool canStop, const Dialogs::Work& work)
{
    if (installed)
        installed->RunLong(text, canStop, work);
    else
        work([] { return false; });
}

void Tell(const QString& text, Dialogs::Icon icon)
{
    Dialogs::Door().Ask({text, icon});
}
