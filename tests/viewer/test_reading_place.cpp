// SPDX-License-Identifier: MIT
#include "Reading.h"
#include "viewer/ViewerFlags.h"
#include "viewer/ViewerKeys.h"

#include <QKeyEvent>
#include <QtTest>

namespace {

// A chapter of two paragraphs that both show many pictures of several widths.
struct LongReading : Reading
{
    LongReading()
    {
        for (int i = 10; i < 70; ++i)
            album.AddPicture(QString("p%1.png").arg(i), {}, {90 + i % 7 * 40, 200});
        const qint32 chapter = album.AddChapter("One");
        for (const char* text : {"First", "Second"})
            album.AddParagraph(chapter, text);
        Begin(chapter);
    }

    // All that is on show.
    QString Screen() const
    {
        QString screen = paper.legend + ": " + paper.place;
        for (const ShownPicture& picture : paper.pictures)
            screen += QString("; %1 %2 %3")
                          .arg(QFileInfo(picture.file).completeBaseName())
                          .arg(picture.place.x())
                          .arg(picture.place.y());
        return screen;
    }

    // The screens from this one on.
    QStringList ReadOn(int count)
    {
        QStringList screens{Screen()};
        while (screens.size() < count) {
            reader.ShowNextPictures();
            screens += Screen();
        }
        return screens;
    }
};

} // namespace

// Where the reader is, and the way back through the pictures.
class TestReadingPlace : public QObject
{
    Q_OBJECT

private slots:
    void SaysWhereItIs()
    {
        Reading story;
        QStringList files;
        for (int i = 0; i < 5; ++i)
            files += story.album.AddPicture(QString("p%1.png").arg(i), {}, {400, 300});
        const qint32 chapter = story.album.AddChapter("One");
        story.album.AddParagraph(chapter, "all");
        story.album.AddParagraph(chapter, "none", {{"Car0", "none"}});
        for (const QString& file : files)
            story.album.Link(1, file);
        GeneralModule::PictureAtRandom = false;
        story.Begin(chapter);
        QCOMPARE(story.paper.place, "paragraph 1 of 2, pictures 1-2 of 5");
        for (const QString& file : files) {
            if (!story.Shown().contains(QFileInfo(file).completeBaseName())) {
                QFile::remove(file);
                break;
            }
        }
        story.reader.ShowNextPictures();
        QCOMPARE(story.paper.place, "paragraph 1 of 2, pictures 3-4 of 5, 1 missing");
        story.reader.ZoomIn();
        QCOMPARE(story.paper.place, "paragraph 1 of 2, picture 3 of 5, 1 missing");
        story.reader.ZoomIn();
        QCOMPARE(story.paper.place, "paragraph 1 of 2, picture 3 of 5, 1 missing");
        story.album.AddParagraph(chapter, "by another program");
        story.reader.Go(StoryWay::NextParagraph);
        QCOMPARE(story.paper.place, "paragraph 2 of 3");
        for (const QString& file : files)
            QFile::remove(file);
        story.reader.Go(StoryWay::PreviousParagraph);
        QCOMPARE(story.paper.place, "paragraph 1 of 3, 5 missing");
        story.album.Execute("UPDATE Chapter SET FirstParagraph=2"); // which leads on to the third
        story.reader.GoTo({chapter, 1});
        QCOMPARE(story.paper.place, "5 missing");
    }

    // What was taken out is not listed any more, and is no missing file.
    void CountsAfterIndexing()
    {
        Reading browsing;
        for (int i = 0; i < 6; ++i)
            browsing.album.AddPicture(QString("p%1.png").arg(i), {}, {900, 400});
        const QString hint = " \u2013 Tab goes to a picture, Enter describes it";
        GeneralModule::PictureAtRandom = false;
        browsing.Begin(0);
        QCOMPARE(browsing.paper.place, "picture 1 of 6" + hint);
        browsing.reader.ShowNextPictures();
        PictureList upcoming = browsing.reader.GetUpcoming();
        const QString described = upcoming.PickNext(false, [](const QString&) { return true; });
        upcoming.TakePicked();
        const QStringList takenOut{browsing.album.PathOf("p0.png"), upcoming.GetFiles().last()};
        browsing.reader.ShowIndexed(upcoming, takenOut);
        browsing.reader.ShowNextPictures();
        QVERIFY(!browsing.Shown().contains(QFileInfo(described).completeBaseName()));
        QCOMPARE(browsing.paper.place, "picture 3 of 4" + hint);
        browsing.reader.ShowPreviousPictures();
        QCOMPARE(browsing.Shown(), QStringList("p1"));
        browsing.reader.ShowPreviousPictures(); // p0 was the first
        QCOMPARE(browsing.Shown(), QStringList("p1"));
    }

