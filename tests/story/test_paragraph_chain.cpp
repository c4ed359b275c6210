// SPDX-License-Identifier: MIT
// The rows of the album after each step of writing: save, create, delete, and the four ways to go.
#include "core/Album.h"
#include "story/ParagraphChain.h"
#include "story/ParagraphLinks.h"
#include "support/AlbumFixture.h"

#include <QtTest>

namespace {

const QString chainSql = QStringLiteral(
    "SELECT Id,Chapter,PreviousParagraph,NextParagraph,Text FROM Paragraph ORDER BY Id");
const QString headSql = QStringLiteral("SELECT FirstParagraph FROM Chapter");

ParagraphContent Content(const QString& text, const QString& firstValue = anyValue)
{
    ParagraphContent content;
    content.text = text;
    content.values.fill(anyValue);
    content.values[0] = firstValue;
    return content;
}

} // namespace

class TestParagraphChain : public QObject
{
    Q_OBJECT

private slots:
    void FirstParagraphOfAChapter()
    {
        AlbumFixture album;
        ParagraphPlace place{album.AddChapter("One"), 0};
        CreateFirstParagraph(place);
        QCOMPARE(place, (ParagraphPlace{1, 1}));
        QCOMPARE(album.Rows("SELECT * FROM Paragraph"),
                 QStringList("1|1|0|0||*|*|*|*|*|*|*|*|*|*|*|*|"));
        QCOMPARE(album.Rows(headSql), QStringList("1"));

        ParagraphPlace nowhere{99, 0};
        CreateFirstParagraph(nowhere);
        QCOMPARE(nowhere.paragraph, 0);
        QCOMPARE(album.Rows(chainSql).size(), 1);
    }

