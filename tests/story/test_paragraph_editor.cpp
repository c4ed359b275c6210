// SPDX-License-Identifier: MIT
#include "Writing.h"
#include "support/ScriptedDialogs.h"

// The paragraph editor and the organiser, worked by their controls.
class TestParagraphEditor : public QObject
{
    Q_OBJECT

private slots:
    void StepsAndCreation()
    {
        Writing writing;
        QStringList way;
        for (const char* button : {"cmdNextParagraph", "cmdEndOfChapter", "cmdPreviousParagraph",
                                   "cmdFirstParagraph", "cmdEndOfChapter"}) {
            writing.Click(button);
            way += writing.Text();
        }
        QCOMPARE(way.join(u' '), "second third second first third");
        QCOMPARE(writing.editor.focusWidget(), &writing.TextBox());
        QTest::keyClicks(&writing.TextBox(), "X");
        writing.Click("cmdNextParagraph"); // stays, and saves
        QCOMPARE(writing.Text(), "Xthird");
        QCOMPARE(writing.Texts(), "first; second; Xthird");
        writing.Click("cmdFirstParagraph");
        writing.Click("cmdCreateNext");
        QCOMPARE(writing.Text(), "");
        QCOMPARE(writing.editor.CurrentParagraph, 4);
        QCOMPARE(writing.Stored("Car4", 4), "Lake;Gone");
    }

