// SPDX-License-Identifier: MIT
#include "OpenViewer.h"
#include "viewer/StoryPage.h"
#include "viewer/ViewerFlags.h"

class TestFullScreen : public QObject
{
    Q_OBJECT

private slots:
    void FillsTheViewersScreen()
    {
        OpenViewer story;
        story.album.AddPicture("a.png", {{"Legend", "A"}}, {3000, 2000});
        story.Open(story.AddStory({"First: <[Picture Legend]>"}));
        WhenModal("frmFullScreen", [&](QWidget& window) {
            QTRY_COMPARE(OpenViewer::LegendOf(window), "First: A");
            QVERIFY(window.isFullScreen() && window.windowFlags() & Qt::FramelessWindowHint);
            QCOMPARE(window.geometry(), story.viewer.screen()->geometry());
            QVERIFY(window.findChildren<QPushButton*>().isEmpty());
            QVERIFY(window.grab().toImage().pixelColor(2, 2).lightness() < 64);
            WhenModal("frmEditParagraph", [](QWidget& editor) { editor.close(); });
            Click(window, "lblLegend");
            QCOMPARE(OpenViewer::LegendOf(window), "First: A");
            story.album.Execute("DELETE FROM Chapter"); // by another program
            OpenViewer::Press(window, Qt::Key_Right);
        });
        story.Click("cmdHideMenu");
        QVERIFY(!story.viewer.isVisible()); // the end of the story closes both
    }

    void KnowsTheViewersKeys()
    {
        OpenViewer story;
        story.AddPictures(30, {600, 400});
        const qint32 one = story.AddStory({"First", "Second"});
        story.album.AddParagraph(story.album.AddChapter("Two"), "Third");
        story.Open(one);
        story.Press(Qt::Key_Plus);
        WhenModal("frmFullScreen", [&](QWidget& window) {
            const auto legend = [&] { return OpenViewer::LegendOf(window); };
            QTRY_COMPARE(legend(), "First");
            const std::pair<int, const char*> keys[] = {
                {Qt::Key_PageDown, "Third"}, {Qt::Key_PageUp, "First"}, {Qt::Key_F1, "First"}};
            for (const auto& [key, text] : keys) {
                OpenViewer::Press(window, key);
                QCOMPARE(legend(), text);
            }
            QCOMPARE(window.windowTitle(), "One");
            QCOMPARE(story.viewer.Nblines, 2); // as it was in the viewer
            OpenViewer::Press(window, Qt::Key_Plus);
            OpenViewer::Press(window, Qt::Key_Asterisk); // asks for a delay
            QCOMPARE(legend(), "Timer On");
            story.Tick();
            QTRY_COMPARE(legend(), "Second");
            OpenViewer::Press(window, Qt::Key_Q);
        });
        story.dialogs.ExpectInput("Please enter delay in seconds : ", "30", "10");
        story.Click("cmdHideMenu");
        QCOMPARE(story.Legend(), "Second");
        QCOMPARE(story.viewer.Nblines, 3);
        QVERIFY(story.Timer().isActive()); // autoview goes on
    }

    void KeepsTheParagraphWhenResized()
    {
        OpenViewer story;
        story.AddPictures(1, {3000, 2000});
        story.Open(story.AddStory({"First", "Second"}));
        story.Press(Qt::Key_Right);
        WhenModal("frmFullScreen", [&](QWidget& window) {
            window.setWindowState(Qt::WindowNoState);
            window.resize(500, 300);
            const auto fits = [&window] {
                const QList<PictureBox*> boxes = OpenViewer::Boxes(window);
                return boxes.size() == 1 && window.rect().contains(boxes[0]->geometry());
            };
            QTRY_VERIFY(fits());
            // The viewer behind is resized, and must not take the story back to its beginning.
            story.viewer.resize(800, 600);
            LetTimersRunOut(3, 100);
            QCOMPARE(OpenViewer::LegendOf(window), "Second");
            OpenViewer::Press(window, Qt::Key_F11);
        });
        story.Press(Qt::Key_F11);
        QVERIFY(story.viewer.isVisible());
        QCOMPARE(story.Legend(), "Second");
        QVERIFY(story.viewer.rect().contains(story.Boxes().first()->geometry()));
    }
};

QTEST_MAIN(TestFullScreen)
#include "test_full_screen.moc"
