// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/OldAlbumConversion.h"
#include "core/Settings.h"
#include "fuzz/OldAlbumTrial.h"
#include "support/AlbumFixture.h"
#include "support/OldAlbums.h"
#include "support/Rows.h"
#include "support/ScriptedDialogs.h"

#include <QtEndian>
#include <QtTest>

using namespace GeneralModule;

namespace {

const QString tables[] = {"Chapter", "Paragraph", "Image", "LinkedImages", "Params",
                          "Car0",    "Car1",      "Car2",  "Car3",         "Car4",
                          "Car5",    "Car9",      "Car10", "Car11"};

QString CopyTo(const AlbumFixture& world, const QString& name, const QByteArray& contents)
{
    const QString path = world.PathOf(name);
    WriteFile(path, contents);
    return path;
}

OldAlbumReport Convert(const QString& path, const QString& target)
{
    OldAlbumFile old(path);
    return ConvertOldAlbum(old, {.target = target});
}

// Converts an album and opens what came of it.
bool Opens(const AlbumFixture& world, const QString& path)
{
    Convert(path, world.PathOf("new.alb"));
    const ScriptedDialogs dialogs;
    return OpenAlbum(world.PathOf("new.alb"));
}

QString QuestionFor(const QString& path)
{
    return "'" + path +
           "' is an album of the former file format. Shall a new album be made of it? The old one "
           "stays as it is.";
}

// All that lies in the fixture's folder, hidden files too.
QStringList Listing(const AlbumFixture& world)
{
    return QDir(world.PathOf("."))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

// Needs the sample albums beside the repository; what can be tried without them is in
// test_old_album_table.
class TestOldAlbum : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!HasOldAlbums())
            QSKIP("the sample albums of the former file format are not beside the repository");
    }

    void BringsEverythingOver_data()
    {
        AddRows<QString, QString>({"contents", "password"},
                                  {{"small_jet4", "small_jet4", ""},
                                   {"small_jet3", "small_jet3", ""},
                                   {"encoded_jet4", "small_jet4", ""},
                                   {"password_jet4", "password_jet4", "Mirabelle 8"}});
    }

    void BringsEverythingOver()
    {
        QFETCH(QString, contents);
        QFETCH(QString, password);
        const AlbumFixture world;
        OldAlbumFile old(OldAlbumPath(QTest::currentDataTag()));
        QCOMPARE(old.HasPassword(), !password.isEmpty());
        QCOMPARE(old.PasswordFits(password.toLower()), password.isEmpty());
        QVERIFY(old.PasswordFits(password));
        const QString target = world.PathOf("new.alb");
        const OldAlbumReport report =
            ConvertOldAlbum(old, {.target = target, .password = password});
        QCOMPARE(report.Problems(), QStringList());
        QVERIFY(report.FolderHint().contains("C:\\Photos\\Été 1998\\"));
        const QJsonObject expected = OldAlbumContents(contents);
        for (const QString& table : tables) {
            const QStringList rows = ExpectedRows(expected, table);
            QVERIFY2(!rows.isEmpty(), qPrintable(table));
            QCOMPARE(FoundRows(target, password, expected, table), rows);
        }
        QCOMPARE(Listing(world).filter("lumenark"), QStringList());
    }

    void ReadsCharactersOfTwoUnits()
    {
        const auto utf16 = [](const QString& text) {
            return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
        };
        const AlbumFixture world;
        QByteArray contents = OldAlbumBytes("small_jet4");
        QVERIFY(contents.contains(utf16("plain paragraph")));
        contents.replace(utf16("plain paragraph"), utf16("\U0001F600ain paragraph"));
        const QString path = CopyTo(world, "old.alb", contents);
        QVERIFY(Opens(world, path));
        QVERIFY(FindById(*ParagraphSet, 5));
        QVERIFY(ParagraphSet->Text(u"Text").startsWith("A \U0001F600ain paragraph without"));
    }

    // The highest chapter and two of the highest paragraphs were deleted in the old program.
    void KeepsNumbersThatWereGiven()
    {
        const AlbumFixture world;
        QVERIFY(Opens(world, OldAlbumPath("password_jet4")));
        ParagraphSet->AddNew();
        QCOMPARE(ParagraphSet->Number(u"Id"), 30);
        ChapterSet->AddNew();
        QCOMPARE(ChapterSet->Number(u"Id"), 5);
    }

    void GivingUpChangesNothing()
    {
        const AlbumFixture world;
        const QString path = CopyTo(world, "old.alb", OldAlbumBytes("password_jet4"));
        const QStringList before = Listing(world);
        const auto giveUp = [&] {
            QVERIFY(!OpenAlbum(path));
            QVERIFY(!AlbumDatabase);
            QCOMPARE(GetLastAlbum(), world.GetAlbum());
            QCOMPARE(Listing(world), before);
        };
        ScriptedDialogs dialogs;
        const QString prompt = "Please give the password for : " + path;
        dialogs.ExpectInput(prompt, "");
        giveUp();
        for (const auto answer : {Dialogs::Answer::No, Dialogs::Answer::Yes}) {
            dialogs.ExpectInput(prompt, "Mirabelle 8");
            dialogs.ExpectBox(QuestionFor(path), Dialogs::Icon::Question, Dialogs::Buttons::YesNo,
                              answer);
            if (answer == Dialogs::Answer::Yes)
                dialogs.ExpectSaveFile("Save the new Album", "", "old (new).alb");
            giveUp();
        }
    }

    void OpensThroughItsQuestions()
    {
        const AlbumFixture world;
        const QByteArray contents = OldAlbumBytes("password_jet4");
        const QString path = CopyTo(world, "Été.alb", contents);
        CopyTo(world, "Été (new).alb", "something else");
        const QString target = world.PathOf("chosen.alb");
        const QString prompt = "Please give the password for : " + path;
        ScriptedDialogs dialogs;
        dialogs.ExpectInput(prompt, "mirabelle 8");
        dialogs.ExpectInput(prompt, "Mirabelle 8");
        dialogs.ExpectBox(QuestionFor(path), Dialogs::Icon::Question, Dialogs::Buttons::YesNo,
                          Dialogs::Answer::Yes);
        dialogs.ExpectSaveFile("Save the new Album", target, "Été (new 2).alb");
        dialogs.ExpectBoxBeginning("The new album is '" + target +
                                       "'.\n3 chapters, 25 paragraphs and 400 pictures came over. "
                                       "The new album has the old "
                                       "one's password.\n\nPictures lie at places of another "
                                       "system, which were kept as they "
                                       "are. \"Reload Moved Pictures\" points them",
                                   Dialogs::Icon::Information);
        QVERIFY(OpenAlbum(path));
        QCOMPARE(GetLastAlbum(), target);
        QCOMPARE(AlbumDatabase->GetPath(), target);
        QCOMPARE(ChapterSet->RecordCount(), 3);
        // The pass over paragraphs without a selection has run.
        QVERIFY(FindById(*ParagraphSet, 1));
        QCOMPARE(ParagraphSet->Text(u"FileSelection"), "");
        QCOMPARE(ReadFile(path), contents);
        ReleaseAlbum();
        dialogs.ExpectInput("Please give the password for : " + target, "");
        QVERIFY(!OpenAlbum(target));
    }

    void NamesWhatIsDamaged_data()
    {
        // The sound album that holds the same rows, the problem, and how many rows differ.
        AddRows<QString, QString, int>(
            {"like", "problem", "rowsThatDiffer"},
            {{"hostile_memo_loop_jet3", "small_jet3", "Paragraph 5: the field Text cannot be read.",
              1},
             {"hostile_map_jet4", "small_jet4",
              "Table Car5: its list of pages is damaged; its rows were looked for in the whole "
              "file.",
              0}});
    }

    void NamesWhatIsDamaged()
    {
        QFETCH(QString, like);
        QFETCH(QString, problem);
        QFETCH(int, rowsThatDiffer);
        const AlbumFixture world;
        const QString target = world.PathOf("new.alb");
        QCOMPARE(Convert(OldAlbumPath(QTest::currentDataTag()), target).Problems(),
                 QStringList(problem));
        const QJsonObject expected = OldAlbumContents(like);
        int different = 0;
        for (const QString& table : tables) {
            const QStringList rows = ExpectedRows(expected, table);
            const QStringList found = FoundRows(target, {}, expected, table);
            QCOMPARE(found.size(), rows.size());
            for (qsizetype i = 0; i < rows.size(); ++i)
                different += found[i] != rows[i];
        }
        QCOMPARE(different, rowsThatDiffer);
    }

    // The map of the picture table's pages is emptied: the pages themselves say whose they are.
    void FindsPagesThatTheMapLacks()
    {
        const AlbumFixture world;
        QByteArray contents = OldAlbumBytes("small_jet4");
        const QString path = CopyTo(world, "old.alb", contents);
        quint32 table = 0;
        const OldAlbumFile sound(path);
        for (const OldAlbumFile::Table& each : sound.GetTables()) {
            if (each.name == "Image")
                table = each.page;
        }
        const auto place = qFromLittleEndian<quint32>(contents.constData() + table * 4096 + 55);
        const qsizetype page = qsizetype(place >> 8) * 4096;
        const auto offset = [&contents, page](quint32 row) {
            return qFromLittleEndian<quint16>(contents.constData() + page + 14 + row * 2) & 0x1FFF;
        };
        const quint32 row = place & 0xFF;
        const int end =
            row == 0 ? 4096 : offset(row - 1); // rows lie from the page's end to its head
        int lost = 0;
        for (int at = offset(row) + 1; at < end; ++at) { // behind the kind of map
            lost += contents[page + at] != 0;
            contents[page + at] = 0;
        }
        QVERIFY(lost > 0);
        CopyTo(world, "old.alb", contents);
        const QString target = world.PathOf("new.alb");
        QCOMPARE(
            Convert(path, target).Problems(),
            QStringList("Table Image: its list of pages is damaged; its rows were looked for in "
                        "the whole file."));
        const QJsonObject expected = OldAlbumContents("small_jet4");
        QCOMPARE(FoundRows(target, {}, expected, "Image"), ExpectedRows(expected, "Image"));
    }

    // A table's name is changed in the catalogue: one is missing then, and one too many is there.
    void ReportsOtherTables()
    {
        const AlbumFixture world;
        QByteArray contents = OldAlbumBytes("small_jet3");
        QVERIFY(contents.contains("LinkedImages"));
        const QString path =
            CopyTo(world, "old.alb", contents.replace("LinkedImages", "LinkedImagez"));
        const QString target = world.PathOf("new.alb");
        const OldAlbumReport report = Convert(path, target);
        QCOMPARE(report.Problems(),
                 QStringList({"Table LinkedImages is missing.",
                              "Table LinkedImagez is no part of an album and was left out."}));
        QCOMPARE(report.pictures, 60);

        for (const char* table : {"Chapter", "Paragraph", "Image"})
            contents.replace(table, QByteArray(table).toUpper().replace('A', 'O'));
        CopyTo(world, "old.alb", contents);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, Convert(path, world.PathOf("none.alb")));
        QVERIFY(!QFile::exists(world.PathOf("none.alb")));
    }

    void KeepsTheFileThatIsThere()
    {
        const AlbumFixture world;
        const QByteArray contents = OldAlbumBytes("small_jet3");
        const QString path = CopyTo(world, "old.alb", contents);
        const QString taken = CopyTo(world, "taken.alb", "a letter");
        CopyTo(world, "taken.alb-journal", "of a file that is replaced");
        QVERIFY_THROWS_EXCEPTION(DatabaseError, Convert(path, taken));
        QCOMPARE(ReadFile(taken), "a letter");
        OldAlbumFile old(path);
        QVERIFY_THROWS_EXCEPTION(DatabaseError,
                                 ConvertOldAlbum(old, {.target = path, .replaces = true}));
        QCOMPARE(ReadFile(path), contents);

        ConvertOldAlbum(old, {.target = taken, .replaces = true});
        ScriptedDialogs dialogs;
        QVERIFY(OpenAlbum(taken));
        QVERIFY(!QFile::exists(taken + "-journal"));
        QVERIFY_THROWS_EXCEPTION(DatabaseError,
                                 ConvertOldAlbum(old, {.target = "/proc/nowhere/new.alb"}));
    }

    void BreakingOffLeavesNothing()
    {
        const AlbumFixture world;
        const QStringList before = Listing(world);
        OldAlbumFile old(OldAlbumPath("password_jet4"));
        struct Enough
        {
        };
        int checks = 0;
        const auto breakOff = [&checks] {
            if (++checks == 4)
                throw Enough();
        };
        for (const char* password : {"", "secret"}) {
            checks = 0;
            QVERIFY_THROWS_EXCEPTION(Enough,
                                     ConvertOldAlbum(old, {.target = world.PathOf("new.alb"),
                                                           .password = password,
                                                           .check = breakOff}));
            QCOMPARE(Listing(world), before);
        }
    }

    void SurvivesDamagedCopies()
    {
        constexpr int count = 40; // old_album_fuzz tries thousands
        const QTemporaryDir folder;
        std::mt19937 random(7);
        for (const char* album : {"small_jet3", "small_jet4"}) {
            const QByteArray sound = OldAlbumBytes(album);
            int reported = 0;
            for (int i = 0; i < count; ++i) {
                const TrialResult result = TryConversion(DamagedCopy(sound, random), folder.path());
                QCOMPARE(result.fault, QString());
                reported += !result.isWhole;
            }
            QVERIFY(reported > count / 10);
        }
    }
};

QTEST_GUILESS_MAIN(TestOldAlbum)
#include "test_old_album.moc"
