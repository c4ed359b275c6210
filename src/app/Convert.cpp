// SPDX-License-Identifier: MIT
#include "Convert.h"

#include "Translations.h"
#include "core/oldalbum/OldAlbumConversion.h"
#include "platform/data/DatabaseError.h"
#include "platform/data/DatabaseFile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <cstring>

namespace {

using namespace GeneralModule;

enum Status { Whole = 0, Failed = 1, BadUse = 2, InPart = 3 };

constexpr const char* convertOption = "convert";
constexpr const char* passwordOption = "password-file";
constexpr const char* forceOption = "force";

struct ConvertTexts
{
    Q_DECLARE_TR_FUNCTIONS(Convert)
};

void Print(std::FILE* stream, const QString& line)
{
    std::fprintf(stream, "%s\n", line.toLocal8Bit().constData());
}

void Complain(const QString& about, const QString& text)
{
    Print(stderr, QStringLiteral("lumenark: %1: %2").arg(QDir::toNativeSeparators(about), text));
}

// A failure whose text comes from here, not from a layer below.
struct Trouble
{
    QString about;
    QString text;
};

volatile std::sig_atomic_t caughtSignal = 0;

struct Interrupted
{
};

void CheckSignals()
{
    if (caughtSignal != 0)
        throw Interrupted();
}

// So that the unfinished album is removed before the program ends.
void CatchSignals()
{
    for (const int signal : {SIGINT, SIGTERM})
        std::signal(signal, [](int number) { caughtSignal = number; });
}

int EndBySignal()
{
    std::signal(caughtSignal, SIG_DFL);
    std::raise(caughtSignal);
    return Failed;
}

// The file's first line, without its line end.
QString ReadPassword(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Trouble{path, file.errorString()};
    QByteArray line = file.readLine();
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    return QString::fromUtf8(line);
}

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
    for (int i = 1; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        if (std::strcmp(argv[i], "--convert") == 0)
            return true;
    }
    return false;
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
    CatchSignals();
    try {
        return Convert(paths[0], paths[1], parser);
    } catch (const Trouble& trouble) {
        Complain(trouble.about, trouble.text);
    } catch (const DatabaseError& error) {
        Complain(paths[0], error.GetDescription());
    } catch (const Interrupted&) {
        return EndBySignal();
    }
    return Failed;
}