    void KeysAndPlace()
    {
        Writing writing;
        const auto place = [&] { return writing.Label("lblPlace"); };
        QCOMPARE(place(), "1 of 3");
        writing.Click("cmdNextParagraph");
        QTest::keyClicks(&writing.TextBox(), "q");
        QTest::keyClick(&writing.TextBox(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(place(), "3 of 4"); // not yet linked to
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::ControlModifier, {}, true);
        QCoreApplication::sendEvent(&writing.TextBox(), &held);
        QTest::keyClick(&writing.TextBox(), Qt::Key_Enter,
                        Qt::ControlModifier | Qt::KeypadModifier);
        QCOMPARE(place(), "4 of 5");
        writing.Click("cmdEndOfChapter");
        QCOMPARE(place(), "5 of 5");
        QCOMPARE(writing.Texts(), "first; qsecond; third; ; ");
        QTest::keyClick(&writing.TextBox(), Qt::Key_F11);
        QVERIFY(writing.editor.isFullScreen());
        QTest::keyClick(&writing.TextBox(), Qt::Key_F11);
        QVERIFY(!writing.editor.isFullScreen() && writing.editor.isVisible());
        writing.PressOn("cmdDelete", Qt::Key_Q);
        QVERIFY(!writing.editor.isVisible());
    }

    void Filter()
    {
        Writing writing;
        auto& grid = Find<QTableWidget>(writing.editor, "grdCar");
        QCOMPARE(grid.item(3, 1)->text(), "Lake, Gone");
        QCOMPARE(grid.item(1, 3)->text(), "not Big");
        writing.Click("lblCar_4");
        QCOMPARE(writing.Marks(), "* (Reset); !; -; Lake+; Town; Gone+");
        for (const int row : {5, 4, 1})
            ClickLine(writing.Values(), row);
        QCOMPARE(writing.Marks(), "* (Reset); !+; -; Lake+; Town+; Gone");
        writing.Click("cmdNextParagraph");
        QCOMPARE(writing.Stored("Car4", 1), "!;Lake;Town");
        QCOMPARE(writing.Stored("Car9", 1), "!;Big");
        QCOMPARE(writing.Marks(), "");
        QCOMPARE(grid.item(3, 1)->text(), "*");

        // By keyboard; a "!" without values is not stored.
        QTest::keyClick(&grid, Qt::Key_Return);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Space})
            QTest::keyClick(&writing.Values(), key);
        QVERIFY(writing.Marks().contains("!+"));
        writing.Click("cmdPreviousParagraph");
        QCOMPARE(writing.Stored("Car0 || Car3", 2), "**");
    }

    void FilterInWordsWithItsCount()
    {
        Writing writing;
        writing.AddPicture("a.png", {{"Car4", "lake"}});
        writing.AddPicture("b.png", {{"Car7", "Gone"}, {"Car9", "Big"}});
        writing.Click("cmdNextParagraph");
        const auto sentence = [&writing] {
            return writing.Label("lblSentence").remove(QRegularExpression("<[^>]*>"));
        };
        QTRY_COMPARE(sentence(), "Any picture: 2 pictures");
        writing.Click("cmdPreviousParagraph");
        QCOMPARE(sentence(), "Where is Lake or Gone, and Caracteristic 10 is not Big: ...");
        QTRY_COMPARE(sentence(),
                     "Where is Lake or Gone, and Caracteristic 10 is not Big: 1 pictures");
        emit Find<QLabel>(writing.editor, "lblSentence").linkActivated("4");
        QTRY_COMPARE(writing.Values().item(5)->data(Qt::UserRole + 1).toString(), "1"); // Gone
        QCOMPARE(writing.Values().item(4)->data(Qt::UserRole + 1).toString(), "0");     // Town
        for (const int row : {5, 3, 4})
            ClickLine(writing.Values(), row);
        QTRY_COMPARE(sentence(), "Where is Town, and Caracteristic 10 is not Big: no picture fits");
    }

    void FindsAValueInALongList()
    {
        Writing writing;
        writing.Execute("WITH n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 299) "
                        "INSERT INTO Car0 SELECT 'Person ' || i FROM n");
        writing.Click("lblCar_4");
        QVERIFY(!writing.IsShown("txtFindValue"));
        writing.Click("lblCar_0");
        auto& search = Find<QLineEdit>(writing.editor, "txtFindValue");
        QVERIFY(search.isVisible());
        QTest::keyClicks(&writing.Values(), "n");
        QTest::keyClicks(&search, " 299");
        QCOMPARE(search.text(), "n 299");
        QTest::keyClick(&search, Qt::Key_Return);
        writing.Click("cmdNextParagraph");
        QCOMPARE(writing.Stored("Car0", 1), "Person 299");
    }

    void LinksDroppedFiles()
    {
        Writing writing;
        ScriptedDialogs dialogs;
        writing.AddPicture("held.png", {{"Legend", "kept"}});
        for (const char* name : {"one.png", "note.txt"})
            QVERIFY(QFile::copy(writing.PathOf("held.png"), writing.PathOf(name)));
        writing.TextBox().setPlainText("typed");
        const auto drop = [&](const QStringList& names) {
            QStringList paths;
            for (const QString& name : names)
                paths += writing.PathOf(name);
            QVERIFY(DropFiles(writing.editor, paths));
        };
        drop({"one.png", "held.png"});
        const QString links = "SELECT ParagraphId||File FROM LinkedImages";
        const QString both = "1" + writing.PathOf("one.png") + "; 1" + writing.PathOf("held.png");
        QCOMPARE(writing.Joined(links), both);
        QVERIFY(Find<QCheckBox>(writing.editor, "chkLinkedImage").isChecked());
        QCOMPARE(writing.Stored("Text", 1), "typed");
        QCOMPARE(writing.Joined("SELECT Legend FROM Image"), "kept; ");
        dialogs.ExpectBox("There is no picture among these files.\n"
                          "1 file(s) left out: no pictures",
                          Dialogs::Icon::Warning);
        drop({"note.txt"});
        QVERIFY(dialogs.IsDone());
        QCOMPARE(writing.Joined(links), both);
    }

    void PreviewAndLinks()
    {
        Writing writing(2);
        for (const char* name : {"a.png", "b.png", "c.png"})
            writing.AddPicture(name, {{"Legend", name}});
        writing.TextBox().setPlainText("See <<Picture Legend>>!");
        auto& link = Find<QCheckBox>(writing.editor, "chkLinkedImage");
        writing.Click("cmdPreview");
        QCOMPARE(writing.Stored("Text", 2), "See <[Picture Legend]>!");
        QCOMPARE(writing.Preview(), "3 images found: See a.png!");
        writing.Click("cmdNextImage");
        QCOMPARE(writing.Preview(), "1 images left: See b.png!");
        for (int i = 0; i < 3; ++i)
            link.click();
        QCOMPARE(writing.Rows("SELECT * FROM LinkedImages"),
                 QStringList("2|" + writing.PathOf("b.png")));
        writing.Click("cmdNextImage");
        QVERIFY(!link.isChecked());
        writing.Click("cmdNextImage");
        QCOMPARE(writing.Preview(), "");
        // The linked picture comes first, once.
        writing.Click("cmdPreview");
        QCOMPARE(writing.Preview(), "3 images found: See b.png!");
        QVERIFY(link.isChecked());
        writing.Link(2, writing.PathOf("b.png")); // twice, as an album from elsewhere may say it
        link.click();
        QCOMPARE(writing.Joined("SELECT * FROM LinkedImages"), "");
        // A changed filter shows at once what it finds.
        const auto chooseValue = [&writing](Qt::Key end) {
            writing.Click("lblCar_4");
            for (const Qt::Key key : {end, Qt::Key_Return})
                QTest::keyClick(&writing.Values(), key);
        };
        chooseValue(Qt::Key_End);
        QCOMPARE(writing.Preview(), "0 images found: See !");
        QTest::mouseClick(Find<QPlainTextEdit>(writing.editor, "txtParagraphPreview").viewport(),
                          Qt::LeftButton);
        QTRY_COMPARE(writing.Preview(), "");
        chooseValue(Qt::Key_Home);
        writing.Click("cmdPreview");
        QCOMPARE(writing.Preview(), "3 images found: See a.png!");
        writing.Click("cmdNextParagraph"); // which does not show this one's picture
        QCOMPARE(writing.Preview(), "");
        QVERIFY(!writing.IsShown("imgImage"));
    }

    // Labels may change while another window is open; what is stored does not.
    void FollowsLabelsAndLegends()
    {
        Writing writing(2);
        writing.AddPicture("a.png", {{"Legend", "A boat"}, {"Car4", "Lake"}});
        QVERIFY(!writing.IsShown("cmdEditLabels"));
        GeneralModule::SetColumnLabel(4, {});
        writing.Click("cmdPreviousParagraph");
        QCOMPARE(writing.Label("lblCar_4") + writing.Label("lblCar_7"),
                 "Caracteristic 5Caracteristic 8");
        writing.Click("cmdNextParagraph");
        writing.TextBox().setPlainText("<<Picture Legend>> at <[4]>");
        WhenModal("frmEditLabels", [](QWidget& labels) {
            Find<QLineEdit>(labels, "txtCar_4").setText("Where");
            Click(labels, "cmdExit");
        });
        writing.Click("cmdEditLabels");
        QVERIFY(!writing.IsShown("cmdEditLabels"));
        QCOMPARE(writing.Text(), "<<Picture Legend>> at <<Where (People)>>");
        writing.Click("cmdPreview");
        WhenModal("frmEditImage", [](QWidget& window) {
            Find<QLineEdit>(window, "txtLegend").setText("A ship");
            GeneralModule::SetColumnLabel(4, "Place");
            window.close();
        });
        writing.Click("imgImage");
        QVERIFY(writing.Preview().endsWith(": A ship at Lake"));
        QCOMPARE(writing.Text(), "<<Picture Legend>> at <<Place (People)>>");
        writing.Click("cmdExit");
        QCOMPARE(writing.Stored("Text", 2), "<[Picture Legend]> at <[4]>");
    }

    void OrganiseAcrossChapters()
    {
        Writing writing(3);
        QTest::keyClicks(&writing.TextBox(), "<<x ");
        WhenModal("frmOrganizeParagraphs", [](QWidget& organiser) {
            auto& list = Find<QListWidget>(organiser, "lstParagraph");
            Click(organiser, "cmdMoveUp");
            QCOMPARE(Lines(list), QStringList({"first", "*<<x third", "second"}));
            QTest::keyClick(&list, Qt::Key_Down);
            Click(organiser, "cmdMoveDown");
            QCOMPARE(Lines(list), QStringList("*second"));
            QCOMPARE(Find<QLabel>(organiser, "lblChapter").text(), "Two");
            // In a chapter that was only paged to nothing is selected, so nothing moves.
            QTest::keyClick(&list, Qt::Key_PageUp);
            Click(organiser, "cmdMoveUp");
            QCOMPARE(Lines(list), QStringList({"first", "<<x third"}));
            QTest::keyClick(&list, Qt::Key_PageDown);
            QTest::keyClick(&list, Qt::Key_Down);
            QTest::keyClick(&list, Qt::Key_Up, Qt::ControlModifier); // into chapter One
            QTest::keyClick(&list, Qt::Key_Up, Qt::ControlModifier);
            QCOMPARE(Lines(list), QStringList({"first", "*second", "<<x third"}));
            for (int i = 0; i < 2; ++i)
                QTest::keyClick(&list, Qt::Key_Down, Qt::ControlModifier);
            QCOMPARE(Lines(list), QStringList("*second"));
            WhenModal("frmKeys", [](QWidget& sheet) { Click(sheet, "cmdClose"); });
            QTest::keyClick(&list, Qt::Key_Question);
            QTest::keyClick(&list, Qt::Key_PageUp);
            DropLine(list, 0, 1, true);
            QCOMPARE(Lines(list), QStringList({"<<x third", "*first"}));
            DropLine(list, 1, 0, false);
            QTest::keyClick(&list, Qt::Key_PageDown);
            QMenu& menu = OpenMenuOf(list);
            QCOMPARE(menu.objectName(), "mnuParagraph");
            QVERIFY(menu.actions().contains(&Find<QAction>(organiser, "mnuMoveUp")));
            menu.close();
            ClickLine(list, 0, true);
        });
        writing.Click("cmdOrganize");
        QCOMPARE(writing.Text(), "second");
        QCOMPARE(writing.editor.windowTitle(), "Edit Paragraph from Chapter 'Two'");
        QCOMPARE(writing.Joined("SELECT Id,Chapter,PreviousParagraph,NextParagraph FROM Paragraph"),
                 "1|1|0|3; 2|2|0|0; 3|1|1|0");
    }
};

QTEST_MAIN(TestParagraphEditor)
#include "test_paragraph_editor.moc"
