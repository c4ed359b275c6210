// SPDX-License-Identifier: MIT
#pragma once

#include "platform/oldalbum/OldAlbumStream.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

class HelperProcess;

// A field's value in an album of the former file format.
struct OldValue
{
    enum class State { Null, Whole, Cut, Unreadable };

    State state = State::Null;
    QByteArrayView utf8; // valid until the next row
};

// Takes the rows of a table as they are read.
class OldTableVisitor
{
public:
    virtual ~OldTableVisitor() = default;
    // Called once, before all rows. lastNumber is the last number that the former engine gave to a
    // row of the table, 0 when it gave none.
    virtual void BeginTable(const QStringList& fields, qint64 lastNumber) = 0;
    virtual void TakeRow(const std::vector<OldValue>& values) = 0;
};

// An album in the former file format. It is not read in this process: a reader is started for each
// table. When that crashes or hangs on a damaged file, it is restarted after that place, and given
// up when it fails too often. The file is never written.
class OldAlbumFile
{
public:
    struct Table
    {
        quint32 page;
        QString name;
    };

    // The result of reading a table.
    struct Outcome
    {
        bool isWhole = false;      // read to its end
        bool hasFields = false;    // BeginTable was called
        bool mapIsDamaged = false; // the whole file was searched for rows
        qint64 statedRows = 0;     // also 0 when the file was not closed properly
        qint64 rows = 0;
        qint64 lostRows = 0;
    };

    // Reads the list of tables. Throws DatabaseError: NotADatabase for an unknown version or a
    // damaged first page, Damaged, CannotOpen.
    explicit OldAlbumFile(const QString& path);

    const QString& GetPath() const { return path_; }
    bool HasPassword() const { return hasPassword_; }
    bool PasswordFits(const QString& password) const;
    // Whether the list itself was damaged, so that tables may be missing.
    bool ListIsDamaged() const { return listIsDamaged_; }
    const std::vector<Table>& GetTables() const { return tables_; }

    // Passes on what the visitor throws.
    Outcome ReadTable(const Table& table, OldTableVisitor& visitor);

private:
    struct Progress;

    qint64 MaxVolume() const;
    bool ReadList(bool wholeFile);
    bool ReadToEnd(const Table& table, Progress& progress, OldTableVisitor& visitor);
    bool RunReader(const Table& table, Progress& progress, OldTableVisitor& visitor);
    bool TakeFrame(OldAlbumStream::Frame kind, QByteArrayView contents, Progress& progress,
                   OldTableVisitor& visitor);
    bool PlanNextRun(Progress& progress);

    QString path_;
    qint64 size_;
    bool hasPassword_ = false;
    bool listIsDamaged_ = false;
    std::vector<Table> tables_;
    int patience_;
    int restarts_ = 0;
    qint64 volume_ = 0; // bytes written by all readers
};
