// SPDX-License-Identifier: MIT
// Albums from a stranger: damaged bit by bit, cut off, or made by hostile SQL. Opening one and
// reading all of it works or ends in a DatabaseError, in time.
#include "core/Album.h"
#include "fuzz/Trials.h"
#include "platform/data/Database.h"
#include "platform/data/DatabaseError.h"
#include "platform/data/RecordSet.h"
#include "platform/data/WriteBatch.h"
#include "support/AlbumFixture.h"

#include <sqlcipher/sqlite3.h>

#include <QCoreApplication>
#include <QTemporaryDir>

namespace {

const QStringList tables{"Chapter", "Paragraph", "Image", "LinkedImages", "Params", "Car0", "x"};

// %T is some table, %N a number, %V a value.
const QByteArrayList hostile{
    "DROP TABLE %T",
    "ALTER TABLE %T RENAME TO %Q",
    "ALTER TABLE %T ADD COLUMN x TEXT DEFAULT %V",
    "CREATE TABLE x(a INTEGER PRIMARY KEY, b TEXT CHECK(b<>%V))",
    "CREATE TABLE x(a TEXT PRIMARY KEY, b) WITHOUT ROWID",
    "CREATE TABLE x(rowid TEXT, _rowid_ INT, oid)",
    "CREATE TABLE x(a, b AS (zeroblob(%N)))",
    "CREATE TABLE x(a TEXT DEFAULT (zeroblob(%N)), b DEFAULT/**/(%V))",
    "CREATE TABLE \"x\"\"'\"(\"]\" TEXT, \"\" TEXT)",
    "CREATE VIEW x AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n) SELECT * FROM "
    "n",
    "DROP TABLE Image; CREATE VIEW Image AS SELECT zeroblob(%N) AS File, 1 AS Car0",
    "CREATE TRIGGER x AFTER UPDATE ON %T BEGIN DELETE FROM Image; END",
    "CREATE INDEX x ON %T(abs(-9223372036854775808))",
    "CREATE INDEX x ON Image(File) WHERE Car0=zeroblob(%N)",
    "CREATE INDEX x ON Image(Legend||hex(zeroblob(1000)))",
    "CREATE VIRTUAL TABLE x USING fts4(a)",
    "UPDATE %T SET rowid=%N WHERE rowid=1",
    "UPDATE Image SET Car0=%V, File=%V",
    "UPDATE Paragraph SET Text=%V, Chapter=%V, NextParagraph=%V",
    "UPDATE Chapter SET NextChapter=%V, Name=NULL",
    "INSERT INTO Image(rowid, File) VALUES(9223372036854775807, %V)",
    "INSERT INTO Paragraph(Id, Text) VALUES(9223372036854775807, %V)",
    "UPDATE sqlite_sequence SET seq=%V",
    "INSERT INTO Params VALUES('TimerDelay', %V)",
    "PRAGMA writable_schema=1; UPDATE sqlite_master SET rootpage=%N WHERE name='Image'",
    "PRAGMA writable_schema=1; UPDATE sqlite_master SET sql=replace(sql,'TEXT',%V)",
    "PRAGMA writable_schema=1; UPDATE sqlite_master SET sql=replace(sql,'NOCASE','stranger')",
    "PRAGMA writable_schema=1; UPDATE sqlite_master SET sql='CREATE TABLE '||name||'(a)'",
    "PRAGMA writable_schema=1; UPDATE sqlite_master SET name=%V, tbl_name=%V WHERE rowid=%N",
    "PRAGMA writable_schema=1; DELETE FROM sqlite_master WHERE rowid=%N",
    "PRAGMA journal_mode=WAL; UPDATE Image SET Car0=%V",
    "PRAGMA auto_vacuum=2; VACUUM",
    "PRAGMA page_size=%P; VACUUM",
    "PRAGMA user_version=%N",
    "PRAGMA application_id=%N",
};

QByteArray AnyStatement(Trials& trials)
{
    static const QByteArrayList values{"NULL",
                                       "''",
                                       "0",
                                       "-1",
                                       "1e308",
                                       "x'00FF'",
                                       "zeroblob(100000)",
                                       "'\xFF\xFE'",
                                       "char(0)",
                                       "9223372036854775807",
                                       "2147483648",
                                       "hex(zeroblob(20000))",
                                       "'('",
                                       "'*'",
                                       "1.5"};
    static const QByteArrayList numbers{"0", "1", "2", "7", "50", "-1", "4294967296", "50000000"};
    QByteArray sql = trials.AnyOf(hostile);
    sql.replace("%T", '"' + trials.AnyOf(tables).toUtf8() + '"');
    sql.replace("%Q", '"' + trials.AnyOf(tables).toUtf8() + '"');
    sql.replace("%P", QByteArray::number(512 << trials.Below(8)));
    sql.replace("%N", trials.AnyOf(numbers));
    sql.replace("%V", trials.AnyOf(values));
    return sql;
}

QByteArray AnyScript(Trials& trials)
{
    QByteArray script;
    for (int i = trials.Below(3); i >= 0; --i)
        script += AnyStatement(trials) + ";\n";
    return script;
}

// What the engine refuses of it does not matter: the rest is in the file.
void Run(const QByteArray& script, const QString& path)
{
    sqlite3* engine = nullptr;
    sqlite3_open_v2(path.toUtf8(), &engine, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_exec(engine, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
    for (const QByteArray& statement : script.split('\n'))
        sqlite3_exec(engine, statement, nullptr, nullptr, nullptr);
    sqlite3_close(engine);
}

void Damage(QByteArray& bytes, Trials& trials)
{
    constexpr int page = 4096;
    for (int i = trials.Below(8); i >= 0; --i) {
        const qsizetype begin = qsizetype(trials.Below(bytes.size() / page)) * page;
        const qsizetype at = begin + trials.Below(trials.OneIn(2) ? 120 : page);
        switch (trials.Below(6)) {
        case 0:
            bytes[at] = char(trials.Random()());
            break;
        case 1:
            bytes[at] ^= char(1U << trials.Below(8));
            break;
        case 2:
            bytes[24 + trials.Below(76)] = char(trials.Below(4));
            break;
        case 3:
            bytes.replace(begin, page,
                          bytes.mid(qsizetype(trials.Below(bytes.size() / page)) * page, page));
            break;
        case 4:
            bytes.replace(at, 4,
                          QByteArray("\0\0\0", 3) + char(trials.Below(bytes.size() / page + 3)));
            break;
        default:
            if (trials.OneIn(6))
                bytes.truncate(page + trials.Below(bytes.size() - page));
        }
    }
}

void ReadAll(RecordSet& set, const std::vector<int>& fields)
{
    const RecordSet::Walk walk(set);
    int rows = 0;
    for (set.MoveFirst(); !set.AtEnd() && rows < 1000; set.MoveNext(), ++rows) {
        for (const int field : fields)
            set.TextOrEmpty(field);
    }
}

// As the windows do: rows found, added, changed and deleted.
void Change(RecordSet& set, const QString& field)
{
    WriteBatch batch(set.GetDatabase());
    set.FindFirst('[' + field + "] LIKE '*a*' OR NOT [" + field + "]='b'");
    set.AddNew();
    set.Set(field, QStringLiteral("new"));
    set.Update();
    set.MoveFirst();
    set.Edit();
    set.Set(field, QStringLiteral("changed"));
    set.Update();
    set.Delete();
    batch.Finish();
}

void Use(const std::shared_ptr<Database>& database, const QString& table)
{
    RecordSet set(database, table);
    std::vector<int> numbers;
    QString text;
    for (const char* name : {"Legend", "Name", "Text", "File", "Value", "Id", "NextParagraph",
                             "NextChapter", "SourceFile", "Car0", "Car7", "a", "b"}) {
        const QString field = QString::fromLatin1(name);
        if (!set.HasField(field))
            continue;
        numbers.push_back(set.FieldNumber(field));
        text = text.isEmpty() ? field : text;
    }
    set.RecordCount();
    ReadAll(set, numbers);
    Change(set, text);
}

void Look(const QString& path, Trials& trials)
{
    const auto database = Database::Open(path);
    trials.CountAccepted();
    for (const QString& table : tables) {
        try {
            Use(database, table);
        } catch (const DatabaseError& error) {
            // The next table may still be read.
            if (error.GetDescription().isEmpty())
                trials.Fault(QStringLiteral("%1 without a word").arg(error.GetNumber()));
        }
    }
}

QByteArray MakeAlbum()
{
    AlbumFixture album;
    for (int i = 0; i < 60; ++i)
        album.AddImageRow(QStringLiteral("/p/%1.jpg").arg(i),
                          {{"Car0", "Anna"}, {"Legend", QString(i * 100, u'é')}});
    const qint32 chapter = album.AddChapter("One");
    for (int i = 0; i < 6; ++i)
        album.Link(album.AddParagraph(chapter, QString(i * 3000, u't')), "/p/1.jpg");
    GeneralModule::ReleaseAlbum();
    return ReadFile(album.GetAlbum());
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QByteArray sound = MakeAlbum();
    Trials trials(argc, argv, 20);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("hostile.alb"));
    while (trials.Next()) {
        QByteArray bytes = sound;
        const bool isDamaged = trials.OneIn(2);
        if (isDamaged)
            Damage(bytes, trials);
        WriteFile(path, bytes);
        trials.SetInput(isDamaged ? bytes : AnyScript(trials));
        if (!isDamaged)
            Run(trials.GetInput(), path);
        try {
            Look(path, trials);
        } catch (const DatabaseError& error) {
            if (error.GetDescription().isEmpty())
                trials.Fault(QStringLiteral("refused without a word"));
        } catch (const std::exception& error) {
            trials.Fault(QString::fromUtf8(error.what()));
        }
        for (const char* left : {"-journal", "-wal", "-shm"})
            QFile::remove(path + QString::fromLatin1(left));
    }
    return trials.Finish();
}
