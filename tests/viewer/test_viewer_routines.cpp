// SPDX-License-Identifier: MIT
#include "support/AlbumFixture.h"
#include "viewer/LineLayout.h"
#include "viewer/StoryWalk.h"

#include <QtTest>

namespace {

QString Write(const UnitRect& rect)
{
    return QString("%1 %2 %3 %4").arg(rect.left).arg(rect.top).arg(rect.width).arg(rect.height);
}

} // namespace

// Lines of pictures, and steps through a story: chapter 1 holds paragraphs 1 to 3, 4 holds 4 and 5.
class TestViewerRoutines : public QObject
{
    Q_OBJECT

private slots:
    void FillsLinesFromTheTop()
    {
        // Small stays, too high, too wide, both.
        const std::tuple<float, float, QString> sizes[] = {
            {10, 20, "10 20"}, {30, 80, "15 40"}, {300, 30, "100 10"}, {900, 90, "100 10"}};
        for (const auto& [width, height, expected] : sizes) {
            const UnitSize fitted = FitPicture({width, height}, 40, 100);
            QCOMPARE(QString("%1 %2").arg(fitted.width).arg(fitted.height), expected);
        }
        LineLayout layout(2, 80);
        QCOMPARE(Write(*layout.Place({60, 40})), "0 0 60 40");
        QCOMPARE(Write(*layout.Place({50, 20})), "0 60 50 20");  // on the second line's bottom edge
        QCOMPARE(Write(*layout.Place({40, 10})), "60 30 40 10"); // still fits the first, exactly
        QCOMPARE(Write(*layout.Place({100, 80})), "50 40 50 40"); // halved to the line's height
        QVERIFY(!layout.Place({1, 1}));
        LineLayout alone(0, 80);
        QCOMPARE(Write(*alone.Place({50, 160})), "37.5 0 25 80");
        QVERIFY(!alone.Place({1, 1}));
        QCOMPARE(Write(*LineLayout(0, 80).Place({20, 10})), "40 35 20 10");
    }

    void CentresEachLine()
    {
        LineLayout layout(2, 80);
        std::vector<UnitRect> places;
        for (const UnitSize size : {UnitSize{60, 40}, {20, 30}, {90, 20}, {10, 8}})
            places.push_back(*layout.Place(size)); // the last finds room on the first line
        CentreLines(places);
        QStringList once;
        for (const UnitRect& place : places)
            once += Write(place);
        QCOMPARE(once.join("; "), "5 0 60 40; 65 10 20 30; 5 60 90 20; 85 32 10 8");
        CentreLines(places);
        QCOMPARE(Write(places[3]), once[3]); // what is in the middle stays there
    }

    // Other steps along sound links are taken in test_story_reader.
    void StepsEndAtBrokenLinks()
    {
        const QString paragraph = "UPDATE Paragraph SET ";
        const QString chapter = "UPDATE Chapter SET ";
        const Row rows[] = {
            {"", nextChapter_, {3, 0}, "chapter 4/4"},
            {"", nextChapter_, {4, 4}, "paragraph 4/5"},
            {"", top_, {4, 4}, "chapter 3/0"}, // skips no empty one
            {paragraph + "NextParagraph=99 WHERE Id=2", next_, {1, 2}, "chapter 4/4"},
            {paragraph + "NextParagraph=2 WHERE Id=2", next_, {1, 2}, "chapter 4/4"},
            {paragraph + "PreviousParagraph=99 WHERE Id=2", previous_, {1, 2}, "paragraph 1/1"},
            {paragraph + "NextParagraph=4 WHERE Id=5", nextChapter_, {4, 4}, "paragraph 4/5"},
            {paragraph + "PreviousParagraph=3 WHERE Id=1", top_, {1, 2}, "paragraph 1/3"},
            {chapter + "FirstParagraph=99 WHERE Id=4", next_, {1, 3}, "chapter 1/1"},
            {chapter + "NextChapter=99 WHERE Id=1", next_, {1, 3}, "chapter 1/1"},
            // Round and round past chapters without a paragraph.
            {chapter + "NextChapter=2 WHERE Id=3", next_, {1, 3}, "nothing 1/3"},
            {chapter + "FirstParagraph=0", next_, {4, 5}, "nothing 4/5"},
            {chapter + "FirstParagraph=0", next_, {2, 0}, "nothing 2/0"},
            {chapter + "PreviousChapter=0", previous_, {2, 0}, "nothing 2/0"},
            // The chapter that the paragraph itself names counts.
            {paragraph + "Chapter=4 WHERE Id=3", next_, {1, 3}, "chapter 1/1"},
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

QTEST_GUILESS_MAIN(TestViewerRoutines)
#include "test_viewer_routines.moc"
