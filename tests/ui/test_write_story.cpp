// SPDX-License-Identifier: MIT
// A story of two chapters, written from nothing in the real windows and read back in the viewer.
#include "core/Album.h"
#include "core/Parameters.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"
#include "ui/main/frmOpenChapter.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QtTest>

namespace {

void ClickText(QListWidget& list, const QString& text)
{
    const QList<QListWidgetItem*> found = list.findItems(text, Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    ClickLine(list, list.row(found.first()));
}

// Where the window would get it.
void Press(QWidget& window, char key)
{
    QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, key);
}

void Type(QWidget& editor, const QString& text)
{
    QTest::keyClicks(&Find<QPlainTextEdit>(editor, "txtParagraph"), text);
}

void InsertMarker(QWidget& editor, const QString& title)
{
    Click(editor, "cmdInsertCar");
    ClickText(Find<QListWidget>(editor, "lstInsertCar"), title);
}

void ChooseValue(QWidget& editor, int column, const QString& value)
{
    Click(editor, QStringLiteral("lblCar_%1").arg(column));
    ClickText(Find<QListWidget>(editor, "lstCar"), value);
}

QString Feedback(QWidget& editor)
{
    return Find<QLabel>(editor, "lblFeedback").text();
}

QString TagOf(QWidget& editor)
{
    return Find<QWidget>(editor, "imgImage").property("Tag").toString();
}

// What the viewer shows: its text and its pictures.
QStringList Screen(QWidget& viewer)
{
    QStringList files;
    for (int i = 0; i < 21; ++i) {
        auto& box = Find<QWidget>(viewer, QStringLiteral("imgImage_%1").arg(i));
        if (!box.isHidden())
            files += QFileInfo(box.property("Tag").toString()).fileName();
    }
    files.sort();
    return QStringList(Find<QLabel>(viewer, "lblLegend").text()) + files;
}

bool Shows(QWidget& viewer, const QString& text)
{
    return QTest::qWaitFor([&] { return Find<QLabel>(viewer, "lblLegend").text() == text; });
}

} // namespace

class TestWriteStory : public QObject
{
    Q_OBJECT

private slots:
    void FromNothing()
    {
        AlbumFixture album;
        ScriptedDialogs dialogs;
        GeneralModule::SetCaractLabel(1, "People");
        GeneralModule::SetColumnLabel(3, "Who");
        for (const char* name : {"Anna", "Paul"})
            album.Execute(QStringLiteral("INSERT INTO Car3 VALUES ('%1')").arg(name));
        album.AddPicture("boat.png", {{"Legend", "A boat"}, {"Car3", "Anna"}});
        album.AddPicture("hill.png", {{"Legend", "A hill"}, {"Car3", "Paul"}});
        album.AddPicture("tree.png", {{"Legend", "A tree"}});

        frmOpenChapter main(album.GetAlbum());
        main.show();
        dialogs.ExpectInput("Please Enter Chapter Name", "Morning");
        WhenModal("frmReelvane", [&](QWidget& viewer) { WriteFirstChapter(viewer); });
        Click(main, "cmdCreateChapter");
        dialogs.ExpectInput("Please Enter Chapter Name", "Evening");
        WhenModal("frmReelvane", [&](QWidget& viewer) { WriteSecondChapter(viewer); });
        Click(main, "cmdCreateChapter");

        QCOMPARE(album.Rows("SELECT Id,Chapter,PreviousParagraph,NextParagraph,Text,Car3 "
                            "FROM Paragraph ORDER BY Id"),
                 QStringList({"1|1|0|2|<[Picture Legend]> with <[3]>, quietly|Anna",
                              "2|1|1|0|Then a hill|Paul", "3|2|0|0|The end|Anna"}));
        QCOMPARE(album.Rows("SELECT * FROM LinkedImages"),
                 QStringList("3|" + album.PathOf("boat.png")));
        QCOMPARE(album.Rows("SELECT FirstParagraph FROM Chapter"), QStringList({"1", "3"}));

        Find<QListWidget>(main, "lstChapter").setCurrentRow(0);
        WhenModal("frmReelvane", [&](QWidget& viewer) { ReadStory(viewer); });
        Click(main, "cmdReadChapter");
    }

private:
    void WriteFirstChapter(QWidget& viewer)
    {
        QVERIFY(Shows(viewer, "Click HERE to create first paragraph of the new chapter 'Morning'"));
        WhenModal("frmEditParagraph", [&](QWidget& editor) {
            QCOMPARE(editor.windowTitle(), QString("Edit Paragraph from Chapter 'Morning'"));
            InsertMarker(editor, "Picture Legend");
            Type(editor, " with ");
            InsertMarker(editor, "Who (People)");
            Type(editor, ", quietly");
            QCOMPARE(Find<QPlainTextEdit>(editor, "txtParagraph").toPlainText(),
                     QString("<<Picture Legend>> with <<Who (People)>>, quietly"));
            ChooseValue(editor, 3, "Anna");
            Click(editor, "cmdPreview");
            QCOMPARE(Feedback(editor), QString("1 images found"));
            QCOMPARE(Find<QPlainTextEdit>(editor, "txtParagraphPreview").toPlainText(),
                     QString("A boat with Anna, quietly"));
            QVERIFY(TagOf(editor).endsWith("boat.png"));
            Click(editor, "cmdCreateNext");
            Type(editor, "Then a hill");
            ChooseValue(editor, 3, "Paul");
            ChooseValue(editor, 3, "Anna");
            Click(editor, "cmdExit");
        });
        Click(viewer, "lblLegend");
        // The viewer follows to where the user stopped writing.
        QCOMPARE(Screen(viewer), QStringList({"Then a hill", "hill.png"}));
        QTest::keyClick(&viewer, Qt::Key_Escape);
    }

    void WriteSecondChapter(QWidget& viewer)
    {
        QVERIFY(Shows(viewer, "Click HERE to create first paragraph of the new chapter 'Evening'"));
        WhenModal("frmEditParagraph", [&](QWidget& editor) {
            Type(editor, "The end");
            ChooseValue(editor, 3, "Anna");
            Click(editor, "cmdPreview");
            Click(editor, "chkLinkedImage");
            Click(editor, "cmdExit");
        });
        Press(viewer, 'e');
        QCOMPARE(Screen(viewer), QStringList({"The end", "boat.png"}));
        Press(viewer, 'q');
    }

    void ReadStory(QWidget& viewer)
    {
        QVERIFY(Shows(viewer, "A boat with Anna, quietly"));
        QCOMPARE(Screen(viewer), QStringList({"A boat with Anna, quietly", "boat.png"}));
        Click(viewer, "cmdNextParagraph");
        QCOMPARE(Screen(viewer), QStringList({"Then a hill", "hill.png"}));
        Click(viewer, "cmdNextParagraph");
        QCOMPARE(Screen(viewer), QStringList({"The end", "boat.png"}));
        QCOMPARE(viewer.windowTitle(), QString("Evening"));
        Click(viewer, "cmdClose");
    }
};

QTEST_MAIN(TestWriteStory)
#include "test_write_story.moc"
