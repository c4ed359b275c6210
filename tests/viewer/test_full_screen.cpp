// SPDX-License-Identifier: MIT
#include "OpenViewer.h"
#include "core/ViewerFlags.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/IdlePointer.h"
#include "viewer/StoryPage.h"

#include <QMessageBox>

class TestFullScreen : public QObject
{
    Q_OBJECT

private slots:
    void FillsTheViewersScreen();
    void KnowsTheViewersKeys();
    void KeepsTheParagraphWhenResized();
    void BrowsesAndClosesTheViewer();
    void EditsFromTheFullScreen();
    void EndOfTheStoryClosesBoth();
    void AutoviewGoesOn();
    void HidesAnIdlePointer();
};

void TestFullScreen::FillsTheViewersScreen()
{
    OpenViewer story;
    story.album.AddPicture("a.png", {{"Legend", "A"}}, {3000, 2000});
    story.Open(story.AddStory({"First: <[Picture Legend]>"}));
    WhenModal("frmFullScreen", [&](QWidget& window) {
        QTRY_COMPARE(OpenViewer::LegendOf(window), "First: A");
        QVERIFY(window.isFullScreen() && window.windowFlags() & Qt::FramelessWindowHint);
        QCOMPARE(window.geometry(), story.viewer.screen()->geometry());
        QCOMPARE(window.windowTitle(), "One");
        QVERIFY(window.findChildren<QPushButton*>().isEmpty());
        const QList<PictureBox*> boxes = OpenViewer::Boxes(window);
        QCOMPARE(boxes.size(), 1);
        const QImage seen = window.grab().toImage();
        QVERIFY(seen.pixelColor(2, 2).lightness() < 64);
        QVERIFY(seen.pixelColor(2, seen.height() - 3).lightness() < 64);
        const auto& legend = Find<QLabel>(window, "lblLegend");
        QVERIFY(legend.palette().color(QPalette::WindowText).lightness() > 192);
        QTest::mouseClick(boxes.first(), Qt::LeftButton);
        auto& alone = Find<PictureBox>(window, "imgFullSize");
        QVERIFY(alone.isVisible());
        QTest::mouseClick(&alone, Qt::LeftButton);
        QVERIFY(boxes.first()->isVisible());
        OpenViewer::Press(window, Qt::Key_Escape);
    });
    story.Click("cmdHideMenu");
    QVERIFY(story.viewer.isVisible());
    QCOMPARE(story.viewer.DisplayForm->window(), &story.viewer);
}

void TestFullScreen::KnowsTheViewersKeys()
{
    OpenViewer story;
    for (int i = 0; i < 30; ++i)
        story.album.AddPicture(QStringLiteral("p%1.png").arg(i), {}, {600, 400});
    const qint32 one = story.AddStory({"First", "Second"});
    story.album.AddParagraph(story.album.AddChapter("Two"), "Third");
    story.Open(one);
    story.Press(Qt::Key_Plus);
    WhenModal("frmFullScreen", [&](QWidget& window) {
        const auto legend = [&] { return OpenViewer::LegendOf(window); };
        QTRY_COMPARE(legend(), "First");
        const QList<QPair<int, QString>> keys{
            {Qt::Key_Right, "Second"}, {Qt::Key_P, "First"},   {Qt::Key_PageDown, "Third"},
            {Qt::Key_PageUp, "First"}, {Qt::Key_N, "Second"},  {Qt::Key_Left, "First"},
            {Qt::Key_F1, "First"},     {Qt::Key_Tab, "First"},
        };
        for (const auto& [key, text] : keys) {
            OpenViewer::Press(window, key);
            QCOMPARE(legend(), text);
        }
        QCOMPARE(window.windowTitle(), "One");
        const auto tags = [&] {
            QStringList files;
            for (const PictureBox* box : OpenViewer::Boxes(window))
                files += box->GetTag();
            return files;
        };
        const QStringList first = tags();
        OpenViewer::Press(window, Qt::Key_Space);
        QVERIFY(tags() != first);
        QCOMPARE(story.viewer.Nblines, 2); // as it was in the viewer
        OpenViewer::Press(window, Qt::Key_Plus);
        OpenViewer::Press(window, Qt::Key_Asterisk); // asks for a delay
        QCOMPARE(legend(), "Timer On");
        OpenViewer::Press(window, Qt::Key_T);
        QCOMPARE(legend(), "Timer Off");
        OpenViewer::Press(window, Qt::Key_Right);
        OpenViewer::Press(window, Qt::Key_Q);
    });
    story.dialogs.ExpectInput("Please enter delay in seconds : ", "30", "10");
    story.Click("cmdHideMenu");
    QCOMPARE(story.Legend(), "Second");
    QCOMPARE(story.viewer.Nblines, 3);
}

