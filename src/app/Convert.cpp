// SPDX-License-Identifier: MIT
#include "Convert.h"

#include "CommandLine.h"
#include "Translations.h"
#include "core/oldalbum/OldAlbumConversion.h"
#include "platform/data/DatabaseError.h"
#include "platform/data/DatabaseFile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace {

using namespace GeneralModule;

constexpr const char* convertOption = "convert";
constexpr const char* passwordOption = "password-file";
constexpr const char* forceOption = "force";

struct ConvertTexts
{
    Q_DECLARE_TR_FUNCTIONS(Convert)
};

QString FittingPassword(const OldAlbumFile& old, const QString& path,
                        const QCommandLineParser& parser)
{
    if (!old.HasPassword())
        return {};
    const QString option = QString::fromLatin1(passwordOption);
    if (!parser.isSet(option))
        throw Trouble{path,
                      ConvertTexts::tr("It has a password; give the file that holds it with --%1.")
                          .arg(option)};
    const QString password = ReadPassword(parser.value(option));
    if (!old.PasswordFits(password))
        throw Trouble{path, ConvertTexts::tr("The password is wrong.")};
    return password;
}

int Convert(const QString& path, const QString& target, const QCommandLineParser& parser)
{
    const DatabaseFileKind kind = KindOfDatabaseFile(path);
    if (kind == DatabaseFileKind::Missing)
        throw Trouble{path, ConvertTexts::tr("There is no such file.")};
    if (kind == DatabaseFileKind::Unopenable)
        throw Trouble{path, ConvertTexts::tr("It is not a file that can be opened.")};
    if (kind != DatabaseFileKind::OldAlbum)
        throw Trouble{path, ConvertTexts::tr("It is not an album of the former file format.")};
    OldAlbumFile old(path);
    const OldAlbumReport report =
        ConvertOldAlbum(old, {.target = target,
                              .password = FittingPassword(old, path, parser),
                              .replaces = parser.isSet(QString::fromLatin1(forceOption)),
                              .check = CheckSignals});
    for (const QString& problem : report.Problems())
        Complain(path, problem);
    Print(stdout, report.Summary());
    for (const QString& line : report.FolderHint())
        Print(stdout, line);
    return report.IsWhole() ? Whole : InPart;
}

} // namespace

bool IsConversion(int argc, char** argv)
{
    return HasOption(argc, argv, {"--convert"});
}

void AddConversionOptions(QCommandLineParser& parser)
{
    parser.addOption(
        {QString::fromLatin1(convertOption),
         ConvertTexts::tr("Make the new album NEW of the album OLD of the former file format, "
                          "without windows. The exit status is 0 when everything came over, 3 when "
                          "the new album lacks something, 1 when none was made.")});
    parser.addOption(
        {QString::fromLatin1(passwordOption),
         ConvertTexts::tr("With --convert: the first line of FILE is the old album's password. The "
                          "new one gets it too."),
         QStringLiteral("FILE")});
    parser.addOption({QString::fromLatin1(forceOption),
                      ConvertTexts::tr("With --convert: replace NEW where it exists.")});
}

int RunConversion(int& argc, char** argv)
{
    QCoreApplication application(argc, argv);
    InstallTranslations(application);
    QCommandLineParser parser;
    AddConversionOptions(parser);
    const QCommandLineOption help = parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("OLD"),
                                 ConvertTexts::tr("The old album; it stays as it is."));
    parser.addPositionalArgument(QStringLiteral("NEW"), ConvertTexts::tr("The new album."));
    const bool understood = parser.parse(QCoreApplication::arguments());
    if (understood && parser.isSet(help))
        parser.showHelp(Whole);
    const QStringList paths = parser.positionalArguments();
    if (!understood || paths.size() != 2) {
        Print(stderr, understood ? ConvertTexts::tr(
                                       "lumenark: --convert takes the old album and the new one")
                                 : QStringLiteral("lumenark: ") + parser.errorText());
        Print(stderr, ConvertTexts::tr(
                          "usage: lumenark --convert OLD NEW [--password-file FILE] [--force]"));
        return BadUse;
    }
    return RunCommand(paths[0], [&] { return Convert(paths[0], paths[1], parser); });
}
