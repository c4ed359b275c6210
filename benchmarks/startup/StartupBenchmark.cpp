// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <vector>

// startup_benchmark PROGRAM [ARGUMENT...]
// Measures how long PROGRAM takes from its start until it has painted its first window and ended,
// beside a bare window on the same display. The two take turns, so that a busy machine slows them
// alike. A library that is preloaded into both ends them after the paint.

namespace {

constexpr int runCount = 21;
constexpr int warmUps = 2; // runs that fill the file cache and do not count
constexpr int maxMilliseconds = 30000;

struct Program
{
    QString path;
    QStringList arguments;
    std::vector<double> milliseconds;
};

// Empty, with the reason printed, when the program does not start, fails or does not end.
std::optional<double> RunOnce(const Program& program)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(END_AFTER_FIRST_PAINT));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setProcessEnvironment(environment);
    QElapsedTimer timer;
    timer.start();
    process.start(program.path, program.arguments);
    const bool ended = process.waitForFinished(maxMilliseconds);
    const qint64 nanoseconds = timer.nsecsElapsed();
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(program.path),
                     ended ? "failed" : qUtf8Printable(process.errorString()));
        process.kill();
        process.waitForFinished();
        return {};
    }
    constexpr double nanosecondsPerMillisecond = 1e6;
    return double(nanoseconds) / nanosecondsPerMillisecond;
}

bool Measure(std::vector<Program>& programs)
{
    for (int run = -warmUps; run < runCount; ++run) {
        for (Program& program : programs) {
            const std::optional<double> milliseconds = RunOnce(program);
            if (!milliseconds) {
                return false;
            }
            if (run >= 0) {
                program.milliseconds.push_back(*milliseconds);
            }
        }
    }
    return true;
}

double MedianOf(const Program& program)
{
    std::vector<double> sorted = program.milliseconds;
    std::ranges::sort(sorted);
    return sorted[sorted.size() / 2];
}

void PrintRow(const char* name, const Program& program)
{
    const auto [least, most] = std::ranges::minmax(program.milliseconds);
    std::printf("%-12s median %7.1f ms   least %7.1f   most %7.1f\n", name, MedianOf(program),
                least, most);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("usage: startup_benchmark PROGRAM [ARGUMENT...]\n", stderr);
        return 2;
    }
    const QString bare = QCoreApplication::applicationDirPath() + QStringLiteral("/bare_window");
    std::vector<Program> programs{{bare, {}, {}}, {arguments[1], arguments.mid(2), {}}};
    if (!Measure(programs)) {
        return 1;
    }
    PrintRow("bare window", programs[0]);
    PrintRow("program", programs[1]);
    std::printf("ratio        %.2f  (%d runs each, in turn)\n",
                MedianOf(programs[1]) / MedianOf(programs[0]), runCount);
    return 0;
}
