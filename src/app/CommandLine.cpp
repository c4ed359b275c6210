// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "core/AlbumSets.h"
#include "platform/data/DatabaseError.h"
#include "platform/data/DatabaseFile.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QScopeGuard>

#include <algorithm>
#include <csignal>
#include <stdexcept>

namespace {

volatile std::sig_atomic_t caughtSignal = 0;

const QString passwordFileOption = QStringLiteral("password-file");

struct CommandTexts
{
    Q_DECLARE_TR_FUNCTIONS(Descriptions)
};

} // namespace

bool HasOption(int argc, char** argv, std::initializer_list<std::string_view> options)
{
    for (int i = 1; i < argc && std::string_view(argv[i]) != "--"; ++i) {
        if (std::find(options.begin(), options.end(), argv[i]) != options.end())
            return true;
    }
    return false;
}

void Print(std::FILE* stream, const QString& line)
{
    std::fprintf(stream, "%s\n", line.toLocal8Bit().constData());
}

void Complain(const QString& about, const QString& text)
{
    Print(stderr, QStringLiteral("lumenark: %1: %2").arg(QDir::toNativeSeparators(about), text));
}

bool HasSignal()
{
    return caughtSignal != 0;
}

void CheckSignals()
{
    if (HasSignal())
        throw Interrupted();
}

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

int RunCommand(const QString& album, const std::function<int()>& command)
{
    CatchSignals();
    const auto closeAlbum = qScopeGuard([] { GeneralModule::SetOpenedAlbum(nullptr); });
    try {
        return command();
    } catch (const Trouble& trouble) {
        Complain(trouble.about, trouble.text);
    } catch (const DatabaseError& error) {
        Complain(album, error.GetDescription());
    } catch (const std::runtime_error& error) {
        Print(stderr, QStringLiteral("lumenark: ") + QString::fromUtf8(error.what()));
    } catch (const Interrupted&) {
        GeneralModule::SetOpenedAlbum(nullptr);
        return EndBySignal();
    }
    return Failed;
}

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

void AddPasswordOption(QCommandLineParser& parser)
{
    parser.addOption({passwordFileOption,
                      CommandTexts::tr("The first line of FILE is the album's password."),
                      QStringLiteral("FILE")});
}

void OpenWithGivenPassword(const QString& album, const QCommandLineParser& parser,
                           const std::function<void(const QString& password)>& open)
{
    switch (KindOfDatabaseFile(album)) {
    case DatabaseFileKind::Missing:
        throw Trouble{album, CommandTexts::tr("There is no such file.")};
    case DatabaseFileKind::OldAlbum:
        throw Trouble{album, CommandTexts::tr("It is an album of the former file format; make a "
                                              "new one of it first, with --convert.")};
    default:
        break;
    }
    const QString password = parser.isSet(passwordFileOption)
                                 ? ReadPassword(parser.value(passwordFileOption))
                                 : QString();
    try {
        open(password);
    } catch (const DatabaseError& error) {
        if (error.GetNumber() != DatabaseError::WrongPassword)
            throw;
        throw Trouble{album, password.isEmpty()
                                 ? CommandTexts::tr(
                                       "It has a password; give the file that holds it with --%1.")
                                       .arg(passwordFileOption)
                                 : CommandTexts::tr("The password is wrong.")};
    }
}
