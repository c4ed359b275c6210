// SPDX-License-Identifier: MIT
// Rows after moving paragraphs within a chapter and across its ends.
#include "story/ParagraphMoves.h"
#include "support/AlbumFixture.h"

#include <QtTest>

namespace {

// Three chapters: 1 with paragraphs 1 2 3, 2 with 4, 3 with none.
class Story : public AlbumFixture
{
public:
    Story()
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

class TestParagraphMoves : public QObject
{
    Q_OBJECT

private slots:
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
            Story story;
            ParagraphPlace place = from;
            const bool moves = chapterAfter > 0;
            QCOMPARE(down ? MoveParagraphDown(place) : MoveParagraphUp(place), moves);
            QCOMPARE(place, (ParagraphPlace{moves ? chapterAfter : from.chapter, from.paragraph}));
            QCOMPARE(story.Chains(), chains);
        }
        // There and back through all chapters.
        Story story;
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
        Story story;
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

QTEST_GUILESS_MAIN(TestParagraphMoves)
#include "test_paragraph_moves.moc"
