// SPDX-License-Identifier: MIT
#include "OpenViewer.h"
#include "viewer/StoryPage.h"
#include "viewer/ViewerFlags.h"

namespace {

// Right on the control, with what the desktop makes of it.
void RightClick(QWidget& widget)
{
    const QPoint middle = widget.rect().center();
    QTest::mouseClick(&widget, Qt::RightButton, {}, middle);
    QContextMenuEvent wish(QContextMenuEvent::Mouse, middle, widget.mapToGlobal(middle));
    QSpontaneKeyEvent::setSpontaneous(&wish);
    qApp->notify(&widget, &wish);
}

// Chooses an entry in the context menu that is about to open.
void WhenMenu(const QString& entry)
{
    QTimer::singleShot(0, qApp, [entry] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return QTest::qFail("no menu came", __FILE__, __LINE__);
        for (QAction* action : menu->actions()) {
            if (action->text().section(u'\t', 0, 0) == entry && action->isEnabled()) {
                menu->setActiveAction(action);
                QTest::keyClick(menu, Qt::Key_Return);
                return;
            }
        }
        menu->close();
        QTest::qFail(qPrintable("not offered: " + entry), __FILE__, __LINE__);
    });
}

} // namespace

// The ways to work the viewer besides its buttons and letters.
class TestViewerWays : public QObject
{
    Q_OBJECT

private slots:
    void WheelTurnsThePictures()
    {
        OpenViewer story;
        story.AddPictures(6, {2000, 1000});
        story.Open(story.AddStory({"First"}));
        const QStringList first = story.Shown();
        TurnWheel(*story.Boxes()[0], -1);
        const QStringList second = story.Shown();
        QVERIFY(second != first);
        TurnWheel(Find<QLabel>(story.viewer, "lblLegend"), -1); // not over the text
        TurnWheel(*story.Boxes()[0], -0.5);
        TurnWheel(*story.Boxes()[0], 0.5);
        QCOMPARE(story.Shown(), second);
        TurnWheel(*story.Boxes()[0], 0.5);
        QCOMPARE(story.Shown(), first);
        TurnWheel(*story.viewer.DisplayForm, -3); // beside a picture; one step at a time
        QCOMPARE(story.Shown(), second);
        story.Press(Qt::Key_Backspace);
        QCOMPARE(story.Shown(), first);
    }

    void LinksThePictureMeant()
    {
        OpenViewer story;
        const QStringList files = story.AddPictures(3);
        story.Open(story.AddStory({"First"}));
        const auto links = [&] {
            return story.album.Joined("SELECT ParagraphId||File FROM LinkedImages");
        };
        const auto news = [&] { return Find<QLabel>(story.viewer, "lblNews").text(); };
        story.Press(Qt::Key_L);
        QCOMPARE(news(), "Point at a picture first, or show it large.");
        const QString clicked = story.Boxes()[1]->GetTag();
        QTest::mouseClick(story.Boxes()[1], Qt::LeftButton);
        story.Press(Qt::Key_L);
        QCOMPARE(links(), "1" + clicked);
        QCOMPARE(news(), "Linked to the paragraph");
        story.Press(Qt::Key_L);
        QCOMPARE(links(), "");
        story.viewer.CurrentChapter = 0;
        story.viewer.ChosenFiles = {files[2]};
        story.viewer.DisplayAgain();
        QCOMPARE(story.Shown(), QStringList("p02"));
        story.Press(Qt::Key_L);
        QCOMPARE(news(), "There is no paragraph to link pictures to.");
        story.viewer.ParagraphToLink = 7;
        story.Press(Qt::Key_L); // the only picture
        QCOMPARE(links(), "7" + files[2]);
    }

    void MenuOffersWhatKeysDo()
    {
        OpenViewer story;
        story.AddPictures(1);
        story.Open(story.AddStory({"First", "Second"}));
        WhenMenu("Next paragraph");
        RightClick(Find<QLabel>(story.viewer, "lblLegend"));
        QCOMPARE(story.Legend(), "Second");
        WhenModal("frmEditImage", [](QWidget& window) { window.close(); });
        {
            QTimer guard; // a menu would stay open for ever
            connect(&guard, &QTimer::timeout, [] {
                if (QWidget* menu = QApplication::activePopupWidget()) {
                    menu->close();
                    QFAIL("a menu came after the window");
                }
            });
            guard.start(0);
            RightClick(*story.Boxes()[0]); // describes the picture
        }
        WhenModal("frmFullScreen", [&](QWidget& window) {
            QTRY_COMPARE(OpenViewer::LegendOf(window), "Second");
            WhenMenu("Full screen, and back");
            RightClick(window);
        });
        WhenMenu("Full screen, and back");
        RightClick(*story.viewer.DisplayForm);
        QVERIFY(story.viewer.isVisible());
        WhenMenu("Back");
        RightClick(story.viewer);
        QVERIFY(!story.viewer.isVisible());
    }

