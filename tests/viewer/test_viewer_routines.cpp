// SPDX-License-Identifier: MIT
#include "platform/picture/PictureReader.h"
#include "support/AlbumFixture.h"
#include "viewer/LineLayout.h"
#include "viewer/PictureScreen.h"
#include "viewer/StoryWalk.h"

#include <QRegion>
#include <QtTest>

#include <random>

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
        std::vector<UnitRect> places{*layout.Place({60, 40}), *layout.Place({20, 30}),
                                     *layout.Place({90, 20}), *layout.Place({10, 8})};
        CentreLines(places);
        const std::vector<UnitRect> once = places;
        CentreLines(places);
        QCOMPARE(Write(places[3]), Write(once[3])); // what is in the middle stays there
        QCOMPARE(Write(places[0]), "5 0 60 40");
        QCOMPARE(Write(places[1]), "65 10 20 30");
        QCOMPARE(Write(places[2]), "5 60 90 20");
        QCOMPARE(Write(places[3]), "85 32 10 8"); // it found room on the first line
    }

    void NeverOverlapsNorLeavesTheBand()
    {
        std::mt19937 random(4);
        std::uniform_real_distribution<float> size(0.05F, 160);
        for (int round = 0; round < 500; ++round) {
            const int lines = round % 5;
            LineLayout layout(lines, 70);
            std::vector<UnitRect> places;
            while (const auto place = layout.Place({size(random), size(random)}))
                places.push_back(*place);
            QVERIFY(!places.empty());
            CentreLines(places);
            QList<QRectF> before;
            for (const UnitRect& each : places) {
                constexpr qreal slack = 0.01;
                const QRectF place = QRectF(each.left, each.top, each.width, each.height)
                                         .adjusted(slack, slack, -slack, -slack);
                QVERIFY(QRectF(0, 0, 100, 70).contains(place));
                for (const QRectF& other : before)
                    QVERIFY(!place.intersects(other));
                before += place;
            }
        }
    }

    void SmallPicturesAreShownPixelByPixel()
    {
        AlbumFixture album;
        QStringList files;
        for (const int width : {33, 47, 60, 71, 102})
            files += album.AddPicture(QString("%1.png").arg(width), {}, {width, width / 2});
        for (int width = 900; width < 1000; ++width) {
            PictureList list;
            for (const QString& file : files)
                list.Add(file);
            const ScreenShape shape{{width, 613}, 1, 73.3F, 1 + width % 4};
            const auto shown = FillScreen(list, shape, false);
            QCOMPARE(shown.size(), std::size_t(5));
            QRegion covered;
            for (const ShownPicture& picture : shown) {
                QCOMPARE(picture.place.size(), ReadPictureInfo(picture.path).size);
                QVERIFY(!covered.intersects(picture.place)); // in whole pixels either
                covered += picture.place;
            }
        }
    }

    // Other steps along sound links are taken in test_story_reader.
    void StepsEndAtBrokenLinks()
    {
        const QString paragraph = "UPDATE Paragraph SET ";
        const QString chapter = "UPDATE Chapter SET ";
        const Row rows[] = {
            {"", previous_, {3, 0}, "chapter 2/0"},
            {"", next_, {0, 0}, "nothing 0/0"},
            {"", nextChapter_, {3, 0}, "chapter 4/4"},
            {"", nextChapter_, {4, 4}, "paragraph 4/5"},
            {"", top_, {4, 4}, "chapter 3/0"}, // skips no empty one
            {"", top_, {1, 1}, "nothing 1/1"},
            {paragraph + "NextParagraph=99 WHERE Id=2", next_, {1, 2}, "chapter 4/4"},
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
