// SPDX-License-Identifier: MIT
#include "core/AlbumPassword.h"
#include "core/AlbumSets.h"
#include "core/LocalCopy.h"
#include "core/Parameters.h"
#include "core/Settings.h"
#include "platform/data/CipherFile.h"
#include "platform/data/Statement.h"
#include "platform/files/FileClaim.h"
#include "support/AlbumTest.h"
#include "support/Rows.h"

#include <QScopeGuard>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace GeneralModule;

namespace {

// Nothing is written, and nothing remembered.
void CheckRefused(const AlbumFixture& world, const QString& path, int number)
{
    const QByteArray before = ReadFile(path);
    const bool exists = QFileInfo::exists(path);
    ScriptedDialogs dialogs;
    dialogs.ExpectBoxBeginning(QString("Error %1 ").arg(number), Dialogs::Icon::Warning);
    QVERIFY2(!OpenAlbum(path), qPrintable(path));
    QCOMPARE(GetLastAlbum(), world.GetAlbum());
    QVERIFY(!IsAlbumOpen());
    QCOMPARE(QFileInfo::exists(path), exists);
    QCOMPARE(ReadFile(path), before);
}

} // namespace

// Opening what is no sound album.
class TestDatabaseOpen : public AlbumTest
{
    Q_OBJECT

private slots:
    void RefusesWhatIsNoAlbum()
    {
        CheckRefused(*album_, album_->PathOf("missing.alb"), 3024);
        QVERIFY(QDir().mkpath(album_->PathOf("folder")));
        CheckRefused(*album_, album_->PathOf("folder"), 3051);
        const QByteArray former("\0\1\0\0Standard Jet DB\0", 20);
        const QByteArray later("\0\1\0\0Standard ACE DB\0\2", 21);
        const std::tuple<const char*, QByteArray, int> files[] = {
            {"empty", "", 3343},
            {"text", QByteArray("Dear diary\n").repeated(200), 3343},
            {"only the head of a former format", former + QByteArray(4076, 0), 3049},
            {"a later version of that format", later + QByteArray(4075, 0), 3343},
            {"only the header", QByteArray("SQLite format 3\0", 16), 3343}};
        for (const auto& [name, contents, number] : files) {
            WriteFile(album_->PathOf(name), contents);
            CheckRefused(*album_, album_->PathOf(name), number);
        }
    }

