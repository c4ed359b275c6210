// SPDX-License-Identifier: MIT
#include "core/StateKeeping.h"

#include "core/AlbumSets.h"
#include "core/EarlierStates.h"
#include "core/Settings.h"
#include "platform/data/DatabaseFile.h"
#include "platform/data/ReadLock.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FileReplacement.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStorageInfo>

#include <algorithm>
#include <mutex>
#include <system_error>
#include <utility>

namespace {

using namespace GeneralModule;
using std::chrono::milliseconds;

struct StateTexts
{
    Q_DECLARE_TR_FUNCTIONS(EarlierStates)
};

constexpr double megabyte = 1e6;
constexpr qint64 smallestMeasured = 4'000'000; // bytes; below that the fixed costs count for more
constexpr qint64 roomLeft = 50'000'000;        // bytes that a state leaves free on the disk

const QString wishSection = QStringLiteral("EarlierStatesWanted");
const QString rateSection = QStringLiteral("EarlierStates");

// Also of an album that another thread opens.
std::mutex troubleLock;
std::optional<StateTrouble> trouble;

QString RateKey(bool isEncrypted)
{
    return isEncrypted ? QStringLiteral("MillisecondsPerEncryptedMegabyte")
                       : QStringLiteral("MillisecondsPerMegabyte");
}

// Before anything was measured, those of a slow and busy computer: decrypting adds to the check.
double MillisecondsPerMegabyte(bool isEncrypted)
{
    const double measured = GetUserSetting(rateSection, RateKey(isEncrypted)).toDouble();
    if (measured > 0)
        return measured;
    return isEncrypted ? 20 : 6;
}

void NoteRate(qint64 bytes, qint64 elapsed, bool isEncrypted)
{
    if (bytes >= smallestMeasured)
        SaveUserSetting(rateSection, RateKey(isEncrypted),
                        QString::number(double(elapsed) * megabyte / double(bytes), 'f', 2));
}

QString WishKey(const QString& album)
{
    return QFileInfo(StatesFolderOf(album)).fileName();
}

[[noreturn]] void ThrowNotKept(const std::system_error& error)
{
    throw DatabaseError(DatabaseError::DiskError,
                        StateTexts::tr("The state of the album cannot be kept: %1")
                            .arg(QString::fromLocal8Bit(error.code().message().c_str())));
}

void RequireRoom(const QString& state, qint64 bytes)
{
    const QStorageInfo disk(QFileInfo(state).absolutePath());
    if (disk.isValid() && disk.bytesAvailable() < bytes + roomLeft)
        throw DatabaseError(DatabaseError::DiskFull,
                            StateTexts::tr("There is no room for it on the disk."));
}

// By its time the state tells that the album has not changed since.
void TakeTimeOf(const QString& album, const QString& state)
{
    QFile file(state);
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(QFileInfo(album).lastModified(), QFileDevice::FileModificationTime);
}

bool IsSameAs(const EarlierState& state, const QFileInfo& album)
{
    return state.size == album.size() &&
           QFileInfo(state.path).lastModified() == album.lastModified();
}

// Made aside and checked, so that what has a state's name is one. fill writes the file and returns
// false when it was stopped.
template<typename Fill>
QString MakeState(const QString& album, bool isReplaced, const Fill& fill)
{
    const QDateTime now = QDateTime::currentDateTime();
    const QString state = NewStatePath(album, now, isReplaced);
    RequireRoom(state, QFileInfo(album).size());
    try {
        FileReplacement replacement(state);
        QFile::setPermissions(replacement.GetPath(), QFile::ReadOwner | QFile::WriteOwner);
        if (!fill(replacement.GetPath()))
            return {};
        TakeTimeOf(album, replacement.GetPath());
        replacement.Commit(FileReplacement::Taken::Refuse);
    } catch (const std::system_error& error) {
        ThrowNotKept(error);
    }
    ThinStates(album, now);
    return state;
}

bool CloneAndCheck(const Database& database, const QString& target, const CopyProgress& progress)
{
    if (!CloneDatabaseFile(database, target, progress))
        return false;
    RequireSound(target, database.GetPassword());
    return true;
}

// Keeps the state before the day's first change.
class StateOfDay
{
public:
    explicit StateOfDay(Database& database)
        : database_(database),
          isEncrypted_(!database.GetPassword().isEmpty()),
          wish_(StateWishFor(database.GetPath()))
    {
    }

    void Keep()
    {
        if (wish_ == StateWish::DoNotKeep || IsKeptAlready())
            return;
        const QFileInfo album(database_.GetPath());
        if (wish_ == StateWish::NotAsked && TimeToKeep(album.size(), isEncrypted_) > longestUnasked)
            return; // asked about at the next opening
        QElapsedTimer time;
        time.start();
        qint64 copied = 0;
        const QString state = MakeState(database_.GetPath(), false, [&](const QString& target) {
            return CloneAndCheck(database_, target, [&](int percent) {
                copied = album.size() / 100 * percent;
                return wish_ == StateWish::Keep || time.elapsed() < longestUnasked.count() / 2;
            });
        });
        NoteRate(state.isEmpty() ? copied : album.size(), time.elapsed(), isEncrypted_);
    }

private:
    bool IsKeptAlready() const
    {
        const std::vector<EarlierState> states = EarlierStatesOf(database_.GetPath());
        const auto isOfToday = [](const EarlierState& state) {
            return !state.isReplaced && state.kept.date() >= QDate::currentDate();
        };
        return std::any_of(states.begin(), states.end(), isOfToday) ||
               (!states.empty() && IsSameAs(states.front(), QFileInfo(database_.GetPath())));
    }

