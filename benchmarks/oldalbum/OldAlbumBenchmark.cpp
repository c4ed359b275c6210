// SPDX-License-Identifier: MIT
// Converts large old albums, beside mdb-export writing their picture table as text:
// old_album_benchmark ALBUM, a sound Jet 4 album without password, of which larger ones are made.
#include "LargeOldAlbum.h"

#include <sys/resource.h>
#include <sys/wait.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

constexpr int runs = 5;

struct Measured
{
    double seconds = 0;
    double processorSeconds = 0;
    double peakMebibytes = 0; // of the largest process, the reader's child included
};

// Started without the toolkit, which does not tell what a process used. This process stays small:
// what it holds would count as the other's peak.
std::optional<Measured> Run(const std::vector<QByteArray>& command)
{
    std::vector<char*> arguments;
    for (const QByteArray& word : command)
        arguments.push_back(const_cast<char*>(word.constData()));
    arguments.push_back(nullptr);
    QElapsedTimer timer;
    timer.start();
    const pid_t child = fork();
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage usage = {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) ||
        WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed\n", command.front().constData());
        return {};
    }
    const auto seconds = [](const timeval& time) {
        return double(time.tv_sec) + double(time.tv_usec) / 1e6;
    };
    return Measured{double(timer.nsecsElapsed()) / 1e9,
                    seconds(usage.ru_utime) + seconds(usage.ru_stime),
                    double(usage.ru_maxrss) / 1024};
}

Measured MedianOf(std::vector<Measured> all)
{
    std::sort(all.begin(), all.end(),
              [](const Measured& a, const Measured& b) { return a.seconds < b.seconds; });
    return all[all.size() / 2];
}

// The two take turns, so that a busy machine slows them alike.
bool Compare(const QString& old, const QString& target, qint64 pictures)
{
    const QByteArray program =
        QFile::encodeName(QCoreApplication::applicationDirPath() + QStringLiteral("/lumenark"));
    const QByteArray path = QFile::encodeName(old);
    const std::vector<QByteArray> ours{program, "--convert", "--force", path,
                                       QFile::encodeName(target)};
    const std::vector<QByteArray> bare{"mdb-export", path, "Image"};
    std::vector<Measured> times[2];
    for (int run = -1; run < runs; ++run) {
        const auto first = Run(ours);
        const auto second = Run(bare);
        if (!first || !second)
            return false;
        if (run >= 0) {
            times[0].push_back(*first);
            times[1].push_back(*second);
        }
    }
    const Measured conversion = MedianOf(times[0]);
    const Measured text = MedianOf(times[1]);
    std::printf("%9lld %9.3f %9.3f %9.3f %9.3f %7.2f %9.1f %9.1f\n",
                static_cast<long long>(pictures), conversion.seconds, conversion.processorSeconds,
                text.seconds, text.processorSeconds, conversion.seconds / text.seconds,
                conversion.peakMebibytes, text.peakMebibytes);
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: old_album_benchmark ALBUM\n", stderr);
        return 2;
    }
    const QTemporaryDir folder;
    std::printf("%9s %9s %9s %9s %9s %7s %9s %9s\n", "pictures", "convert s", "processor",
                "export s", "processor", "ratio", "MiB", "MiB");
    for (const qint64 wanted : {10'000, 100'000, 400'000}) {
        const QString old = folder.filePath(QStringLiteral("old.alb"));
        const qint64 pictures = WriteLargeOldAlbum(QFile::decodeName(argv[1]), old, wanted);
        if (pictures == 0 || !Compare(old, folder.filePath(QStringLiteral("new.alb")), pictures))
            return 1;
        std::fflush(stdout);
    }
    return 0;
}
