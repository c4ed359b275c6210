// SPDX-License-Identifier: MIT
// The paragraph editor and the organiser, worked by their controls.
#include "catalogue/frmEditLabels.h"
#include "core/Parameters.h"
#include "story/frmEditParagraph.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"

#include <QtTest>

namespace {

// Three paragraphs in the first of two chapters; the editor open on one of them.
class Writing : public AlbumFixture
{
public:
    explicit Writing(qint32 paragraph = 1)
    {
        AddChapter("One");
        AddChapter("Two");
        AddParagraph(1, "first", {{"Car4", "Lake;Gone"}, {"Car9", "!;Big"}});
        AddParagraph(1, "second");
        AddParagraph(1, "third");
        Execute("INSERT INTO Car4 VALUES ('Lake'),('Town')");
        GeneralModule::SetColumnLabel(4, "Where");
        GeneralModule::SetCaractLabel(1, "People");
        editor.CurrentChapter = 1;
        editor.CurrentParagraph = paragraph;
        editor.show();
    }

    void Click(const QString& control) { ::Click(editor, control); }

    QString Text() { return TextBox().toPlainText(); }
    QPlainTextEdit& TextBox() { return Find<QPlainTextEdit>(editor, "txtParagraph"); }
    QListWidget& Values() { return Find<QListWidget>(editor, "lstCar"); }

    // What is previewed, if anything is.
    QString Preview()
    {
        const bool isOn = IsShown("txtParagraphPreview");
        for (const char* other : {"txtParagraph", "cmdPreview"}) {
            if (IsShown(other) == isOn)
                QTest::qFail("the preview and the text are both there", __FILE__, __LINE__);
        }
        if (!isOn)
            return {};
        return Find<QLabel>(editor, "lblFeedback").text() + ": " +
               Find<QPlainTextEdit>(editor, "txtParagraphPreview").toPlainText();
    }

    QString Marks()
    {
        QStringList marks;
        for (int row = 0; row < Values().count(); ++row) {
            const QListWidgetItem* item = Values().item(row);
            marks += item->text() + (item->checkState() == Qt::Checked ? "+" : "");
        }
        return marks.join("; ");
    }

    bool IsShown(const QString& control) { return Find<QWidget>(editor, control).isVisible(); }

    QString Stored(const QString& field, int paragraph) const
    {
        return Rows(QString("SELECT %1 FROM Paragraph WHERE Id=%2").arg(field).arg(paragraph))
            .value(0);
    }

    frmEditParagraph editor;
};

} // namespace

class TestParagraphEditor : public QObject
{
    Q_OBJECT

private slots:
    void EveryWayOutSaves()
    {
        const std::function<void(Writing&)> ways[] = {
            [](Writing& writing) { writing.Click("cmdExit"); },
            [](Writing& writing) { QTest::keyClick(&writing.TextBox(), Qt::Key_Escape); },
            [](Writing& writing) { writing.editor.close(); },
            [](Writing& writing) {
                auto& button = Find<QPushButton>(writing.editor, "cmdNextParagraph");
                button.setFocus();
                QTest::keyClick(&button, Qt::Key_Q);
            }};
        for (const auto& leave : ways) {
            Writing writing;
            QTest::keyClicks(&writing.TextBox(), "Qq ");
            QVERIFY(writing.editor.isVisible());
            leave(writing);
            QVERIFY(!writing.editor.isVisible());
            QCOMPARE(writing.Stored("Text", 1), QString("Qq first"));
            QCOMPARE(writing.editor.CurrentParagraph, 1);
        }
    }

    void StepsAndCreation()
    {
        Writing writing;
        const QStringList buttons{"cmdNextParagraph", "cmdEndOfChapter", "cmdPreviousParagraph",
                                  "cmdFirstParagraph", "cmdEndOfChapter"};
        QStringList way;
        for (const QString& button : buttons) {
            writing.Click(button);
            way += writing.Text();
        }
        QCOMPARE(way.join(u' '), "second third second first third");
        QCOMPARE(writing.editor.focusWidget(), &writing.TextBox());
        QTest::keyClicks(&writing.TextBox(), "X");
        writing.Click("cmdNextParagraph"); // stays, and saves
        QCOMPARE(writing.Text(), QString("Xthird"));
        QCOMPARE(writing.Joined("SELECT Text FROM Paragraph"), "first; second; Xthird");
        writing.Click("cmdFirstParagraph");
        writing.Click("cmdCreateNext");
        QCOMPARE(writing.Text(), QString());
        QCOMPARE(writing.editor.CurrentParagraph, 4);
        QCOMPARE(writing.Stored("Car4", 4), QString("Lake;Gone"));
    }

