// SPDX-License-Identifier: MIT
#include "core/AlbumRepair.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "support/AlbumTest.h"
#include "support/Rows.h"

using namespace GeneralModule;

namespace {

// Two chapters with three and two paragraphs, texts "1" to "5".
void WriteStory(AlbumFixture& album)
{
    const qint32 one = album.AddChapter("One");
    const qint32 two = album.AddChapter("Two");
    for (int i = 1; i <= 5; ++i)
        album.AddParagraph(i <= 3 ? one : two, QString::number(i));
}

QStringList Everything(const AlbumFixture& album)
{
    return album.Rows("SELECT * FROM Paragraph") + album.Rows("SELECT * FROM Chapter");
}

} // namespace

// The chapters' chain, and the repair of all chains. Links are rows of Id, PreviousChapter,
// NextChapter.
class TestChains : public AlbumTest
{
    Q_OBJECT

private slots:
    void CreatesForwardOnly()
    {
        CreateChapter("First", {});
        QCOMPARE(album_->Joined("SELECT * FROM Chapter"), "1|0|0|0|First");
        CreateChapter("Third", "First");
        QCOMPARE(Links(), QStringList({"1|0|2", "2|1|0"}));
        // Put in the middle: the chapter that follows keeps its backward link.
        CreateChapter("Second", "First");
        QCOMPARE(Links(), QStringList({"1|0|3", "2|1|0", "3|1|2"}));
        QCOMPARE(ChapterNames(), QStringList({"First", "Second", "Third"}));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, CreateChapter("second", "Third"));
        QCOMPARE(Links(), QStringList({"1|0|3", "2|1|0", "3|1|2"}));
    }

    void MovesUpAndDown()
    {
        AddFour();
        for (const char* links : {"1|0|3; 2|3|4; 3|1|2; 4|2|0", "1|3|2; 2|1|4; 3|0|1; 4|2|0"}) {
            QVERIFY(MoveChapterUp("C"));
            QCOMPARE(Links().join("; "), links);
        }
        QVERIFY(!MoveChapterUp("C"));
        QVERIFY(MoveChapterDown("B"));
        QCOMPARE(Links(), QStringList({"1|3|4", "2|4|0", "3|0|1", "4|1|2"}));
        QVERIFY(!MoveChapterDown("B"));
        QVERIFY(MoveChapterDown("C"));
        QCOMPARE(Links(), QStringList({"1|0|3", "2|4|0", "3|1|4", "4|3|2"}));
        QCOMPARE(ChapterNames(), QStringList({"A", "C", "D", "B"}));
        QVERIFY(!MoveChapterUp("Nobody"));
        // A link to no chapter is carried along, and written to no other chapter.
        album_->Execute("UPDATE Chapter SET NextChapter=77 WHERE Id=4");
        QVERIFY(MoveChapterUp("D"));
        QCOMPARE(Links(), QStringList({"1|0|4", "2|4|0", "3|4|77", "4|1|3"}));
        QCOMPARE(DeleteChapter("D"), ChapterDeletion::Deleted);
        QCOMPARE(Links(), QStringList({"1|0|3", "2|4|0", "3|1|77"}));
    }

    // Also where a chapter was put between two others and the one after it leads back past it.
    void MovesByManyPlacesAsByManyMoves()
    {
        AddFour();
        CreateChapter("E", "B");
        const QStringList before = Links();
        for (const QString& name : ChapterNames()) {
            for (const int places : {-9, -2, 1, 3}) {
                bool isMoved = false;
                for (int i = 0; i < std::abs(places); ++i)
                    isMoved |= places > 0 ? MoveChapterDown(name) : MoveChapterUp(name);
                const QStringList expected = Links();
                PutBack(before);
                QCOMPARE(MoveChapterBy(name, places), isMoved);
                QCOMPARE(Links(), expected);
                PutBack(before);
            }
        }
        QVERIFY(!MoveChapterBy("Nobody", 1));
    }

    void ListsChaptersWithoutAName()
    {
        AddFour();
        album_->Execute("UPDATE Chapter SET Name=NULL WHERE Id=1");
        album_->Execute("UPDATE Chapter SET Name=x'00FF' WHERE Id=4");
        QCOMPARE(ChapterNames().join(';'), "(no name);B;C;(no name 2)");
        QVERIFY(RenameChapter(FindChapter("(no name 2)").value(), "Named"));
        QCOMPARE(ChapterNames().join(';'), "(no name);B;C;Named");
    }

    void FindsTheNameMeant()
    {
        // What signs of a pattern could be taken for stands first in the table.
        const QStringList others{"Janexs trip", "2001 all", "Summer 2", "X"};
        for (const QString& other : others)
            album_->AddChapter(other);
        for (const char* name :
             {"Jane's trip", "2001 *", "Summer [2001]", "Summer [2", "A \"b\" 'c'"}) {
            QVERIFY(RenameChapter(4, name));
            QCOMPARE(FindChapter(name), std::optional(4));
            QCOMPARE(ChapterNames(), others.first(3) + QStringList(name));
            QVERIFY(RenameChapter(4, "X"));
            QCOMPARE(ChapterNames(), others);
        }
    }

    void ListEndsAtBrokenLinks()
    {
        AddFour();
        const QStringList sound = Links();
        const std::pair<const char*, QString> rows[] = {
            {"NextChapter=1 WHERE Id=3", "A B C"}, // a cycle
            {"NextChapter=2 WHERE Id=2", "A B"},   // to itself
            {"NextChapter=77 WHERE Id=2", "A B"},  // dangling
            {"PreviousChapter=2 WHERE Id=1", ""}}; // no first chapter
        for (const auto& [damage, listed] : rows) {
            const InRow row(damage);
            album_->Execute(QString("UPDATE Chapter SET ") + damage);
            QCOMPARE(ChapterNames().join(u' '), listed);
            album_->Execute("UPDATE Chapter SET PreviousChapter=Id-1, NextChapter=(Id+1)%5");
            QCOMPARE(Links(), sound);
        }
    }

    void MendsWhatIsBroken_data()
    {
        const QString whole = "One:123 Two:45";
        AddRows<QString, QString>(
            {"damage", "story"},
            {{"no first chapter", "UPDATE Chapter SET PreviousChapter=2 WHERE Id=1", whole},
             {"chapter unreachable", "UPDATE Chapter SET NextChapter=0 WHERE Id=1", whole},
             {"dangling next", "UPDATE Paragraph SET NextParagraph=99 WHERE Id=1", whole},
             {"cycle", "UPDATE Paragraph SET NextParagraph=1 WHERE Id=3", whole},
             {"ring",
              "UPDATE Paragraph SET PreviousParagraph=2 WHERE Id=1; UPDATE Paragraph SET "
              "NextParagraph=1 WHERE Id=2",
              whole},
             {"put in but not linked back",
              "UPDATE Paragraph SET NextParagraph=3 WHERE Id=1; UPDATE Paragraph SET "
              "NextParagraph=0 "
              "WHERE Id=2; UPDATE Paragraph SET NextParagraph=2, PreviousParagraph=1 WHERE Id=3",
              "One:132 Two:45"},
             {"wrong first", "UPDATE Chapter SET FirstParagraph=2 WHERE Id=1", whole},
             {"no first paragraph", "UPDATE Chapter SET FirstParagraph=0", whole},
             {"wrong chapter", "UPDATE Paragraph SET Chapter=77 WHERE Id=2", whole},
             {"chapter lost",
              "DELETE FROM Chapter WHERE Id=1; UPDATE Chapter SET PreviousChapter=0",
              "Two:45 Found again:123"},
             {"no chapter at all", "DELETE FROM Chapter", "Found again:12345"},
             {"links of a wrong kind", "UPDATE Paragraph SET NextParagraph='x' WHERE Id=2",
              whole}});
    }

    void MendsWhatIsBroken()
    {
        QFETCH(QString, damage);
        WriteStory(*album_);
        const QStringList sound = Everything(*album_);
        const RepairReport nothing = RepairAlbum();
        QVERIFY(nothing.IsEmpty() && nothing.copy.isEmpty());
        QCOMPARE(Everything(*album_), sound);
        album_->Execute(damage);
        QCOMPARE(album_->Story(), "broken");
        const QStringList before = album_->Rows("SELECT Id,Text FROM Paragraph");
        const RepairReport report = RepairAlbum();
        QTEST(album_->Story(), "story");
        QCOMPARE(album_->Rows("SELECT Id,Text FROM Paragraph"), before);
        QVERIFY(!report.IsEmpty());
        QCOMPARE(report.copy, album_->PathOf("story (before repair).alb"));
        QVERIFY(QFileInfo(report.copy).size() > 0);
        QVERIFY(DescribeRepair(report).contains(report.copy));
        QVERIFY(RepairAlbum().IsEmpty()); // and once is enough
    }

    void RenumbersWhatIsOutOfRange()
    {
        WriteStory(*album_);
        album_->Execute(
            "UPDATE Chapter SET Id=-7 WHERE Id=2; UPDATE Chapter SET NextChapter=-7 WHERE Id=1;"
            "UPDATE Paragraph SET Chapter=-7 WHERE Chapter=2;"
            "UPDATE Paragraph SET Id=9223372036854775807 WHERE Id=2;"
            "UPDATE Paragraph SET NextParagraph=9223372036854775807 WHERE Id=1;"
            "UPDATE Paragraph SET PreviousParagraph=9223372036854775807 WHERE Id=3;"
            "UPDATE Paragraph SET Id=0 WHERE Id=5; UPDATE Paragraph SET NextParagraph=0 WHERE Id=4;"
            "UPDATE sqlite_sequence SET seq=9223372036854775807 WHERE name='Paragraph';"
            "INSERT INTO LinkedImages VALUES(9223372036854775807,'/2.jpg'),(0,'/0.jpg'),"
            "(8,'/8.jpg')");
        // The links of row 8, which is gone, must not become a new row's.
        ParagraphSet->AddNew();
        QCOMPARE(ParagraphSet->Number(u"Id"), 9);
        const RepairReport report = RepairAlbum();
        QCOMPARE(report.renumbered, 3);
        QVERIFY(DescribeRepair(report).contains("out of range: 3"));
        QCOMPARE(album_->Story(), "One:123 Two:45");
        QCOMPARE(album_->Joined("SELECT Id,Text FROM Paragraph"), "1|1; 3|3; 4|4; 9|5; 10|2");
        QCOMPARE(album_->Joined("SELECT * FROM LinkedImages"), "10|/2.jpg; 0|/0.jpg; 8|/8.jpg");
        QCOMPARE(album_->Joined("SELECT seq FROM sqlite_sequence WHERE name='Paragraph'"), "10");
        QVERIFY(RepairAlbum().IsEmpty());
    }

    // An album that cannot be read is not a broken one.
    void RepairChangesAllOrNothing()
    {
        WriteStory(*album_);
        album_->Execute("UPDATE Paragraph SET NextParagraph=0; UPDATE Chapter SET NextChapter=0");
        const QStringList broken = Everything(*album_);
        const QStringList files{"story.alb"};
        for (const int percent : {0, 50}) { // while the copy is written, while it is read back
            const auto goOn = [percent](int done) { return done < percent; };
            QVERIFY(RepairAlbum(goOn).isStopped);
            QCOMPARE(Everything(*album_), broken);
            QCOMPARE(QDir(album_->PathOf("")).entryList({"*.alb"}, QDir::Files), files);
        }
        bool hasFailed = true;
        int trials = 0;
        for (int steps = 0; hasFailed; ++steps, ++trials) {
            const FailingEngine failing(steps, steps % 2 == 0);
            const int error = ErrorOf([] { RepairAlbum(); });
            QVERIFY(failing.HasFailed() || error == 0);
            hasFailed = error != 0; // what fails after the repair does not concern it
            if (!hasFailed)
                break;
            QCOMPARE(Everything(*album_), broken);
            QCOMPARE(QDir(album_->PathOf("")).entryList({"*.alb"}, QDir::Files), files);
        }
        QVERIFY(trials > 10);
        QCOMPARE(album_->Story(), "One:123 Two:45");
    }

private:
    QStringList Links() const
    {
        return album_->Rows("SELECT Id,PreviousChapter,NextChapter FROM Chapter ORDER BY Id");
    }
    void PutBack(const QStringList& links)
    {
        QStringList rows;
        for (const QString& row : links)
            rows += QString("SELECT %1 i,%2 p,%3 n")
                        .arg(row.section('|', 0, 0), row.section('|', 1, 1), row.section('|', 2));
        const QString from = QString("FROM (%1) WHERE i=Id").arg(rows.join(" UNION "));
        album_->Execute("UPDATE Chapter SET PreviousChapter=(SELECT p " + from +
                        "),NextChapter=(SELECT n " + from + ")");
    }
    void AddFour()
    {
        for (const char* name : {"A", "B", "C", "D"})
            album_->AddChapter(name);
    }
};

QTEST_GUILESS_MAIN(TestChains)
#include "test_chains.moc"
