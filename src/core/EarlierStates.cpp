// SPDX-License-Identifier: MIT
#include "core/EarlierStates.h"

#include "core/Settings.h"
#include "core/StateThinning.h"
#include "platform/data/DatabaseError.h"
#include "platform/data/DatabaseFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include <algorithm>

namespace {

using namespace GeneralModule;

const QString statesSection = QStringLiteral("EarlierStates");
const QString folderKey = QStringLiteral("Folder");
const QString limitKey = QStringLiteral("LimitInMegabytes");
constexpr int usualLimit = 2000;

// Holds the path of the album that a folder's states are of.
const QString noteName = QStringLiteral("album.txt");
const QString timeFormat = QStringLiteral("yyyy-MM-dd HH-mm-ss");
const QString replacedMark = QStringLiteral(" replaced");
const QString stateEnding = QStringLiteral(".alb");

// Also of an album that is not there any more, as long as its folder is.
QString CanonicalPath(const QString& album)
{
    const QFileInfo file(album);
    const QString canonical = file.canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? file.absoluteFilePath() : QDir(folder).filePath(file.fileName());
}

// Files of any other name are not the program's, and stay.
bool ReadName(const QString& name, EarlierState& state)
{
    if (!name.endsWith(stateEnding))
        return false;
    QString time = name.chopped(stateEnding.size());
    state.isReplaced = time.endsWith(replacedMark);
    if (state.isReplaced)
        time.chop(replacedMark.size());
    state.kept = QDateTime::fromString(time, timeFormat);
    return state.kept.isValid();
}

QString ReadNote(const QString& folder)
{
    QFile note(QDir(folder).filePath(noteName));
    if (!note.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(note.readLine()).trimmed();
}

void WriteNote(const QString& folder, const QString& album)
{
    QFile note(QDir(folder).filePath(noteName));
    if (note.exists() || !note.open(QIODevice::WriteOnly))
        return;
    note.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    note.write(album.toUtf8() + '\n');
}

} // namespace

namespace GeneralModule {

QString StatesFolder()
{
    const QString chosen = GetUserSetting(statesSection, folderKey);
    if (!chosen.isEmpty())
        return chosen;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/lumenark/earlier-states");
}

void SetStatesFolder(const QString& folder)
{
    SaveUserSetting(statesSection, folderKey, folder);
}

QString StatesFolderOf(const QString& album)
{
    const QString path = CanonicalPath(album);
    const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256);
    return QDir(StatesFolder())
        .filePath(QFileInfo(path).completeBaseName() + u'-' +
                  QString::fromLatin1(hash.toHex().left(12)));
}

std::vector<EarlierState> EarlierStatesOf(const QString& album)
{
    std::vector<EarlierState> states;
    for (const QFileInfo& file : QDir(StatesFolderOf(album)).entryInfoList(QDir::Files)) {
        EarlierState state{.path = file.absoluteFilePath(), .kept = {}, .size = file.size()};
        if (ReadName(file.fileName(), state))
            states.push_back(state);
    }
    std::stable_sort(states.begin(), states.end(),
                     [](const EarlierState& a, const EarlierState& b) { return a.kept > b.kept; });
    return states;
}

std::vector<EarlierState> PlainStatesOf(const QString& album)
{
    std::vector<EarlierState> states = EarlierStatesOf(album);
    std::erase_if(states, [](const EarlierState& state) {
        return KindOfDatabaseFile(state.path) == DatabaseFileKind::Encrypted;
    });
    return states;
}

bool IsEarlierState(const QString& path, QString* album)
{
    EarlierState state;
    const QFileInfo file(path);
    const QString noted = ReadNote(file.absolutePath());
    if (noted.isEmpty() || !ReadName(file.fileName(), state))
        return false;
    if (album)
        *album = noted;
    return true;
}

QDateTime StateTime(const QString& path)
{
    EarlierState state;
    ReadName(QFileInfo(path).fileName(), state);
    return state.kept;
}

QString TimeText(const QDateTime& kept)
{
    const QLocale locale;
    return locale.toString(kept.date(), QLocale::LongFormat) + u' ' +
           locale.toString(kept.time(), QLocale::ShortFormat);
}

int StatesLimit()
{
    const int limit = GetUserSetting(statesSection, limitKey).toInt();
    return limit > 0 ? limit : usualLimit;
}

void SetStatesLimit(int megabytes)
{
    SaveUserSetting(statesSection, limitKey, QString::number(megabytes));
}

bool RemoveState(const EarlierState& state)
{
    const bool isRemoved = QFile::remove(state.path);
    QDir folder = QFileInfo(state.path).absoluteDir();
    if (isRemoved && folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot) ==
                         QStringList(noteName)) {
        folder.remove(noteName);
        QDir().rmdir(folder.path());
    }
    return isRemoved;
}

QString NewStatePath(const QString& album, const QDateTime& kept, bool isReplaced)
{
    const QString folder = StatesFolderOf(album);
    constexpr auto onlyUser = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    const bool isThere = QDir(folder).exists();
    if (!isThere && !QDir().mkpath(folder)) {
        throw DatabaseError(DatabaseError::DiskError,
                            DatabaseError::tr("The folder '%1' cannot be made.")
                                .arg(QDir::toNativeSeparators(folder)));
    }
    if (!isThere)
        QFile::setPermissions(folder, onlyUser); // not every disk knows of permissions
    WriteNote(folder, CanonicalPath(album));
    const QString mark = isReplaced ? replacedMark : QString();
    for (QDateTime time = kept;; time = time.addSecs(1)) {
        const QString path = QDir(folder).filePath(time.toString(timeFormat) + mark + stateEnding);
        if (!QFile::exists(path))
            return path;
    }
}

void ThinStates(const QString& album, const QDateTime& now)
{
    constexpr qint64 megabyte = 1'000'000;
    const std::vector<EarlierState> states = EarlierStatesOf(album);
    std::vector<StateSize> sizes;
    sizes.reserve(states.size());
    for (const EarlierState& state : states)
        sizes.push_back({state.kept, state.size, !state.isReplaced});
    for (const std::size_t removed : StatesToRemove(sizes, now, StatesLimit() * megabyte))
        RemoveState(states[removed]);
}

} // namespace GeneralModule
