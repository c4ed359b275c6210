// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "story/ParagraphChain.h"
#include "story/ParagraphMoves.h"
#include "support/AlbumFixture.h"

#include <QtTest>

namespace {

const QString chainSql =
    QString("SELECT Id,Chapter,PreviousParagraph,NextParagraph,Text FROM Paragraph ORDER BY Id");
const QString headSql = QString("SELECT FirstParagraph FROM Chapter");

// One chapter with a paragraph of each text; the place is the first.
class Story : public AlbumFixture
{
public:
    explicit Story(const QStringList& texts)
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

// Three chapters: 1 with paragraphs 1 2 3, 2 with 4, 3 with none.
class ThreeChapters : public AlbumFixture
{
public:
    ThreeChapters()
    {
        for (const char* name : {"One", "Two", "Three"})
            AddChapter(name);
        for (const char* text : {"a", "b", "c"})
            AddParagraph(1, text);
        AddParagraph(2, "d");
    }

    // Both directions of every chapter: "1: 1 2 3 | 3 2 1".
    QStringList Chains() const
    {
        QStringList chains;
        for (const QString& row : Rows("SELECT Id,FirstParagraph FROM Chapter ORDER BY Id")) {
            const QString chapter = row.section(u'|', 0, 0);
            QStringList forward;
            QStringList owners; // other than this chapter
            for (QString id = row.section(u'|', 1, 1); id != "0"; id = Field(id, "NextParagraph")) {
                forward += id;
                owners += Field(id, "Chapter");
            }
            owners.removeAll(chapter);
            QStringList backward;
            for (QString id = forward.isEmpty() ? "0" : forward.last(); id != "0";
                 id = Field(id, "PreviousParagraph"))
                backward += id;
            chains += chapter + ": " + forward.join(u' ') + " | " + backward.join(u' ') +
                      owners.join(u'?');
        }
        return chains;
    }

private:
    QString Field(const QString& id, const QString& field) const
    {
        return Rows("SELECT " + field + " FROM Paragraph WHERE Id=" + id).value(0, "0");
    }
};

} // namespace

// Rows of the album after each step of writing: save, create, delete, go on, and move.
class TestParagraphChain : public QObject
{
    Q_OBJECT

private slots:
    void FirstParagraphOfAChapter()
    {
        Story album({});
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
        Story album({"a", "b", "c"});
        // Neighbours that do not lead to the second one, and a chapter that does not lead to the
        // first.
        album.Execute("UPDATE Paragraph SET NextParagraph=3 WHERE Id=1");
        album.Execute("UPDATE Paragraph SET PreviousParagraph=1, Chapter=7 WHERE Id=3");
        album.Execute("UPDATE Paragraph SET Chapter=9 WHERE Id=2");
        album.Execute("UPDATE Chapter SET FirstParagraph=3");
        SaveParagraph({1, 2}, Content("B", "Anna;Paul"));
        QCOMPARE(album.Joined(chainSql), "1|1|0|2|a; 2|1|1|3|B; 3|7|2|0|c");
        QCOMPARE(album.Rows("SELECT Car0,Car11 FROM Paragraph WHERE Id=2"),
                 QStringList("Anna;Paul|*"));
        QCOMPARE(album.Joined(headSql), "3");
        SaveParagraph({1, 1}, Content("A"));
        QCOMPARE(album.Joined(headSql), "1");
    }

    void CreateNextRelinksLazilyAndInheritsWhatIsStored()
    {
        Story album({"a", "b"});
        album.Execute("UPDATE Paragraph SET Car0='Stored',Car7='x;y' WHERE Id=1");
        ParagraphPlace& place = album.place;
        CreateNextParagraph(place, Content("A", "Unsaved"));
        QCOMPARE(place, (ParagraphPlace{1, 3}));
        // The old neighbours still lead to each other.
        QCOMPARE(album.Joined(chainSql), "1|1|0|2|A; 2|1|1|0|b; 3|1|1|2|");
        QCOMPARE(album.Rows("SELECT Car0,Car7 FROM Paragraph ORDER BY Id"),
                 QStringList({"Unsaved|*", "*|*", "Stored|x;y"}));
        SaveAndStep(place, Content("new"), ChainStep::Next);
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Joined(chainSql), "1|1|0|3|A; 2|1|3|0|b; 3|1|1|2|new");

