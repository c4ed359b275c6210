// SPDX-License-Identifier: MIT
#include "Writing.h"
#include "support/Rows.h"
#include "support/ScriptedDialogs.h"

// What the paragraph editor saves and deletes, and where it asks first.
class TestParagraphSaving : public QObject
{
    Q_OBJECT

    using Answer = Dialogs::Answer;

private slots:
    void EveryWayOutSaves()
    {
        for (const char* way : {"cmdExit", "escape", "frame", "q on a button"}) {
            const InRow row(way);
            Writing writing;
            QTest::keyClicks(&writing.TextBox(), "Qq ");
            QVERIFY(writing.editor.isVisible());
            if (*way == 'c')
                writing.Click(way);
            else if (*way == 'e')
                QTest::keyClick(&writing.TextBox(), Qt::Key_Escape);
            else if (*way == 'f')
                writing.editor.close();
            else
                writing.PressOn("cmdNextParagraph", Qt::Key_Q);
            QVERIFY(!writing.editor.isVisible());
            QCOMPARE(writing.Stored("Text", 1), "Qq first");
        }
    }

    void DeleteAsksFirst()
    {
        Writing writing;
        ScriptedDialogs dialogs;
        QTest::keyClicks(&writing.TextBox(), "unsaved ");
        const auto expect = [&](const QString& question, Dialogs::Icon icon, Answer answer) {
            dialogs.ExpectBox(question, icon, Dialogs::Buttons::OkCancel, answer);
        };
        const auto clickDelete = [&](Answer answer, std::optional<Answer> whenChanged = {}) {
            expect("Are you sure you want to DELETE current paragraph ?", Dialogs::Icon::Question,
                   answer);
            if (whenChanged)
                expect("This paragraph was changed in another window after it was opened here.\n\n"
                       "The other version:\nnot read yet\n\nDelete it all the same?",
                       Dialogs::Icon::Warning, *whenChanged);
            writing.Click("cmdDelete");
        };
        clickDelete(Answer::Cancel);
        QCOMPARE(writing.Texts(), "first; second; third");
        clickDelete(Answer::Ok);
        QCOMPARE(writing.Text(), "second");
        writing.Execute("UPDATE Paragraph SET Text='not read yet' WHERE Id=2");
        clickDelete(Answer::Ok, Answer::Cancel);
        QCOMPARE(writing.Texts(), "not read yet; third");
        clickDelete(Answer::Ok, Answer::Ok);
        QCOMPARE(writing.Texts(), "third");
        clickDelete(Answer::Ok);
        QCOMPARE(writing.Texts(), "");
        QVERIFY(!writing.editor.isVisible()); // there is nothing left to write
        QCOMPARE(writing.editor.CurrentParagraph, 0);
    }

    // Two windows on one album: what the other one writes meanwhile is not lost by looking, and
    // where both changed the same the user is asked.
    void WhatAnotherWindowWrites()
    {
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
            QVERIFY(writing.editor.isVisible() && writing.Text() == "mine my theirs");
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

    void LeavingAsksWhenItCannotSave()
    {
        Writing writing;
        ScriptedDialogs dialogs;
        writing.Execute("DELETE FROM Paragraph");
        for (const auto answer : {Answer::No, Answer::Yes}) {
            dialogs.ExpectBox("The paragraph cannot be saved: 3167 This paragraph is no longer in "
                              "the album.\n\nLeave without saving?",
                              Dialogs::Icon::Warning, Dialogs::Buttons::YesNo, answer);
            writing.Click("cmdExit");
            QCOMPARE(writing.editor.isVisible(), answer == Answer::No);
        }
    }

    // What is typed after a step that failed belongs to the paragraph that is still shown.
    void WhatIsTypedAfterAFailureIsSaved()
    {
        const PatientDialogs dialogs;
        std::optional<Writing> writing;
        FailAtEachStep(
            13, [&] { writing.reset(), writing.emplace(); },
            [&] { writing->Click("cmdNextParagraph"); },
            [&] {
                QTest::keyClicks(&writing->TextBox(), "x");
                writing->Click("cmdExit");
                QVERIFY(writing->Texts().contains('x'));
            });
    }

    // Wherever the engine fails on the way, and once it works again, no paragraph is overwritten.
    void WhatCannotBeReadIsNotSaved()
    {
        const PatientDialogs dialogs;
        for (const char* way : {"cmdNextParagraph", "cmdDelete", "cmdOrganize"}) {
            const InRow row(way);
            std::optional<Writing> writing;
            const auto rows = [&] { return writing->Rows("SELECT * FROM Paragraph"); };
            QStringList before;
            const auto prepare = [&] {
                writing.reset();
                before = writing.emplace().Rows("SELECT * FROM Paragraph");
                if (way == QLatin1String("cmdOrganize"))
                    WhenModal("frmOrganizeParagraphs", [](QWidget& window) { window.close(); });
            };
            FailAtEachStep(
                13, prepare, [&] { writing->Click(way); },
                [&] {
                    const bool isDeleted = rows().size() < before.size();
                    if (writing->editor.isVisible())
                        writing->Click("cmdExit");
                    QCOMPARE(writing->Texts(),
                             isDeleted ? "second; third" : "first; second; third");
                    QVERIFY(isDeleted || rows() == before);
                });
        }
    }
};

QTEST_MAIN(TestParagraphSaving)
#include "test_paragraph_saving.moc"
