// SPDX-License-Identifier: MIT
#include "Reading.h"
#include "platform/data/Database.h"
#include "support/ScriptedDialogs.h"

#include <QtTest>

namespace {

QString Sorted(QStringList names)
{
    names.sort();
    return names.join(u' ');
}

} // namespace

class TestStoryReader : public QObject
{
    Q_OBJECT

private slots:
    void ForeseesEachStep()
    {
        Reading story;
        story.Begin(story.album.AddThreeChapters({300, 600}));
        QCOMPARE(story.paper.legend, "First: the a");
        const QString offer = "Click HERE to create first paragraph of the new chapter 'Empty'";
        struct Step
        {
            StoryWay way;
            QString legend;
            const char* title;
            const char* pictures;
        };
        using enum StoryWay;
        const Step steps[] = {{PreviousParagraph, "First: the a", "One", "a"},
                              {NextParagraph, "Second: b", "One", "b"},
                              {NextParagraph, "Third", "Three", "c"},
                              {NextChapter, "Third", "Three", "c"},
                              {NextParagraph, "First: the a", "One", "a"},
                              {NextChapter, offer, "Empty", "a b c"},
                              {NextParagraph, "Third", "Three", "c"},
                              {PreviousParagraph, offer, "Empty", "a b c"}, // no dead end
                              {PreviousParagraph, "Second: b", "One", "b"},
                              {TopOfChapter, "First: the a", "One", "a"}};
        for (const Step& step : steps) {
            const StoryPosition position = story.reader.Position;
            const int changes = story.paper.changes;
            const Outlook outlook = story.reader.Foresee(step.way);
            QVERIFY(story.reader.Position == position && story.paper.changes == changes);
            story.reader.Go(step.way);
            QVERIFY(story.reader.Position == outlook.position);
            QCOMPARE(story.paper.legend, step.legend);
            QCOMPARE(story.paper.title, step.title);
            QCOMPARE(outlook.page.title, step.title);
            QCOMPARE(Sorted(story.Shown()), step.pictures);
            QCOMPARE(NamesOf(outlook.pictures), story.Shown());
            QCOMPARE(outlook.pictures.front().place, story.paper.pictures.front().place);
        }
        QCOMPARE(story.reader.Foresee(TopOfChapter).step, StoryStep::Nothing);
        QCOMPARE(story.album.Joined("SELECT count(*) FROM Paragraph"), "3"); // none was made
        story.album.Execute("DELETE FROM Chapter");                          // by another program
        const QSignalSpy ended(&story.reader, &StoryReader::Ended);
        story.reader.GoTo({3, 3});
        story.reader.Go(NextParagraph);
        QCOMPARE(ended.size(), 1);
    }

    void StaysWhereThePageStillIs()
    {
        const PatientDialogs dialogs;
        Reading story;
        story.Begin(story.album.AddThreeChapters({60, 40}));
        bool hasThrown = false;
        FailAtEachStep(
            1,
            [&] {
                story.reader.GoTo({1, 1});
            },
            [&] { hasThrown = ErrorOf([&] { story.reader.Go(StoryWay::NextParagraph); }) != 0; },
            [&] { QCOMPARE(story.reader.Position.paragraph, hasThrown ? 1 : 2); });
    }

    void LooksAheadWithoutWaiting()
    {
        Reading story;
        story.Begin(story.album.AddThreeChapters({300, 600}));
        QVERIFY(story.reader.IsLookingAhead());
        const auto other = Database::Open(story.album.GetAlbum());
        other->Execute("BEGIN EXCLUSIVE");
        QElapsedTimer time;
        time.start();
        QTRY_VERIFY(!story.reader.IsLookingAhead());
        QVERIFY2(time.elapsed() < 3000, "it waits for the other program"); // and 3 s for each plan
    }

    void ZoomsAndPages()
    {
        Reading story;
        for (int i = 10; i < 60; ++i)
            story.album.AddPicture(QString("p%1.png").arg(i), {}, {60, 40});
        const qint32 chapter = story.album.AddChapter("One");
        story.album.AddParagraph(chapter, "First");
        story.album.AddParagraph(chapter, "Second", {{"Car0", "none"}});
        story.Begin(chapter);
        const QStringList first = story.Shown();
        for (int lines = 2; lines <= 5; ++lines)
            story.reader.ZoomOut();
        QCOMPARE(story.reader.Nblines, 4);
        const QStringList many = story.Shown();
        QCOMPARE(many.size(), maxPictures);
        QCOMPARE(many.first(first.size()), first); // the same, and more
        for (int i = 0; i < 6; ++i)
            story.reader.ZoomIn();
        QCOMPARE(story.reader.Nblines, 0);
        QCOMPARE(story.Shown(), many.first(1));
        // What was on the screen before comes again, one by one.
        QStringList seen = many.first(1);
        while (story.paper.legend == "First") {
            QVERIFY(seen.size() <= 50);
            const Outlook outlook = story.reader.Foresee(LikelyMove{StoryMove::NextPictures});
            story.reader.ShowNextPictures();
            seen += story.Shown();
            QCOMPARE(NamesOf(outlook.pictures), story.Shown());
        }
        QCOMPARE(seen.first(maxPictures), many);
        QCOMPARE(story.paper.legend, "Second");
        QCOMPARE(story.paper.notice, "No picture fits.");
        QVERIFY(Sorted(seen) != seen.join(u' ')); // in random order
        QCOMPARE(seen.removeDuplicates(), 0);
        QCOMPARE(seen.size(), 50);
    }
};

QTEST_GUILESS_MAIN(TestStoryReader)
#include "test_story_reader.moc"