    void DeleteAsksFirst()
    {
        Writing writing;
        ScriptedDialogs dialogs;
        QTest::keyClicks(&writing.TextBox(), "unsaved ");
        const auto paragraphs = [&] { return writing.Joined("SELECT Text FROM Paragraph"); };
        const auto expectQuestion = [&](Dialogs::Answer answer) {
            dialogs.ExpectBox("Are you sure you want to DELETE current paragraph ?",
                              Dialogs::Icon::Question, Dialogs::Buttons::OkCancel, answer);
        };
        for (const auto answer : {Dialogs::Answer::Cancel, Dialogs::Answer::Ok}) {
            QCOMPARE(paragraphs(), "first; second; third");
            expectQuestion(answer);
            writing.Click("cmdDelete");
        }
        QCOMPARE(writing.Text(), "second");
        writing.Execute("UPDATE Paragraph SET Text='not read yet' WHERE Id=2");
        for (const auto answer : {Dialogs::Answer::Cancel, Dialogs::Answer::Ok}) {
            expectQuestion(Dialogs::Answer::Ok);
            dialogs.ExpectBox(
                "This paragraph was changed in another window after it was opened "
                "here.\n\nThe other version:\nnot read yet\n\nDelete it all the same?",
                Dialogs::Icon::Warning, Dialogs::Buttons::OkCancel, answer);
            writing.Click("cmdDelete");
            QCOMPARE(paragraphs(), answer == Dialogs::Answer::Ok ? "third" : "not read yet; third");
        }

        expectQuestion(Dialogs::Answer::Ok);
        writing.Click("cmdDelete");
        QCOMPARE(paragraphs(), "");
        QVERIFY(!writing.editor.isVisible()); // there is nothing left to write
        QCOMPARE(writing.editor.CurrentParagraph, 0);
    }

    // Two windows on one album: what the other one writes meanwhile is not lost by looking, and
    // where both changed the same the user is asked.
    void WhatAnotherWindowWrites()
    {
        using Answer = Dialogs::Answer;
        Writing writing;
        ScriptedDialogs dialogs;
        const auto stored = [&] { return writing.Stored("Text || ' ' || Car4 || ' ' || Car5", 1); };
        writing.Execute("UPDATE Paragraph SET Text='theirs', Car5='Old' WHERE Id=1");
        writing.Click("cmdNextParagraph"); // nothing was typed
        QCOMPARE(stored(), "theirs Lake;Gone Old");
        writing.Click("cmdPreviousParagraph");
        QTest::keyClicks(&writing.TextBox(), "mine ");
        writing.Execute("UPDATE Paragraph SET Car4='Town' WHERE Id=1");
        writing.Click("cmdFirstParagraph"); // stays, and saves
        QCOMPARE(stored(), "mine theirs Town Old");
        QCOMPARE(Find<QTableWidget>(writing.editor, "grdCar").item(3, 1)->text(), "Town");

        QTest::keyClicks(&writing.TextBox(), "my ");
        writing.Execute("UPDATE Paragraph SET Text='new', Car5='*' WHERE Id=1");
        const auto expectQuestion = [&](const QString& theirs, const QString& own, Answer answer) {
            dialogs.ExpectBox("This paragraph was changed in another window after it was opened "
                              "here.\n\nThe other version:\n" +
                                  theirs + "\nTown\nnot Big\n\nYour version:\n" + own + "\nnot Big",
                              Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel, answer);
        };
        for (const char* way :
             {"cmdNextParagraph", "cmdCreateNext", "cmdOrganize", "cmdPreview", "cmdExit"}) {
            expectQuestion("new", "mine my theirs\nTown\nOld", Answer::Cancel);
            writing.Click(way);
            QVERIFY(writing.editor.isVisible());
            QCOMPARE(writing.Text(), "mine my theirs");
        }
        QCOMPARE(stored(), "new Town *");
        expectQuestion("new", "mine my theirs\nTown\nOld", Answer::No);
        writing.Click("cmdFirstParagraph");
        QCOMPARE(writing.Text(), "new");
        QTest::keyClicks(&writing.TextBox(), "a ");
        writing.Execute("UPDATE Paragraph SET Text='newer' WHERE Id=1");
        expectQuestion("newer", "a new\nTown", Answer::Yes);
        writing.Click("cmdExit");
        QCOMPARE(stored(), "a new Town *");
    }

