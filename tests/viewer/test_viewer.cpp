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
        story.Open(story.album.AddThreeChapters({60, 40}));
        const QString first = "First: the a; One; a";
        const QString second = "Second: b; One; b";
        const QString third = "Third; Three; c";
        const QString offer = "Click HERE to create first paragraph of the new chapter 'Empty'";
        const QString empty = offer + "; Empty; a b c";
        const std::pair<Qt::Key, QString> steps[] = {
            {Qt::Key_F1, first},       {Qt::Key_Right, second},
            {Qt::Key_N, third},        {Qt::Key_Space, first}, // all were seen
            {Qt::Key_PageDown, empty}, {Qt::Key_Right, third},
            {Qt::Key_P, empty}, // no dead end either way
            {Qt::Key_Left, second},    {Qt::Key_PageUp, first},
            {Qt::Key_X, first}};
        for (const auto& [key, expected] : steps) {
            story.Press(key);
            QStringList shown = story.Shown();
            shown.sort();
            QCOMPARE(story.Legend() + "; " + story.viewer.windowTitle() + "; " + shown.join(u' '),
                     expected);
        }
        QCOMPARE(story.album.Joined("SELECT count(*) FROM Paragraph"), "3"); // none was made
        // Keys work whatever has the focus, each once.
        story.Click("cmdNextParagraph");
        QCOMPARE(story.Legend(), "Second: b");
        auto& button = Find<QPushButton>(story.viewer, "cmdPreviousParagraph");
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space); // would press the button
        QCOMPARE(story.Legend(), "Third");
        QTest::keyClick(&button, Qt::Key_X); // which nobody uses
        QTest::keyClick(&story.viewer, Qt::Key_Left);
        QCOMPARE(story.Legend(), offer);
        QTest::keyClick(&button, Qt::Key_Q);
        QVERIFY(!story.viewer.isVisible());
    }

    void ZoomsWithinItsLimits()
    {
        OpenViewer story;
        story.AddPictures(30);
        story.Open(story.AddStory({"text"}));
        const QStringList first = story.Shown();
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(&story.viewer, Qt::Key_Plus, Qt::KeypadModifier);
        QCOMPARE(story.viewer.Nblines, 4);
        const QStringList many = story.Shown();
        QCOMPARE(many.size(), 21);
        QCOMPARE(many.first(first.size()), first); // the same, and more
        for (int i = 0; i < 6; ++i)
            story.Press(Qt::Key_Minus);
        QCOMPARE(story.viewer.Nblines, 0);
        QCOMPARE(story.Shown(), many.first(1));
        // What was on the screen before comes again, one by one.
        story.Press(Qt::Key_Down);
        QCOMPARE(story.Shown(), many.sliced(1, 1));
    }

    void PagesThroughAParagraph()
    {
        OpenViewer story;
        story.AddPictures(50);
        const qint32 chapter = story.AddStory({"First"});
        story.album.AddParagraph(chapter, "Second", {{"Car0", "none"}});
        story.Open(chapter);
        QStringList seen;
        while (story.Legend() == "First" && seen.size() <= 50) {
            seen += story.Shown();
            story.Press(Qt::Key_Down);
        }
        QCOMPARE(story.Legend(), "Second");
        QCOMPARE(Find<QLabel>(story.viewer, "lblNotice").text(), "No picture fits.");
        QStringList sorted = seen;
        sorted.sort();
        QVERIFY(seen != sorted); // in random order
        QCOMPARE(sorted.size(), 50);
        QCOMPARE(sorted.removeDuplicates(), 0);
        // Resizing goes back to the beginning of the chapter.
        story.viewer.resize(800, 600);
        QTRY_COMPARE(story.Legend(), "First");
        QCOMPARE(story.viewer.Nblines, 1);
    }

    void ClickShowsOnePictureLarge()
    {
        OpenViewer story;
        for (const char* name : {"a", "b"})
            story.album.AddPicture(QString(name) + ".png", {{"Legend", name}}, {2000, 1000});
        story.Open(story.AddStory({"<[Picture Legend]>"}));
        story.StartAutoview("30"); // waits while a picture is alone, and while one is indexed
        story.Press(Qt::Key_Plus);
        const QString before = story.Legend();
        PictureBox* box = story.Boxes().first();
        const int small = box->width();
        QTest::mouseClick(box, Qt::LeftButton);
        auto& large = Find<PictureBox>(story.viewer, "imgFullSize");
        QVERIFY(large.isVisible() && !box->isVisible() && large.width() > small);
        QVERIFY(!story.Timer().isActive());
        QCOMPARE(story.Legend(), QFileInfo(box->GetTag()).completeBaseName());
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
        story.Open(story.AddStory({"text"}));
        story.album.AddParagraph(1, "bad filter", {{"Car0", "O'Neil"}});
        QStringList shown = story.Shown();
        shown.sort();
        QCOMPARE(shown, QStringList({"p01", "p02"}));
        for (const PictureBox* box : story.Boxes())
            QCOMPARE(box->GetPicture().isNull(), box->GetTag() == files[1]);
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
        story.AddPictures(3);
        story.Open(story.AddStory({"Here: <[Picture Legend]>"}));
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
        const QStringList others{story.Boxes()[2]->GetTag(), story.Boxes()[0]->GetTag()};
        Index(story, 1, [&](QWidget& window) {
            Click(window, "cmdDelete"); // goes on through the others on the screen
            QCOMPARE(Find<QLabel>(window, "lblFileName").text(), others[0]);
            Click(window, "cmdNextImage");
            QCOMPARE(Find<QLabel>(window, "lblFileName").text(), others[1]);
            QVERIFY(!Find<QWidget>(window, "cmdNextImage").isVisible());
            window.close();
        });
        QCOMPARE(story.Boxes().size(), 2);
        QVERIFY(!story.Shown().contains(QFileInfo(gone).completeBaseName()));
    }

    void IndexingGoesOnThroughTheList()
    {
        OpenViewer browsing;
        browsing.AddPictures(3, {3000, 1000}); // each fills the line
        browsing.Open(0);
        QVERIFY(!Find<QPushButton>(browsing.viewer, "cmdNextParagraph").isEnabled());
        browsing.StartAutoview("30");
        QStringList seen;
        Index(browsing, 0, [&](QWidget& window) {
            QVERIFY(!browsing.Timer().isActive());
            seen += Find<QLabel>(window, "lblFileName").text();
            Click(window, "cmdNextImage");
            seen += Find<QLabel>(window, "lblFileName").text();
            window.close();
        });
        QVERIFY(seen[0] != seen[1]);
        // The one that was indexed on the way does not come again.
        QCOMPARE(browsing.Legend(), "1 images left");
        browsing.Press(Qt::Key_Down);
        QVERIFY(!seen.contains(browsing.Boxes().first()->GetTag()));
        browsing.Tick();
        QTRY_COMPARE(browsing.Legend(), "Timer Off"); // after the last page
        QVERIFY(!GeneralModule::AutoviewOn && browsing.viewer.isVisible());
        WhenModal("frmFullScreen", [](QWidget& full) { OpenViewer::Press(full, Qt::Key_Escape); });
        browsing.Click("cmdHideMenu");
        QVERIFY(!browsing.viewer.isVisible()); // closes both, as opposed to a story
    }

    void EnterAndWhereWritingStopped()
    {
        OpenViewer story;
        story.Open(story.AddStory({"First", "Second"}));
        story.Press(Qt::Key_Return); // the focus lies on the way forward
        QCOMPARE(story.Legend(), "Second");
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(&story.viewer, &held);
        QCOMPARE(story.Legend(), "Second");
        WhenModal("frmEditParagraph", [](QWidget& editor) {
            Click(editor, "cmdCreateNext");
            QTest::keyClicks(&Find<QPlainTextEdit>(editor, "txtParagraph"), "Third");
            editor.close();
        });
        story.Press(Qt::Key_E);
        QCOMPARE(story.Legend(), "Third");
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
