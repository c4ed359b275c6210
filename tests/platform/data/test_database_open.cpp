// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/Settings.h"
#include "support/AlbumFixture.h"
#include "support/ScriptedDialogs.h"

#include <sqlcipher/sqlite3.h>

#include <QtTest>

#include <random>

using namespace GeneralModule;

// Opening what is no sound album: a message, nothing written, nothing remembered.
class TestDatabaseOpen : public QObject
{
    Q_OBJECT

private slots:
    void RefusesWhatIsNoAlbum_data();
    void RefusesWhatIsNoAlbum();
    void RefusesHostileSchema_data();
    void RefusesHostileSchema();
    void AsksForThePassword();
    void TruncatedAlbumIsRefusedOrReads();
    void FlippedBitsNeverCrash();
    void LeftoverJournalIsPlayedBack();
    void FillsEmptySelections();
    void CreatingReplacesAFileWhole();
};

namespace {

QByteArray RandomBytes(qsizetype size)
{
    std::mt19937 random(3);
    QByteArray bytes(size, 0);
    for (char& byte : bytes)
        byte = char(random());
    return bytes;
}

void WriteFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void RunSql(const QString& path, const QByteArray& sql, const char* key = nullptr)
{
    sqlite3* engine = nullptr;
    sqlite3_open(qPrintable(path), &engine);
    if (key)
        sqlite3_key(engine, key, int(qstrlen(key)));
    char* message = nullptr;
    if (sqlite3_exec(engine, sql.constData(), nullptr, nullptr, &message) != SQLITE_OK)
        QTest::qFail(message, __FILE__, __LINE__);
    sqlite3_close(engine);
}

// Copies the fixture's album, which must not be open any more, under another name.
QString CopyAlbum(const AlbumFixture& world, const QString& name)
{
    ReleaseAlbum();
    const QString copy = world.PathOf(name);
    QFile::copy(world.GetAlbum(), copy);
    return copy;
}

QString EncryptedAlbum(const AlbumFixture& world, const char* key)
{
    const QString path = world.PathOf("secret.alb");
    ReleaseAlbum();
    RunSql(world.GetAlbum(), QByteArray("ATTACH '") + path.toUtf8() + "' AS s KEY '" + key +
                                 "'; SELECT sqlcipher_export('s'); DETACH s;");
    return path;
}

} // namespace

void TestDatabaseOpen::RefusesWhatIsNoAlbum_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<int>("number");
    const QByteArray jpeg = QByteArray("\xFF\xD8\xFF\xE0") + RandomBytes(4092);
    const QByteArray oldAlbum = QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(4076, 0);
    QTest::newRow("missing") << "missing.alb" << QByteArray() << 3024;
    QTest::newRow("folder") << "folder" << QByteArray() << 3051;
    QTest::newRow("empty") << "empty.alb" << QByteArray("") << 3343;
    QTest::newRow("text") << "text.alb" << QByteArray("Dear diary\n").repeated(200) << 3343;
    QTest::newRow("zeros") << "zeros.alb" << QByteArray(4096, 0) << 3343;
    QTest::newRow("picture") << "picture.alb" << jpeg << 3343;
    QTest::newRow("former format, only its head") << "old.alb" << oldAlbum << 3049;
    QTest::newRow("random, odd size") << "random.alb" << RandomBytes(5000) << 3343;
    QTest::newRow("only the header") << "header.alb" << QByteArray("SQLite format 3\0", 16) << 3343;
}

void TestDatabaseOpen::RefusesWhatIsNoAlbum()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    QFETCH(int, number);
    const AlbumFixture world;
    const QString path = world.PathOf(name);
    const bool exists = name != "missing.alb";
    if (name == "folder")
        QDir().mkpath(path);
    else if (exists)
        WriteFile(path, contents);
    ScriptedDialogs dialogs;
    dialogs.ExpectBoxBeginning(QStringLiteral("Error %1 ").arg(number), Dialogs::Icon::Warning);
    QVERIFY(!OpenAlbum(path));
    QCOMPARE(GetLastAlbum(), world.GetAlbum());
    QVERIFY(!AlbumDatabase && !ImageSet);
    QCOMPARE(QFileInfo::exists(path), exists);
    QCOMPARE(ReadFile(path), contents);
}

