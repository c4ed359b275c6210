// SPDX-License-Identifier: MIT
#include "Application.h"

#include "platform/widgets/QtDialogs.h"
#include "ui/main/frmOpenChapter.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QTimer>

namespace {

// Absolute, because the program makes its own folder the current one.
QString AlbumFromArguments(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::tr("Tells stories with photographs."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        QStringLiteral("album"),
        QApplication::tr("The album to open; the last one when not given."),
        QStringLiteral("[album]"));
    parser.process(application);
    const QStringList arguments = parser.positionalArguments();
    return arguments.isEmpty() ? QString() : QFileInfo(arguments.constFirst()).absoluteFilePath();
}

} // namespace

int main(int argc, char** argv)
{
    Application application(argc, argv);
    QtDialogs dialogs;
    Dialogs::Install(&dialogs);
    frmOpenChapter mainWindow(AlbumFromArguments(application));
    mainWindow.show();
    // Start-up is measured from outside, from the program's start to its end.
    if (qEnvironmentVariableIsSet("LUMENARK_EXIT_AFTER_FIRST_PAINT"))
        QTimer::singleShot(0, &application, &QApplication::quit);
    return QApplication::exec();
}
