// SPDX-License-Identifier: MIT
#include "OpenViewer.h"
#include "viewer/ViewerFlags.h"

// The viewer's real window, worked by keys and mouse.
class TestViewer : public QObject
{
    Q_OBJECT

private slots:
    void ReadsAStoryByKeys()
    {
        OpenViewer story;
        story.AddPictures(30);
        story.Open(story.AddStory({"First", "Second"}));
        const QList<QPair<int, QString>> keys{
            {Qt::Key_Right, "Second"}, {Qt::Key_X, "Second"}, {Qt::Key_Left, "First"}};
        for (const auto& [key, text] : keys) {
            story.Press(key);
            QCOMPARE(story.Legend(), text);
        }
        QCOMPARE(story.viewer.windowTitle(), "One");
        const QStringList first = story.Shown();
        QTest::keyClick(&story.viewer, Qt::Key_Plus, Qt::KeypadModifier);
        QCOMPARE(story.viewer.Nblines, 2);
        QCOMPARE(story.Shown().first(first.size()), first); // the same, and more
        story.Press(Qt::Key_Minus);
        QCOMPARE(story.Shown(), first);
        // Keys work whatever has the focus.
        story.Click("cmdNextParagraph");
        QCOMPARE(story.Legend(), "Second");
        auto& button = Find<QPushButton>(story.viewer, "cmdPreviousParagraph");
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space); // would press the button
        QCOMPARE(story.Legend(), "Second");
        QVERIFY(story.Shown() != first);
        // One that nobody used went up to the window; the next one there is another.
        QTest::keyClick(&button, Qt::Key_X);
        QTest::keyClick(&story.viewer, Qt::Key_Left);
        QCOMPARE(story.Legend(), "First");
        // Resizing goes back to the beginning of the chapter, with one line.
        story.Press(Qt::Key_Right);
        story.Press(Qt::Key_Plus);
        story.viewer.resize(800, 600);
        QTRY_COMPARE(story.Legend(), "First");
        QCOMPARE(story.viewer.Nblines, 1);
        QTest::keyClick(&button, Qt::Key_Q);
        QVERIFY(!story.viewer.isVisible());
    }

    void ClickShowsOnePictureLarge()
    {
        OpenViewer story;
        story.album.AddPicture("a.png", {{"Legend", "A"}}, {2000, 1000});
        story.album.AddPicture("b.png", {{"Legend", "B"}}, {2000, 1000});
        story.Open(story.AddStory({"<[Picture Legend]>"}));
        story.StartAutoview("30"); // waits while a picture is alone, and while one is indexed
        story.Press(Qt::Key_Plus);
        const QString before = story.Legend();
        PictureBox* box = story.Boxes().first();
        const int small = box->width();
        QTest::mouseClick(box, Qt::LeftButton);
        auto& large = Find<PictureBox>(story.viewer, "imgFullSize");
        QVERIFY(large.isVisible() && !box->isVisible());
        QVERIFY(!story.Timer().isActive());
        QVERIFY(large.width() > small);
        QCOMPARE(story.Legend(), box->GetTag().endsWith("a.png") ? "A" : "B");
        QTest::mouseClick(&large, Qt::LeftButton);
        QVERIFY(!large.isVisible() && story.Timer().isActive());
        QCOMPARE(story.Boxes().size(), 2);
        QCOMPARE(story.Legend(), before);
        QTest::mouseClick(box, Qt::LeftButton);
        story.Click("cmdNextParagraph"); // leaves the picture as well
        QVERIFY(!large.isVisible() && story.Timer().isActive());
    }

    void MissingAndBrokenPictures()
    {
        OpenViewer story;
        const QStringList files = story.AddPictures(3);
        QFile::remove(files[0]);
        WriteFile(files[1], "no picture");
        story.album.AddChapter("One");
        story.album.AddParagraph(1, "text");
        story.album.AddParagraph(1, "bad filter", {{"Car0", "O'Neil"}});
        story.Open(1);
        QStringList shown = story.Shown();
        shown.sort();
        QCOMPARE(shown, QStringList({"p01", "p02"}));
        for (const PictureBox* box : story.Boxes())
            QCOMPARE(box->GetPicture().isNull(), box->GetTag() == files[1]);
        QVERIFY(!story.viewer.grab().isNull());
        story.dialogs.ExpectBoxBeginning("3075 ", Dialogs::Icon::Critical);
        story.Press(Qt::Key_Right);
        // The window was resized while the box was up, which leads back to the beginning.
        QCOMPARE(story.Legend(), "text");
        QCOMPARE(story.Boxes().size(), 2);
    }

    // A right click on a picture, and what the viewer shows afterwards.
    void IndexesPictures()
    {
        OpenViewer story;
        QStringList files = story.AddPictures(3);
        story.Open(story.AddStory({"Here: <[Picture Legend]>"}));
        QCOMPARE(story.Legend(), "Here: ");
        for (int box = 0; box < 3; ++box) {
            Index(story, box, [](QWidget& window) {
                Find<QLineEdit>(window, "txtLegend").setText("after");
                window.close();
            });
        }
        QCOMPARE(story.Legend(), "Here: after");
        const QString gone = story.Boxes()[1]->GetTag();
        story.dialogs.ExpectBox("Do you also want to delete the file " + gone + " ?",
                                Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel,
                                Dialogs::Answer::No);
        Index(story, 1, [](QWidget& window) { Click(window, "cmdDelete"); });
        QCOMPARE(story.Boxes().size(), 2);
        QVERIFY(!story.Shown().contains(QFileInfo(gone).completeBaseName()));
        QVERIFY(QFile::exists(gone));
    }

    void IndexingGoesOnThroughTheList()
    {
        OpenViewer browsing;
        browsing.AddPictures(3, {3000, 1000}); // each fills the line
        browsing.Open(0);
        browsing.StartAutoview("30");
        QCOMPARE(browsing.Shown().size(), 1);
        QStringList seen;
        Index(browsing, 0, [&](QWidget& window) {
            QVERIFY(!browsing.Timer().isActive());
            seen += Find<QLabel>(window, "lblFileName").text();
            Click(window, "cmdNextImage");
            seen += Find<QLabel>(window, "lblFileName").text();
            window.close();
        });
        QCOMPARE(seen.size(), 2);
        QVERIFY(seen[0] != seen[1]);
        // The one that was indexed on the way does not come again.
        QCOMPARE(browsing.Legend(), "1 images left");
        browsing.Press(Qt::Key_Down);
        QVERIFY(!seen.contains(browsing.Boxes().first()->GetTag()));
        // After the last page autoview ends.
        browsing.Tick();
        QTRY_COMPARE(browsing.Legend(), "Timer Off");
        QVERIFY(!GeneralModule::AutoviewOn && browsing.viewer.isVisible());
        WhenModal("frmFullScreen", [](QWidget& full) { OpenViewer::Press(full, Qt::Key_Escape); });
        browsing.Click("cmdHideMenu");
        QVERIFY(!browsing.viewer.isVisible()); // closes both, as opposed to a story
    }

    void EnterAndF11AndWhereWritingStopped()
    {
        OpenViewer story;
        story.Open(story.AddStory({"First", "Second"}));
        story.Press(Qt::Key_Return); // the focus lies on the way forward
        QCOMPARE(story.Legend(), "Second");
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(&story.viewer, &held);
        QCOMPARE(story.Legend(), "Second");
        WhenModal("frmFullScreen", [](QWidget& full) { OpenViewer::Press(full, Qt::Key_F11); });
        story.Press(Qt::Key_F11);
        QVERIFY(story.viewer.isVisible());
        WhenModal("frmEditParagraph", [](QWidget& editor) {
            Click(editor, "cmdCreateNext");
            QTest::keyClicks(&Find<QPlainTextEdit>(editor, "txtParagraph"), "Third");
            QTest::keyClick(&editor, Qt::Key_Escape);
        });
        story.Press(Qt::Key_E);
        QCOMPARE(story.Legend(), "Third");
    }

    void OutsideTheStory()
    {
        OpenViewer browsing;
        browsing.AddPictures(1, {2000, 1000});
        browsing.Open(0);
        for (const char* name :
             {"cmdPreviousChapter", "cmdPreviousParagraph", "cmdNextParagraph", "cmdNextChapter"})
            QVERIFY(!Find<QPushButton>(browsing.viewer, name).isEnabled());
        QTest::mouseClick(browsing.Boxes().first(), Qt::LeftButton);
        QCOMPARE(browsing.Legend(), "p00.png"); // for want of a legend
        QTest::mouseClick(&Find<PictureBox>(browsing.viewer, "imgFullSize"), Qt::LeftButton);
        // Nothing covers a picture that moves on by itself.
        const auto hasToolTip = [&browsing] {
            QHelpEvent help(QEvent::ToolTip, {5, 5}, {5, 5});
            QCoreApplication::sendEvent(browsing.Boxes().first(), &help);
            return QToolTip::isVisible();
        };
        browsing.StartAutoview("30");
        QVERIFY(!hasToolTip());
        browsing.Press(Qt::Key_T);
        QVERIFY(hasToolTip());
    }

private:
    static void Index(OpenViewer& open, int box, const std::function<void(QWidget&)>& action)
    {
        WhenModal("frmEditImage", action);
        QTest::mouseClick(open.Boxes()[box], Qt::RightButton);
    }
};

QTEST_MAIN(TestViewer)
#include "test_viewer.moc"

#include <algorithm>