void TestDatabaseOpen::RefusesHostileSchema_data()
{
    QTest::addColumn<QByteArray>("sql");
    QTest::addColumn<int>("number");
    QTest::newRow("trigger") << QByteArray("CREATE TRIGGER t AFTER UPDATE ON Image BEGIN DELETE "
                                           "FROM Image; END")
                             << 3343;
    QTest::newRow("view") << QByteArray("ALTER TABLE Image RENAME TO Real; CREATE VIEW Image AS "
                                        "SELECT * FROM Real")
                          << 3343;
    QTest::newRow("virtual table") << QByteArray("CREATE VIRTUAL TABLE v USING fts3(a)") << 3343;
    QTest::newRow("trigger in a table's clothes")
        << QByteArray("PRAGMA writable_schema=1; INSERT INTO sqlite_master VALUES('table','t',"
                      "'Image',0,'CREATE TRIGGER t AFTER UPDATE ON Image BEGIN DELETE FROM Image; "
                      "END')")
        << 3343;
    QTest::newRow("index over an expression")
        << QByteArray("CREATE INDEX i ON Image(lower(File))") << 3343;
    QTest::newRow("partial index")
        << QByteArray("CREATE INDEX i ON Image(File) WHERE Legend='x'") << 3343;
    QTest::newRow("check") << QByteArray("CREATE TABLE c (a CHECK (a > random()))") << 3343;
    QTest::newRow("two tables in one place")
        << QByteArray(
               "PRAGMA writable_schema=1; UPDATE sqlite_master SET rootpage=(SELECT rootpage "
               "FROM sqlite_master WHERE name='Image') WHERE name='Paragraph'")
        << 3049;
    QTest::newRow("table missing") << QByteArray("DROP TABLE LinkedImages") << 3078;
    QTest::newRow("field missing") << QByteArray("ALTER TABLE Image RENAME TO Old; CREATE TABLE "
                                                 "Image (File TEXT, Legend TEXT)")
                                   << 3265;
}

void TestDatabaseOpen::RefusesHostileSchema()
{
    QFETCH(QByteArray, sql);
    QFETCH(int, number);
    const AlbumFixture world;
    const QString path = CopyAlbum(world, "hostile.alb");
    RunSql(path, sql);
    const QByteArray before = ReadFile(path);
    ScriptedDialogs dialogs;
    dialogs.ExpectBoxBeginning(QStringLiteral("Error %1 ").arg(number), Dialogs::Icon::Warning);
    QVERIFY(!OpenAlbum(path));
    QCOMPARE(GetLastAlbum(), world.GetAlbum());
    QCOMPARE(ReadFile(path), before);
}

void TestDatabaseOpen::AsksForThePassword()
{
    AlbumFixture world;
    world.AddChapter("Hidden");
    const QString path = EncryptedAlbum(world, "sesame");
    const QString prompt = "Please give the password for : " + path;
    {
        ScriptedDialogs dialogs;
        dialogs.ExpectInput(prompt, "");
        QVERIFY(!OpenAlbum(path));
        QCOMPARE(GetLastAlbum(), world.GetAlbum());
    }
    ScriptedDialogs dialogs;
    dialogs.ExpectInput(prompt, "Sesame");
    dialogs.ExpectInput(prompt, "it's wrong; --");
    dialogs.ExpectInput(prompt, "sesame");
    QVERIFY(OpenAlbum(path));
    QCOMPARE(GetLastAlbum(), path);
    ChapterSet->FindFirst("[Name]='hidden'");
    QCOMPARE(ChapterSet->Text(u"Name"), "Hidden");
    ReleaseAlbum();
}

void TestDatabaseOpen::TruncatedAlbumIsRefusedOrReads()
{
    AlbumFixture world;
    for (int i = 0; i < 300; ++i)
        world.AddImageRow(QStringLiteral("/pictures/%1.jpg").arg(i),
                          {{"Legend", QString(60, u'l')}});
    ReleaseAlbum();
    const QByteArray whole = ReadFile(world.GetAlbum());
    const QString path = world.PathOf("cut.alb");
    for (const qsizetype size : {100, 1024, 5000, 20000, int(whole.size()) - 1024}) {
        WriteFile(path, whole.first(size));
        ScriptedDialogs dialogs;
        dialogs.ExpectBoxBeginning(QStringLiteral("Error 3"), Dialogs::Icon::Warning);
        QVERIFY2(!OpenAlbum(path), qPrintable(QString::number(size)));
    }
}

namespace {

// Goes through everything that the windows read; errors are what is expected of a damaged file.
void ReadAll()
{
    for (RecordSet* set : {ParamsSet.get(), ParagraphSet.get(), ImageSet.get(), ChapterSet.get(),
                           LinkedImagesSet.get()}) {
        try {
            const RecordSet::Walk walk(*set);
            for (set->MoveFirst(); !set->AtEnd(); set->MoveNext()) {
                for (const char16_t* field : {u"File", u"Legend", u"Text", u"Name"}) {
                    if (set->HasField(field))
                        set->TextOrEmpty(field);
                }
            }
        } catch (const DatabaseError&) {
        }
    }
}

// Answers whatever comes: messages with OK, questions for a password with nothing.
class PatientDialogs : public Dialogs
{
public:
    PatientDialogs() { Install(this); }
    ~PatientDialogs() override { Install(nullptr); }
    Answer Ask(const Box&) override { return Answer::Ok; }
    QString AskText(const Input&) override { return {}; }
    QString AskOpenFile(const FileChoice&) override { return {}; }
    QString AskSaveFile(const FileChoice&) override { return {}; }
};

} // namespace

