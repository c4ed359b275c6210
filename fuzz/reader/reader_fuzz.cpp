// SPDX-License-Identifier: MIT
// The reader of former albums is another process, and may write anything: sound streams, damaged
// and cut ones, too much, nothing for long; it may crash or never end. The album's file then says
// so in an error or in its outcome: no crash, no hang, little memory.
//
// The program finds the reader beside itself; there, this program lies under the reader's name too,
// and plays from a file what a trial has made up.
#include "fuzz/Trials.h"
#include "platform/data/DatabaseError.h"
#include "platform/oldalbum/OldAlbumFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>

#include <array>
#include <csignal>
#include <cstdio>

#include <sys/resource.h>
#include <unistd.h>

namespace {

using namespace OldAlbumStream;

constexpr char scriptVariable[] = "LUMENARK_FUZZ_READER";
constexpr qint64 maxMilliseconds = 20000; // of an album, whose readers may all be slow
constexpr long maxKilobytes = 400000;     // more than a row may have, and what the sanitizers take

// What the reader does after its stream: the first byte of a script.
constexpr int fails = 1;
constexpr int crashes = 2;
constexpr int hangs = 3;
constexpr int floods = 4;
constexpr int drips = 5;

void AppendNumber(QByteArray& bytes, quint32 number)
{
    std::array<char, 4> raw{};
    qToLittleEndian(number, raw.data());
    bytes.append(raw.data(), raw.size());
}

QByteArray FrameOf(char kind, const QByteArray& contents)
{
    QByteArray frame(1, kind);
    AppendNumber(frame, quint32(contents.size()));
    return frame + contents;
}

QByteArray TextOf(const QByteArray& text)
{
    QByteArray bytes;
    AppendNumber(bytes, quint32(text.size()));
    return bytes + text;
}

quint32 AnyNumber(Trials& trials)
{
    static const QList<quint32> numbers{0,          1,          2,          5,         100,
                                        0x40000005, 0x7FFFFFFF, 0xFFFFFFFE, 0xFFFFFFFF};
    return trials.AnyOf(numbers);
}

QByteArray Numbers(Trials& trials, int count)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i)
        AppendNumber(bytes, trials.OneIn(4) ? AnyNumber(trials) : quint32(trials.Below(6)));
    return bytes;
}

QByteArray AnyRow(Trials& trials)
{
    QByteArray row = Numbers(trials, 2);
    for (int value = trials.Below(5); value > 0; --value) {
        if (trials.OneIn(3))
            AppendNumber(row, AnyNumber(trials));
        else
            row += TextOf(QByteArray(trials.Below(40), 'v'));
    }
    return row;
}

QByteArray AnyFrame(Trials& trials)
{
    switch (trials.Below(8)) {
    case 0:
        return FrameOf(Header, Numbers(trials, 1));
    case 1:
        return FrameOf(Table, Numbers(trials, 1) + TextOf("Image"));
    case 2:
        return FrameOf(Columns, Numbers(trials, 2) + TextOf("File") + TextOf("Legend"));
    case 3:
        return FrameOf(Page, Numbers(trials, 1));
    case 4:
        return FrameOf(Attempt, Numbers(trials, 2));
    case 5:
        return FrameOf(LostRow, Numbers(trials, 2));
    case 6:
        return trials.OneIn(6) ? FrameOf(End, {}) : FrameOf(char(trials.Below(256)), "x");
    default:
        return FrameOf(Row, AnyRow(trials));
    }
}

void Damage(QByteArray& stream, Trials& trials)
{
    for (int i = trials.Below(4); i >= 0 && !stream.isEmpty(); --i) {
        const int at = trials.Below(stream.size());
        if (trials.OneIn(3))
            stream.truncate(at);
        else
            stream[at] = char(trials.Below(256));
    }
}

