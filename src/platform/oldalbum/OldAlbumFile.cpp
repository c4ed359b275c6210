// SPDX-License-Identifier: MIT
#include "platform/oldalbum/OldAlbumFile.h"

#include "platform/data/DatabaseError.h"
#include "platform/helper/HelperProcess.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace {

// For a whole file: milliseconds that failing readers may be silent, and how often they are
// restarted. A sound file needs neither.
constexpr int patienceOfFile = 6000;
constexpr int maxRestarts = 40;

// For a whole file. Texts of a sound file are at most twice as long here as in the file, where they
// may be packed; values of one bit or none take five bytes. Rows or tables that all claim the same
// part of the file can be far more.
constexpr qint64 volumeFactor = 40;
constexpr qint64 volumeBase = 4 * 1024 * 1024;

constexpr qsizetype maxTables = 10000;

const QString readerProgram = QStringLiteral("lumenark-import");

OldValue TakeValue(FrameContents& contents)
{
    using namespace OldAlbumStream;
    const quint32 size = contents.Number();
    if (size == nullValue)
        return {OldValue::State::Null, {}};
    if (size == unreadableValue)
        return {OldValue::State::Unreadable, {}};
    return {size & cutMark ? OldValue::State::Cut : OldValue::State::Whole,
            contents.Bytes(size & ~cutMark)};
}

} // namespace

// Progress with a table over all runs of the reader.
struct OldAlbumFile::Progress
{
    Outcome outcome;
    qsizetype fields = 0;
    quint32 nextPage = 0;
    quint32 nextRow = 0;
    bool isTrying = false; // the next row was announced, but has not come yet
    bool careful = false;
    bool isRest = false; // reading the pages that the table's map leaves out
    std::vector<OldValue> values;

    void MovePast(quint32 page, quint32 row)
    {
        nextPage = page;
        nextRow = row + 1;
        isTrying = false;
    }
};

OldAlbumFile::OldAlbumFile(const QString& path)
    : path_(QFileInfo(path).absoluteFilePath()),
      size_(QFileInfo(path).size()),
      patience_(patienceOfFile)
{
    if (ReadList(false))
        return;
    listIsDamaged_ = true;
    tables_.clear();
    if (!ReadList(true) && tables_.empty())
        throw DatabaseError(
            DatabaseError::Damaged,
            DatabaseError::tr("The album '%1' cannot be read: its list of tables is damaged.")
                .arg(QDir::toNativeSeparators(path)));
}

// In bytes: what its readers may write.
qint64 OldAlbumFile::MaxVolume() const
{
    return volumeBase + volumeFactor * size_;
}

// False when the list is incomplete.
bool OldAlbumFile::ReadList(bool wholeFile)
{
    QStringList arguments{QStringLiteral("tables"), path_};
    if (wholeFile)
        arguments += QStringLiteral("file");
    HelperProcess reader(readerProgram, arguments);
    while (const auto frame = reader.Next(patience_)) {
        if (reader.GetVolume() > MaxVolume())
            return false;
        FrameContents contents(frame->contents);
        if (frame->kind == OldAlbumStream::Header)
            hasPassword_ = contents.Number() != 0;
        else if (frame->kind == OldAlbumStream::Table && tables_.size() < maxTables) {
            const quint32 page = contents.Number();
            tables_.push_back({page, contents.Text()});
        } else if (frame->kind == OldAlbumStream::End) {
            return true;
        }
    }
    if (reader.Finish() == OldAlbumStream::NotReadable)
        throw DatabaseError(
            DatabaseError::NotADatabase,
            DatabaseError::tr(
                "'%1' looks like an album of the former file format, but is damaged or was written "
                "by a version that is not known.")
                .arg(QDir::toNativeSeparators(path_)));
    return false;
}

bool OldAlbumFile::PasswordFits(const QString& password) const
{
    HelperProcess reader(readerProgram, {QStringLiteral("password"), path_});
    return reader.Finish(password.toUtf8()) == OldAlbumStream::Done;
}

