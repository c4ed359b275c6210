// SPDX-License-Identifier: MIT
// Kills the program's long work at random moments and looks at what is left: the album is whole,
// holds everything that was acknowledged, and the work can be done again; nothing else stays lying
// about.
//
//   kill_fuzz [--seconds N] [--seed N] [--trial N] [OLD-ALBUM | WORK]
//
// WORK, which is no file, stands for the kinds of work with that in their name.
#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "fuzz/AlbumState.h"
#include "fuzz/Trials.h"
#include "fuzz/kill/Aftermath.h"
#include "fuzz/kill/Fork.h"
#include "platform/dialogs/Dialogs.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <stdexcept>
#include <thread>

using namespace GeneralModule;

namespace {

// Nothing here may need a person. That leftovers were cleared away is good news.
class NoDialogs : public Dialogs
{
public:
    Answer Ask(const Box& box) override
    {
        if (box.icon != Icon::Information)
            throw std::runtime_error(box.text.toStdString());
        return Answer::Ok;
    }
    QString AskText(const Input&) override { return {}; }
    QString AskOpenFile(const FileChoice&) override { return {}; }
    QString AskSaveFile(const FileChoice&) override { return {}; }
};

QDataStream& operator<<(QDataStream& stream, const Finding& finding)
{
    return stream << finding.fault << finding.step << finding.hasJournal << finding.hasFolder;
}

QDataStream& operator>>(QDataStream& stream, Finding& finding)
{
    return stream >> finding.fault >> finding.step >> finding.hasJournal >> finding.hasFolder;
}

void CopyFiles(const QString& from, const QString& to)
{
    QDir(to).removeRecursively();
    QDir().mkpath(to);
    for (const QString& name : EntriesOf(from)) {
        if (!QFile::copy(from + '/' + name, to + '/' + name))
            qFatal("cannot copy %s", qPrintable(name));
    }
}

// Writes a byte when it begins and after each step.
void Work(const Target& target, const QString& folder, int out)
{
    OpenToWork(target, folder, PasswordIn(target.states.first()));
    WriteTo(out, "b");
    for (int step = 0; step < target.work.steps; ++step) {
        target.work.run(folder, step);
        WriteTo(out, ".");
    }
    ReleaseAlbum();
}

template<typename Result>
Result InFork(const std::function<Result()>& work)
{
    Fork fork([&work](int out) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << work();
        WriteTo(out, bytes);
    });
    const QByteArray bytes = fork.Finish();
    Result result;
    QDataStream stream(bytes);
    stream >> result;
    if (!fork.HasSucceeded())
        throw std::runtime_error("a process that was not killed has failed");
    return result;
}

// The work undisturbed: what it leads to, and how long it takes.
void Prepare(Target& target, const QString& trial)
{
    QDir().mkpath(target.folder);
    using Run = std::pair<QByteArrayList, QStringList>;
    const Run run = InFork<Run>([&target, &trial] {
        target.work.prepare(target.folder);
        const QString place = '/' + target.work.place;
        if (target.isLocked) {
            OpenAlbum(target.folder + place);
            SetAlbumPassword(oldPassword);
            ReleaseAlbum();
        }
        CopyFiles(target.folder, trial);
        ForgetStates(trial);
        QByteArrayList states{StateAt(target, trial)};
        OpenToWork(target, trial, PasswordIn(states.first()));
        for (int step = 0; step < target.work.steps; ++step) {
            target.work.run(trial, step);
            states += StateAt(target, trial);
        }
        ReleaseAlbum();
        return Run(states, EntriesAtEnd(trial));
    });
    target.states = run.first;
    target.atEnd = run.second;
    if (target.states.first() == target.states.last())
        throw std::runtime_error("the work changes nothing");

    CopyFiles(target.folder, trial);
    ForgetStates(trial);
    Fork undisturbed([&target, &trial](int out) { Work(target, trial, out); });
    undisturbed.WaitForByte();
    QElapsedTimer time;
    time.start();
    undisturbed.Finish();
    target.milliseconds = double(time.nsecsElapsed()) / 1e6;
}

void Kill(Trials& trials, Target& target, const QString& trial)
{
    CopyFiles(target.folder, trial);
    ForgetStates(trial);
    Fork worker([&target, &trial](int out) { Work(target, trial, out); });
    const bool hasBegun = worker.WaitForByte();
    const double moment = target.milliseconds * 1.05 * double(trials.Below(1 << 20)) / (1 << 20);
    std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(moment));
    worker.Kill();
    const int acknowledged = int(worker.Finish().size());
    trials.SetInput(QStringLiteral("%1: killed after %2 of %3 ms, %4 of %5 steps acknowledged")
                        .arg(target.Name())
                        .arg(moment, 0, 'f', 2)
                        .arg(target.milliseconds, 0, 'f', 2)
                        .arg(acknowledged)
                        .arg(target.work.steps)
                        .toUtf8());
    if (!hasBegun || !(worker.HasSucceeded() || worker.WasKilled()))
        return trials.Fault(QStringLiteral("the work failed before it was killed"));

    const Finding found = InFork<Finding>([&] { return Look(target, trial, acknowledged); });
    if (!found.fault.isEmpty())
        trials.Fault(found.fault);
    if (acknowledged == target.work.steps)
        return;
    trials.CountAccepted();
    ++target.kills;
    ++(found.step < 0 ? target.between : found.step == acknowledged ? target.before : target.after);
    target.journals += int(found.hasJournal);
    target.folders += int(found.hasFolder);
}

void Report(const std::vector<Target>& targets)
{
    std::printf("%-32s %6s %7s %6s %8s %8s %8s\n", "killed while", "kills", "before", "after",
                "between", "journals", "folders");
    for (const Target& target : targets) {
        if (target.kills > 0)
            std::printf("%-32s %6d %7d %6d %8d %8d %8d\n", qPrintable(target.Name()), target.kills,
                        target.before, target.after, target.between, target.journals,
                        target.folders);
    }
}

std::vector<Target> EveryTarget(const QString& given, const QTemporaryDir& root)
{
    std::vector<Target> targets;
    const bool isFile = QFileInfo::exists(given);
    for (const LongWork& work : EveryLongWork(isFile ? given : QString())) {
        if (!isFile && !work.name.contains(given))
            continue;
        for (const bool isLocked : {false, true}) {
            if (isLocked && !work.canBeLocked)
                continue;
            Target target;
            target.work = work;
            target.isLocked = isLocked;
            target.folder = root.filePath(QString::number(targets.size()));
            targets.push_back(target);
        }
    }
    return targets;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Trials trials(argc, argv, 60);
    NoDialogs dialogs;
    Dialogs::Install(&dialogs);
    const QTemporaryDir root;
    const QString trial = root.filePath(QStringLiteral("trial"));
    std::vector<Target> targets = EveryTarget(trials.GetFiles().value(0), root);
    if (targets.empty())
        qFatal("there is no such work");
    while (trials.Next()) {
        Target& target = targets[std::size_t(trials.Below(qsizetype(targets.size())))];
        try {
            if (target.states.isEmpty())
                Prepare(target, trial);
            Kill(trials, target, trial);
        } catch (const std::exception& error) {
            trials.Fault(QString::fromUtf8(error.what()));
        }
    }
    Report(targets);
    return trials.Finish();
}
