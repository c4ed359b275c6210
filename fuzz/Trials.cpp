// SPDX-License-Identifier: MIT
#include "fuzz/Trials.h"

#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

constexpr int maxFaults = 20;
constexpr qsizetype maxShown = 4000; // bytes of an input

// Of the trial that runs, for the handlers below.
QByteArray currentInput;
QString programName;
quint64 seed = 0;
qint64 currentTrial = -1;

void ShowTrial(const char* what)
{
    std::printf("%s: %s --seed %llu --trial %lld\n", what, qPrintable(programName),
                static_cast<unsigned long long>(seed), static_cast<long long>(currentTrial));
}

// As a string literal of C++.
QByteArray Escaped(const QByteArray& bytes)
{
    QByteArray text;
    for (const char byte : bytes) {
        if (byte == '"' || byte == '\\')
            text += '\\';
        if (byte >= ' ' && byte <= '~')
            text += byte;
        else
            text += '\\' + QByteArray::number(uchar(byte), 8).rightJustified(3, '0');
    }
    return '"' + text + '"';
}

void ShowInput()
{
    if (currentInput.size() <= maxShown) {
        std::printf("  input: %s\n", Escaped(currentInput).constData());
        return;
    }
    QFile file(QStringLiteral("fault-%1-%2-%3").arg(programName).arg(seed).arg(currentTrial));
    if (file.open(QIODevice::WriteOnly) && file.write(currentInput) == currentInput.size())
        std::printf("  input: in %s\n", qPrintable(file.fileName()));
}

void TellDeath()
{
    ShowTrial("DIED");
    ShowInput();
    std::fflush(stdout);
}

// The address sanitizer takes most signals for itself; the other one ends in SIGABRT.
void TellWhenDying()
{
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(TellDeath);
    const std::vector<int> deadly{SIGABRT};
#else
    const std::vector<int> deadly{SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
#endif
    for (const int number : deadly) {
        std::signal(number, [](int received) {
            std::signal(received, SIG_DFL);
            TellDeath();
            std::raise(received);
        });
    }
}

// 0: no limit. A trial that waits for ever takes no processor time.
void LimitTime(int seconds)
{
    const itimerval limit{{0, 0}, {seconds, 0}};
    setitimer(ITIMER_PROF, &limit, nullptr);
    alarm(unsigned(seconds) * 20);
}

qint64 MillisecondsOf(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000 +
           (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000;
}

qint64 NumberAfter(const QStringList& arguments, qsizetype& at)
{
    bool ok = false;
    const qint64 number = arguments.value(++at).toLongLong(&ok);
    if (!ok || number < 0) {
        std::fprintf(stderr, "usage: %s [--seconds N] [--seed N] [--trial N] [FILE...]\n",
                     qPrintable(programName));
        std::exit(2);
    }
    return number;
}

} // namespace

// So that an undefined operation ends in a signal that can be told of.
extern "C" const char* __ubsan_default_options();
extern "C" const char* __ubsan_default_options()
{
    return "abort_on_error=1:print_stacktrace=1";
}

Trials::Trials(int argc, char** argv, int maxSeconds) : maxSeconds_(maxSeconds)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QFile::decodeName(argv[i]);
    programName = QFileInfo(arguments.value(0)).fileName();
    seed = std::random_device()();
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--seconds"))
            seconds_ = NumberAfter(arguments, i);
        else if (arguments[i] == QLatin1String("--trials"))
            trials_ = NumberAfter(arguments, i);
        else if (arguments[i] == QLatin1String("--seed"))
            seed = quint64(NumberAfter(arguments, i));
        else if (arguments[i] == QLatin1String("--trial"))
            onlyTrial_ = NumberAfter(arguments, i);
        else
            files_ += arguments[i];
    }
    std::printf("%s --seconds %lld --seed %llu\n", qPrintable(programName),
                static_cast<long long>(seconds_), static_cast<unsigned long long>(seed));
    std::fflush(stdout);

    TellWhenDying();
    for (const int number : {SIGPROF, SIGALRM}) {
        std::signal(number, [](int) {
            ShowTrial("TAKES TOO LONG");
            ShowInput();
            std::fflush(stdout);
            _exit(1);
        });
    }
}

qint64 Trials::ProcessorMilliseconds()
{
    return MillisecondsOf(RUSAGE_SELF) + MillisecondsOf(RUSAGE_CHILDREN);
}

bool Trials::IsEnough() const
{
    return trials_ >= 0 ? trial_ >= trials_ : time_.elapsed() >= seconds_ * 1000;
}

bool Trials::Next()
{
    const bool isFirst = trial_ < 0;
    if (isFirst)
        time_.start(); // what is made ready before is not counted
    trial_ = isFirst && onlyTrial_ >= 0 ? onlyTrial_ : trial_ + 1;
    LimitTime(0);
    if (faults_ >= maxFaults || (!isFirst && onlyTrial_ >= 0) || (onlyTrial_ < 0 && IsEnough()))
        return false;
    currentTrial = trial_;
    currentInput.clear();
    std::seed_seq sequence{quint32(seed), quint32(seed >> 32), quint32(trial_),
                           quint32(trial_ >> 32)};
    random_.seed(sequence);
    LimitTime(maxSeconds_);
    return true;
}

void Trials::SetInput(const QByteArray& input)
{
    currentInput = input;
    currentInput.detach();
    if (onlyTrial_ >= 0)
        ShowInput();
}

void Trials::AddInput(const QByteArray& line)
{
    currentInput += line + '\n';
    const qsizetype surplus = currentInput.size() - maxShown / 2;
    if (surplus > 0)
        currentInput.remove(0, currentInput.indexOf('\n', surplus - 1) + 1);
    if (onlyTrial_ >= 0) {
        std::printf("  %s\n", Escaped(line).constData());
        std::fflush(stdout);
    }
}

const QByteArray& Trials::GetInput()
{
    return currentInput;
}

void Trials::Fault(const QString& what)
{
    ++faults_;
    ShowTrial("FAULT");
    std::printf("  %s\n", qPrintable(what));
    ShowInput();
    std::fflush(stdout);
}

int Trials::Run(const std::function<void()>& trial)
{
    while (Next()) {
        try {
            trial();
        } catch (const std::exception& error) {
            Fault(QString::fromUtf8(error.what()));
        }
    }
    return Finish();
}

int Trials::Finish() const
{
    const qint64 count = onlyTrial_ >= 0 ? 1 : trial_;
    std::printf("%lld trials, %lld accepted, %d faults\n", static_cast<long long>(count),
                static_cast<long long>(accepted_), faults_);
    if (onlyTrial_ < 0 && accepted_ == 0)
        std::printf("Nothing was accepted: these trials reached nothing.\n");
    return faults_ > 0 || (onlyTrial_ < 0 && accepted_ == 0) ? 1 : 0;
}
