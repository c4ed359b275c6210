// SPDX-License-Identifier: MIT
#include "ProgramTest.h"
#include "core/AlbumPassword.h"
#include "core/ChapterChain.h"
#include "core/EarlierStates.h"
#include "core/Settings.h"
#include "core/StateKeeping.h"
#include "ui/main/frmEarlierStates.h"

using namespace GeneralModule;

// Earlier states and the check, as a user comes to them from the main window.
class TestEarlierWindows : public ProgramTest
{
    Q_OBJECT

private:
    std::vector<EarlierState> States() const { return EarlierStatesOf(album_->GetAlbum()); }

    void ExpectTakingBack()
    {
        const QString day = QLocale().toString(QDate::currentDate(), QLocale::LongFormat);
        dialogs_->ExpectBoxBeginning("Make the album as it was on " + day, Icon::Question,
                                     Buttons::YesNo, Answer::Yes);
        dialogs_->ExpectBoxBeginning("The album is as it was on " + day, Icon::Information);
    }

    // Of the list's first row, once it has been read.
    static QString Counts(QWidget& window)
    {
        const auto& states = ::Find<QTreeWidget>(window, "treStates");
        const auto text = [&](int column) { return states.topLevelItem(0)->text(column); };
        if (!QTest::qWaitFor([&] { return !text(2).isEmpty(); }))
            return "nothing";
        return text(2) + '|' + text(3);
    }

private slots:
    void StatesAreLookedIntoTakenBackAndDeleted()
    {
        AddChapters({"A", "B"});
        album_->AddPicture("a.jpg");
        for (const EarlierState& state : States())
            RemoveState(state);
        KeepState(false);
        album_->AddParagraph(*FindChapter("A"), "new");
        Start();
        WhenModal("frmEarlierStates", [&](QWidget& window) {
            QCOMPARE(Counts(window), "2|1");
            static QString looked;
            frmEarlierStates::LookInto = [](const QString& state) {
                looked = state;
                return true;
            };
            ::Click(window, "cmdLookInto");
            QCOMPARE(looked, States().front().path);
            ExpectTakingBack();
            ::Click(window, "cmdTakeBack");
            QCOMPARE(album_->Story(), "A: B:");
            QCOMPARE(States().size(), 2U);
            WhenModal("frmTakeChapters", [](QWidget& taking) {
                QVERIFY(!::Find<QPushButton>(taking, "cmdTake").isEnabled());
                auto& chapters = ::Find<QTreeWidget>(taking, "treChapters");
                chapters.topLevelItem(0)->setCheckState(0, Qt::Checked);
                ::Click(taking, "optInPlace");
                ::Click(taking, "cmdTake");
            });
            dialogs_->ExpectBox("1 chapter(s) taken back.\n1 paragraph(s) in all.");
            ::Click(window, "cmdTakeChapters"); // of the state that was replaced
            QCOMPARE(album_->Story(), "A:new B:");
            const std::size_t before = States().size();
            dialogs_->ExpectBoxBeginning("Delete the state of ", Icon::Question, Buttons::YesNo,
                                         Answer::Yes);
            ::Click(window, "cmdDelete");
            QCOMPARE(States().size(), before - 1);
            ::Click(window, "chkKeep");
            QVERIFY(StateWishFor(album_->GetAlbum()) == StateWish::DoNotKeep);
            dialogs_->ExpectFolder("Folder for Earlier States", album_->PathOf("elsewhere"));
            dialogs_->ExpectBoxBeginning("States are kept in the new folder", Icon::Information);
            ::Click(window, "cmdFolder");
            QVERIFY(!::Find<QPushButton>(window, "cmdTakeBack").isEnabled());
            ::Click(window, "cmdKeepNow");
            QVERIFY(States().front().path.startsWith(album_->PathOf("elsewhere")));
            ::Click(window, "cmdExit");
        });
        Choose("mnuEarlierStates");
        QVERIFY(dialogs_->IsDone());
    }

    void AnEarlierStateIsOpenedOnlyToRead()
    {
        AddChapters({"A"});
        KeepState(false);
        const QByteArray before = ReadFile(States().front().path);
        Start(States().front().path);
        QVERIFY(window_->windowTitle().contains("story.alb as it was on "));
        QVERIFY(!IsEnabled("mnuDeleteChapter"));
        QVERIFY(IsEnabled("mnuReadChapter"));
        QCOMPARE(GetLastAlbum(), album_->GetAlbum());
        QCOMPARE(ReadFile(States().front().path), before);
    }