QByteArray AnyScript(Trials& trials)
{
    QByteArray stream;
    if (!trials.OneIn(3)) // sound enough to be read on
        stream = FrameOf(Header, Numbers(trials, 1)) +
                 FrameOf(Table, Numbers(trials, 1) + TextOf("Image")) +
                 FrameOf(Columns, Numbers(trials, 2) + TextOf("File") + TextOf("Legend"));
    for (int i = trials.Below(30); i > 0; --i)
        stream += AnyFrame(trials);
    if (trials.OneIn(3))
        stream += FrameOf(End, {});
    if (trials.OneIn(3))
        Damage(stream, trials);
    // One that hangs or floods takes seconds until it is given up.
    const int ending = trials.OneIn(12) ? hangs + trials.Below(3) : trials.Below(3);
    return char(ending) + (char(trials.Below(6)) + stream);
}

[[noreturn]] void PlayReader()
{
    QFile file(qEnvironmentVariable(scriptVariable));
    if (!file.open(QIODevice::ReadOnly))
        _exit(BadUse);
    const QByteArray script = file.readAll();
    const QByteArray stream = script.mid(2);
    const auto put = [](const QByteArray& bytes) {
        if (write(STDOUT_FILENO, bytes.constData(), size_t(bytes.size())) < 0)
            _exit(1);
    };
    put(stream);
    const char ending = script.at(0);
    if (ending == crashes)
        kill(getpid(), SIGKILL);
    while (ending == hangs)
        pause();
    while (ending == floods)
        put(FrameOf(Row, QByteArray(100000, '\1')));
    while (ending == drips) {
        put("P");
        usleep(20000);
    }
    _exit(ending == fails ? int(script.at(1)) : int(Done));
}

// Reads every value, as whoever makes a new album does.
class Visitor : public OldTableVisitor
{
public:
    explicit Visitor(Trials& trials) : trials_(trials) {}

    void BeginTable(const QStringList& fields, qint64) override
    {
        if (std::exchange(fields_, fields.size()) >= 0)
            trials_.Fault(QStringLiteral("a table began twice"));
    }

    void TakeRow(const std::vector<OldValue>& values) override
    {
        ++rows_;
        if (qsizetype(values.size()) != fields_)
            trials_.Fault(QStringLiteral("a row of %1 values").arg(values.size()));
        for (const OldValue& value : values)
            bytes_ += std::count(value.utf8.begin(), value.utf8.end(), 'v');
    }

    qint64 GetRows() const { return rows_; }

private:
    Trials& trials_;
    qsizetype fields_ = -1;
    qint64 rows_ = 0;
    qint64 bytes_ = 0;
};

void Try(Trials& trials, const QString& album)
{
    OldAlbumFile old(album);
    old.PasswordFits(QStringLiteral("secret"));
    for (const OldAlbumFile::Table& table : old.GetTables()) {
        Visitor visitor(trials);
        const OldAlbumFile::Outcome outcome = old.ReadTable(table, visitor);
        if (outcome.rows != visitor.GetRows())
            trials.Fault(QStringLiteral("%1 rows were told of, %2 came")
                             .arg(outcome.rows)
                             .arg(visitor.GetRows()));
        if (visitor.GetRows() > 0)
            trials.CountAccepted();
    }
}

long PeakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

void WriteAll(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsSet(scriptVariable))
        PlayReader();
    const QCoreApplication application(argc, argv);
    Trials trials(argc, argv, 60);
    const QTemporaryDir folder;
    const QString album = folder.filePath(QStringLiteral("old.alb"));
    const QString script = folder.filePath(QStringLiteral("script"));
    WriteAll(album, QByteArray(4096, '\0'));
    qputenv(scriptVariable, QFile::encodeName(script));
    while (trials.Next()) {
        trials.SetInput(AnyScript(trials));
        WriteAll(script, Trials::GetInput());
        const qint64 began = Trials::ProcessorMilliseconds();
        try {
            Try(trials, album);
        } catch (const DatabaseError& error) {
            if (error.GetDescription().isEmpty())
                trials.Fault(QStringLiteral("%1 without a word").arg(error.GetNumber()));
        } catch (const std::exception& error) {
            trials.Fault(QString::fromUtf8(error.what()));
        }
        if (const qint64 took = Trials::ProcessorMilliseconds() - began; took > maxMilliseconds)
            trials.Fault(QStringLiteral("took %1 ms").arg(took));
        if (PeakKilobytes() > maxKilobytes)
            trials.Fault(QStringLiteral("took %1 KiB of memory").arg(PeakKilobytes()));
    }
    return trials.Finish();
}