        CreateNextParagraph(place, Content("b"));
        QCOMPARE(album.Joined("SELECT PreviousParagraph,NextParagraph FROM Paragraph WHERE Id>3"),
                 "2|0");
        SaveParagraph(place, Content("end"));
        QCOMPARE(album.Joined("SELECT NextParagraph FROM Paragraph WHERE Id=2"), "4");
    }

    void Delete()
    {
        Story album({"a", "b", "c"});
        album.Link(1, "/p.jpg");
        ParagraphPlace& place = album.place;
        CreateNextParagraph(place, Content("a")); // goes before its neighbours lead to it
        DeleteParagraph(place, Content("gone"));
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Joined(chainSql), "1|1|0|2|a; 2|1|1|3|b; 3|1|2|0|c");
        place.paragraph = 1;
        DeleteParagraph(place, Content("a"));
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Joined(chainSql), "2|1|0|3|b; 3|1|2|0|c");
        QCOMPARE(album.Joined(headSql), "2");
        QCOMPARE(album.Joined("SELECT * FROM LinkedImages"), "1|/p.jpg");

        place.paragraph = 3;
        DeleteParagraph(place, Content("c"));
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Joined(chainSql), "2|1|0|0|b");
        DeleteParagraph(place, Content("b"));
        QCOMPARE(place, (ParagraphPlace{1, 0}));
        QCOMPARE(album.Joined(headSql), "0");

        // An identifier that links still name is not given again.
        CreateFirstParagraph(place);
        QCOMPARE(place.paragraph, 5);
    }

    void StepsSaveFirst()
    {
        const std::tuple<int, ChainStep, int> steps[] = {
            {3, ChainStep::First, 1}, {3, ChainStep::Previous, 2}, {1, ChainStep::Previous, 1},
            {1, ChainStep::Next, 2},  {4, ChainStep::Next, 4},     {2, ChainStep::Last, 4}};
        for (const auto& [from, step, to] : steps) {
            Story story({"a", "b", "c", "d"});
            story.place.paragraph = from;
            SaveAndStep(story.place, Content("typed"), step);
            QCOMPARE(story.place, (ParagraphPlace{1, to}));
            QCOMPARE(story.Rows("SELECT Id FROM Paragraph WHERE Text='typed'"),
                     QStringList(QString::number(from)));
        }
    }

    void WhatSavingRefuses()
    {
        Story story({"a"});
        const auto& database = GeneralModule::AlbumDatabase;
        const int changes = database->ChangeCount();
        SaveParagraph(story.place, LoadParagraph(1));
        QCOMPARE(database->ChangeCount(), changes); // what is there is not written again
        SaveParagraph(story.place, Content("a", "!"));
        QCOMPARE(story.Joined("SELECT Car0 FROM Paragraph"), "*");
        QVERIFY_THROWS_EXCEPTION(DatabaseError, SaveParagraph({1, 5}, Content("b")));
        SaveParagraph({1, 0}, Content("b"));
        QCOMPARE(story.Joined(chainSql), "1|1|0|0|a");
    }

    void BrokenLinksEndAWalk()
    {
        Story album({"a", "b", "c"});
        album.Execute("UPDATE Paragraph SET NextParagraph=1 WHERE Id=3");
        album.Execute("UPDATE Paragraph SET PreviousParagraph=77 WHERE Id=1");
        QCOMPARE(WalkParagraphs(2, u"NextParagraph"), (std::vector<qint32>{2, 3, 1}));
        QCOMPARE(WalkParagraphs(3, u"PreviousParagraph"), (std::vector<qint32>{3, 2, 1}));
        ParagraphPlace& place = album.place;
        SaveAndStep(place, Content("a"), ChainStep::Previous);
        QCOMPARE(place.paragraph, 1);
        // The neighbour that is not there is not looked for elsewhere.
        QCOMPARE(album.Joined(chainSql), "1|1|77|2|a; 2|1|1|3|b; 3|1|2|1|c");

        album.Execute("UPDATE Paragraph SET NextParagraph=55 WHERE Id=3");
        place.paragraph = 3;
        DeleteParagraph(place, Content("c"));
        QCOMPARE(place.paragraph, 2);
        QCOMPARE(album.Joined(chainSql), "1|1|77|2|a; 2|1|1|0|b");
        place.paragraph = 1;
        DeleteParagraph(place, Content("a"));
        QCOMPARE(album.Joined(headSql), "2");
    }

    void Moves()
    {
        const QString one = "1: 1 2 3 | 3 2 1";
        const QString two = "2: 4 | 4";
        const QString three = "3:  | ";
        struct Row
        {
            ParagraphPlace from;
            bool down;
            int chapterAfter; // 0: nothing moves
            QStringList chains;
        };
        const Row rows[] = {{{1, 1}, true, 1, {"1: 2 1 3 | 3 1 2", two, three}},
                            {{1, 2}, true, 1, {"1: 1 3 2 | 2 3 1", two, three}},
                            {{1, 3}, true, 2, {"1: 1 2 | 2 1", "2: 3 4 | 4 3", three}},
                            {{2, 4}, true, 3, {one, "2:  | ", "3: 4 | 4"}},
                            {{1, 2}, false, 1, {"1: 2 1 3 | 3 1 2", two, three}},
                            {{1, 3}, false, 1, {"1: 1 3 2 | 2 3 1", two, three}},
                            {{2, 4}, false, 1, {"1: 1 2 3 4 | 4 3 2 1", "2:  | ", three}},
                            {{1, 1}, false, 0, {one, two, three}}};
        for (const auto& [from, down, chapterAfter, chains] : rows) {
            ThreeChapters story;
            ParagraphPlace place = from;
            const bool moves = chapterAfter > 0;
            QCOMPARE(down ? MoveParagraphDown(place) : MoveParagraphUp(place), moves);
            QCOMPARE(place, (ParagraphPlace{moves ? chapterAfter : from.chapter, from.paragraph}));
            QCOMPARE(story.Chains(), chains);
        }
        // There and back through all chapters.
        ThreeChapters story;
        ParagraphPlace place{1, 3};
        for (int i = 0; i < 3; ++i)
            QVERIFY(MoveParagraphDown(place));
        QCOMPARE(story.Chains(), QStringList({"1: 1 2 | 2 1", two, "3: 3 | 3"}));
        QVERIFY(!MoveParagraphDown(place)); // the last of the last chapter
        for (int i = 0; i < 3; ++i)
            QVERIFY(MoveParagraphUp(place));
        QCOMPARE(place, (ParagraphPlace{1, 3}));
        QCOMPARE(story.Chains(), QStringList({one, two, three}));
    }

    void BrokenLinks()
    {
        ThreeChapters story;
        // A cycle in the chapter before, and a next chapter whose head is gone.
        story.Execute("UPDATE Paragraph SET NextParagraph=1 WHERE Id=3");
        story.Execute("UPDATE Chapter SET FirstParagraph=88 WHERE Id=3");
        ParagraphPlace place{2, 4};
        QVERIFY(MoveParagraphUp(place));
        QCOMPARE(story.Chains().first(), QString("1: 1 2 3 4 | 4 3 2 1"));
        place = {1, 4};
        QVERIFY(MoveParagraphDown(place));
        QVERIFY(MoveParagraphDown(place));
        QCOMPARE(story.Chains().last(), QString("3: 4 | 4"));
    }
};

QTEST_GUILESS_MAIN(TestParagraphChain)
#include "test_paragraph_chain.moc"