    Database& database_;
    bool isEncrypted_;
    StateWish wish_;
};

void KeepStateOfDay(Database& database)
{
    try {
        StateOfDay(database).Keep();
    } catch (const DatabaseError& error) {
        const bool isDamaged = error.GetNumber() == DatabaseError::Damaged;
        const std::lock_guard guard(troubleLock);
        trouble = {isDamaged
                       ? StateTexts::tr("The album is damaged, so today's state of it is not kept "
                                        "among the earlier ones.\n%1")
                             .arg(error.GetDescription())
                       : StateTexts::tr("Today's state of the album could not be kept.\n%1")
                             .arg(error.GetDescription()),
                   isDamaged};
    }
}

} // namespace

namespace GeneralModule {

// Outside a batch it makes its own transaction, in which nothing is written: nobody may change the
// album while it is copied.
void KeepStatesOf(Database& database)
{
    if (database.IsReadOnly() || IsEarlierState(database.GetPath()))
        return;
    database.SetBeforeChange([&database, keptOn = QDate()]() mutable {
        const QDate today = QDate::currentDate();
        if (keptOn == today)
            return;
        const bool isAlone = !database.IsInTransaction();
        if (isAlone)
            database.Execute("BEGIN IMMEDIATE");
        KeepStateOfDay(database);
        if (isAlone)
            database.Execute("COMMIT");
        keptOn = today;
    });
}

QString KeepState(bool isReplaced, const CopyProgress& progress)
{
    const std::shared_ptr<Database> database = AlbumDatabase;
    const ReadLock lock(*database);
    return MakeState(database->GetPath(), isReplaced, [&](const QString& target) {
        return isReplaced ? CloneDatabaseFile(*database, target, progress)
                          : CloneAndCheck(*database, target, progress);
    });
}

QString KeepUnopenedState(const QString& album)
{
    return MakeState(album, true, [&album](const QString& target) {
        QFile source(album);
        QFile copy(target);
        constexpr qint64 blockSize = 1 << 20;
        if (!source.open(QIODevice::ReadOnly) ||
            !copy.open(QIODevice::WriteOnly | QIODevice::ExistingOnly))
            return false;
        while (!source.atEnd()) {
            // What cannot be read any more is left out; the rest may still be of use.
            const QByteArray block = source.read(blockSize);
            if (block.isEmpty())
                break;
            if (copy.write(block) != block.size())
                throw DatabaseError(DatabaseError::DiskError, copy.errorString());
        }
        return copy.flush();
    });
}

void RequireSound(const QString& state, const QString& password)
{
    const std::shared_ptr<Database> database =
        Database::Open(state, password, Database::Use::Reading);
    Statement check(database->GetEngine(), "PRAGMA quick_check(1)");
    if (!check.Step() || check.GetUtf8(0) != "ok")
        throw DatabaseError(DatabaseError::Damaged,
                            StateTexts::tr("The file's contents do not fit together."));
}

std::optional<StateTrouble> TakeStateTrouble()
{
    const std::lock_guard guard(troubleLock);
    return std::exchange(trouble, std::nullopt);
}

StateWish StateWishFor(const QString& album)
{
    const QString wish = GetUserSetting(wishSection, WishKey(album));
    if (wish.isEmpty())
        return StateWish::NotAsked;
    return wish == QLatin1String("yes") ? StateWish::Keep : StateWish::DoNotKeep;
}

void SetStateWish(const QString& album, StateWish wish)
{
    SaveUserSetting(wishSection, WishKey(album),
                    wish == StateWish::Keep        ? QStringLiteral("yes")
                    : wish == StateWish::DoNotKeep ? QStringLiteral("no")
                                                   : QString());
}

milliseconds TimeToKeep(qint64 bytes, bool isEncrypted)
{
    return milliseconds(qint64(double(bytes) / megabyte * MillisecondsPerMegabyte(isEncrypted)));
}

void AskAboutLargeAlbum(const QString& album, bool isEncrypted)
{
    using Answer = Dialogs::Answer;
    const milliseconds time = TimeToKeep(QFileInfo(album).size(), isEncrypted);
    if (time <= longestUnasked || StateWishFor(album) != StateWish::NotAsked)
        return;
    const int seconds = int(std::chrono::ceil<std::chrono::seconds>(time).count());
    const Answer answer = Dialogs::Door().Ask(
        {.text = StateTexts::tr("Before the first change of each day the album is kept as it was, "
                                "among its earlier states. This one is so large that it will take "
                                "about %n second(s) each time. Shall its states be kept?",
                                nullptr, seconds),
         .icon = Dialogs::Icon::Question,
         .buttons = Dialogs::Buttons::YesNo,
         .defaultAnswer = Answer::Yes});
    SetStateWish(album, answer == Answer::Yes ? StateWish::Keep : StateWish::DoNotKeep);
}

} // namespace GeneralModule
