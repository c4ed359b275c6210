// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/ChapterChain.h"
#include "support/AlbumFixture.h"

#include <QtTest>

#include <memory>

using namespace GeneralModule;

// Rows are written as Id, PreviousChapter, NextChapter and compared after every operation.
class TestChapterChain : public QObject
{
    Q_OBJECT

private slots:
    void init() { album_ = std::make_unique<AlbumFixture>(); }
    void cleanup() { album_.reset(); }
    void CreatesForwardOnly();
    void MovesUpAndDown();
    void DeletesOnlyEmptyChapters();
    void RenamesInPlace();
    void FindsTheNameMeant_data();
    void FindsTheNameMeant();
    void ListEndsAtBrokenLinks_data();
    void ListEndsAtBrokenLinks();
    void NameRule();

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

    std::unique_ptr<AlbumFixture> album_;
};

void TestChapterChain::CreatesForwardOnly()
{
    CreateChapter("First", {});
    QCOMPARE(album_->Rows("SELECT * FROM Chapter"), QStringList("1|0|0|0|First"));
    CreateChapter("Third", "First");
    QCOMPARE(Links(), QStringList({"1|0|2", "2|1|0"}));
    // Put in the middle: the chapter that follows keeps its backward link.
    CreateChapter("Second", "First");
    QCOMPARE(Links(), QStringList({"1|0|3", "2|1|0", "3|1|2"}));
    QCOMPARE(ChapterNames(), QStringList({"First", "Second", "Third"}));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, CreateChapter("second", "Third"));
    QCOMPARE(Links(), QStringList({"1|0|3", "2|1|0", "3|1|2"}));
}

void TestChapterChain::MovesUpAndDown()
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

void TestChapterChain::DeletesOnlyEmptyChapters()
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

void TestChapterChain::RenamesInPlace()
{
    AddFour();
    RenameChapter("B", "Jane's trip");
    QCOMPARE(ChapterNames(), QStringList({"A", "Jane's trip", "C", "D"}));
    RenameChapter("Jane's trip", "B again");
    QCOMPARE(ChapterNames(), QStringList({"A", "B again", "C", "D"}));
    QCOMPARE(Links(), QStringList({"1|0|2", "2|1|3", "3|2|4", "4|3|0"}));
}

void TestChapterChain::FindsTheNameMeant_data()
{
    QTest::addColumn<QString>("other"); // stands first in the table
    QTest::addColumn<QString>("name");
    QTest::newRow("apostrophe is a wildcard") << "Janexs trip"
                                              << "Jane's trip";
    QTest::newRow("star in the name") << "2001 all"
                                      << "2001 *";
    QTest::newRow("list in the name") << "Summer 2"
                                      << "Summer [2001]";
    QTest::newRow("open bracket") << "Summer 2"
                                  << "Summer [2";
    QTest::newRow("quotes of both kinds") << "X"
                                          << "A \"b\" 'c'";
}

void TestChapterChain::FindsTheNameMeant()
{
    QFETCH(QString, other);
    QFETCH(QString, name);
    album_->AddChapter(other);
    const qint32 meant = album_->AddChapter(name);
    QCOMPARE(FindChapter(name), std::optional(meant));
    QCOMPARE(DeleteChapter(name), ChapterDeletion::Deleted);
    QCOMPARE(ChapterNames(), QStringList(other));
}

void TestChapterChain::ListEndsAtBrokenLinks_data()
{
    QTest::addColumn<QString>("damage");
    QTest::addColumn<QStringList>("listed");
    QTest::newRow("cycle") << "UPDATE Chapter SET NextChapter=1 WHERE Id=3"
                           << QStringList({"A", "B", "C"});
    QTest::newRow("link to itself")
        << "UPDATE Chapter SET NextChapter=2 WHERE Id=2" << QStringList({"A", "B"});
    QTest::newRow("dangling") << "UPDATE Chapter SET NextChapter=77 WHERE Id=2"
                              << QStringList({"A", "B"});
    QTest::newRow("no first chapter")
        << "UPDATE Chapter SET PreviousChapter=2 WHERE Id=1" << QStringList();
    QTest::newRow("two first chapters")
        << "UPDATE Chapter SET PreviousChapter=0 WHERE Id=3" << QStringList({"A", "B", "C", "D"});
}

void TestChapterChain::ListEndsAtBrokenLinks()
{
    QFETCH(QString, damage);
    QFETCH(QStringList, listed);
    AddFour();
    album_->Execute(damage);
    QCOMPARE(ChapterNames(), listed);
}

void TestChapterChain::NameRule()
{
    for (const char* good : {"Abc", "1998 Summer", "Z"})
        QVERIFY2(IsChapterName(good), good);
    for (const char* bad : {"abc", " Abc", "École", "", "-", "(A)"})
        QVERIFY2(!IsChapterName(QString::fromUtf8(bad)), bad);
}

QTEST_GUILESS_MAIN(TestChapterChain)
#include "test_chapter_chain.moc"
