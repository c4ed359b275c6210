// SPDX-License-Identifier: MIT
#include "core/AlbumPassword.h"
#include "core/AlbumSets.h"
#include "core/oldalbum/OldAlbumTable.h"
#include "support/AlbumFixture.h"
#include "support/ScriptedDialogs.h"

#include <QtTest>

using namespace GeneralModule;

namespace {

// "NULL", "BAD" (unreadable) and "CUT..." stand for such values.
struct Taking
{
    AlbumFixture world;
    OldAlbumReport report;

    int Take(const QString& name, const QStringList& fields, quint32 lastNumber,
             const QList<QByteArrayList>& rows,
             OldAlbumTable::Kind kind = OldAlbumTable::Kind::OfAlbums)
    {
        OldAlbumTable table(AlbumDatabase, name, report, kind);
        table.BeginTable(fields, lastNumber);
        for (const QByteArrayList& row : rows) {
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
        return table.Finish();
    }
};

} // namespace

// Rows of a former album that the tables of a new one do not take as they are.
class TestOldAlbumTable : public QObject
{
    Q_OBJECT

private slots:
    void KeepsBothOfTwoNamesAndOneOfTwoValues()
    {
        Taking take;
        // Nor are they patterns for what is told of them.
        const QList<QByteArrayList> chapters{
            {"1", "Noël %2 %1"}, {"2", "noël %2 %1"}, {"3", "NOëL %2 %1"}};
        QCOMPARE(take.Take("Chapter", {"Id", "Name"}, 3, chapters), 3);
        QCOMPARE(take.world.Joined("SELECT Id,Name FROM Chapter ORDER BY Id"),
                 "1|Noël %2 %1; 2|noël %2 %1 (2); 3|NOëL %2 %1 (3)");
        QVERIFY(take.report.Problems().contains("Table Chapter: the name 'noël %2 %1' is there "
                                                "twice; the second became 'noël %2 %1 (2)'."));
        QCOMPARE(take.Take("Car3", {"Name"}, 0, {{"Anna"}, {"anna"}, {"NULL"}, {"NULL"}, {"-"}}),
                 4);
        QCOMPARE(take.world.Joined("SELECT Name FROM Car3 ORDER BY rowid"), "Anna; NULL; NULL; -");
        QCOMPARE(take.report.Problems().last(),
                 "Table Car3: the value 'anna' is there twice and came over once.");
    }

    void FindsIdentifiersForAllRows()
    {
        Taking take;
        QCOMPARE(take.Take("Chapter", {"Id", "Name", "FirstParagraph"}, 9,
                           {{"NULL", "Nameless number", "0"},
                            {"4", "Four", "NULL"},
                            {"4", "Four again", "0"},
                            {"99999999999", "Too large", "BAD"},
                            {"-7", "Below", "0"}}),
                 5);
        // Above the last number that the old album gave out, which is 9.
        QCOMPARE(take.world.Joined("SELECT Id,Name,FirstParagraph FROM Chapter"),
                 "-7|Below|0; 4|Four|0; 10|Nameless number|0; 11|Four again|0; 12|Too large|0");
        ChapterSet->AddNew();
        QCOMPARE(ChapterSet->Number(u"Id"), 13);
        // A last number that no album can have reached is not believed.
        take.Take("Paragraph", {"Id"}, 0xFFFFFFF0, {{"12"}});
        ParagraphSet->AddNew();
        QCOMPARE(ParagraphSet->Number(u"Id"), 13);
        // From the highest on they go down, but never to one that a link may still name.
        take.world.Execute("INSERT INTO LinkedImages VALUES(2147483644,'/a.jpg')");
        take.Take("Paragraph", {"Id"}, 0x80000001, {{"5"}, {"2147483647"}, {"NULL"}, {"NULL"}});
        QCOMPARE(take.world.Joined("SELECT Id FROM Paragraph"),
                 "5; 2147483645; 2147483646; 2147483647");
        QCOMPARE(take.world.Joined("SELECT seq FROM sqlite_sequence WHERE name='Paragraph'"),
                 "2147483647");
        ParagraphSet->AddNew();
        QCOMPARE(ParagraphSet->Number(u"Id"), 2147483643);
    }

    // Whatever the user called them, in the table of pictures and in a table of their own.
    void TakesOwnFieldsAndTables()
    {
        const ScriptedDialogs dialogs;
        Taking take;
        QStringList fields{"FILE", "a\"b'c[d]`e", "CHECK (x)", "rowid", "sqlite_x",
                           "",     "É",           "file"};
        fields += {"DEFAULT (zeroblob(9))", QString(5000, u'n'), QString("x%1y").arg(QChar(0))};
        while (fields.size() < 300)
            fields += QString("own %1").arg(fields.size());
        QByteArrayList values;
        for (qsizetype i = 0; i < fields.size(); ++i)
            values += QByteArray::number(i);
        const QStringList tables{"SQLITE_own", "imageByFile", "table", "trigger \"'[", "AS", "%2"};
        QCOMPARE(take.Take("Image", fields, 0, {values}), 1);
        for (const QString& table : tables)
            QCOMPARE(take.Take(table, fields, 0, {values}, OldAlbumTable::Kind::OfUser), 1);
        const QStringList problems = take.report.Problems();
        QVERIFY(problems.contains("Table Image: the field file came over as _file."));

        SetAlbumPassword("secret");
        for (const QString& table : tables + QStringList("Image")) {
            const bool isRenamed = QStringList({"SQLITE_own", "imageByFile"}).contains(table);
            RecordSet set(AlbumDatabase, isRenamed ? u'_' + table : table);
            for (const QString& field :
                 QStringList{"FILE", "a\"b'c[d]`e", "É", "own 299", "_rowid"})
                QCOMPARE(set.Text(field),
                         QString::number(fields.indexOf(field.mid(field[0] == u'_'))));
        }
    }

    void ReportsFieldsAndValues()
    {
        Taking take;
        QCOMPARE(take.Take("LinkedImages", {"FILE", "Colour"}, 0,
                           {{"/a.jpg", "red"}, {"CUT/b.jp", "BAD"}, {"BAD", "red"}}),
                 3);
        QCOMPARE(take.world.Joined("SELECT ParagraphId,File,Colour FROM LinkedImages"),
                 "0|/a.jpg|red; 0|CUT/b.jp|NULL; 0|NULL|red");
        QCOMPARE(take.report.Problems(),
                 QStringList({"Table LinkedImages: the field ParagraphId is missing.",
                              "LinkedImages CUT/b.jp: the end of the field File cannot be read.",
                              "LinkedImages, row 3: the field File cannot be read.",
                              "Table LinkedImages, field Colour: values that cannot be read to "
                              "their end: 1."}));
        // A value above what an album can hold, and the row after it.
        take.Take("LinkedImages", {"File"}, 0, {{QByteArray(70'000'000, 'x')}, {"/after"}});
        QCOMPARE(take.report.Problems().last(), "LinkedImages, row 1: the new album refuses it.");
        QCOMPARE(take.world.Joined("SELECT File FROM LinkedImages"), "/after");
        // Folders are named once, and not all of very many.
        for (int i = 0; i < 30; ++i)
            take.report.AddPicturePath(QString("D:\\CD %1\\a.jpg").arg(i / 2));
        QCOMPARE(take.report.FolderHint().mid(2, 1), QStringList("D:\\CD 1\\"));
        QCOMPARE(take.report.FolderHint().last(), "and 5 more.");
    }
};

QTEST_GUILESS_MAIN(TestOldAlbumTable)
#include "test_old_album_table.moc"
