// SPDX-License-Identifier: MIT
#include "core/AlbumChains.h"
#include "core/AlbumSets.h"
#include "story/ParagraphChain.h"
#include "story/ParagraphMoves.h"
#include "support/AlbumFixture.h"

#include <QtTest>

#include <atomic>
#include <thread>

namespace {

const QString chainSql =
    QString("SELECT Id,Chapter,PreviousParagraph,NextParagraph,Text FROM Paragraph ORDER BY Id");
const QString headSql = QString("SELECT FirstParagraph FROM Chapter");

// One chapter with a paragraph of each text; the place is the first.
class OneChapter : public AlbumFixture
{
public:
    explicit OneChapter(const QStringList& texts)
    {
        AddChapter("One");
        for (const QString& text : texts)
            AddParagraph(1, text);
    }

    ParagraphPlace place{1, 1};
};

ParagraphContent Content(const QString& text, const QString& firstValue = anyValue)
{
    ParagraphContent content;
    content.text = text;
    content.values.fill(anyValue);
    content.values[0] = firstValue;
    return content;
}

// As a person edits it who sees what is stored.
ParagraphDraft Edited(const ParagraphPlace& place, const QString& text,
                      const QString& firstValue = anyValue)
{
    const bool isThere = GeneralModule::FindById(*GeneralModule::ParagraphSet, place.paragraph);
    return {isThere ? LoadParagraph(place.paragraph) : ParagraphContent(),
            Content(text, firstValue)};
}

} // namespace

// Rows of the album after each step of writing: save, create, delete, go on, and move.
class TestParagraphChain : public QObject
{
    Q_OBJECT

private slots:
    void FirstParagraphOfAChapter()
    {
        OneChapter album({});
        ParagraphPlace nowhere{99, 0};
        CreateFirstParagraph(nowhere);
        QCOMPARE(nowhere.paragraph, 0);
        ParagraphPlace place{1, 0};
        CreateFirstParagraph(place);
        QCOMPARE(place, (ParagraphPlace{1, 1}));
        QCOMPARE(album.Joined("SELECT * FROM Paragraph"), "1|1|0|0||*|*|*|*|*|*|*|*|*|*|*|*|");
        QCOMPARE(album.Joined(headSql), "1");
    }

    void SaveWritesAndRepairsNeighbours()
    {
        OneChapter album({"a", "b", "c"});
        // Neighbours that do not lead to the second one, and a chapter that does not lead to the
        // first.
        album.Execute("UPDATE Paragraph SET NextParagraph=3 WHERE Id=1");
        album.Execute("UPDATE Paragraph SET PreviousParagraph=1, Chapter=7 WHERE Id=3");
        album.Execute("UPDATE Paragraph SET Chapter=9 WHERE Id=2");
        album.Execute("UPDATE Chapter SET FirstParagraph=3");
        SaveParagraph({1, 2}, Edited({1, 2}, "B", "Anna;Paul"));
        QCOMPARE(album.Joined(chainSql), "1|1|0|2|a; 2|1|1|3|B; 3|7|2|0|c");
        QCOMPARE(album.Rows("SELECT Car0,Car11 FROM Paragraph WHERE Id=2"),
                 QStringList("Anna;Paul|*"));
        QCOMPARE(album.Joined(headSql), "3");
        SaveParagraph({1, 1}, Edited({1, 1}, "A"));
        QCOMPARE(album.Joined(headSql), "1");
    }

    void CreateNextRelinksLazilyAndInheritsWhatIsStored()
    {
        OneChapter album({"a", "b"});
        album.Execute("UPDATE Paragraph SET Car0='Stored',Car7='x;y' WHERE Id=1");
        ParagraphPlace& place = album.place;
        CreateNextParagraph(place, Edited(place, "A", "Unsaved"));
        QCOMPARE(place, (ParagraphPlace{1, 3}));
        // The old neighbours still lead to each other.
        QCOMPARE(album.Joined(chainSql), "1|1|0|2|A; 2|1|1|0|b; 3|1|1|2|");
        QCOMPARE(album.Rows("SELECT Car0,Car7 FROM Paragraph ORDER BY Id"),
                 QStringList({"Unsaved|*", "*|*", "Stored|x;y"}));
        SaveAndStep(place, Edited(place, "new"), ChainStep::Next);
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Joined(chainSql), "1|1|0|3|A; 2|1|3|0|b; 3|1|1|2|new");

