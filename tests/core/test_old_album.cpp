// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/Settings.h"
#include "core/oldalbum/OldAlbumConversion.h"
#include "support/AlbumTest.h"
#include "support/OldAlbums.h"
#include "support/Rows.h"

#include <QtEndian>

using namespace GeneralModule;

namespace {

const QString tables[] = {"Chapter", "Paragraph", "Image", "LinkedImages", "Params",
                          "Car0",    "Car1",      "Car2",  "Car3",         "Car4",
                          "Car5",    "Car9",      "Car10", "Car11"};

OldAlbumReport Convert(const QString& path, const QString& target)
{
    OldAlbumFile old(path);
    return ConvertOldAlbum(old, {.target = target});
}

} // namespace

// Needs the sample albums; what can be tried without them is in
// test_old_album_table.
class TestOldAlbum : public AlbumTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!HasOldAlbums())
            QSKIP("LUMENARK_OLD_ALBUMS names no folder of old albums");
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
        OldAlbumFile old(OldAlbumPath(QTest::currentDataTag()));
        QCOMPARE(old.HasPassword(), !password.isEmpty());
        QCOMPARE(old.PasswordFits(password.toLower()), password.isEmpty());
        QVERIFY(old.PasswordFits(password));
        const QString target = album_->PathOf("new.alb");
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
        QCOMPARE(Listing().filter("lumenark"), QStringList());
    }

    void OpensThroughItsQuestions()
    {
        const QByteArray contents = OldAlbumBytes("password_jet4");
        const QString path = CopyTo("Été.alb", contents);
        CopyTo("Été (new).alb", "something else");
        const QStringList before = Listing();
        const QString target = album_->PathOf("chosen.alb");
        const QString prompt = "Please give the password for : " + path;
        const auto expectQuestion = [&](Answer answer) {
            dialogs_->ExpectInput(prompt, "Mirabelle 8");
            dialogs_->ExpectBox("'" + path +
                                    "' is an album of the former file format. Shall a new album be "
                                    "made of it? The old one stays as it is.",
                                Icon::Question, Buttons::YesNo, answer);
        };
        // Giving up changes nothing: without the password, without a new album, without its name.
        for (int given = 0; given < 3; ++given) {
            if (given == 0)
                dialogs_->ExpectInput(prompt, "");
            else
                expectQuestion(given == 1 ? Answer::No : Answer::Yes);
            if (given == 2)
                dialogs_->ExpectSaveFile("Save the new Album", "", "Été (new 2).alb");
            QVERIFY(!OpenAlbum(path));
            QVERIFY(!IsAlbumOpen());
            QCOMPARE(GetLastAlbum(), album_->GetAlbum());
            QCOMPARE(Listing(), before);
        }
        dialogs_->ExpectInput(prompt, "mirabelle 8");
        expectQuestion(Answer::Yes);
        dialogs_->ExpectSaveFile("Save the new Album", target, "Été (new 2).alb");
        dialogs_->ExpectBoxBeginning(
            "The new album is '" + target +
                "'.\n3 chapters, 25 paragraphs and 400 pictures came over. The new album has the "
                "old one's password.\n\nPictures lie at places of another system, which were kept "
                "as they are. \"Reload Moved Pictures\" points them",
            Icon::Information);
        QVERIFY(OpenAlbum(path));
        QCOMPARE(GetLastAlbum(), target);
        QCOMPARE(AlbumDatabase->GetPath(), target);
        QCOMPARE(ChapterSet->RecordCount(), 3);
        // The pass over paragraphs without a selection has run.
        QVERIFY(FindById(*ParagraphSet, 1));
        QCOMPARE(ParagraphSet->Text(u"FileSelection"), "");
        // The highest chapter and two of the highest paragraphs were deleted in the old program.
        ParagraphSet->AddNew();
        QCOMPARE(ParagraphSet->Number(u"Id"), 30);
        ChapterSet->AddNew();
        QCOMPARE(ChapterSet->Number(u"Id"), 5);
        QCOMPARE(ReadFile(path), contents);
        ReleaseAlbum();
        dialogs_->ExpectInput("Please give the password for : " + target, "");
        QVERIFY(!OpenAlbum(target));
    }

    void NamesWhatIsDamaged()
    {
#ifdef LIBRARY_WANTS_WHOLE_MAPS
        const char* const damagedMap = "Table Car5 cannot be read.";
#else
        const char* const damagedMap = "Table Car5: its list of pages is damaged; its rows were "
                                       "looked for in the whole file.";
#endif
        // Beside the sound album that holds the same rows, and how many rows differ.
        const std::tuple<const char*, const char*, const char*, int> rows[] = {
            {"hostile_memo_loop_jet3", "small_jet3", "Paragraph 5: the field Text cannot be read.",
             1},
            {"hostile_map_jet4", "small_jet4", damagedMap, 0}};
        for (const auto& [hostile, like, problem, rowsThatDiffer] : rows) {
            const QString target = album_->PathOf(hostile);
            QCOMPARE(Convert(OldAlbumPath(hostile), target).Problems(), QStringList(problem));
            const QJsonObject expected = OldAlbumContents(like);
            int different = 0;
            for (const QString& table : tables) {
                if (QString(problem).contains("Table " + table + " cannot be read"))
                    continue;
                const QStringList sound = ExpectedRows(expected, table);
                const QStringList found = FoundRows(target, {}, expected, table);
                QCOMPARE(found.size(), sound.size());
                for (qsizetype i = 0; i < sound.size(); ++i)
                    different += found[i] != sound[i];
            }
            QCOMPARE(different, rowsThatDiffer);
        }
    }

    void ReadsCharactersOfTwoUnits()
    {
        const auto utf16 = [](const QString& text) {
            return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
        };
        QByteArray contents = OldAlbumBytes("small_jet4");
        QVERIFY(contents.contains(utf16("plain paragraph")));
        contents.replace(utf16("plain paragraph"), utf16("\U0001F600ain paragraph"));
        const QString path = CopyTo("old.alb", contents);
        Convert(path, album_->PathOf("new.alb"));
        QVERIFY(OpenAlbum(album_->PathOf("new.alb")));
        QVERIFY(FindById(*ParagraphSet, 5));
        QVERIFY(ParagraphSet->Text(u"Text").startsWith("A \U0001F600ain paragraph without"));
    }

    // The map of the picture table's pages is emptied: the pages themselves say whose they are.
    void FindsPagesThatTheMapLacks()
    {
        QByteArray contents = OldAlbumBytes("small_jet4");
        const QString path = CopyTo("old.alb", contents);
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
        CopyTo("old.alb", contents);
        const QString target = album_->PathOf("new.alb");
        QCOMPARE(
            Convert(path, target).Problems(),
            QStringList("Table Image: its list of pages is damaged; its rows were looked for in "
                        "the whole file."));
        const QJsonObject expected = OldAlbumContents("small_jet4");
        QCOMPARE(FoundRows(target, {}, expected, "Image"), ExpectedRows(expected, "Image"));
    }

    // A table's name is changed in the catalogue: one is missing then, and one is the user's own.
    void TakesOwnTablesOver()
    {
        QByteArray contents = OldAlbumBytes("small_jet3");
        QVERIFY(contents.contains("LinkedImages"));
        const QString path = CopyTo("old.alb", contents.replace("LinkedImages", "LinkedImagez"));
        const QString target = album_->PathOf("new.alb");
        OldAlbumFile old(path);
        const OldAlbumReport report =
            ConvertOldAlbum(old, {.target = target, .password = "secret"});
        QCOMPARE(report.Problems(), QStringList("Table LinkedImages is missing."));
        QCOMPARE(report.pictures, 60);
        QJsonObject expected = OldAlbumContents("small_jet3");
        for (const char* part : {"tables", "columns"}) {
            QJsonObject renamed = expected[part].toObject();
            renamed["LinkedImagez"] = renamed["LinkedImages"];
            expected[part] = renamed;
        }
        QVERIFY(!ExpectedRows(expected, "LinkedImagez").isEmpty());
        QCOMPARE(FoundRows(target, "secret", expected, "LinkedImagez"),
                 ExpectedRows(expected, "LinkedImagez"));

        for (const char* table : {"Chapter", "Paragraph", "Image"})
            contents.replace(table, QByteArray(table).toUpper().replace('A', 'O'));
        CopyTo("old.alb", contents);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, Convert(path, album_->PathOf("none.alb")));
        QVERIFY(!QFile::exists(album_->PathOf("none.alb")));
    }

    void NeverReplacesItself()
    {
        const QByteArray contents = OldAlbumBytes("small_jet3");
        const QString path = CopyTo("old.alb", contents);
        OldAlbumFile old(path);
        QVERIFY_THROWS_EXCEPTION(DatabaseError,
                                 ConvertOldAlbum(old, {.target = path, .replaces = true}));
        QCOMPARE(ReadFile(path), contents);
        QVERIFY_THROWS_EXCEPTION(DatabaseError,
                                 ConvertOldAlbum(old, {.target = "/proc/nowhere/new.alb"}));
    }

    void BreakingOffLeavesNothing()
    {
        const QStringList before = Listing();
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
                                     ConvertOldAlbum(old, {.target = album_->PathOf("new.alb"),
                                                           .password = password,
                                                           .check = breakOff}));
            QCOMPARE(Listing(), before);
        }
    }

private:
    QString CopyTo(const QString& name, const QByteArray& contents) const
    {
        WriteFile(album_->PathOf(name), contents);
        return album_->PathOf(name);
    }

    // All that lies in the fixture's folder, hidden files too.
    QStringList Listing() const
    {
        return QDir(album_->PathOf("."))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

QTEST_GUILESS_MAIN(TestOldAlbum)
#include "test_old_album.moc"