    void SaveWritesAndRepairsNeighbours()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        for (const char* text : {"a", "b", "c"})
            album.AddParagraph(chapter, text);
        // Neighbours that do not lead to the second one, and a chapter that does not lead to the
        // first.
        album.Execute("UPDATE Paragraph SET NextParagraph=3 WHERE Id=1");
        album.Execute("UPDATE Paragraph SET PreviousParagraph=1, Chapter=7 WHERE Id=3");
        album.Execute("UPDATE Paragraph SET Chapter=9 WHERE Id=2");
        album.Execute("UPDATE Chapter SET FirstParagraph=3");
        SaveParagraph({chapter, 2}, Content("B", "Anna;Paul"));
        QCOMPARE(album.Rows(chainSql), QStringList({"1|1|0|2|a", "2|1|1|3|B", "3|7|2|0|c"}));
        QCOMPARE(album.Rows("SELECT Car0,Car11 FROM Paragraph WHERE Id=2"),
                 QStringList("Anna;Paul|*"));
        QCOMPARE(album.Rows(headSql), QStringList("3"));
        SaveParagraph({chapter, 1}, Content("A"));
        QCOMPARE(album.Rows(headSql), QStringList("1"));
    }

    void SavingWhatIsThereWritesNothing()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        album.AddParagraph(chapter, "a");
        album.AddParagraph(chapter, "b");
        const int changes = GeneralModule::AlbumDatabase->ChangeCount();
        SaveParagraph({chapter, 1}, LoadParagraph(1));
        QCOMPARE(GeneralModule::AlbumDatabase->ChangeCount(), changes);
    }

    void ABrokenFilterIsNeverStored()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        album.AddParagraph(chapter, "a");
        SaveParagraph({chapter, 1}, Content("a", "!"));
        QCOMPARE(album.Rows("SELECT Car0 FROM Paragraph"), QStringList("*"));
    }

    void CreateNextRelinksLazilyAndInheritsWhatIsStored()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        album.AddParagraph(chapter, "a", {{"Car0", "Stored"}, {"Car7", "x;y"}});
        album.AddParagraph(chapter, "b");
        ParagraphPlace place{chapter, 1};
        CreateNextParagraph(place, Content("A", "Unsaved"));
        QCOMPARE(place, (ParagraphPlace{chapter, 3}));
        // The old neighbours still lead to each other.
        QCOMPARE(album.Rows(chainSql), QStringList({"1|1|0|2|A", "2|1|1|0|b", "3|1|1|2|"}));
        QCOMPARE(album.Rows("SELECT Car0,Car7 FROM Paragraph ORDER BY Id"),
                 QStringList({"Unsaved|*", "*|*", "Stored|x;y"}));
        SaveAndStep(place, Content("new"), ChainStep::Next);
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Rows(chainSql), QStringList({"1|1|0|3|A", "2|1|3|0|b", "3|1|1|2|new"}));

        CreateNextParagraph(place, Content("b"));
        QCOMPARE(album.Rows("SELECT PreviousParagraph,NextParagraph FROM Paragraph WHERE Id>3"),
                 QStringList("2|0"));
        SaveParagraph(place, Content("end"));
        QCOMPARE(album.Rows("SELECT NextParagraph FROM Paragraph WHERE Id=2"), QStringList("4"));
    }

    void Delete()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        for (const char* text : {"a", "b", "c"})
            album.AddParagraph(chapter, text);
        album.Link(1, "/p.jpg");
        ParagraphPlace place{chapter, 1};
        DeleteParagraph(place, Content("a"));
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Rows(chainSql), QStringList({"2|1|0|3|b", "3|1|2|0|c"}));
        QCOMPARE(album.Rows(headSql), QStringList("2"));
        QCOMPARE(album.Rows("SELECT * FROM LinkedImages"), QStringList("1|/p.jpg"));

        place.paragraph = 3;
        DeleteParagraph(place, Content("c"));
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Rows(chainSql), QStringList("2|1|0|0|b"));
        DeleteParagraph(place, Content("b"));
        QCOMPARE(place, (ParagraphPlace{chapter, 0}));
        QCOMPARE(album.Rows(headSql), QStringList("0"));

        // An identifier that links still name is not given again.
        CreateFirstParagraph(place);
        QCOMPARE(place.paragraph, 4);
    }

    void DeleteInTheMiddleOfAnUnsavedInsertion()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        album.AddParagraph(chapter, "a");
        album.AddParagraph(chapter, "b");
        ParagraphPlace place{chapter, 1};
        CreateNextParagraph(place, Content("a"));
        DeleteParagraph(place, Content("gone"));
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Rows(chainSql), QStringList({"1|1|0|2|a", "2|1|1|0|b"}));
    }

    void StepsSaveFirst_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("to");
        QTest::newRow("first") << 3 << int(ChainStep::First) << 1;
        QTest::newRow("previous") << 3 << int(ChainStep::Previous) << 2;
        QTest::newRow("previous of the first") << 1 << int(ChainStep::Previous) << 1;
        QTest::newRow("next") << 1 << int(ChainStep::Next) << 2;
        QTest::newRow("next of the last") << 4 << int(ChainStep::Next) << 4;
        QTest::newRow("last") << 2 << int(ChainStep::Last) << 4;
    }

    void StepsSaveFirst()
    {
        QFETCH(int, from);
        QFETCH(int, step);
        QFETCH(int, to);
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        for (const char* text : {"a", "b", "c", "d"})
            album.AddParagraph(chapter, text);
        ParagraphPlace place{chapter, from};
        SaveAndStep(place, Content("typed"), ChainStep(step));
        QCOMPARE(place, (ParagraphPlace{chapter, to}));
        QCOMPARE(album.Rows(QStringLiteral("SELECT Text FROM Paragraph WHERE Id=%1").arg(from)),
                 QStringList("typed"));
        QCOMPARE(album.Rows("SELECT count(*) FROM Paragraph WHERE Text='typed'"), QStringList("1"));
    }

    void BrokenLinksEndAWalk()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        for (const char* text : {"a", "b", "c"})
            album.AddParagraph(chapter, text);
        album.Execute("UPDATE Paragraph SET NextParagraph=1 WHERE Id=3");
        album.Execute("UPDATE Paragraph SET PreviousParagraph=77 WHERE Id=1");
        QCOMPARE(WalkParagraphs(2, u"NextParagraph"), (std::vector<qint32>{2, 3, 1}));
        QCOMPARE(WalkParagraphs(3, u"PreviousParagraph"), (std::vector<qint32>{3, 2, 1}));
        ParagraphPlace place{chapter, 1};
        SaveAndStep(place, Content("a"), ChainStep::Previous);
        QCOMPARE(place.paragraph, 1);
        // The neighbour that is not there is not looked for elsewhere.
        QCOMPARE(album.Rows(chainSql), QStringList({"1|1|77|2|a", "2|1|1|3|b", "3|1|2|1|c"}));

        album.Execute("UPDATE Paragraph SET NextParagraph=55 WHERE Id=3");
        place.paragraph = 3;
        DeleteParagraph(place, Content("c"));
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Rows(chainSql), QStringList({"1|1|77|2|a", "2|1|1|0|b"}));
        place.paragraph = 1;
        DeleteParagraph(place, Content("a"));
        QCOMPARE(album.Rows(headSql), QStringList("2"));
    }

    void AParagraphThatIsGoneIsReported()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        album.AddParagraph(chapter, "a");
        QVERIFY_THROWS_EXCEPTION(DatabaseError, SaveParagraph({chapter, 5}, Content("b")));
        QCOMPARE(album.Rows(chainSql), QStringList("1|1|0|0|a"));
        SaveParagraph({chapter, 0}, Content("b"));
        QCOMPARE(album.Rows(chainSql), QStringList("1|1|0|0|a"));
    }

    void PicturesAreLinkedOnce()
    {
        AlbumFixture album;
        SetLinked(4, "/it's.jpg", true);
        SetLinked(4, "/it's.jpg", true);
        SetLinked(5, "/it's.jpg", true);
        album.Link(4, "/it's.jpg");
        QCOMPARE(album.Rows("SELECT ParagraphId FROM LinkedImages ORDER BY rowid"),
                 QStringList({"4", "5", "4"}));
        QVERIFY(IsLinked(4, "/it's.jpg"));
        SetLinked(4, "/it's.jpg", false);
        SetLinked(4, "/it's.jpg", false);
        QVERIFY(!IsLinked(4, "/it's.jpg"));
        QCOMPARE(album.Rows("SELECT * FROM LinkedImages"), QStringList("5|/it's.jpg"));
    }
};

QTEST_GUILESS_MAIN(TestParagraphChain)
#include "test_paragraph_chain.moc"
