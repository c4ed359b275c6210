// SPDX-License-Identifier: MIT
#include "fuzz/OldAlbumTrial.h"

#include "core/oldalbum/OldAlbumConversion.h"
#include "fuzz/Trials.h"
#include "platform/data/Database.h"
#include "platform/data/DatabaseError.h"
#include "platform/data/RecordSet.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace GeneralModule;

namespace {

constexpr qint64 maxMilliseconds = 10000;
constexpr int versionAt = 0x14;

class Damage
{
public:
    Damage(QByteArray& bytes, std::mt19937& random)
        : bytes_(bytes), random_(random), pageSize_(bytes[versionAt] == 0 ? 2048 : 4096)
    {
    }

    void Anywhere()
    {
        for (int i = Below(40); i >= 0; --i)
            bytes_[pageSize_ + Below(bytes_.size() - pageSize_)] = char(Below(256));
    }

    // The heads of pages hold their kind, their owner, and where their rows lie.
    void InHeads()
    {
        for (int i = Below(6); i >= 0; --i)
            bytes_[AnyPage() * pageSize_ + Below(64)] ^= char(1U << Below(8));
    }

    // A number that names a page, a row or a size is where loops and far reaches come from.
    void Numbers()
    {
        for (int i = Below(6); i >= 0; --i) {
            const qsizetype at = AnyPage() * pageSize_ + Below(pageSize_ - 4);
            const quint32 number =
                Below(2) ? quint32(AnyPage()) << (Below(2) ? 8 : 0) : quint32(random_());
            for (int byte = 0; byte < 4; ++byte)
                bytes_[at + byte] = char(number >> (8 * byte));
        }
    }

    void InTables()
    {
        for (int i = 0; i < 200; ++i) {
            const qsizetype page = AnyPage();
            if (bytes_[page * pageSize_] != 2)
                continue;
            for (int k = Below(4); k >= 0; --k)
                bytes_[page * pageSize_ + Below(200)] = char(Below(256));
            if (i % 3 == 0)
                return;
        }
    }

    void Pages()
    {
        const qsizetype from = AnyPage() * pageSize_;
        const qsizetype to = AnyPage() * pageSize_;
        bytes_.replace(to, pageSize_,
                       Below(2) ? bytes_.mid(from, pageSize_) : QByteArray(pageSize_, '\0'));
    }

    void Cut() { bytes_.truncate(pageSize_ + Below(bytes_.size() - pageSize_)); }

private:
    qsizetype Below(qsizetype limit) { return qsizetype(random_() % std::size_t(limit)); }
    qsizetype AnyPage() { return 1 + Below(bytes_.size() / pageSize_ - 1); }

    QByteArray& bytes_;
    std::mt19937& random_;
    qsizetype pageSize_;
};

void Write(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(path));
}

// Everything that the windows count on when an album is open.
QString LookAt(const QString& path)
{
    try {
        const auto database = Database::Open(path);
        for (const char* table : {"Params", "Paragraph", "Image", "Chapter", "LinkedImages"}) {
            RecordSet set(database, QString::fromLatin1(table));
            const RecordSet::Walk walk(set);
            for (set.MoveFirst(); !set.AtEnd(); set.MoveNext())
                set.TextOrEmpty(0);
        }
        return {};
    } catch (const DatabaseError& error) {
        return QStringLiteral("the new album does not open: ") + error.GetDescription();
    }
}

} // namespace

QByteArray DamagedCopy(const QByteArray& sound, std::mt19937& random)
{
    QByteArray bytes = sound;
    Damage damage(bytes, random);
    switch (random() % 8) {
    case 0:
        damage.Anywhere();
        break;
    case 1:
        damage.InHeads();
        break;
    case 2:
    case 3:
        damage.Numbers();
        break;
    case 4:
    case 5:
        damage.InTables();
        break;
    case 6:
        damage.Pages();
        break;
    default:
        damage.Cut();
    }
    return bytes;
}

TrialResult TryConversion(const QByteArray& contents, const QString& folder)
{
    const QDir place(folder);
    const QString from = place.filePath(QStringLiteral("old.alb"));
    const QString to = place.filePath(QStringLiteral("new.alb"));
    Write(from, contents);
    TrialResult result;
    const qint64 began = Trials::ProcessorMilliseconds();
    try {
        OldAlbumFile old(from);
        result.isWhole = ConvertOldAlbum(old, {.target = to}).IsWhole();
        result.made = true;
    } catch (const DatabaseError&) {
        // A file that is not worth a new album is refused, which is as good.
    }
    const qint64 took = Trials::ProcessorMilliseconds() - began;
    QStringList left =
        place.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    left.removeOne(QStringLiteral("old.alb"));
    QFile unchanged(from);
    if (took > maxMilliseconds)
        result.fault = QStringLiteral("took %1 ms").arg(took);
    else if (!unchanged.open(QIODevice::ReadOnly) || unchanged.readAll() != contents)
        result.fault = QStringLiteral("the old album was changed");
    else if (left != (result.made ? QStringList{QStringLiteral("new.alb")} : QStringList()))
        result.fault = QStringLiteral("left behind: ") + left.join(u' ');
    else if (result.made)
        result.fault = LookAt(to);
    QFile::remove(from);
    QFile::remove(to);
    return result;
}