    void TabAndEnterDescribeAPicture()
    {
        OpenViewer browsing;
        browsing.AddPictures(2);
        browsing.Open(0);
        QStringList described;
        const auto describe = [&] {
            WhenModal("frmEditImage", [&](QWidget& window) {
                described += QFileInfo(Find<QLabel>(window, "lblFileName").text()).baseName();
                window.close();
            });
            browsing.Press(Qt::Key_Return);
        };
        for (int i = 0; i < 20 && described.size() < 2; ++i) {
            QTest::keyClick(browsing.viewer.focusWidget(), Qt::Key_Tab);
            if (qobject_cast<PictureBox*>(browsing.viewer.focusWidget()))
                describe();
        }
        QCOMPARE(described, browsing.Shown());
        OpenViewer story;
        story.AddPictures(1);
        story.Open(story.AddStory({"First"}));
        QCOMPARE(story.Boxes()[0]->focusPolicy(), Qt::NoFocus);
    }

    void OneLargePictureIsZoomed()
    {
        OpenViewer story;
        QImage halves(3000, 2000, QImage::Format_RGB32);
        halves.fill(Qt::blue);
        QPainter(&halves).fillRect(0, 0, 1500, 2000, Qt::red);
        const QString file = story.album.PathOf("halves.png");
        QVERIFY(halves.save(file));
        story.album.AddImageRow(file);
        story.Open(story.AddStory({"First"}));
        QTest::mouseClick(story.Boxes()[0], Qt::LeftButton);
        auto& large = Find<PictureBox>(story.viewer, "imgFullSize");
        const QRect fitted = large.geometry();
        const QRect page = story.viewer.DisplayForm->rect();
        const auto colour = [&](double part) {
            return large.grab().toImage().pixelColor(int(large.width() * part), 100);
        };
        TurnWheel(large, -1); // it is whole already
        QCOMPARE(large.geometry(), fitted);
        TurnWheel(large, 1);
        QVERIFY(large.width() > fitted.width() && page.contains(large.geometry()));
        story.Press(Qt::Key_Z);
        QCOMPARE(large.geometry(), fitted);
        story.Press(Qt::Key_Z);
        QCOMPARE(large.width(), page.width());
        QCOMPARE(colour(0.1), QColor(Qt::red));
        QCOMPARE(colour(0.9), QColor(Qt::blue));
        for (int i = 0; i < 20; ++i)
            QTest::keyClick(&story.viewer, Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(colour(0.1), QColor(Qt::blue));
        const QPoint from(100, 100);
        QTest::mousePress(&large, Qt::LeftButton, {}, from);
        QTest::mouseMove(&large, from + QPoint(900, 0));
        QTest::mouseRelease(&large, Qt::LeftButton, {}, from + QPoint(900, 0));
        QVERIFY(large.isVisible());
        QCOMPARE(colour(0.1), QColor(Qt::red));
        QTest::mouseClick(&large, Qt::LeftButton); // leaves it as before
        QVERIFY(!large.isVisible());
        QTest::mouseClick(story.Boxes()[0], Qt::LeftButton);
        story.Press(Qt::Key_Right); // leaves it as well
        for (int i = 0; i < 2; ++i)
            story.Press(Qt::Key_Z); // means nothing now
        QVERIFY(!large.isVisible() && story.Boxes().size() == 1);
    }

    // The line changes no place of a picture, and covers none.
    void SaysWhereTheReaderIs()
    {
        OpenViewer story;
        story.AddPictures(3, {2000, 1000});
        story.Open(story.AddStory({"First", QString("word ").repeated(2000)}));
        auto& place = Find<QLabel>(story.viewer, "lblPlace");
        const auto isFree = [](const QLabel& line) {
            const auto& legend = Find<QWidget>(*line.parentWidget(), "legendArea");
            const QList<PictureBox*> boxes = OpenViewer::Boxes(*line.parentWidget());
            return line.isVisible() && !line.geometry().intersects(legend.geometry()) &&
                   !line.geometry().intersects(boxes[0]->geometry()) &&
                   line.parentWidget()->rect().contains(line.geometry());
        };
        QCOMPARE(place.text(), "paragraph 1 of 2, picture 1 of 3");
        QVERIFY(isFree(place));
        const QRect before = story.Boxes()[0]->geometry();
        story.Press(Qt::Key_I);
        QVERIFY(!place.isVisible());
        QCOMPARE(story.Boxes()[0]->geometry(), before);
        story.Press(Qt::Key_I);
        story.Press(Qt::Key_Right); // to a text that is scrolled
        QVERIFY(isFree(place));
        for (const bool isWanted : {false, true}) {
            WhenModal("frmFullScreen", [&](QWidget& window) {
                auto& line = Find<QLabel>(window, "lblPlace");
                QTRY_VERIFY(!line.text().isEmpty());
                QCOMPARE(line.isVisible(), isWanted); // remembered
                if (!isWanted)
                    OpenViewer::Press(window, Qt::Key_I);
                QVERIFY(isFree(line));
                OpenViewer::Press(window, Qt::Key_Escape);
            });
            story.Press(Qt::Key_F11);
        }
        GeneralModule::PlaceShownOnWholeScreen = false;
    }
};

QTEST_MAIN(TestViewerWays)
#include "test_viewer_ways.moc"
