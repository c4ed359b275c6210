// SPDX-License-Identifier: MIT
#include "OpenViewer.h"
#include "core/Parameters.h"
#include "platform/widgets/QtDialogs.h"
#include "viewer/Autoview.h"
#include "viewer/ViewerFlags.h"

#include <QThread>

using GeneralModule::AutoviewOn;

class TestAutoview : public QObject
{
    Q_OBJECT

private slots:
    void ReadsDelays()
    {
        const std::pair<QString, int> rows[] = {{"", 10000},    {"soon", 10000},
                                                {"0", 10000},   {"-3", 10000},
                                                {"inf", 10000}, {" 4 ", 4000},
                                                {"2.5", 2500},  {"0,25", 250},
                                                {",5", 500},    {"3 s", 3000},
                                                {"0.0001", 1},  {"32.767", 32767},
                                                {"60", 32767},  {QString(400, '9'), 32767}};
        for (const auto& [answer, delay] : rows)
            QVERIFY2(DelayFromAnswer(answer) == delay, qPrintable(answer));
        const AlbumFixture album;
        QCOMPARE(ProposedDelay(), "10");
        GeneralModule::SaveTimerDelay(2500);
        QCOMPARE(ProposedDelay(), "2.5");
        GeneralModule::SetParam("TimerDelay", "-4");
        QCOMPARE(ProposedDelay(), "10");
    }

    void WorkCountsIntoTheDelay()
    {
        const AlbumFixture album;
        ScriptedDialogs dialogs;
        int steps = 0;
        const auto step = [&] {
            QThread::msleep(200);
            ++steps;
        };
        Autoview autoview(
            step, [] { return true; }, nullptr);
        auto& timer = *autoview.findChild<QTimer*>("timImage");
        dialogs.ExpectInput("Please enter delay in seconds : ", "20", "10");
        autoview.Switch();
        timer.start(0);
        QTRY_COMPARE(steps, 1);
        QVERIFY(timer.isActive());
        QVERIFY2(timer.interval() <= 19800, "the work was not counted");
        QVERIFY(timer.interval() >= 10000);
        autoview.Switch();
        // What comes late stays for half of the delay.
        dialogs.ExpectInput("Please enter delay in seconds : ", "0.2", "20");
        autoview.Switch();
        timer.start(0);
        QTRY_COMPARE(steps, 2);
        QCOMPARE(timer.interval(), 100);
        autoview.End();
        // Cancelled: nothing changes. Emptied: the usual delay.
        dialogs.ExpectInput("Please enter delay in seconds : ", QString(), "0.2");
        QVERIFY(!autoview.Switch() && !AutoviewOn);
        QCOMPARE(GeneralModule::GetTimerDelay(), 200);
        dialogs.ExpectInput("Please enter delay in seconds : ", "", "0.2");
        QVERIFY(autoview.Switch());
        QCOMPARE(GeneralModule::GetTimerDelay(), 10000);
        autoview.End();
    }

    void StepsThroughTheWholeStory()
    {
        OpenViewer story;
        const qint32 one = story.AddStory({"First", "Second"});
        story.album.AddChapter("Empty");
        story.album.AddParagraph(story.album.AddChapter("Three"), "Third");
        story.Open(one);
        auto& button = Find<QPushButton>(story.viewer, "cmdTimer");
        const QString offCaption = button.text();
        story.StartAutoview("32");
        QVERIFY(AutoviewOn && story.Timer().isActive());
        QCOMPARE(story.Timer().interval(), 32000);
        QCOMPARE(story.Legend(), "Timer On");
        QVERIFY(button.text() != offCaption);
        QCOMPARE(story.album.Joined("SELECT Value FROM Params"), "32000");
        for (const char* text : {"Second", "Third", "First", "Second"}) {
            story.Tick();
            QTRY_COMPARE(story.Legend(), text);
            QVERIFY(story.Timer().isActive());
        }
        QTest::keyClick(&story.viewer, Qt::Key_Asterisk, Qt::KeypadModifier); // asks nothing
        QCOMPARE(story.Legend(), "Timer Off");
        QVERIFY(!AutoviewOn && !story.Timer().isActive());
        QCOMPARE(button.text(), offCaption);

        story.dialogs.ExpectInput("Please enter delay in seconds : ", "0,2", "32");
        story.Click("cmdTimer");
        QTRY_COMPARE(story.Legend(), "Third"); // by its own delay
        story.Press(Qt::Key_Escape);
        QVERIFY(!story.viewer.isVisible());
        QVERIFY(!AutoviewOn && !story.Timer().isActive());
    }

    void WaitsForTheEditorAndForBoxes()
    {
        OpenViewer story;
        story.Open(story.AddStory({"First", "Second"}));
        story.StartAutoview("0.1");
        const auto lookAndLeave = [&](QWidget& window) {
            const QString before = story.Legend();
            LetTimersRunOut(4, 100);
            QCOMPARE(story.Legend(), before);
            QTest::keyClick(&window, Qt::Key_Escape);
        };
        QtDialogs real;
        Dialogs::Install(&real);
        for (const char* name : {"frmEditParagraph", "QMessageBox"}) {
            WhenModal(name, lookAndLeave);
            if (*name == 'f')
                story.Press(Qt::Key_E);
            else
                real.Ask({"Something else"});
            const QString after = story.Legend();
            QTRY_VERIFY(story.Legend() != after);
        }
        Dialogs::Install(&story.dialogs);
    }

    void AStepIsNeverOvertaken()
    {
        const AlbumFixture album;
        ScriptedDialogs dialogs;
        int steps = 0;
        int inside = 0;
        bool isSeen = true;
        bool isOvertaken = false;
        Autoview* running = nullptr;
        const auto step = [&] {
            isOvertaken = isOvertaken || inside > 0 || !isSeen;
            ++inside;
            {
                const auto pause = running->Pause(); // as a key's work does, before the step ends
            }
            LetTimersRunOut(5, 1);
            ++steps;
            --inside;
            // What waits in the event loop comes to its turn before the next step.
            isSeen = false;
            QTimer::singleShot(0, this, [&isSeen] { isSeen = true; });
        };
        Autoview autoview(
            step, [] { return true; }, nullptr);
        running = &autoview;
        dialogs.ExpectInput("Please enter delay in seconds : ", "0.001", "10");
        autoview.Switch();
        QTRY_VERIFY(steps >= 10);
        autoview.Switch();
        QVERIFY(!isOvertaken);
        const int done = steps;
        LetTimersRunOut(10, 1);
        QCOMPARE(steps, done);
    }

    void KeysPauseItButNotF1()
    {
        OpenViewer story;
        story.Open(story.AddStory({"First", "Second"}));
        story.StartAutoview("30");
        QTRY_VERIFY(story.Timer().remainingTime() < 29900);
        story.Press(Qt::Key_F1);
        QTest::keyClick(&story.viewer, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(story.Timer().remainingTime() < 29900);
        story.Press(Qt::Key_X); // the next step comes a whole delay later
        QVERIFY(story.Timer().isActive());
        QVERIFY(story.Timer().remainingTime() > 29900);
        story.Press(Qt::Key_T);
        story.Press(Qt::Key_X);
        QVERIFY(!story.Timer().isActive());
    }
};

QTEST_MAIN(TestAutoview)
#include "test_autoview.moc"
