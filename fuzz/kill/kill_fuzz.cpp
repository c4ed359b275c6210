// SPDX-License-Identifier: MIT
// Kills the program's long work at random moments and looks at what is left: the album is whole,
// holds everything that was acknowledged, and the work can be done again; nothing else stays lying
// about.
//
//   kill_fuzz [--seconds N] [--seed N] [--trial N] [OLD-ALBUM]
#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "core/AlbumRepair.h"
#include "core/AlbumSets.h"
#include "core/Parameters.h"
#include "fuzz/AlbumState.h"
#include "fuzz/Trials.h"
#include "fuzz/kill/Fork.h"
#include "fuzz/kill/LongWork.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FileReplacement.h"
#include "support/AlbumFixture.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QElapsedTimer>
#include <QSettings>
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

// A kind of work on an album with or without a password, and what was seen of it.
struct Target
{
    LongWork work;
    bool isLocked = false;
    QString folder;        // what is there before
    QByteArrayList states; // before each step, and at the end
    QStringList atEnd;
    double milliseconds = 0;

    int kills = 0; // while it worked
    int before = 0;
    int after = 0;
    int between = 0;
    int journals = 0;
    int folders = 0;

    QString Name() const { return isLocked ? work.name + ", locked" : work.name; }
};

struct Finding
{
    QString fault;
    QString password;
    int step = -1; // the step before which the album stands; -1: in between
    bool hasJournal = false;
    bool hasFolder = false;
};

QDataStream& operator<<(QDataStream& stream, const Finding& finding)
{
    return stream << finding.fault << finding.step << finding.hasJournal << finding.hasFolder;
}

QDataStream& operator>>(QDataStream& stream, Finding& finding)
{
    return stream >> finding.fault >> finding.step >> finding.hasJournal >> finding.hasFolder;
}

QStringList EntriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

// What lies there when all is done. How often a repair was begun does not matter.
QStringList EndOf(const QString& folder)
{
    QStringList names = EntriesOf(folder);
    names.removeIf(
        [](const QString& name) { return name.startsWith(QLatin1String("story (before repair")); });
    return names;
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

// Only bits of others count: the owner's follow from the work.
QFile::Permissions RightsOfOthers(const QString& path)
{
    return QFile::permissions(path) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther |
                                       QFile::WriteOther | QFile::ExeGroup | QFile::ExeOther);
}

void OpenToWork(const Target& target, const QString& folder, const QString& password)
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder + "/../settings");
    qputenv("XDG_CACHE_HOME", (folder + "/../cache").toUtf8());
    if (target.work.album == LongWork::Album::Open &&
        !OpenAlbum(folder + '/' + target.work.place, password))
        throw std::runtime_error("the album does not open");
}

