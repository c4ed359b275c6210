// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <csignal>

namespace {

volatile std::sig_atomic_t caughtSignal = 0;

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
