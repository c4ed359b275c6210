// SPDX-License-Identifier: MIT
// The paragraph editor and the organiser, worked by their controls.
#include "core/Parameters.h"
#include "story/frmEditParagraph.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

namespace {

const QString deleteQuestion =
    QStringLiteral("Are you sure you want to DELETE current paragraph ?");

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
    QString Feedback() { return Find<QLabel>(editor, "lblFeedback").text(); }
    QStringList Marks()
    {
        QStringList marks;
        for (int row = 0; row < Values().count(); ++row) {
            const QListWidgetItem* item = Values().item(row);
            marks += item->text() + (item->checkState() == Qt::Checked ? "+" : "");
        }
        return marks;
    }

    bool IsShown(const QString& control) { return Find<QWidget>(editor, control).isVisible(); }

    QString Stored(const QString& field, int paragraph) const
    {
        return Rows(
                   QStringLiteral("SELECT %1 FROM Paragraph WHERE Id=%2").arg(field).arg(paragraph))
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
        const std::pair<const char*, const char*> steps[] = {{"cmdNextParagraph", "second"},
                                                             {"cmdEndOfChapter", "third"},
                                                             {"cmdPreviousParagraph", "second"},
                                                             {"cmdFirstParagraph", "first"},
                                                             {"cmdEndOfChapter", "third"}};
        for (const auto& [button, text] : steps) {
            writing.Click(button);
            QCOMPARE(writing.Text(), QString(text));
        }
        QTest::keyClicks(&writing.TextBox(), "X");
        writing.Click("cmdNextParagraph"); // stays, and saves
        QCOMPARE(writing.Text(), QString("Xthird"));
        QCOMPARE(writing.Stored("Text", 3), QString("Xthird"));
        writing.Click("cmdFirstParagraph");
        writing.Click("cmdCreateNext");
        QCOMPARE(writing.Text(), QString());
        QCOMPARE(writing.editor.CurrentParagraph, 4);
        QCOMPARE(writing.Stored("Car4", 4), QString("Lake;Gone"));
    }

    void WhatCannotBeSavedIsNotThrownAway()
    {
        Writing writing;
        ScriptedDialogs dialogs;
        writing.Execute("DELETE FROM Paragraph WHERE Id=1");
        const QString question =
            "The paragraph cannot be saved: 3167 This paragraph is no longer in the "
            "album.\n\nLeave without saving?";
        dialogs.ExpectBox(question, Dialogs::Icon::Warning, Dialogs::Buttons::YesNo,
                          Dialogs::Answer::No);
        writing.Click("cmdExit");
        QVERIFY(writing.editor.isVisible());
        dialogs.ExpectBox(question, Dialogs::Icon::Warning, Dialogs::Buttons::YesNo,
                          Dialogs::Answer::Yes);
        writing.editor.close();
        QVERIFY(!writing.editor.isVisible());
    }

    void DeleteAsksFirst()
    {
        Writing writing;
        ScriptedDialogs dialogs;
        QTest::keyClicks(&writing.TextBox(), "unsaved ");
        const QStringList before = writing.Rows("SELECT * FROM Paragraph");
        dialogs.ExpectBox(deleteQuestion, Dialogs::Icon::Question, Dialogs::Buttons::OkCancel,
                          Dialogs::Answer::Cancel);
        writing.Click("cmdDelete");
        QCOMPARE(writing.Rows("SELECT * FROM Paragraph"), before);
        for (const char* next : {"second", "third", ""}) {
            dialogs.ExpectBox(deleteQuestion, Dialogs::Icon::Question, Dialogs::Buttons::OkCancel);
            writing.Click("cmdDelete");
            QCOMPARE(writing.editor.isVisible(), *next != '\0');
            if (*next)
                QCOMPARE(writing.Text(), QString(next));
        }
        QCOMPARE(writing.editor.CurrentParagraph, 0);
        QVERIFY(writing.Rows("SELECT * FROM Paragraph").isEmpty());
    }

