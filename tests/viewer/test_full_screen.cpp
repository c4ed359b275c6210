// SPDX-License-Identifier: MIT
#include "OpenViewer.h"
#include "platform/widgets/IdlePointer.h"
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
            // A click on the text edits it; the editor lies before this window.
            WhenModal("frmEditParagraph", [&](QWidget& editor) {
                QCOMPARE(editor.parentWidget(), &window);
                QTest::keyClick(&editor, Qt::Key_Escape);
            });
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
            const QList<QPair<int, QString>> keys{
                {Qt::Key_PageDown, "Third"}, {Qt::Key_PageUp, "First"}, {Qt::Key_F1, "First"},
                {Qt::Key_Tab, "First"},      {Qt::Key_N, "Second"},     {Qt::Key_P, "First"}};
            for (const auto& [key, text] : keys) {
                OpenViewer::Press(window, key);
                QCOMPARE(legend(), text);
            }
            QCOMPARE(window.windowTitle(), "One");
            const QStringList first = OpenViewer::Shown(window);
            OpenViewer::Press(window, Qt::Key_Space);
            QVERIFY(OpenViewer::Shown(window) != first);
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
            QTRY_COMPARE(OpenViewer::LegendOf(window), "Second");
            const auto fits = [&] {
                const QList<PictureBox*> boxes = OpenViewer::Boxes(window);
                return boxes.size() == 1 && window.rect().contains(boxes.first()->geometry()) &&
                       qAbs(boxes.first()->geometry().center().x() - window.width() / 2) <= 1;
            };
            for (const QSize size : {QSize(900, 1400), QSize(1600, 900), QSize(500, 300)}) {
                window.setWindowState(Qt::WindowNoState);
                window.resize(size);
                QTRY_VERIFY(fits());
                QCOMPARE(OpenViewer::LegendOf(window), "Second");
            }
            // The viewer behind is resized, and must not take the story back to its beginning.
            story.viewer.resize(800, 600);
            LetTimersRunOut(3, 100);
            QCOMPARE(OpenViewer::LegendOf(window), "Second");
            OpenViewer::Press(window, Qt::Key_Escape);
        });
        story.Click("cmdHideMenu");
        QVERIFY(story.viewer.isVisible());
        QCOMPARE(story.Legend(), "Second");
        QVERIFY(story.viewer.rect().contains(story.Boxes().first()->geometry()));
    }

    void HidesAnIdlePointer()
    {
        const auto isHidden = [] {
            const QCursor* cursor = QApplication::overrideCursor();
            return cursor && cursor->shape() == Qt::BlankCursor;
        };
        QWidget window;
        window.resize(300, 200);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        {
            const IdlePointer pointer(&window, 10);
            QTRY_VERIFY(isHidden());
            for (const bool moves : {true, false}) { // the second time it stays where it is
                QTest::mouseMove(window.windowHandle(), QPoint(40, 50));
                QCOMPARE(isHidden(), !moves);
                QTRY_VERIFY(isHidden());
            }
            QTest::mouseMove(window.windowHandle(), QPoint(60, 50));
            QMessageBox box;
            WhenModal("QMessageBox", [&](QWidget& front) {
                LetTimersRunOut(5, 10);
                QVERIFY(!isHidden());
                front.close();
            });
            box.exec();
            QTRY_VERIFY(isHidden());
        }
        QVERIFY(!QApplication::overrideCursor());
    }
};

QTEST_MAIN(TestFullScreen)
#include "test_full_screen.moc"
