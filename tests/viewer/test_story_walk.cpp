// SPDX-License-Identifier: MIT
#include "support/AlbumFixture.h"
#include "viewer/StoryWalk.h"

#include <QtTest>

// The story: chapter 1 holds paragraphs 1 to 3, chapters 2 and 3 none, chapter 4 holds 4 and 5.
class TestStoryWalk : public QObject
{
    Q_OBJECT

private slots:
    void Steps()
    {
        const Row rows[] = {{"", next_, {1, 1}, "paragraph 1/2"},
                            {"", next_, {1, 3}, "chapter 4/4"}, // over empty ones
                            {"", next_, {4, 5}, "chapter 1/1"},
                            {"", next_, {2, 0}, "nothing 2/0"},
                            {"", previous_, {1, 2}, "paragraph 1/1"},
                            {"", previous_, {1, 1}, "paragraph 1/1"},
                            {"", previous_, {4, 4}, "chapter 3/0"}, // skips no empty one
                            {"", nextChapter_, {1, 2}, "chapter 2/0"},
                            {"", nextChapter_, {3, 0}, "chapter 4/4"},
                            {"", nextChapter_, {4, 4}, "paragraph 4/5"},
                            {"", top_, {1, 3}, "paragraph 1/1"},
                            {"", top_, {4, 4}, "chapter 3/0"},
                            {"", top_, {2, 0}, "chapter 1/1"},
                            {"", top_, {1, 1}, "nothing 1/1"}};
        for (const Row& row : rows)
            Check(row);
    }

    void BrokenLinksEndTheWalk()
    {
        const QString paragraph = "UPDATE Paragraph SET ";
        const QString chapter = "UPDATE Chapter SET ";
        const Row rows[] = {
            {paragraph + "NextParagraph=99 WHERE Id=2", next_, {1, 2}, "chapter 4/4"},
            {paragraph + "PreviousParagraph=99 WHERE Id=2", previous_, {1, 2}, "paragraph 1/1"},
            {paragraph + "NextParagraph=4 WHERE Id=5", nextChapter_, {4, 4}, "paragraph 4/5"},
            {paragraph + "PreviousParagraph=3 WHERE Id=1", top_, {1, 2}, "paragraph 1/3"},
            {chapter + "FirstParagraph=99 WHERE Id=4", next_, {1, 3}, "chapter 1/1"},
            {chapter + "NextChapter=99 WHERE Id=1", next_, {1, 3}, "chapter 1/1"},
            // Round and round past chapters without a paragraph.
            {chapter + "NextChapter=2 WHERE Id=3", next_, {1, 3}, "nothing 1/3"},
            {chapter + "FirstParagraph=0", next_, {4, 5}, "nothing 4/5"},
            {chapter + "FirstParagraph=0", GoToFirst, {1, 3}, "nothing 1/0"},
            {"DELETE FROM Paragraph WHERE Id=2", next_, {1, 2}, "nothing 1/2"},
            {"DELETE FROM Chapter", next_, {1, 3}, "close 1/3"}};
        for (const Row& row : rows)
            Check(row);
    }

private:
    using Walk = StoryStep (*)(StoryPosition&);
    static constexpr Walk next_ = StepToNextParagraph;
    static constexpr Walk previous_ = StepToPreviousParagraph;
    static constexpr Walk nextChapter_ = StepToNextChapter;
    static constexpr Walk top_ = StepToTopOfChapter;

    static StoryStep GoToFirst(StoryPosition& position)
    {
        GoToFirstParagraph(position);
        return {};
    }

    struct Row
    {
        QString damage;
        Walk walk;
        StoryPosition from;
        QString result;
    };

    static void Check(const Row& row)
    {
        AlbumFixture album;
        for (const char* name : {"One", "Two", "Three", "Four"})
            album.AddChapter(name);
        for (const qint32 chapter : {1, 1, 1, 4, 4})
            album.AddParagraph(chapter, "text");
        album.Execute(row.damage);
        StoryPosition at = row.from;
        const StoryStep step = row.walk(at);
        const QStringList names{"nothing", "paragraph", "chapter", "close"};
        const QString result =
            QString("%1 %2/%3").arg(names[int(step)]).arg(at.chapter).arg(at.paragraph);
        QVERIFY2(result == row.result, qPrintable(result + " instead of " + row.result));
    }
};

QTEST_GUILESS_MAIN(TestStoryWalk)
#include "test_story_walk.moc"
