// SPDX-License-Identifier: MIT
#include "Check.h"

#include "CommandLine.h"
#include "Translations.h"
#include "core/AlbumCheck.h"
#include "platform/data/DatabaseError.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace {

using namespace GeneralModule;

const QString checkOption = QStringLiteral("check");

struct CheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(Check)
};

int Check(const QString& album, const QCommandLineParser& parser)
{
    const auto goesOn = [](CheckStep, int) { return !HasSignal(); };
    CheckReport report;
    OpenWithGivenPassword(album, parser, [&](const QString& password) {
        AlbumCheck check(QFileInfo(album).absoluteFilePath(), password, goesOn);
        report = check.Run(goesOn);
    });
    if (report.isStopped)
        throw Interrupted();
    Print(stdout, DescribeCheck(report));
    if (!report.IsWhole())
        return Failed;
    return report.IsEmpty() ? Whole : InPart;
}

} // namespace

bool IsCheck(int argc, char** argv)
{
    return HasOption(argc, argv, {"--check"});
}

void AddCheckOptions(QCommandLineParser& parser)
{
    parser.addOption(
        {checkOption,
         CheckTexts::tr("Tell what is wrong with the album, without windows; nothing is changed. "
                        "The exit status is 0 when it is in order, 1 when it cannot be opened or "
                        "its file is damaged, 3 when something else was found.")});
}

int RunCheck(int& argc, char** argv)
{
    QCoreApplication application(argc, argv);
    InstallTranslations(application);
    QCommandLineParser parser;
    AddCheckOptions(parser);
    AddPasswordOption(parser);
    const QCommandLineOption help = parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("ALBUM"), CheckTexts::tr("The album."));
    const bool isUnderstood = parser.parse(QCoreApplication::arguments());
    if (isUnderstood && parser.isSet(help))
        parser.showHelp(Whole);
    if (!isUnderstood || parser.positionalArguments().size() != 1) {
        Print(stderr,
              QStringLiteral("lumenark: ") +
                  (isUnderstood ? CheckTexts::tr("--check takes one album") : parser.errorText()));
        Print(stderr, CheckTexts::tr("usage: lumenark --check ALBUM [--password-file FILE]"));
        return BadUse;
    }
    const QString album = parser.positionalArguments().constFirst();
    return RunCommand(album, [&] { return Check(album, parser); });
}
