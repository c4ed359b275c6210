// SPDX-License-Identifier: MIT
#include "platform/dialogs/Guard.h"

#include "platform/dialogs/Dialogs.h"

void ReportError(const std::exception& error)
{
    Tell(QString::fromUtf8(error.what()), Dialogs::Icon::Critical);
}

bool RunGuarded(const std::function<void()>& action)
{
    try {
        action();
        return true;
    } catch (const std::exception& error) {
        ReportError(error);
        return false;
    }
}
