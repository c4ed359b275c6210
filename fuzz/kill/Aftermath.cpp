// SPDX-License-Identifier: MIT
#include "fuzz/kill/Aftermath.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/EarlierStates.h"
#include "core/StateKeeping.h"
#include "fuzz/AlbumState.h"
#include "platform/files/FileReplacement.h"
#include "support/AlbumFixture.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <stdexcept>

using namespace GeneralModule;

namespace {

// Only bits of others count: the owner's follow from the work.
QFile::Permissions RightsOfOthers(const QString& path)
{
    return QFile::permissions(path) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther |
                                       QFile::WriteOther | QFile::ExeGroup | QFile::ExeOther);
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

// Whole albums as they were at some step, and nothing else but what nobody else may open.
void LookAtStates(const Target& target, const QString& folder, Finding& finding)
{
    const QString place = folder + '/' + target.work.place;
    for (const EarlierState& state : EarlierStatesOf(place)) {
        const QByteArray held = StateOf(state.path, {oldPassword, newPassword});
        const bool isBetween = target.work.commits == LongWork::Commits::OnItsWay &&
                               IsBetween(held, target.states.first(), target.states.last());
        if (!target.states.contains(held) && !isBetween)
            throw std::runtime_error("a state holds something else");
        if (RightsOfOthers(state.path))
            throw std::runtime_error("others may read a state");
    }
    const QString states = StatesFolderOf(place);
    if (QFileInfo::exists(states) && RightsOfOthers(states))
        throw std::runtime_error("others may list the states");
    for (const QString& name : EntriesOf(states)) {
        finding.hasFolder = finding.hasFolder || name.startsWith(u'.');
        if (finding.fault.isEmpty())
            finding.fault = FaultOfLeftover(target, states, name);
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
    KeepState(false);
    ReleaseAlbum();
    if (!fault.isEmpty())
        return fault;
    FileReplacement(place).GetPath();
    const QStringList states = EntriesOf(StatesFolderOf(place));
    if (states.size() != qsizetype(EarlierStatesOf(place).size()) + 1) // and the note
        return QStringLiteral("left with the states: ") + states.join(QLatin1String(", "));
    const QStringList atEnd = EntriesAtEnd(folder);
    return atEnd == target.atEnd
               ? QString()
               : QStringLiteral("left behind: ") + atEnd.join(QLatin1String(", "));
}

} // namespace

QStringList EntriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

QStringList EntriesAtEnd(const QString& folder)
{
    QStringList names = EntriesOf(folder);
    names.removeIf(
        [](const QString& name) { return name.startsWith(QLatin1String("story (before repair")); });
    return names;
}

void KeepStatesBeside(const QString& folder)
{
    qputenv("XDG_DATA_HOME", (folder + "/../data").toUtf8());
}

void ForgetStates(const QString& folder)
{
    QDir(folder + "/../data").removeRecursively();
}

void OpenToWork(const Target& target, const QString& folder, const QString& password)
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder + "/../settings");
    qputenv("XDG_CACHE_HOME", (folder + "/../cache").toUtf8());
    KeepStatesBeside(folder);
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

Finding Look(const Target& target, const QString& folder, int acknowledged)
{
    Finding finding;
    const auto goOn = [&finding] { return finding.fault.isEmpty(); };
    try {
        KeepStatesBeside(folder);
        LookAtLeftovers(target, folder, finding);
        if (goOn())
            LookAtStates(target, folder, finding);
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