    // A state has the password of its day.
    void LockedStatesAskForTheirPassword()
    {
        AddChapters({"A"});
        SetAlbumPassword("first");
        KeepState(false);
        for (const EarlierState& state : PlainStatesOf(album_->GetAlbum()))
            RemoveState(state);
        QVERIFY(!ReadFile(States().front().path).contains("SQLite"));
        SetAlbumPassword("second");
        CreateChapter("B", "A");
        dialogs_->ExpectInput("Please give the password for : " + album_->GetAlbum(), "second");
        Start();
        WhenModal("frmEarlierStates", [&](QWidget& window) {
            ::Find<QTreeWidget>(window, "treStates").setCurrentItem(nullptr);
            QCOMPARE(Counts(window), "locked|");
            ::Find<QTreeWidget>(window, "treStates")
                .setCurrentItem(::Find<QTreeWidget>(window, "treStates").topLevelItem(0));
            const QString prompt =
                "Please give the password that the album had on " + TimeText(States().front().kept);
            dialogs_->ExpectInput(prompt, "wrong");
            dialogs_->ExpectInput(prompt, "first");
            ExpectTakingBack();
            ::Click(window, "cmdTakeBack");
            ::Click(window, "cmdExit");
        });
        Choose("mnuEarlierStates");
        QCOMPARE(ChapterNames(), QStringList("A"));
        QVERIFY(dialogs_->IsDone());
    }

    void SettingAPasswordOffersToDeletePlainStates()
    {
        AddChapters({"A"});
        QCOMPARE(PlainStatesOf(album_->GetAlbum()).size(), 1U);
        Start();
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            if (AlbumHasPassword())
                dialogs_->ExpectBoxBeginning("This album has a password", Icon::Question,
                                             Buttons::YesNoCancel, Answer::No);
            dialogs_->ExpectInput("Please enter the new password", "key");
            dialogs_->ExpectInput("Please enter the new password once more", "key");
            dialogs_->ExpectBoxBeginning("The album has its new password.", Icon::Information);
            dialogs_->ExpectBoxBeginning("1 earlier state(s) of this album have no password",
                                         Icon::Question, Buttons::YesNo, answer);
            Choose("mnuPassword");
            QCOMPARE(PlainStatesOf(album_->GetAlbum()).empty(), answer == Answer::Yes);
        }
        QVERIFY(dialogs_->IsDone());
    }

    void AnAlbumThatIsRuinedOffersItsStates()
    {
        AddChapters({"A"});
        KeepState(false);
        ReleaseAlbum();
        const QByteArray whole = ReadFile(album_->GetAlbum());
        WriteFile(album_->GetAlbum(), whole.first(whole.size() / 2));
        dialogs_->ExpectBoxBeginning("Error 3049 ", Icon::Warning, Buttons::YesNo, Answer::Yes);
        WhenModal("frmEarlierStates", [&](QWidget& window) {
            ExpectTakingBack();
            ::Click(window, "cmdTakeBack");
            ::Click(window, "cmdExit");
        });
        Start();
        QCOMPARE(ChapterNames(), QStringList("A"));
        QVERIFY(dialogs_->IsDone());
    }

    void TheCheckLeadsToTheRepair()
    {
        AddChapters({"A", "B"});
        album_->Execute("UPDATE Chapter SET PreviousChapter=0 WHERE Name='B'");
        Start();
        WhenModal("frmCheckAlbum", [&](QWidget& window) {
            const auto& report = ::Find<QPlainTextEdit>(window, "txtReport");
            ::Click(window, "cmdCheck");
            QVERIFY(report.toPlainText().contains("Chapters linked anew: 1"));
            WhenModal("frmRepairAlbum", [](QWidget& repair) { ::Click(repair, "cmdProceed"); });
            dialogs_->ExpectBoxBeginning("Chapters linked anew: 1", Icon::Information);
            ::Click(window, "cmdRepair");
            QCOMPARE(report.toPlainText(), "The album is in order.");
            QVERIFY(!::Find<QPushButton>(window, "cmdRepair").isEnabled());
            WhenModal("frmEarlierStates", [](QWidget& states) { ::Click(states, "cmdExit"); });
            ::Click(window, "cmdStates");
        });
        Choose("mnuCheck");
        QVERIFY(dialogs_->IsDone());
    }
};

QTEST_MAIN(TestEarlierWindows)
#include "test_earlier_windows.moc"
