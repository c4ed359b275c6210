// SPDX-License-Identifier: MIT
#include "core/AlbumSets.h"
#include "core/Settings.h"
#include "core/oldalbum/OldAlbumConversion.h"
#include "support/AlbumTest.h"
#include "support/OldAlbums.h"
#include "support/Rows.h"

#include <stdexcept>

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
        const QString prompt = "Please give the password for : ";
        const auto expectQuestion = [&](Answer answer, const QString& name = {}) {
            dialogs_->ExpectInput(prompt + path, "Mirabelle 8");
            dialogs_->ExpectBox("'" + path +
                                    "' is an album of the former file format. Shall a new album be "
                                    "made of it? The old one stays as it is.",
                                Icon::Question, Buttons::YesNo, answer);
            if (answer == Answer::Yes)
                dialogs_->ExpectSaveFile("Save the new Album", name, "Été (new 2).alb");
        };
        // Giving up changes nothing: without the password, without a new album, without its name.
        for (int given = 0; given < 3; ++given) {
            if (given == 0)
                dialogs_->ExpectInput(prompt + path, "");
            else
                expectQuestion(given == 1 ? Answer::No : Answer::Yes);
            QVERIFY(!OpenAlbum(path) && !IsAlbumOpen());
            QCOMPARE(GetLastAlbum(), album_->GetAlbum());
            QCOMPARE(Listing(), before);
        }
        dialogs_->ExpectInput(prompt + path, "mirabelle 8");
        expectQuestion(Answer::Yes, target);
        dialogs_->ExpectBoxBeginning(
            "The new album is '" + target +
                "'.\n3 chapters, 25 paragraphs and 400 pictures came over. The new album has the "
                "old one's password.\n\nPictures lie at places of another system",
            Icon::Information);
        QVERIFY(OpenAlbum(path));
        QCOMPARE(GetLastAlbum(), target);
        // The pass over paragraphs without a selection has run.
        QVERIFY(FindById(*ParagraphSet, 1));
        QCOMPARE(ParagraphSet->Text(u"FileSelection"), "");
        // The highest chapter and two of the highest paragraphs were deleted in the old program.
        ParagraphSet->AddNew();
        QCOMPARE(ParagraphSet->Number(u"Id"), 30);
        ChapterSet->AddNew();
        QCOMPARE(ChapterSet->Number(u"Id"), 5);
        QCOMPARE(ReadFile(path), contents);
        dialogs_->ExpectInput(prompt + target, "");
        QVERIFY(!OpenAlbum(target));
    }

    // Beside the sound album that holds the same rows.
    void NamesWhatIsDamaged()
    {
#ifdef LIBRARY_WANTS_WHOLE_MAPS
        const QString damagedMap = "Table Car5 cannot be read.";
#else
        const QString damagedMap = "Table Car5: its list of pages is damaged; its rows were "
                                   "looked for in the whole file.";
#endif
        for (const QString name : {"memo_loop_jet3", "map_jet4"}) {
            const InRow row(name);
            const bool isMap = name == "map_jet4";
            const QString target = album_->PathOf(name);
            QCOMPARE(
                Convert(OldAlbumPath("hostile_" + name), target).Problems(),
                QStringList(isMap ? damagedMap : "Paragraph 5: the field Text cannot be read."));
            const QJsonObject expected = OldAlbumContents(isMap ? "small_jet4" : "small_jet3");
            int different = 0;
            for (const QString& table : tables) {
                if (isMap && damagedMap.contains("Table " + table + " cannot be read"))
                    continue;
                const QStringList sound = ExpectedRows(expected, table);
                const QStringList found = FoundRows(target, {}, expected, table);
                QCOMPARE(found.size(), sound.size());
                for (qsizetype i = 0; i < sound.size(); ++i)
                    different += found[i] != sound[i];
            }
            QCOMPARE(different, isMap ? 0 : 1);
        }
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
        QJsonObject expected = OldAlbumContents("small_jet3");
        for (const char* part : {"tables", "columns"}) {
            QJsonObject renamed = expected[part].toObject();
            renamed["LinkedImagez"] = renamed["LinkedImages"];
            expected[part] = renamed;
        }
        QVERIFY(!ExpectedRows(expected, "LinkedImagez").isEmpty());
        QCOMPARE(FoundRows(target, "secret", expected, "LinkedImagez"),
                 ExpectedRows(expected, "LinkedImagez"));
    }

    void NeverReplacesItself()
    {
        const QByteArray contents = OldAlbumBytes("small_jet3");
        const QString path = CopyTo("old.alb", contents);
        const QString link = album_->PathOf("link.alb");
        QVERIFY(QFile::link(path, link));
        OldAlbumFile old(path);
        for (const QString& target : {path, link, QString("/proc/nowhere/new.alb")})
            QVERIFY_THROWS_EXCEPTION(DatabaseError,
                                     ConvertOldAlbum(old, {.target = target, .replaces = true}));
        QCOMPARE(ReadFile(path), contents);
    }

    void BreakingOffLeavesNothing()
    {
        const QStringList before = Listing();
        OldAlbumFile old(OldAlbumPath("password_jet4"));
        for (const char* password : {"", "secret"}) {
            int checks = 0;
            const auto breakOff = [&checks] {
                if (++checks == 4)
                    throw std::runtime_error("enough");
            };
            QVERIFY_THROWS_EXCEPTION(std::runtime_error,
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