    // As on a CD, or where its owner protected the file.
    void ProtectedAlbumsAreReadOnly()
    {
        album_->AddImageRow("/a.jpg", {{"Legend", "here"}, {"SourceFile", "/gone.jpg"}});
        const qint32 chapter = album_->AddChapter("One");
        album_->AddParagraph(chapter, "first", {{"FileSelection", "*.jpg"}});
        album_->AddParagraph(chapter, "second");
        album_->Execute("UPDATE Paragraph SET FileSelection=NULL WHERE Id=2");
        const QString path = album_->PathOf("protected.alb");
        QVERIFY(QFile::copy(album_->GetAlbum(), path));
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup));
        const QByteArray before = ReadFile(path);
        QVERIFY(OpenAlbum(path));
        QVERIFY(IsAlbumReadOnly());
        QCOMPARE(ImageSet->Text(u"Legend"), "here");
        SaveTimerDelay(5); // which is not worth an error
        QCOMPARE(ResolvePictureFile("/a.jpg"), "/a.jpg");
        QCOMPARE(ErrorOf([] { SetParam("x", "y"); }), 3027);
        QCOMPARE(ReadFile(path), before);
        QVERIFY(OpenAlbum(album_->GetAlbum()));
        QVERIFY(!IsAlbumReadOnly()); // so that selections without a value got one
        QCOMPARE(album_->Rows("SELECT FileSelection FROM Paragraph"), QStringList({"*.jpg", ""}));
    }

    // The file grows all the time while another program loads pictures.
    void AGrowingAlbumIsWhole()
    {
        const QString path = album_->GetAlbum();
        ReleaseAlbum();
        const pid_t loader = fork();
        if (loader == 0) {
            const std::shared_ptr<Database> database = Database::Open(path);
            while (true) {
                database->Execute("BEGIN IMMEDIATE");
                database->Execute("INSERT INTO Image (File,Legend) VALUES "
                                  "(hex(randomblob(9)),hex(randomblob(40000)))");
                usleep(5000);
                database->Execute("COMMIT");
            }
        }
        const auto end = qScopeGuard([loader] {
            kill(loader, SIGKILL);
            waitpid(loader, nullptr, 0);
        });
        for (int opened = 0; opened < 150; ++opened)
            QCOMPARE(ErrorOf([&path] { Database::Open(path); }), 0);
    }

    void AnotherWindowHasTheAlbumOpen()
    {
        const QString path = album_->GetAlbum();
        ReleaseAlbum();
        int calls = 0;
        FileClaim other(path, [&calls] { ++calls; });
        for (const auto answer : {Answer::Cancel, Answer::Yes, Answer::No}) {
            dialogs_->ExpectBox("This album is open in another window already:\n" + path,
                                Icon::Question, Buttons::YesNoCancel, answer);
            QCOMPARE(OpenAlbum(path), answer == Answer::No);
            QCOMPARE(HasGoneToOtherWindow(), answer == Answer::Yes);
        }
        QTRY_COMPARE(calls, 1);
    }

    // What the check of the schema might miss cannot run either.
    void NothingOfAnAlbumsOwnRuns()
    {
        album_->AddImageRow("/a.jpg");
        AlbumDatabase->Execute("CREATE TEMP VIEW Pictures AS SELECT * FROM Image");
        for (const char* sql : {"SELECT * FROM Pictures", "CREATE VIRTUAL TABLE v USING fts3(a)",
                                "ATTACH ':memory:' AS other"}) {
            QString told;
            ErrorOf([sql] { AlbumDatabase->Execute(sql); }, &told);
            QVERIFY2(told.contains("authorized") || told.contains("prohibited"), qPrintable(told));
        }
    }

    void SaysThatTheAlbumIsGone()
    {
        album_->AddImageRow("/a.jpg");
        ImageSet->MoveFirst();
        ImageSet->Edit();
        ImageSet->Set(u"Legend", QString("too late"));
        QVERIFY(QFile::rename(album_->GetAlbum(), album_->PathOf("moved.alb")));
        QString told;
        QCOMPARE(ErrorOf([] { ImageSet->Update(); }, &told), 3024);
        QVERIFY2(told.contains("moved, renamed or replaced"), qPrintable(told));
        QCOMPARE(ErrorOf([] { SetAlbumPassword("x"); }), 3024);
        QCOMPARE(QDir(album_->PathOf(".")).entryList(QDir::Files | QDir::Hidden),
                 QStringList("moved.alb"));
    }

    void RefusesHostileSchema_data()
    {
        AddRows<QByteArray, int>(
            {"sql", "number"},
            {{"trigger", "CREATE TRIGGER t AFTER UPDATE ON Image BEGIN DELETE FROM Image; END",
              3343},
             {"view", "ALTER TABLE Image RENAME TO R; CREATE VIEW Image AS SELECT * FROM R", 3343},
             {"virtual table", "CREATE VIRTUAL TABLE v USING fts3(a)", 3343},
             {"trigger in a table's clothes",
              "PRAGMA writable_schema=1; INSERT INTO sqlite_master VALUES('table','t','Image',0,"
              "'CREATE TRIGGER t AFTER UPDATE ON Image BEGIN DELETE FROM Image; END')",
              3343},
             // The engine's own parser crashes on it.
             {"table made by a query",
              "PRAGMA writable_schema=1; INSERT INTO sqlite_master VALUES('table','t','t',2,"
              "'CREATE TABLE t AS SELECT 1')",
              3343},
             {"rows without numbers", "CREATE TABLE c (a TEXT PRIMARY KEY) WITHOUT/**/ROWID", 3343},
             {"rows that replace others", "CREATE TABLE c (a UNIQUE ON--x\nCONFLICT REPLACE)",
              3343},
             {"index over an expression", "CREATE INDEX i ON Image(lower(File))", 3343},
             {"the same without brackets", "CREATE INDEX i ON Image(File || 'x')", 3343},
             {"partial index", "CREATE INDEX i ON Image(File) WHERE Legend IN ('x')", 3343},
             {"check", "CREATE TABLE c (a CHECK (a > random()))", 3343},
             {"computed default", "CREATE TABLE c (a DEFAULT/*'*/('x' LIKE 'x'/*'*/))", 3343},
             {"computed column",
              "PRAGMA writable_schema=1; UPDATE sqlite_master SET sql='CREATE TABLE Params "
              "(Param, Value GENERATED ALWAYS/**/AS(hex(Param)))' WHERE name='Params'",
              3343},
             {"unknown collation of a column",
              "PRAGMA writable_schema=1; UPDATE sqlite_master SET sql=replace(sql,'NOCASE',"
              "'folded') WHERE name='Params'",
              3343},
             {"unknown collation of an index",
              "PRAGMA writable_schema=1; UPDATE sqlite_master SET sql=replace(sql,')',' COLLATE "
              "folded)') WHERE name='ImageByFile'",
              3343},
             {"table under another's name",
              "CREATE TABLE x (a); PRAGMA writable_schema=1; UPDATE "
              "sqlite_master SET name='y' WHERE name='x'",
              3049},
             {"two tables in one place",
              "PRAGMA writable_schema=1; UPDATE sqlite_master SET rootpage=(SELECT rootpage "
              "FROM sqlite_master WHERE name='Image') WHERE name='Paragraph'",
              3049},
             {"table missing", "DROP TABLE LinkedImages", 3078},
             {"field missing",
              "ALTER TABLE Image RENAME TO Old; CREATE TABLE Image (File TEXT, Legend TEXT)",
              3265}});
    }

    void RefusesHostileSchema()
    {
        QFETCH(QByteArray, sql);
        QFETCH(int, number);
        ReleaseAlbum();
        album_->Execute(sql);
        const QString path = album_->PathOf("hostile.alb");
        QVERIFY(QFile::copy(album_->GetAlbum(), path));
        CheckRefused(*album_, path, number);
    }

    void RefusesHostileSchemaBehindAPassword()
    {
        SetAlbumPassword("x");
        ReleaseAlbum();
        const CipherFile file(album_->GetAlbum(), "x");
        Statement(file.Get(), "PRAGMA writable_schema=1").Run();
        Statement(file.Get(), "UPDATE sqlite_master SET sql='CREATE TABLE Car1 AS SELECT 1' WHERE "
                              "name='Car1'")
            .Run();
        QString told;
        QCOMPARE(ErrorOf([this] { Database::Open(album_->GetAlbum(), "x"); }, &told), 3343);
        QVERIFY2(told.contains("'Car1'"), qPrintable(told));
    }

    // A user's own tables and columns, whatever they are called.
    void OpensWithMoreThanItNeeds()
    {
        ReleaseAlbum();
        QByteArray sql =
            "CREATE TABLE \"AS ( [CHECK] '\" (a DEFAULT 'f(x)', \"COLLATE me\" DEFAULT -1.5e3, "
            "/* CHECK (1) */ \"DEFAULT (1)\" TEXT DEFAULT NULL, b DEFAULT (-1), c DEFAULT ('('), "
            "UNIQUE (a COLLATE RTRIM));"
            "CREATE INDEX \"WHERE (x)\" ON Image (Legend DESC, File COLLATE nocase);";
        for (int i = 0; i < 300; ++i)
            sql += "ALTER TABLE Image ADD COLUMN \"Own " + QByteArray::number(i) + "\" TEXT;";
        album_->Execute("BEGIN;" + sql + "COMMIT");
        QVERIFY(OpenAlbum(album_->GetAlbum()));
        album_->AddImageRow("/a.jpg", {{"Own 299", "last"}, {"Own 43", "far"}});
        ImageSet->FindFirst("[Own 299]='last'");
        QCOMPARE(ImageSet->Text(u"Own 43"), "far");
        QVERIFY(ImageSet->IsNull(u"Own 171"));
        RecordSet own(AlbumDatabase, "AS ( [CHECK] '");
        QVERIFY(own.AtEnd() && own.HasField(u"DEFAULT (1)"));
    }

    // album_fuzz flips their bits as well.
    void CutOffAlbumsAreRefused()
    {
        for (int i = 0; i < 60; ++i)
            album_->AddImageRow(QString("/pictures/%1.jpg").arg(i),
                                {{"Legend", QString(600, u'l')}});
        ReleaseAlbum();
        const QByteArray whole = ReadFile(album_->GetAlbum());
        const QString path = album_->PathOf("damaged.alb");
        for (const qsizetype size : {100, 1024, 5000, 20000, int(whole.size()) - 1024}) {
            WriteFile(path, whole.first(size));
            dialogs_->ExpectBoxBeginning("Error 3", Icon::Warning);
            QVERIFY2(!OpenAlbum(path), qPrintable(QString::number(size)));
        }
    }

    // Cut off in the middle of a change, as when the plug is pulled: the file and its journal are
    // copied while the change is half on disk.
    void LeftoverJournalIsPlayedBack()
    {
        album_->AddImageRow("/a.jpg", {{"Legend", "before"}});
        const QString path = album_->PathOf("crashed.alb");
        AlbumDatabase->Execute("PRAGMA cache_size=1"); // changes reach the file before the commit
        AlbumDatabase->Execute("BEGIN");
        for (int i = 0; i < 400; ++i)
            AlbumDatabase->Execute(
                "INSERT INTO Image (File,Legend) VALUES ('/x.jpg',hex(randomblob(300)))");
        AlbumDatabase->Execute("UPDATE Image SET Legend='after' WHERE File='/a.jpg'");
        QFile::copy(album_->GetAlbum(), path);
        QFile::copy(album_->GetAlbum() + "-journal", path + "-journal");
        AlbumDatabase->Execute("ROLLBACK");
        QVERIFY(QFileInfo(path + "-journal").size() > 0);

        constexpr auto mayRead = QFile::ReadOwner;
        QVERIFY(QFile::setPermissions(path, mayRead));
        dialogs_->ExpectBoxBeginning("Error 3027 A change of '" + path + "' broke off",
                                     Icon::Warning);
        QVERIFY(!OpenAlbum(path));
        QVERIFY(QFile::setPermissions(path, mayRead | QFile::WriteOwner));
        QVERIFY(OpenAlbum(path));
        QCOMPARE(ImageSet->RecordCount(), 1);
        QCOMPARE(ImageSet->Text(u"Legend"), "before");
    }

    void CreatingReplacesAFile()
    {
        const QString path = album_->PathOf("new.alb");
        WriteFile(path, "a letter");
        QVERIFY(CreateAlbumFile(path) && OpenAlbum(path));
        dialogs_->ExpectBoxBeginning("The album '/proc/nowhere/x.alb' cannot be created: ",
                                     Icon::Warning);
        QVERIFY(!CreateAlbumFile("/proc/nowhere/x.alb"));
    }
};

QTEST_GUILESS_MAIN(TestDatabaseOpen)
#include "test_database_open.moc"
