// SPDX-License-Identifier: MIT
#include "Application.h"
#include "Check.h"
#include "CommandLine.h"
#include "Convert.h"
#include "Descriptions.h"
#include "Publish.h"
#include "Translations.h"

#include "core/Album.h"
#include "ui/main/frmOpenChapter.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

// Whether the arguments only ask for help or the version, which needs no display.
bool AsksOnly(int argc, char** argv)
{
    return HasOption(argc, argv, {"-h", "--help", "--help-all", "-v", "--version"});
}

// The album to open, empty for none. Absolute, because the program makes its own folder the current
// one. Ends the program when an argument is wrong or only asks what it is.
QString ReadArguments()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::tr("Tells stories with photographs."));
    parser.addHelpOption();
    parser.addVersionOption();
    AddConversionOptions(parser);
    AddDescriptionOptions(parser);
    AddCheckOptions(parser);
    AddPublishOptions(parser);
    parser.addPositionalArgument(
        QStringLiteral("album"),
        QApplication::tr("The album to open; the last one when not given."),
        QStringLiteral("[album]"));
    parser.process(QCoreApplication::arguments());
    const QString album = parser.positionalArguments().value(0);
    return album.isEmpty() ? QString() : QFileInfo(album).absoluteFilePath();
}

} // namespace

int main(int argc, char** argv)
{
    // Before anything that needs a display.
    if (IsConversion(argc, argv))
        return RunConversion(argc, argv);
    if (IsDescriptionTransfer(argc, argv))
        return RunDescriptionTransfer(argc, argv);
    if (IsCheck(argc, argv))
        return RunCheck(argc, argv);
    if (IsPublishing(argc, argv))
        return RunPublishing(argc, argv);
    if (AsksOnly(argc, argv)) {
        QCoreApplication application(argc, argv);
        NameProgram();
        InstallTranslations(application);
        ReadArguments(); // answers, and ends the program
    }
    const Application application(argc, argv);
    frmOpenChapter mainWindow(ReadArguments());
    if (GeneralModule::HasGoneToOtherWindow())
        return 0;
    mainWindow.show();
    return QApplication::exec();
}