        CreateNextParagraph(place, Edited(place, "b"));
        QCOMPARE(album.Joined("SELECT PreviousParagraph,NextParagraph FROM Paragraph WHERE Id>3"),
                 "2|0");
        SaveParagraph(place, Edited(place, "end"));
        QCOMPARE(album.Joined("SELECT NextParagraph FROM Paragraph WHERE Id=2"), "4");
    }

    // Both windows open the same paragraph, each makes one after it, and saves it later.
    void TwoWindowsLoseNoParagraph()
    {
        for (const QStringList& texts : {QStringList{"a"}, QStringList{"a", "b"}}) {
            OneChapter album(texts);
            ParagraphPlace other = album.place;
            CreateNextParagraph(album.place, Edited(album.place, "a"));
            CreateNextParagraph(other, Edited(other, "a"));
            QVERIFY(other != album.place);
            SaveParagraph(album.place, Edited(album.place, "x"));
            SaveParagraph(other, Edited(other, "y"));
            QCOMPARE(album.Story(), texts.size() == 1 ? "One:ayx" : "One:ayxb");
        }
        OneChapter empty({});
        ParagraphPlace first{1, 0};
        ParagraphPlace second{1, 0};
        CreateFirstParagraph(first);
        CreateFirstParagraph(second);
        QCOMPARE(second, first);
        for (const ParagraphDraft& stale : {ParagraphDraft{Content("before"), Content("mine")},
                                            ParagraphDraft{Content("", "a"), Content("", "b")}})
            QCOMPARE(ErrorOf([&] { SaveParagraph(first, stale); }),
                     int(DatabaseError::ChangedMeanwhile));
        SaveParagraph(first, {Content("before"), Content("")}); // both windows wrote the same
    }

    // chain_fuzz deletes at all places of whole chains.
    void Delete()
    {
        OneChapter album({"a", "b"});
        album.Link(1, "/p.jpg");
        ParagraphPlace& place = album.place;
        CreateNextParagraph(place, Edited(place, "a")); // goes before its neighbours lead to it
        DeleteParagraph(place);
        QCOMPARE(album.Joined(chainSql), "1|1|0|2|a; 2|1|1|0|b");
        for (const qint32 paragraph : {2, 1}) {
            QCOMPARE(place.paragraph, paragraph);
            DeleteParagraph(place);
        }
        QCOMPARE(place, (ParagraphPlace{1, 0}));
        QCOMPARE(album.Joined("SELECT * FROM LinkedImages"), "1|/p.jpg");
        // An identifier that links still name is not given again.
        CreateFirstParagraph(place);
        QCOMPARE(place.paragraph, 4);
    }

    void WhatSavingRefuses()
    {
        OneChapter story({"a"});
        const auto& database = GeneralModule::AlbumDatabase;
        const int changes = database->ChangeCount();
        SaveParagraph(story.place, {LoadParagraph(1), LoadParagraph(1)});
        QCOMPARE(database->ChangeCount(), changes); // what is there is not written again
        SaveParagraph(story.place, Edited(story.place, "a", "!"));
        QCOMPARE(story.Joined("SELECT Car0 FROM Paragraph"), "*");
        QVERIFY_THROWS_EXCEPTION(DatabaseError, SaveParagraph({1, 5}, Edited({1, 5}, "b")));
        SaveParagraph({1, 0}, Edited({1, 0}, "b"));
        QCOMPARE(story.Joined(chainSql), "1|1|0|0|a");
    }

    void BrokenLinksEndAWalk()
    {
        OneChapter album({"a", "b", "c"});
        album.Execute("UPDATE Paragraph SET NextParagraph=1 WHERE Id=3");
        album.Execute("UPDATE Paragraph SET PreviousParagraph=77 WHERE Id=1");
        using GeneralModule::ChainDirection;
        const GeneralModule::Chain chain = GeneralModule::ChainOfParagraphs();
        QCOMPARE(chain.Rows(2, ChainDirection::Next), (std::vector<qint32>{2, 3, 1}));
        QCOMPARE(chain.Rows(3, ChainDirection::Previous), (std::vector<qint32>{3, 2, 1}));
        ParagraphPlace& place = album.place;
        SaveAndStep(place, Edited(place, "a"), ChainStep::Previous);
        QCOMPARE(place.paragraph, 1);
        // The neighbour that is not there is not looked for elsewhere.
        QCOMPARE(album.Joined(chainSql), "1|1|77|2|a; 2|1|1|3|b; 3|1|2|1|c");
        // A stray one goes without taking the chapter's head.
        album.Execute("INSERT INTO Paragraph (Id,Chapter,PreviousParagraph) VALUES (9,1,77)");
        for (const qint32 paragraph : {9, 1}) {
            place.paragraph = paragraph;
            DeleteParagraph(place);
            QCOMPARE(album.Joined(headSql), paragraph == 9 ? "1" : "2");
        }
    }

    void ALinkToItselfMovesNowhere()
    {
        OneChapter album({"a", "b"});
        album.Execute("UPDATE Paragraph SET NextParagraph=2 WHERE Id=2");
        album.place.paragraph = 2;
        QVERIFY(MoveParagraphUp(album.place));
        QCOMPARE(album.Joined(chainSql), "1|1|2|0|a; 2|1|0|1|b");
    }

    void MovesByManyRows()
    {
        OneChapter album({"a", "b", "c", "d"});
        album.AddChapter("Two");
        const std::pair<int, const char*> moves[] = {{3, "One:bcda Two:"},
                                                     {-2, "One:bacd Two:"},
                                                     {-9, "One:abcd Two:"},
                                                     {4, "One:bcd Two:a"}};
        for (const auto& [rows, story] : moves) {
            QVERIFY(MoveParagraphBy(album.place, rows));
            QCOMPARE(album.Story(), story);
        }
        QCOMPARE(album.place.chapter, 2);
        QVERIFY(!MoveParagraphBy(album.place, 1));
    }

    // How whole ones move is for chain_fuzz to see.
    void MovesAcrossBrokenLinks()
    {
        OneChapter album({"a", "b", "c"});
        album.AddChapter("Two");
        album.AddChapter("Three");
        album.AddParagraph(2, "d");
        album.AddParagraph(2, "e");
        album.Execute("UPDATE Paragraph SET NextParagraph=1 WHERE Id=3"); // a cycle
        ParagraphPlace place{2, 4};
        QVERIFY(MoveParagraphUp(place));
        QCOMPARE(album.Story(), "One:abcd Two:e Three:");
        QVERIFY(MoveParagraphDown(place));
        QCOMPARE(album.Story(), "One:abc Two:de Three:");
        album.Execute("UPDATE Chapter SET FirstParagraph=88 WHERE Id=3"); // whose head is gone
        for (int i = 0; i < 2; ++i)
            QVERIFY(MoveParagraphDown(place));
        QCOMPARE(album.Story(), "One:abc Two:e Three:d");
    }

    // A lock that is still held when the other program wants to commit would let neither go on.
    void WaitsForAProgramThatWrites()
    {
        OneChapter album({"a"});
        std::atomic<bool> isWriting = false;
        std::thread other([&] {
            const auto database = Database::Open(album.GetAlbum());
            database->Execute("BEGIN IMMEDIATE");
            database->Execute("INSERT INTO Params VALUES ('Other','1')");
            isWriting = true;
            std::this_thread::sleep_for(std::chrono::milliseconds(150)); // now this one waits
            database->Execute("COMMIT");
        });
        while (!isWriting)
            std::this_thread::yield();
        const int error =
            ErrorOf([&] { SaveParagraph(album.place, Edited(album.place, "saved")); });
        other.join();
        QCOMPARE(error, 0);
        QCOMPARE(LoadParagraph(1).text, "saved");
    }
};

QTEST_GUILESS_MAIN(TestParagraphChain)
#include "test_paragraph_chain.moc"