OldAlbumFile::Outcome OldAlbumFile::ReadTable(const Table& table, OldTableVisitor& visitor)
{
    Progress progress;
    Outcome& outcome = progress.outcome;
    outcome.isWhole = ReadToEnd(table, progress, visitor);
    const qint64 rows = outcome.rows;
    if (!outcome.isWhole || outcome.mapIsDamaged || rows + outcome.lostRows >= outcome.statedRows)
        return outcome;
    // Some rows are missing: perhaps the map lacks their pages.
    progress.isRest = true;
    progress.nextPage = progress.nextRow = 0;
    ReadToEnd(table, progress, visitor);
    outcome.mapIsDamaged = outcome.rows > rows;
    return outcome;
}

bool OldAlbumFile::ReadToEnd(const Table& table, Progress& progress, OldTableVisitor& visitor)
{
    while (!RunReader(table, progress, visitor)) {
        if (!PlanNextRun(progress))
            return false;
    }
    return true;
}

// False when the reader stopped early.
bool OldAlbumFile::RunReader(const Table& table, Progress& progress, OldTableVisitor& visitor)
{
    QStringList arguments{QStringLiteral("rows"), path_, QString::number(table.page),
                          QString::number(progress.nextPage), QString::number(progress.nextRow)};
    if (progress.careful)
        arguments += QStringLiteral("careful");
    if (progress.outcome.mapIsDamaged)
        arguments += QStringLiteral("file");
    if (progress.isRest)
        arguments += QStringLiteral("rest");
    HelperProcess reader(readerProgram, arguments);
    const qint64 earlier = volume_;
    while (const auto frame = reader.Next(patience_)) {
        volume_ = earlier + reader.GetVolume();
        if (volume_ > MaxVolume()) {
            restarts_ = maxRestarts;
            return false;
        }
        if (TakeFrame(OldAlbumStream::Frame(frame->kind), frame->contents, progress, visitor))
            return true;
    }
    if (reader.Finish() == OldAlbumStream::TableUnreadable)
        progress.outcome.mapIsDamaged = progress.careful = true; // nothing else can help
    return false;
}

// True at the end of the table.
bool OldAlbumFile::TakeFrame(OldAlbumStream::Frame kind, QByteArrayView bytes, Progress& progress,
                             OldTableVisitor& visitor)
{
    FrameContents contents(bytes);
    if (kind == OldAlbumStream::End)
        return true;
    if (kind == OldAlbumStream::Columns) {
        const qint64 rows = contents.Number();
        const qint64 lastNumber = contents.Number();
        if (progress.outcome.hasFields)
            return false;
        QStringList fields;
        while (!contents.IsAtEnd())
            fields += contents.Text();
        progress.outcome.hasFields = true;
        progress.outcome.statedRows = rows;
        progress.fields = fields.size();
        visitor.BeginTable(fields, lastNumber);
        return false;
    }
    const quint32 page = contents.Number();
    if (kind == OldAlbumStream::Page) {
        if (page != progress.nextPage)
            progress.nextRow = 0;
        progress.nextPage = page;
        return false;
    }
    const quint32 row = contents.Number();
    if (kind == OldAlbumStream::Attempt) {
        progress.nextPage = page;
        progress.nextRow = row;
        progress.isTrying = true;
        return false;
    }
    // A page that the map leaves out may be obsolete: take no more than the stated rows.
    const bool isSurplus = progress.isRest && progress.outcome.rows >= progress.outcome.statedRows;
    if (kind == OldAlbumStream::Row && progress.outcome.hasFields && !isSurplus) {
        progress.values.clear();
        while (qsizetype(progress.values.size()) < progress.fields)
            progress.values.push_back(TakeValue(contents));
        ++progress.outcome.rows;
        visitor.TakeRow(progress.values);
    } else if (kind == OldAlbumStream::LostRow && !isSurplus) {
        ++progress.outcome.lostRows;
    }
    progress.MovePast(page, row);
    return false;
}

// A reader that stopped early is first restarted after the last row that came, announcing each row
// that it tries; then after the row where it stopped; then, if it stopped between rows, without the
// table's map. False when nothing is left to try.
bool OldAlbumFile::PlanNextRun(Progress& progress)
{
    if (patience_ <= 0 || restarts_ >= maxRestarts)
        return false;
    ++restarts_;
    if (!progress.careful) {
        progress.careful = true;
    } else if (progress.isTrying) {
        ++progress.outcome.lostRows;
        progress.MovePast(progress.nextPage, progress.nextRow);
    } else if (!progress.outcome.mapIsDamaged && !progress.isRest) {
        progress.outcome.mapIsDamaged = true;
    } else {
        return false;
    }
    return true;
}