    void LabelsThatAnotherWindowNames()
    {
        Writing writing;
        ScriptedDialogs dialogs;
        frmEditLabels labels;
        labels.show();
        writing.Execute("UPDATE Params SET Value='theirs' WHERE Param IN ('Car4','Caract1')");
        Find<QLineEdit>(labels, "txtCar_4").setText("mine");
        Find<QLineEdit>(labels, "txtCar_5").setText("own");
        for (const auto answer : {Dialogs::Answer::Cancel, Dialogs::Answer::No}) {
            dialogs.ExpectBox("One of these labels was changed in another window after it was "
                              "opened here.\n\nThe other version:\ntheirs\n\nYour version:\nmine",
                              Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel, answer);
            ::Click(labels, "cmdExit");
            QCOMPARE(labels.isVisible(), answer == Dialogs::Answer::Cancel);
        }
        QCOMPARE(writing.Joined("SELECT Value FROM Params WHERE Param IN ('Car4','Car5','Caract1') "
                                "ORDER BY Param"),
                 "theirs; own; theirs");
    }

    void LeavingAsksWhenItCannotSave()
    {
        Writing writing;
        ScriptedDialogs dialogs;
        writing.Execute("DELETE FROM Paragraph");
        for (const auto answer : {Dialogs::Answer::No, Dialogs::Answer::Yes}) {
            dialogs.ExpectBox("The paragraph cannot be saved: 3167 This paragraph is no longer in "
                              "the album.\n\nLeave without saving?",
                              Dialogs::Icon::Warning, Dialogs::Buttons::YesNo, answer);
            writing.Click("cmdExit");
            QCOMPARE(writing.editor.isVisible(), answer == Dialogs::Answer::No);
        }
    }

    // Wherever the engine fails on the way, and once it works again, no paragraph is overwritten.
    void WhatCannotBeReadIsNotSaved()
    {
        const PatientDialogs dialogs;
        for (const char* way : {"cmdNextParagraph", "cmdDelete", "cmdOrganize"}) {
            bool hasFailed = true;
            int trials = 0;
            for (int steps = 0; hasFailed; steps += 13, ++trials) {
                Writing writing;
                const auto rows = [&] { return writing.Rows("SELECT * FROM Paragraph"); };
                const QStringList before = rows();
                if (way == QLatin1String("cmdOrganize"))
                    WhenModal("frmOrganizeParagraphs", [](QWidget& window) { window.close(); });
                {
                    const FailingEngine failing(steps);
                    writing.Click(way);
                    hasFailed = failing.HasFailed();
                }
                const bool isDeleted = rows().size() < before.size();
                if (writing.editor.isVisible())
                    writing.Click("cmdExit");
                QCOMPARE(writing.Joined("SELECT Text FROM Paragraph"),
                         isDeleted ? "second; third" : "first; second; third");
                QVERIFY(isDeleted || rows() == before);
            }
            QVERIFY2(trials > 5, way);
        }
    }

    void Filter()
    {
        Writing writing;
        auto& grid = Find<QTableWidget>(writing.editor, "grdCar");
        QCOMPARE(Find<QLabel>(writing.editor, "lblCar_4").text(), "Where");
        QCOMPARE(Find<QLabel>(writing.editor, "lblCar_7").text(), "Where");
        QCOMPARE(grid.item(3, 1)->text(), "Lake, Gone");
        QCOMPARE(grid.item(1, 3)->text(), "not Big");
        QCOMPARE(grid.item(5, 1)->text(), "*");

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
        QTest::keyClick(&writing.Values(), Qt::Key_Down);
        QTest::keyClick(&writing.Values(), Qt::Key_Space);
        QVERIFY(writing.Marks().contains("!+"));
        writing.Click("cmdPreviousParagraph");
        for (int column = 0; column < columnCount; ++column)
            QCOMPARE(writing.Stored(QString("Car%1").arg(column), 2), "*");
    }