void TestFullScreen::KeepsTheParagraphWhenResized()
{
    OpenViewer story;
    story.album.AddPicture("a.png", {}, {3000, 2000});
    story.Open(story.AddStory({"First", "Second"}));
    story.Press(Qt::Key_Right);
    WhenModal("frmFullScreen", [&](QWidget& window) {
        QTRY_COMPARE(OpenViewer::LegendOf(window), "Second");
        for (const QSize size : {QSize(900, 1400), QSize(1600, 900), QSize(500, 300)}) {
            window.setWindowState(Qt::WindowNoState);
            window.resize(size);
            QTRY_VERIFY(OpenViewer::Boxes(window).size() == 1 &&
                        window.rect().contains(OpenViewer::Boxes(window).first()->geometry()) &&
                        qAbs(OpenViewer::Boxes(window).first()->geometry().center().x() -
                             window.width() / 2) <= 1);
            QCOMPARE(OpenViewer::LegendOf(window), "Second");
        }
        // The viewer behind is resized, and must not take the story back to its beginning.
        story.viewer.resize(800, 600);
        LetTimersRunOut(3, 100);
        QCOMPARE(OpenViewer::LegendOf(window), "Second");
        OpenViewer::Press(window, Qt::Key_Escape);
    });
    story.Click("cmdHideMenu");
    QCOMPARE(story.Legend(), "Second");
    QVERIFY(story.viewer.rect().contains(OpenViewer::Boxes(story.viewer).first()->geometry()));
}

void TestFullScreen::BrowsesAndClosesTheViewer()
{
    OpenViewer browsing;
    for (int i = 0; i < 3; ++i)
        browsing.album.AddPicture(QStringLiteral("p%1.png").arg(i), {}, {3000, 2000});
    browsing.Open(0);
    WhenModal("frmFullScreen", [&](QWidget& window) {
        QTRY_COMPARE(OpenViewer::LegendOf(window), "3 images found");
        QCOMPARE(OpenViewer::Boxes(window).first()->toolTip(), "Click to index picture");
        OpenViewer::Press(window, Qt::Key_Down);
        QTRY_COMPARE(OpenViewer::LegendOf(window), "1 images left");
        OpenViewer::Press(window, Qt::Key_Escape);
    });
    browsing.Click("cmdHideMenu");
    QVERIFY(!browsing.viewer.isVisible());
}

void TestFullScreen::EditsFromTheFullScreen()
{
    OpenViewer story;
    story.Open(story.AddStory({"First", "Second"}));
    WhenModal("frmFullScreen", [&](QWidget& window) {
        QTRY_COMPARE(OpenViewer::LegendOf(window), "First");
        WhenModal("frmEditParagraph", [&](QWidget& editor) {
            QCOMPARE(editor.parentWidget(), &window); // or the desktop might put it behind
            QTest::keyClick(&editor, Qt::Key_Escape);
        });
        QTest::mouseClick(&Find<QLabel>(window, "lblLegend"), Qt::LeftButton);
        QCOMPARE(OpenViewer::LegendOf(window), "First");
        OpenViewer::Press(window, Qt::Key_Escape);
    });
    story.Click("cmdHideMenu");
    QVERIFY(story.viewer.isVisible());
}

void TestFullScreen::EndOfTheStoryClosesBoth()
{
    OpenViewer story;
    story.Open(story.AddStory({"Only"}));
    WhenModal("frmFullScreen", [&](QWidget& window) {
        QTRY_COMPARE(OpenViewer::LegendOf(window), "Only");
        story.album.Execute("DELETE FROM Chapter"); // by another program
        OpenViewer::Press(window, Qt::Key_Right);
    });
    story.Click("cmdHideMenu");
    QVERIFY(!story.viewer.isVisible());
}

void TestFullScreen::AutoviewGoesOn()
{
    OpenViewer story;
    story.Open(story.AddStory({"First", "Second", "Third"}));
    story.StartAutoview("30");
    WhenModal("frmFullScreen", [&](QWidget& window) {
        QTRY_COMPARE(OpenViewer::LegendOf(window), "First");
        for (const char* text : {"Second", "Third"}) {
            story.Tick();
            QTRY_COMPARE(OpenViewer::LegendOf(window), text);
        }
        OpenViewer::Press(window, Qt::Key_Escape);
    });
    story.Click("cmdHideMenu");
    QCOMPARE(story.Legend(), "Third");
    QVERIFY(GeneralModule::AutoviewOn && story.Timer().isActive());
}

void TestFullScreen::HidesAnIdlePointer()
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
        {
            const BusyPointer busy;
            QVERIFY(isHidden());
        }
        QVERIFY(isHidden());
        QTest::mouseMove(window.windowHandle(), QPoint(40, 50));
        QVERIFY(!QApplication::overrideCursor());
        QTRY_VERIFY(isHidden());
        QTest::mouseMove(window.windowHandle(), QPoint(40, 50)); // not a movement
        QVERIFY(isHidden());
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

QTEST_MAIN(TestFullScreen)
#include "test_full_screen.moc"