    void ScreensComeBackAsTheyWere()
    {
        LongReading story;
        const QString beginning = story.Screen();
        story.reader.ShowPreviousPictures(); // nothing is before the story
        QCOMPARE(story.Screen(), beginning);
        const QStringList screens = story.ReadOn(4);
        for (int i : {2, 1}) {
            const Outlook outlook = story.reader.Foresee(LikelyMove{StoryMove::PreviousPictures});
            story.reader.ShowPreviousPictures();
            QCOMPARE(story.Screen(), screens[i]);
            QCOMPARE(NamesOf(outlook.pictures), story.Shown());
            QCOMPARE(outlook.list.GetFiles(), story.reader.GetUpcoming().GetFiles());
        }
        QCOMPARE(story.ReadOn(3), screens.mid(1));
        story.reader.Go(StoryWay::NextParagraph);
        const Outlook outlook = story.reader.Foresee(LikelyMove{StoryMove::PreviousPictures});
        story.reader.ShowPreviousPictures();
        QCOMPARE(story.paper.legend, "First");
        QCOMPARE(NamesOf(outlook.pictures), story.Shown());
    }

    // Nothing is left out and nothing comes twice, whatever the number of lines is by then.
    void ZoomLosesNothingOnTheWayBack()
    {
        LongReading story;
        story.reader.ZoomOut();
        QStringList shown = story.Shown();
        for (int i = 0; i < 2; ++i) {
            story.reader.ShowNextPictures();
            shown += story.Shown();
        }
        story.reader.ZoomIn();
        story.reader.ZoomIn();
        qsizetype at = shown.indexOf(story.Shown().first());
        QVERIFY(at > 10);
        while (at > 0) {
            story.reader.ShowPreviousPictures();
            QCOMPARE(story.Shown(), QStringList(shown[--at]));
        }
        const QString gone = story.reader.GetDisplayed().front().file;
        story.reader.ShowNextPictures();
        QFile::remove(gone);
        story.reader.ShowPreviousPictures();
        QCOMPARE(story.Shown(), QStringList(shown[1]));
    }

    void ZoomsIntoOnePicture()
    {
        // 4000 x 3000 pixels shown at 400 x 300 in the middle of a band of 1000 x 300, two device
        // pixels to a logical one.
        const QRect fitted(300, 0, 400, 300);
        PictureZoom zoom({4000, 3000}, fitted, {1000, 300}, 2, 4);
        zoom.Switch({400, 75}); // a quarter of the picture from its upper left corner
        QCOMPARE(zoom.GetPlace(), QRectF(-100, -300, 2000, 1500));
        QCOMPARE(zoom.GetVisible(), QRect(0, 0, 1000, 300));
        zoom.Move({500, -5000});
        QCOMPARE(zoom.GetPlace(), QRectF(0, -1200, 2000, 1500)); // no further than its edges
        zoom.Switch({});
        QVERIFY(!zoom.IsZoomed() && zoom.GetPlace() == fitted);
        zoom.Step(1, {500, 150});
        QVERIFY(zoom.IsZoomed() && zoom.GetVisible().left() > 0); // still narrower than the band
        QCOMPARE(zoom.GetVisible().center().x(), 499);
        for (int i = 0; i < 4; ++i)
            zoom.Step(1, {500, 150});
        QCOMPARE(zoom.GetPlace().width(), 2000.0); // stops at the pixels on its way
        zoom.Step(20, {500, 150});
        QCOMPARE(zoom.GetPlace().width(), 8000.0);
        zoom.Step(-20, {500, 150}); // and back
        QCOMPARE(zoom.GetPlace().width(), 2000.0);
        zoom.Step(-20, {500, 150});
        QCOMPARE(zoom.GetPlace(), QRectF(fitted));
        QCOMPARE(SizeToZoom({4000, 3000}), QSize(4000, 3000));
        QCOMPARE(SizeToZoom({20000, 10000}), QSize(5000, 2500)); // 50 MB
    }

    void EachKeyHasOneMeaning()
    {
        QSet<int> keys;
        for (const ViewerKey& row : ViewerKeys()) {
            for (const QKeyCombination key : row.keys) {
                QVERIFY2(!keys.contains(key.toCombined()), qPrintable(row.GetNames()));
                keys.insert(key.toCombined());
                const QKeyEvent press(QEvent::KeyPress, key.key(),
                                      key.keyboardModifiers() | Qt::ShiftModifier);
                QCOMPARE(CommandOf(press), row.command);
            }
        }
        const KeyRow first = ViewerKeySection().rows.front();
        QCOMPARE(first.keys + ": " + first.meaning, "Right, N: Next paragraph");
    }
};

QTEST_MAIN(TestReadingPlace)
#include "test_reading_place.moc"