void TestDatabaseOpen::FlippedBitsNeverCrash()
{
    AlbumFixture world;
    const qint32 chapter = world.AddChapter("One");
    for (int i = 0; i < 60; ++i) {
        world.AddImageRow(QStringLiteral("/pictures/%1.jpg").arg(i),
                          {{"Legend", QString(60, u'l')}});
        world.AddParagraph(chapter, QString(500, u't'));
    }
    ReleaseAlbum();
    const QByteArray whole = ReadFile(world.GetAlbum());
    const QString path = world.PathOf("flipped.alb");
    std::mt19937 random(11);
    const PatientDialogs dialogs;
    for (int round = 0; round < 300; ++round) {
        QByteArray damaged = whole;
        for (int flips = 0; flips < 4; ++flips) {
            // Half of them where the file describes itself.
            const auto limit = round % 2 ? damaged.size() : qsizetype(2048);
            damaged[qsizetype(random() % std::size_t(limit))] ^= char(1U << random() % 8);
        }
        WriteFile(path, damaged);
        const QString before = GetLastAlbum();
        if (OpenAlbum(path))
            ReadAll();
        else
            QCOMPARE(GetLastAlbum(), before);
        SaveLastAlbum(world.GetAlbum());
    }
}

// Cut off in the middle of a change, as when the plug is pulled: the file and its journal are
// copied while the change is half on disk.
void TestDatabaseOpen::LeftoverJournalIsPlayedBack()
{
    AlbumFixture world;
    world.AddImageRow("/a.jpg", {{"Legend", "before"}});
    const QString path = world.PathOf("crashed.alb");
    AlbumDatabase->Execute("PRAGMA cache_size=1"); // changes reach the file before the commit
    AlbumDatabase->Execute("BEGIN");
    for (int i = 0; i < 400; ++i)
        AlbumDatabase->Execute(
            "INSERT INTO Image (File,Legend) VALUES ('/x.jpg',hex(randomblob(300)))");
    AlbumDatabase->Execute("UPDATE Image SET Legend='after' WHERE File='/a.jpg'");
    QFile::copy(world.GetAlbum(), path);
    QFile::copy(world.GetAlbum() + "-journal", path + "-journal");
    AlbumDatabase->Execute("ROLLBACK");
    QVERIFY(QFileInfo(path + "-journal").size() > 0);

    ScriptedDialogs dialogs;
    QVERIFY(OpenAlbum(path));
    QCOMPARE(ImageSet->RecordCount(), 1);
    QCOMPARE(ImageSet->Text(u"Legend"), "before");
}

void TestDatabaseOpen::FillsEmptySelections()
{
    AlbumFixture world;
    const qint32 chapter = world.AddChapter("One");
    for (int i = 0; i < 5; ++i)
        world.AddParagraph(chapter, "t", {{"FileSelection", "*sea*"}});
    world.Execute("UPDATE Paragraph SET FileSelection=NULL WHERE Id IN (1,4,5)");
    ScriptedDialogs dialogs;
    QVERIFY(OpenAlbum(world.GetAlbum()));
    QCOMPARE(world.Rows("SELECT Id,FileSelection FROM Paragraph"),
             QStringList({"1|", "2|*sea*", "3|*sea*", "4|", "5|"}));
}

void TestDatabaseOpen::CreatingReplacesAFileWhole()
{
    const AlbumFixture world;
    const QString path = world.PathOf("new.alb");
    WriteFile(path, "a letter");
    WriteFile(path + "-journal", "left by something else");
    ScriptedDialogs dialogs;
    QVERIFY(CreateAlbumFile(path));
    QVERIFY(!QFileInfo::exists(path + "-journal"));
    QVERIFY(OpenAlbum(path));
    ReleaseAlbum();

    dialogs.ExpectBoxBeginning("The album '/proc/nowhere/x.alb' cannot be created: ",
                               Dialogs::Icon::Warning);
    QVERIFY(!CreateAlbumFile("/proc/nowhere/x.alb"));
}

QTEST_GUILESS_MAIN(TestDatabaseOpen)
#include "test_database_open.moc"
