// SPDX-License-Identifier: MIT
#include "Application.h"
#include "Convert.h"
#include "Tour.h"
#include "Translations.h"

#include "core/Album.h"
#include "core/StartUp.h"
#include "platform/widgets/HeldEscape.h"
#include "platform/widgets/HelpWindow.h"
#include "platform/widgets/QtDialogs.h"
#include "ui/main/frmOpenChapter.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace {

struct Arguments
{
    QString album; // absolute, because the program changes the current folder
    QString tour;  // folder for the pictures of a tour, empty for none
};

// Whether the arguments only ask for help or the version, which needs no display.
bool AsksOnly(int argc, char** argv)
{
    static constexpr std::array<std::string_view, 5> questions{"-h", "--help", "--help-all", "-v",
                                                               "--version"};
    for (int i = 1; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        if (std::find(questions.begin(), questions.end(), argv[i]) != questions.end())
            return true;
    }
    return false;
}

Arguments ReadArguments()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::tr("Tells stories with photographs."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        QApplication::tr("Go through the windows, write a picture of each into FOLDER, and end."),
        QStringLiteral("FOLDER"));
    parser.addOption(tour);
    AddConversionOptions(parser);
    parser.addPositionalArgument(
        QStringLiteral("album"),
        QApplication::tr("The album to open; the last one when not given."),
        QStringLiteral("[album]"));
    parser.process(QCoreApplication::arguments());
    const auto absolute = [](const QString& path) {
        return path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
    };
    return {absolute(parser.positionalArguments().value(0)), absolute(parser.value(tour))};
}

// For measuring start-up from outside: ends the program once its window and all its children have
// been painted.
class EndAfterFirstPaint : public QObject
{
public:
    explicit EndAfterFirstPaint(QWidget* window) : QObject(window)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, &QApplication::quit);
        return false;
    }
};

} // namespace

int main(int argc, char** argv)
{
    // Before anything that needs a display.
    if (IsConversion(argc, argv))
        return RunConversion(argc, argv);
    if (AsksOnly(argc, argv)) {
        QCoreApplication application(argc, argv);
        NameProgram();
        InstallTranslations(application);
        ReadArguments(); // answers, and ends the program
    }
    Application application(argc, argv);
    QtDialogs dialogs;
    Dialogs::Install(&dialogs);
    InstallHelpKey(GeneralModule::HelpFile());
    InstallHeldEscapeFilter();
    const Arguments arguments = ReadArguments();
    frmOpenChapter mainWindow(arguments.album);
    if (GeneralModule::HasGoneToOtherWindow())
        return 0;
    mainWindow.show();
    if (!arguments.tour.isEmpty())
        new Tour(arguments.tour, &mainWindow);
    if (qEnvironmentVariableIsSet("LUMENARK_EXIT_AFTER_FIRST_PAINT"))
        new EndAfterFirstPaint(&mainWindow);
    return QApplication::exec();
}
