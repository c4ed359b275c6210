// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/ChapterChain.h"
#include "support/AlbumTest.h"

using namespace GeneralModule;

// Rows are written as Id, PreviousChapter, NextChapter and compared after every operation.
class TestChapterChain : public AlbumTest
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
        QVERIFY(MoveChapterUp("C"));
        QCOMPARE(Links(), QStringList({"1|0|3", "2|3|4", "3|1|2", "4|2|0"}));
        QVERIFY(MoveChapterUp("C"));
        QCOMPARE(Links(), QStringList({"1|3|2", "2|1|4", "3|0|1", "4|2|0"}));
        QVERIFY(!MoveChapterUp("C"));
        QVERIFY(MoveChapterDown("B"));
        QCOMPARE(Links(), QStringList({"1|3|4", "2|4|0", "3|0|1", "4|1|2"}));
        QVERIFY(!MoveChapterDown("B"));
        QVERIFY(MoveChapterDown("C"));
        QCOMPARE(Links(), QStringList({"1|0|3", "2|4|0", "3|1|4", "4|3|2"}));
        QCOMPARE(ChapterNames(), QStringList({"A", "C", "D", "B"}));
        QVERIFY(!MoveChapterUp("Nobody"));
    }

    void DeletesOnlyEmptyChapters()
    {
        AddFour();
        album_->AddParagraph(2, "text");
        QCOMPARE(DeleteChapter("B"), ChapterDeletion::HasParagraphs);
        QCOMPARE(DeleteChapter("C"), ChapterDeletion::Deleted);
        QCOMPARE(Links(), QStringList({"1|0|2", "2|1|4", "4|2|0"}));
        QCOMPARE(DeleteChapter("A"), ChapterDeletion::Deleted);
        QCOMPARE(DeleteChapter("D"), ChapterDeletion::Deleted);
        QCOMPARE(Links(), QStringList("2|0|0"));
        QCOMPARE(DeleteChapter("D"), ChapterDeletion::NotFound);
    }

    void FindsTheNameMeant()
    {
        // What signs of a pattern could be taken for stands first in the table.
        const QStringList others{"Janexs trip", "2001 all", "Summer 2", "X"};
        for (const QString& other : others)
            album_->AddChapter(other);
        for (const char* name :
             {"Jane's trip", "2001 *", "Summer [2001]", "Summer [2", "A \"b\" 'c'"}) {
            RenameChapter("X", name);
            QCOMPARE(FindChapter(name), std::optional(4));
            QCOMPARE(ChapterNames(), others.first(3) + QStringList(name));
            RenameChapter(name, "X");
            QCOMPARE(ChapterNames(), others);
        }
    }

    void ListEndsAtBrokenLinks()
    {
        AddFour();
        const QStringList sound = Links();
        const std::pair<const char*, QString> rows[] = {
            {"NextChapter=1 WHERE Id=3", "A B C"},        // a cycle
            {"NextChapter=2 WHERE Id=2", "A B"},          // to itself
            {"NextChapter=77 WHERE Id=2", "A B"},         // dangling
            {"PreviousChapter=2 WHERE Id=1", ""},         // no first chapter
            {"PreviousChapter=0 WHERE Id=3", "A B C D"}}; // two of them
        for (const auto& [damage, listed] : rows) {
            album_->Execute(QString("UPDATE Chapter SET ") + damage);
            QCOMPARE(ChapterNames().join(u' '), listed);
            album_->Execute("UPDATE Chapter SET PreviousChapter=Id-1, NextChapter=(Id+1)%5");
            QCOMPARE(Links(), sound);
        }
    }

    void NameRule()
    {
        for (const char* good : {"Abc", "1998 Summer", "Z"})
            QVERIFY2(IsChapterName(good), good);
        for (const char* bad : {"abc", " Abc", "École", "", "-", "(A)"})
            QVERIFY2(!IsChapterName(QString::fromUtf8(bad)), bad);
    }

private:
    QStringList Links() const
    {
        return album_->Rows("SELECT Id,PreviousChapter,NextChapter FROM Chapter ORDER BY Id");
    }
    void AddFour()
    {
        for (const char* name : {"A", "B", "C", "D"})
            album_->AddChapter(name);
    }
};

QTEST_GUILESS_MAIN(TestChapterChain)
#include "test_chapter_chain.moc"