    void PreviewAndLinks()
    {
        Writing writing(2);
        for (const char* name : {"a.png", "b.png", "c.png"})
            writing.AddPicture(name, {{"Legend", name}});
        writing.TextBox().setPlainText("See <<Picture Legend>>!");
        auto& link = Find<QCheckBox>(writing.editor, "chkLinkedImage");
        QVERIFY(!link.isEnabled());
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
        QCOMPARE(writing.Preview(), "0 images left: See c.png!");
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
        writing.Click("lblCar_4");
        for (const Qt::Key key : {Qt::Key_End, Qt::Key_Return})
            QTest::keyClick(&writing.Values(), key);
        QCOMPARE(writing.Preview(), "0 images found: See !");
        QVERIFY(!writing.IsShown("imgImage"));
        QTest::mouseClick(Find<QPlainTextEdit>(writing.editor, "txtParagraphPreview").viewport(),
                          Qt::LeftButton);
        QTRY_COMPARE(writing.Preview(), "");
        writing.Click("lblCar_4");
        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Return})
            QTest::keyClick(&writing.Values(), key);
        writing.Click("cmdPreview");
        QCOMPARE(writing.Preview(), "3 images found: See a.png!");
        writing.Click("cmdNextParagraph"); // which does not show this one's picture
        QCOMPARE(writing.Preview(), "");
        QVERIFY(!writing.IsShown("imgImage"));
    }

    void NumbersColumnsUntilTheyHaveNames()
    {
        Writing writing;
        QVERIFY(!writing.IsShown("cmdEditLabels"));
        GeneralModule::SetColumnLabel(4, {});
        writing.Click("cmdNextParagraph");
        QCOMPARE(Find<QLabel>(writing.editor, "lblCar_4").text(), "Caracteristic 5");
        QCOMPARE(Find<QLabel>(writing.editor, "lblCar_7").text(), "Caracteristic 8");
        writing.Click("cmdInsertCar");
        auto& inserts = Find<QListWidget>(writing.editor, "lstInsertCar");
        QCOMPARE(inserts.item(12)->text(), "Caracteristic 12");
        QTest::keyClick(&inserts, Qt::Key_Escape); // closes only the list
        QVERIFY(writing.editor.isVisible() && !inserts.isVisible());
        writing.TextBox().setPlainText("typed <<Where (People)>> <[4]>");
        WhenModal("frmEditLabels", [](QWidget& labels) {
            Find<QLineEdit>(labels, "txtCar_4").setText("Where");
            Click(labels, "cmdExit");
        });
        writing.Click("cmdEditLabels");
        QVERIFY(!writing.IsShown("cmdEditLabels"));
        // What was typed is kept, and the marker has its name.
        QCOMPARE(writing.Text(), "typed <<Where (People)>> <<Where (People)>>");
    }

    // Labels may change while the picture is edited; what is stored does not.
    void IndexingThePictureOnShow()
    {
        Writing writing(2);
        writing.AddPicture("a.png", {{"Legend", "A boat"}, {"Car4", "Lake"}});
        writing.TextBox().setPlainText("<<Picture Legend>> at <<Where (People)>>");
        writing.Click("cmdPreview");
        WhenModal("frmEditImage", [](QWidget& window) {
            Find<QLineEdit>(window, "txtLegend").setText("A ship");
            GeneralModule::SetColumnLabel(4, "Place");
            window.close();
        });
        writing.Click("imgImage");
        QCOMPARE(Find<QPlainTextEdit>(writing.editor, "txtParagraphPreview").toPlainText(),
                 QString("A ship at Lake"));
        QCOMPARE(writing.Text(), QString("<<Picture Legend>> at <<Place (People)>>"));
        QCOMPARE(Find<QLabel>(writing.editor, "lblCar_7").text(), QString("Place"));
        writing.Click("cmdExit");
        QCOMPARE(writing.Stored("Text", 2), QString("<[Picture Legend]> at <[4]>"));
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
            QCOMPARE(Find<QLabel>(organiser, "lblChapter").text(), QString("Two"));
            Click(organiser, "cmdMoveDown"); // there is no chapter behind
            QCOMPARE(Lines(list), QStringList("*second"));
            // In a chapter that was only paged to nothing is selected, so nothing moves.
            QTest::keyClick(&list, Qt::Key_PageUp);
            Click(organiser, "cmdMoveUp");
            QCOMPARE(Lines(list), QStringList({"first", "<<x third"}));
            QTest::keyClick(&list, Qt::Key_PageDown);
            ClickLine(list, 0, true);
        });
        writing.Click("cmdOrganize");
        QCOMPARE(writing.Text(), QString("second"));
        QCOMPARE(writing.editor.CurrentChapter, 2);
        QCOMPARE(writing.editor.CurrentParagraph, 2);
        QCOMPARE(writing.editor.windowTitle(), QString("Edit Paragraph from Chapter 'Two'"));
        QCOMPARE(writing.Joined("SELECT Id,Chapter,PreviousParagraph,NextParagraph FROM Paragraph"),
                 "1|1|0|3; 2|2|0|0; 3|1|1|0");
    }
};

QTEST_MAIN(TestParagraphEditor)
#include "test_paragraph_editor.moc"