    void Filter()
    {
        Writing writing;
        auto& grid = Find<QTableWidget>(writing.editor, "grdCar");
        auto& where = Find<QLabel>(writing.editor, "lblCar_4");
        auto& doing = Find<QLabel>(writing.editor, "lblCar_5");
        QCOMPARE(where.text(), QString("Where"));
        QCOMPARE(Find<QLabel>(writing.editor, "lblCar_7").text(), QString("Where"));
        QCOMPARE(grid.item(3, 1)->text(), QString("Lake, Gone"));
        QCOMPARE(grid.item(1, 3)->text(), QString("not Big"));
        QCOMPARE(grid.item(5, 1)->text(), QString("*"));
        const auto ground = [](const QLabel& label) {
            return label.palette().color(label.backgroundRole());
        };
        QVERIFY(ground(where) != ground(doing));
        QCOMPARE(writing.Values().count(), 0);

        writing.Click("lblCar_4");
        QCOMPARE(writing.Marks(), QStringList({"* (Reset)", "!", "-", "Lake+", "Town", "Gone+"}));
        for (const int row : {5, 4, 1})
            ClickLine(writing.Values(), row);
        QCOMPARE(writing.Marks(), QStringList({"* (Reset)", "!+", "-", "Lake+", "Town+", "Gone"}));
        writing.Click("cmdNextParagraph");
        QCOMPARE(writing.Stored("Car4", 1), QString("!;Lake;Town"));
        QCOMPARE(writing.Stored("Car9", 1), QString("!;Big"));
        QCOMPARE(writing.Values().count(), 0);
        QCOMPARE(grid.item(3, 1)->text(), QString("*"));
        QCOMPARE(ground(where), ground(doing));

        // By keyboard; a "!" without values is not stored.
        QTest::keyClick(&grid, Qt::Key_Return);
        QTest::keyClick(&writing.Values(), Qt::Key_Down);
        QTest::keyClick(&writing.Values(), Qt::Key_Space);
        QVERIFY(writing.Marks().contains("!+"));
        writing.Click("cmdPreviousParagraph");
        for (int column = 0; column < columnCount; ++column)
            QCOMPARE(writing.Stored(QStringLiteral("Car%1").arg(column), 2), QString("*"));
    }

    void PreviewAndLinks()
    {
        Writing writing(2);
        for (const char* name : {"a.png", "b.png", "c.png"})
            writing.AddPicture(name, {{"Legend", name}});
        writing.TextBox().setPlainText("See <<Picture Legend>>!");
        QVERIFY(!Find<QCheckBox>(writing.editor, "chkLinkedImage").isEnabled());
        writing.Click("cmdPreview");
        QCOMPARE(writing.Stored("Text", 2), QString("See <[Picture Legend]>!"));
        QCOMPARE(writing.Feedback(), QString("3 images found"));
        for (const char* shown : {"txtParagraphPreview", "cmdNextImage", "lblFeedback", "imgImage"})
            QVERIFY(writing.IsShown(shown));
        QVERIFY(!writing.IsShown("txtParagraph") && !writing.IsShown("cmdPreview"));
        auto& preview = Find<QPlainTextEdit>(writing.editor, "txtParagraphPreview");
        QCOMPARE(preview.toPlainText(), QString("See a.png!"));
        writing.Click("cmdNextImage");
        QCOMPARE(writing.Feedback(), QString("1 images left"));
        QCOMPARE(preview.toPlainText(), QString("See b.png!"));

        auto& link = Find<QCheckBox>(writing.editor, "chkLinkedImage");
        for (int i = 0; i < 3; ++i)
            link.click();
        QCOMPARE(writing.Rows("SELECT * FROM LinkedImages"),
                 QStringList("2|" + writing.PathOf("b.png")));
        writing.Click("cmdNextImage");
        QVERIFY(!link.isChecked());
        QCOMPARE(writing.Feedback(), QString("0 images left"));
        writing.Click("cmdNextImage");
        QVERIFY(writing.IsShown("txtParagraph") && writing.IsShown("cmdPreview"));
        QVERIFY(!writing.IsShown("txtParagraphPreview") && !writing.IsShown("cmdNextImage"));

        // The linked picture comes first, once.
        writing.Click("cmdPreview");
        QCOMPARE(writing.Feedback(), QString("3 images found"));
        QCOMPARE(preview.toPlainText(), QString("See b.png!"));
        QVERIFY(link.isChecked());
        link.click();
        QVERIFY(writing.Rows("SELECT * FROM LinkedImages").isEmpty());
        // A changed filter shows at once what it finds.
        writing.Click("lblCar_4");
        QTest::keyClick(&writing.Values(), Qt::Key_End);
        QTest::keyClick(&writing.Values(), Qt::Key_Return);
        QCOMPARE(writing.Feedback(), QString("0 images found"));
        QCOMPARE(preview.toPlainText(), QString("See !"));
        QVERIFY(!writing.IsShown("imgImage"));
        QTest::keyClick(&writing.Values(), Qt::Key_Home);
        QTest::keyClick(&writing.Values(), Qt::Key_Return);
        QCOMPARE(writing.Feedback(), QString("3 images found"));
        QTest::mouseClick(preview.viewport(), Qt::LeftButton);
        QTRY_VERIFY(writing.IsShown("txtParagraph"));
        writing.Click("cmdPreview");
        // Another paragraph does not show this one's picture.
        writing.Click("cmdNextParagraph");
        QVERIFY(!writing.IsShown("imgImage"));
        QVERIFY(writing.IsShown("txtParagraph"));
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
            QCOMPARE(Lines(list), QStringList({"first", "second", "*<<x third"}));
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
            QCOMPARE(Lines(list), QStringList({"first", "<<x third"}));
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
        QCOMPARE(writing.Rows("SELECT Id,Chapter,PreviousParagraph,NextParagraph FROM Paragraph"),
                 QStringList({"1|1|0|3", "2|2|0|0", "3|1|1|0"}));
    }
};

QTEST_MAIN(TestParagraphEditor)
#include "test_paragraph_editor.moc"
