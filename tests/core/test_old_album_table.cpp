// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/OldAlbumTable.h"
#include "support/AlbumFixture.h"

#include <QtTest>

using namespace GeneralModule;

// Rows of a former album that the tables of a new one do not take as they are.
class TestOldAlbumTable : public QObject
{
    Q_OBJECT

private slots:
    void KeepsBothOfTwoNames();
    void KeepsOneOfTwoValues();
    void FindsIdentifiersForAllRows();
    void DoubtsAHugeLastNumber();
    void ReportsFieldsAndValues();
    void NamesFoldersOnce();
};

namespace {

// "NULL", "BAD" (unreadable) and "CUT..." stand for such values.
void Take(OldAlbumTable& table, const QList<QByteArray>& row)
{
    std::vector<OldValue> values;
    for (const QByteArray& text : row) {
        OldValue value{OldValue::State::Whole, text};
        if (text == "NULL")
            value = {OldValue::State::Null, {}};
        else if (text == "BAD")
            value = {OldValue::State::Unreadable, {}};
        else if (text.startsWith("CUT"))
            value.state = OldValue::State::Cut;
        values.push_back(value);
    }
    table.TakeRow(values);
}

const QStringList chapterFields{"Id", "Name", "FirstParagraph", "PreviousChapter", "NextChapter"};

} // namespace

void TestOldAlbumTable::KeepsBothOfTwoNames()
{
    const AlbumFixture world;
    OldAlbumReport report;
    OldAlbumTable chapters(AlbumDatabase, "Chapter", report);
    chapters.BeginTable(chapterFields, 3);
    Take(chapters, {"1", "Noël", "0", "0", "2"});
    Take(chapters, {"2", "noël", "0", "1", "3"});
    Take(chapters, {"3", "NOëL", "0", "2", "0"});
    QCOMPARE(chapters.Finish(), 3);
    QCOMPARE(world.Rows("SELECT Id,Name FROM Chapter"),
             QStringList({"1|Noël", "2|noël (2)", "3|NOëL (3)"}));
    QCOMPARE(report.Problems().first(),
             "Table Chapter: the name 'noël' is there twice; the second became 'noël (2)'.");

    OldAlbumTable params(AlbumDatabase, "Params", report);
    params.BeginTable({"Param", "Value"}, 0);
    Take(params, {"TimerDelay", "4000"});
    Take(params, {"timerdelay", "9"});
    QCOMPARE(params.Finish(), 2);
    QCOMPARE(world.Rows("SELECT Param,Value FROM Params"),
             QStringList({"TimerDelay|4000", "timerdelay (2)|9"}));
}

void TestOldAlbumTable::KeepsOneOfTwoValues()
{
    const AlbumFixture world;
    OldAlbumReport report;
    OldAlbumTable values(AlbumDatabase, "Car3", report);
    values.BeginTable({"Name"}, 0);
    for (const char* name : {"Anna", "anna", "NULL", "NULL", "-"})
        Take(values, {name});
    QCOMPARE(values.Finish(), 4);
    QCOMPARE(world.Rows("SELECT Name FROM Car3 ORDER BY rowid"),
             QStringList({"Anna", "NULL", "NULL", "-"}));
    QCOMPARE(report.Problems(),
             QStringList("Table Car3: the value 'anna' is there twice and came over once."));
}

void TestOldAlbumTable::FindsIdentifiersForAllRows()
{
    const AlbumFixture world;
    OldAlbumReport report;
    OldAlbumTable chapters(AlbumDatabase, "Chapter", report);
    chapters.BeginTable(chapterFields, 9);
    Take(chapters, {"NULL", "Nameless number", "0", "0", "0"});
    Take(chapters, {"4", "Four", "NULL", "0", "0"});
    Take(chapters, {"4", "Four again", "0", "0", "0"});
    Take(chapters, {"99999999999", "Too large", "0", "0", "BAD"});
    Take(chapters, {"-7", "Below", "0", "0", "0"});
    QCOMPARE(chapters.Finish(), 5);
    // Above the last number that the old album gave out, which is 9.
    QCOMPARE(world.Rows("SELECT Id,Name,FirstParagraph FROM Chapter"),
             QStringList({"-7|Below|0", "4|Four|0", "10|Nameless number|0", "11|Four again|0",
                          "12|Too large|0"}));
    ChapterSet->AddNew();
    QCOMPARE(ChapterSet->Number(u"Id"), 13);
}

void TestOldAlbumTable::DoubtsAHugeLastNumber()
{
    const AlbumFixture world;
    OldAlbumReport report;
    OldAlbumTable paragraphs(AlbumDatabase, "Paragraph", report);
    paragraphs.BeginTable({"Id"}, 0xFFFFFFF0);
    Take(paragraphs, {"12"});
    paragraphs.Finish();
    ParagraphSet->AddNew();
    QCOMPARE(ParagraphSet->Number(u"Id"), 13);
}

void TestOldAlbumTable::ReportsFieldsAndValues()
{
    const AlbumFixture world;
    OldAlbumReport report;
    OldAlbumTable links(AlbumDatabase, "LinkedImages", report);
    links.BeginTable({"FILE", "Colour"}, 0);
    Take(links, {"/a.jpg", "red"});
    Take(links, {"CUT/b.jp", "BAD"}); // a field that is left out is not missed again
    Take(links, {"BAD", "red"});
    QCOMPARE(links.Finish(), 3);
    QCOMPARE(world.Rows("SELECT ParagraphId,File FROM LinkedImages"),
             QStringList({"0|/a.jpg", "0|CUT/b.jp", "0|NULL"}));
    QCOMPARE(report.Problems(),
             QStringList({"Table LinkedImages: the new album has no place for the field Colour.",
                          "Table LinkedImages: the field ParagraphId is missing.",
                          "LinkedImages CUT/b.jp: the end of the field File cannot be read.",
                          "LinkedImages, row 3: the field File cannot be read."}));
}

void TestOldAlbumTable::NamesFoldersOnce()
{
    OldAlbumReport report;
    report.AddPicturePath("/home/anna/a.jpg");
    QVERIFY(report.FolderHint().isEmpty());
    for (int i = 0; i < 30; ++i)
        report.AddPicturePath(QStringLiteral("D:\\CD %1\\a.jpg").arg(i / 2));
    report.AddPicturePath("\\\\server\\share\\a.jpg");
    const QStringList hint = report.FolderHint();
    QCOMPARE(hint.size(), 12);
    QCOMPARE(hint[1], "D:\\CD 0\\");
    QCOMPARE(hint[2], "D:\\CD 1\\");
    QCOMPARE(hint.last(), "and 6 more.");
}

QTEST_GUILESS_MAIN(TestOldAlbumTable)
#include "test_old_album_table.moc"
