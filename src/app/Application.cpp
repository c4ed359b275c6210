// SPDX-License-Identifier: MIT
#include "Application.h"

#include "Translations.h"
#include "core/StartUp.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/HeldEscape.h"
#include "platform/widgets/HelpWindow.h"
#include "platform/widgets/ThemedIcon.h"
#include "ui/main/MainWindowKeys.h"

void NameProgram()
{
    QCoreApplication::setApplicationName(QStringLiteral("Lumenark"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LUMENARK_VERSION));
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    NameProgram();
    setApplicationDisplayName(applicationName());
    setDesktopFileName(QStringLiteral("lumenark"));
    setWindowIcon(ProgramIcon());
    InstallTranslations(*this);
    Dialogs::Install(&dialogs_);
    InstallHelpKey(GeneralModule::HelpFile(), AllKeys);
    InstallHeldEscapeFilter();
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        ReportError(error);
        return true;
    }
}
