// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <QStringList>

#include <functional>
#include <random>

// What the programs of this folder share: arguments, clock, random numbers, and the report.
//
//   PROGRAM [--seconds N | --trials N] [--seed N] [--trial N] [FILE...]
//
// --trials runs so many, however long they take.
//
// Trials are numbered from 0, and each has random numbers of its own that follow from the seed and
// its number. So --trial runs one of them alone, with the same input as before.
class Trials
{
public:
    // Ends the program with status 2 for arguments that it does not know. A trial that takes more
    // than maxSeconds of processor time, or twenty times that by the clock, is ended, and the
    // program with it.
    Trials(int argc, char** argv, int maxSeconds);

    const QStringList& GetFiles() const { return files_; }

    // What this program and the processes it has waited for have used. Limits count this time:
    // other programs on a busy machine make no trial slow.
    static qint64 ProcessorMilliseconds();

    // Begins the next trial; false when the time is up or many faults have been found.
    bool Next();

    std::mt19937& Random() { return random_; }
    // 0 to limit - 1; limit is at least 1.
    int Below(qsizetype limit) { return int(random_() % std::size_t(limit)); }
    bool OneIn(int count) { return Below(count) == 0; }
    template<typename List>
    const auto& AnyOf(const List& list)
    {
        return list[std::size_t(Below(qsizetype(std::size(list))))];
    }

    // What this trial feeds to the program's routines: shown with a fault and when the trial dies,
    // written to a file of the current folder where it is too large to be shown.
    void SetInput(const QByteArray& input);
    static const QByteArray& GetInput();
    // One line more of an input that consists of steps; of many, the last ones are shown.
    void AddInput(const QByteArray& line);
    // Inputs that the routines took. A target that reaches nothing but refusals tests little.
    void CountAccepted() { ++accepted_; }
    void Fault(const QString& what);

    // Runs the trial until the time is up; what it throws is a fault. Returns as Finish.
    int Run(const std::function<void()>& trial);
    // Prints the numbers of trials and faults. Returns the program's status.
    int Finish() const;

private:
    bool IsEnough() const;

    QStringList files_;
    QElapsedTimer time_;
    std::mt19937 random_;
    qint64 seconds_ = 20;
    qint64 trials_ = -1; // to be run; -1: until the time is up
    qint64 trial_ = -1;
    qint64 onlyTrial_ = -1;
    qint64 accepted_ = 0;
    int maxSeconds_;
    int faults_ = 0;
};