// Keys are slow to make: the likeliest passwords first. One without a password opens with any.
QByteArray StateAt(const Target& target, const QString& folder)
{
    QStringList passwords;
    if (!target.states.isEmpty())
        passwords = {PasswordIn(target.states.first()), PasswordIn(target.states.last())};
    passwords += {oldPassword, newPassword};
    passwords.removeAll(QString());
    passwords.removeDuplicates();
    return StateOf(folder + '/' + target.work.place, passwords);
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

// Its looks from outside, and nothing in it that a password should hide.
QString FaultOfLeftover(const Target& target, const QString& folder, const QString& name)
{
    const QString path = folder + '/' + name;
    const QString place = folder + '/' + target.work.place;
    if (QFileInfo(path).isDir()) {
        if (!name.startsWith(QLatin1String(".lumenark-")) || RightsOfOthers(path))
            return QStringLiteral("a folder that others may open: ") + name;
        for (const QString& file : EntriesOf(path)) {
            const QString fault = FaultOfLeftover(target, path, file);
            if (!fault.isEmpty())
                return fault;
        }
        return {};
    }
    const bool isPrivate = QFileInfo::exists(place) && !RightsOfOthers(place);
    if (isPrivate && RightsOfOthers(path) && !name.startsWith(QLatin1String("lumenark-work")))
        return QStringLiteral("a file that others may read: ") + name;
    const bool hides =
        !PasswordIn(target.states.first()).isEmpty() && !PasswordIn(target.states.last()).isEmpty();
    return hides && ReadFile(path).contains("legend ")
               ? QStringLiteral("others may read what a password hides: ") + name
               : QString();
}

void LookAtLeftovers(const Target& target, const QString& folder, Finding& finding)
{
    for (const QString& name : EntriesOf(folder)) {
        const bool isCopy = name != target.work.place && name.endsWith(QLatin1String(".alb"));
        if (isCopy && name.startsWith(QLatin1String("story (")) &&
            StateOf(folder + '/' + name, {PasswordIn(target.states.first())}) !=
                target.states.first())
            throw std::runtime_error("half a copy of the album is left");
        finding.hasJournal = finding.hasJournal || name.endsWith(QLatin1String("-journal"));
        finding.hasFolder = finding.hasFolder || name.startsWith(u'.');
        finding.fault = FaultOfLeftover(target, folder, name);
        if (!finding.fault.isEmpty())
            return;
    }
}

// From the acknowledged step on, because earlier states may come again.
void LookAtAlbum(const Target& target, const QString& folder, int acknowledged, Finding& finding)
{
    const QByteArray state = StateAt(target, folder);
    finding.password = PasswordIn(state);
    for (int step = acknowledged; step <= std::min(acknowledged + 1, target.work.steps); ++step) {
        if (state == target.states[step]) {
            finding.step = step;
            return;
        }
    }
    if (target.work.commits != LongWork::Commits::OnItsWay ||
        !IsBetween(state, target.states.first(), target.states.last()))
        finding.fault = QStringLiteral("it holds something else");
}

// What is left to do, to its end. The fault of the chains before it.
QString GoOn(const Target& target, const QString& folder, const Finding& finding)
{
    const int from = std::max(0, finding.step);
    if (from == target.work.steps)
        return {};
    OpenToWork(target, folder, finding.password);
    if (IsAlbumOpen() && target.work.hasWholeChains) {
        const QString fault = FaultOfChains(1);
        if (!fault.isEmpty())
            return fault;
    }
    for (int step = from; step < target.work.steps; ++step)
        target.work.run(folder, step);
    ReleaseAlbum();
    return StateAt(target, folder) == target.states.last()
               ? QString()
               : QStringLiteral("the work done again ends otherwise");
}

// One more change in the album and beside it clears away what the kill has left.
QString FaultAtEnd(const Target& target, const QString& folder)
{
    const QString place = folder + '/' + target.work.place;
    if (!OpenAlbum(place, PasswordIn(target.states.last())))
        return QStringLiteral("the album does not open");
    const QString fault = FaultOfChains(1);
    AlbumDatabase->Execute("PRAGMA user_version=1");
    ReleaseAlbum();
    if (!fault.isEmpty())
        return fault;
    FileReplacement(place).GetPath();
    const QStringList atEnd = EndOf(folder);
    return atEnd == target.atEnd
               ? QString()
               : QStringLiteral("left behind: ") + atEnd.join(QLatin1String(", "));
}

Finding Look(const Target& target, const QString& folder, int acknowledged)
{
    Finding finding;
    const auto goOn = [&finding] { return finding.fault.isEmpty(); };
    try {
        LookAtLeftovers(target, folder, finding);
        if (goOn())
            LookAtAlbum(target, folder, acknowledged, finding);
        if (goOn())
            finding.fault = GoOn(target, folder, finding);
        if (goOn())
            finding.fault = FaultAtEnd(target, folder);
    } catch (const std::exception& error) {
        finding.fault = QString::fromUtf8(error.what());
    }
    return finding;
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
        QByteArrayList states{StateAt(target, trial)};
        OpenToWork(target, trial, PasswordIn(states.first()));
        for (int step = 0; step < target.work.steps; ++step) {
            target.work.run(trial, step);
            states += StateAt(target, trial);
        }
        ReleaseAlbum();
        return Run(states, EndOf(trial));
    });
    target.states = run.first;
    target.atEnd = run.second;
    if (target.states.first() == target.states.last())
        throw std::runtime_error("the work changes nothing");

    CopyFiles(target.folder, trial);
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

std::vector<Target> EveryTarget(const QString& oldAlbum, const QTemporaryDir& root)
{
    std::vector<Target> targets;
    for (const LongWork& work : EveryLongWork(oldAlbum)) {
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
