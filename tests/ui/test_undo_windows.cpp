// SPDX-License-Identifier: MIT
#include "EveryWindow.h"

#include "catalogue/Picture.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/Parameters.h"
#include "core/UndoSteps.h"
#include "story/ParagraphChain.h"
#include "support/ModalDriver.h"
#include "ui/main/frmUndo.h"

using namespace GeneralModule;

// Taking back what was done, in the windows of the program.
class TestUndoWindows : public EveryWindowTest
{
    Q_OBJECT

private slots:
    void EachTakesTheKeys_data() { AddEveryWindow(); }

    void EachTakesTheKeys()
    {
        QFETCH(QString, name);
        QWidget& window = Open(name);
        SetParam("Title", "one");
        SetParam("Title", "two");
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(GetParam("Title"), "one");
        QCOMPARE(News(window), "Undone: Change Settings");
        Press(window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(GetParam("Title"), "two");
        Press(window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(News(window), "There is nothing to redo.");
        album_->Execute("INSERT INTO Params VALUES ('theirs','')");
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(News(window).startsWith("Another program has changed the album."));
    }

    void TheMenuNamesTheSteps()
    {
        QWidget& window = Open("frmOpenChapter");
        auto& undo = Find<QAction>(window, "mnuUndo");
        auto& redo = Find<QAction>(window, "mnuRedo");
        auto& menu = Find<QMenu>(window, "mnuTools");
        emit menu.aboutToShow();
        QVERIFY(!undo.isEnabled() && !redo.isEnabled());
        CreateChapter("A & B", "Chapter");
        emit menu.aboutToShow();
        QCOMPARE(undo.text(), "Undo Create Chapter “A && B”");
        undo.trigger();
        emit menu.aboutToShow();
        QVERIFY(!undo.isEnabled());
        QCOMPARE(redo.text(), "Redo Create Chapter “A && B”");
        QCOMPARE(Find<QListWidget>(window, "lstChapter").count(), 1);
        redo.trigger();
        QCOMPARE(Find<QListWidget>(window, "lstChapter").count(), 2);
    }

    void TheListGoesBackSeveral()
    {
        Open("frmOpenChapter");
        for (const char* name : {"A", "B", "C"})
            CreateChapter(name, {});
        frmUndo list;
        list.show();
        auto& steps = Find<QListWidget>(list, "lstSteps");
        QCOMPARE(steps.item(0)->text(), "Create Chapter “C”");
        steps.setCurrentRow(1);
        QCOMPARE(steps.selectedItems().size(), 2);
        QCOMPARE(Find<QPushButton>(list, "cmdUndo").text(), "Undo 2 Steps");
        Click(list, "cmdUndo");
        QVERIFY(!list.isVisible());
        QVERIFY(FindChapter("A") && !FindChapter("B") && !FindChapter("C"));
    }

    // What is typed and not saved is not lost either way.
    void TheEditorTakesBackWhatWasWritten()
    {
        auto& window = static_cast<frmEditParagraph&>(Open("frmEditParagraph"));
        auto& text = Find<QPlainTextEdit>(window, "txtParagraph");
        QTest::keyClicks(&text, "More ");
        QTest::keyClick(&text, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(text.toPlainText(), "Text"); // by the field itself
        QVERIFY(UndoName().isEmpty());
        QTest::keyClicks(&text, "More ");
        Find<QPushButton>(window, "cmdNextParagraph").setFocus();
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(text.toPlainText(), "Text");
        QCOMPARE(LoadParagraph(window.CurrentParagraph).text, "Text");
        Press(window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(text.toPlainText(), "More Text");
        QCOMPARE(LoadParagraph(window.CurrentParagraph).text, "More Text");
        // From a paragraph that is gone it goes to the one before.
        const qint32 first = window.CurrentParagraph;
        Click(window, "cmdCreateNext");
        QVERIFY(window.CurrentParagraph != first);
        Find<QPushButton>(window, "cmdNextParagraph").setFocus();
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.CurrentParagraph, first);
        QCOMPARE(text.toPlainText(), "More Text");
        // One that comes back is shown, whether it is made again or no longer deleted.
        Press(window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        const qint32 second = window.CurrentParagraph;
        QVERIFY(second != first);
        dialogs_->ExpectBox("Are you sure you want to DELETE current paragraph ?", Icon::Question,
                            Buttons::OkCancel);
        Click(window, "cmdDelete");
        QCOMPARE(window.CurrentParagraph, first);
        Find<QPushButton>(window, "cmdNextParagraph").setFocus();
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.CurrentParagraph, second);
    }

    void ANumberThatIsTypedIsTakenBackFirst()
    {
        QWidget& window = Open("frmEarlierStates");
        SetParam("Title", "one");
        auto& limit = Find<QSpinBox>(window, "spnLimit");
        const QString before = limit.cleanText();
        limit.setFocus();
        limit.selectAll();
        QTest::keyClicks(&limit, "70");
        QCOMPARE(limit.cleanText(), "70");
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(limit.cleanText(), before);
        QCOMPARE(GetParam("Title"), "one");
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(GetParam("Title"), QString());
    }

    void AStoppedUndoChangesNothing()
    {
        QWidget& window = Open("frmOpenChapter");
        album_->Execute("WITH n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<30000) "
                        "INSERT INTO Image (File,Car0) SELECT i,'A' FROM n");
        {
            const UndoStep step("Many");
            AlbumDatabase->Execute("UPDATE Image SET Car0='B'");
        }
        const auto other = Database::Open(album_->GetAlbum());
        other->Execute("BEGIN IMMEDIATE");
        QTimer presser;
        connect(&presser, &QTimer::timeout, this, [] {
            for (QWidget* top : QApplication::topLevelWidgets()) {
                if (top->objectName() == "dlgUndo" && top->isVisible())
                    Click(*top, "cmdStop");
            }
        });
        presser.start(0);
        // It waits for the lock, longer than it works without a sign.
        const std::unique_ptr<QThread> holder(QThread::create([&other] {
            QThread::msleep(600);
            other->Execute("ROLLBACK");
        }));
        holder->start();
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        holder->wait();
        presser.stop();
        QCOMPARE(News(window), "Stopped: nothing was changed");
        QCOMPARE(UndoName(), "Many");
        QVERIFY(RedoName().isEmpty());
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image WHERE Car0='B'"), "30002");
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image WHERE Car0='A'"), "30000");
    }

    void TheIndexingWindowTakesBackValuesAndPictures()
    {
        auto& window = static_cast<frmEditImage&>(Open("frmEditImage"));
        const QString file = window.CurrentImage;
        auto& box = Find<QComboBox>(window, "cboCategory_0");
        box.setEditText("Anna");
        Find<QPushButton>(window, "cmdExit").setFocus();
        Press(window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(box.currentText(), "-");
        Press(window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(box.currentText(), "Anna");
        dialogs_->ExpectBox("Do you also want to delete the file " + file + " ?", Icon::Question,
                            Buttons::YesNoCancel, Answer::Yes);
        Click(window, "cmdDelete");
        QVERIFY(!QFile::exists(file) && !ReadPicture(file));
        QVERIFY(QFile::exists(qEnvironmentVariable("XDG_DATA_HOME") + "/Trash/files/a.jpg"));
        QVERIFY(UndoName().startsWith("Take out “a.jpg”"));
        Undo();
        QCOMPARE(ReadPicture(file)->values[0], "Anna");
    }

private:
    static void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QWidget* focused = window.focusWidget();
        QTest::keyClick(focused ? focused : &window, key, modifiers);
    }

    static QString News(QWidget& window) { return Find<QLabel>(window, "lblUndoNews").text(); }
};

QTEST_MAIN(TestUndoWindows)
#include "test_undo_windows.moc"
