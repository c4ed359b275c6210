// SPDX-License-Identifier: MIT
#include "Application.h"
#include "Convert.h"
#include "Tour.h"

#include "core/StartUp.h"
#include "platform/widgets/HelpWindow.h"
#include "platform/widgets/QtDialogs.h"
#include "ui/main/frmOpenChapter.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QTimer>

namespace {

struct Arguments
{
    QString album; // absolute, because the program makes its own folder the current one
    QString tour;  // folder for the pictures of a tour, empty for none
};

Arguments ReadArguments(const QApplication& application)
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
    parser.process(application);
    const auto absolute = [](const QString& path) {
        return path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
    };
    return {absolute(parser.positionalArguments().value(0)), absolute(parser.value(tour))};
}

// For measuring the start from outside: ends the program once its window has been painted, children
// and all.
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
    Application application(argc, argv);
    QtDialogs dialogs;
    Dialogs::Install(&dialogs);
    InstallHelpKey(GeneralModule::HelpFile());
    const Arguments arguments = ReadArguments(application);
    frmOpenChapter mainWindow(arguments.album);
    mainWindow.show();
    if (!arguments.tour.isEmpty())
        new Tour(arguments.tour, &mainWindow);
    if (qEnvironmentVariableIsSet("LUMENARK_EXIT_AFTER_FIRST_PAINT"))
        new EndAfterFirstPaint(&mainWindow);
    return QApplication::exec();
}
