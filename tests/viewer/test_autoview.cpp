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
        const std::pair<QString, int> rows[] = {
            {"", 10000}, {"soon", 10000}, {"-3", 10000}, {" 4 ", 4000}, {"0,25", 250},
            {".5", 500}, {"3 s", 3000},   {"0.0001", 1}, {"60", 32767}, {QString(400, '9'), 32767}};
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
        const auto begin = [&](const QString& answer, const QString& proposal) {
            dialogs.ExpectInput("Please enter delay in seconds : ", answer, proposal);
            return autoview.Switch();
        };
        begin("0.5", "10");
        QTRY_COMPARE(steps, 1);
        QVERIFY(timer.isActive() && timer.interval() >= 250);
        QVERIFY2(timer.interval() <= 300, "the work was not counted");
        autoview.Switch();
        begin("0.2", "0.5");
        QTRY_COMPARE(steps, 2);
        QVERIFY(timer.interval() >= 99 && timer.interval() <= 100); // half of the delay
        autoview.End();
        QVERIFY(!begin(QString(), "0.2") && !AutoviewOn); // cancelled: nothing changes
        QCOMPARE(GeneralModule::GetTimerDelay(), 200);
    }

    void StepsThroughTheWholeStory()
    {
        OpenViewer story;
        const qint32 one = story.AddStory({"First", "Second"});
        story.album.AddChapter("Empty");
        story.album.AddParagraph(story.album.AddChapter("Three"), "Third");
        story.Open(one);
        story.StartAutoview("32");
        QCOMPARE(story.Timer().interval(), 32000);
        QCOMPARE(story.Legend(), "Timer On");
        QCOMPARE(Find<QPushButton>(story.viewer, "cmdTimer").text(), "Stop Autoview");
        for (const char* text : {"Second", "Third", "First", "Second"}) {
            story.Tick();
            QTRY_COMPARE(story.Legend(), text);
        }
        QTest::keyClick(&story.viewer, Qt::Key_Asterisk, Qt::KeypadModifier); // asks nothing
        QCOMPARE(story.Legend(), "Timer Off");
        QVERIFY(!AutoviewOn && !story.Timer().isActive());
        story.dialogs.ExpectInput("Please enter delay in seconds : ", "0,2", "32");
        story.Click("cmdTimer");
        QTRY_COMPARE(story.Legend(), "Third"); // by its own delay
        story.Press(Qt::Key_Escape);
        QVERIFY(!story.viewer.isVisible() && !AutoviewOn && !story.Timer().isActive());
    }

    // The new picture is there at once, below what is left of the former one.
    void FadesByItsOwnStepsOnly()
    {
        GeneralModule::SoftTransitions = true;
        const auto end = qScopeGuard([] { GeneralModule::SoftTransitions = false; });
        OpenViewer story;
        const qint32 chapter = story.AddStory({"First"});
        for (const char* color : {"red", "blue"}) {
            const QString name = QString(color) + ".png";
            story.album.AddPicture(name, {}, {400, 300}, QColor(color));
            story.album.AddParagraph(chapter, color, {{"FileSelection", story.album.PathOf(name)}});
        }
        story.Open(chapter);
        const auto& fade = Find<QWidget>(story.viewer, "fade");
        story.StartAutoview("32");
        story.Tick();
        QTRY_COMPARE(story.Legend(), "red");
        QTRY_VERIFY(!fade.isVisible());
        const QPoint middle = story.Boxes()[0]->geometry().center();
        const auto shown = [&] {
            return QColor(fade.parentWidget()->grab().toImage().pixel(middle));
        };
        QCOMPARE(shown(), QColor(Qt::red));
        story.Tick();
        QTRY_VERIFY(fade.isVisible());
        QCOMPARE(story.Legend(), "blue");
        QCOMPARE(story.Boxes()[0]->GetPicture().pixelColor(5, 5), QColor(Qt::blue));
        QVERIFY(shown().red() > 0 || !fade.isVisible());
        QTRY_VERIFY(!fade.isVisible());
        QCOMPARE(shown(), QColor(Qt::blue));
        story.Tick();
        QTRY_VERIFY(fade.isVisible());
        story.Press(Qt::Key_Left); // ends it
        QVERIFY(!fade.isVisible());
    }

    void WaitsForTheEditorAndForBoxes()
    {
        OpenViewer story;
        story.Open(story.AddStory({"First", "Second"}));
        story.StartAutoview("0.1");
        QtDialogs real;
        Dialogs::Install(&real);
        for (const char* name : {"frmEditParagraph", "QMessageBox"}) {
            WhenModal(name, [&](QWidget& window) {
                const QString before = story.Legend();
                LetTimersRunOut(4, 100);
                QCOMPARE(story.Legend(), before);
                QTest::keyClick(&window, Qt::Key_Escape);
            });
            *name == 'f' ? story.Press(Qt::Key_E) : void(real.Ask({"Something else"}));
            const QString after = story.Legend();
            QTRY_VERIFY(story.Legend() != after);
        }
        Dialogs::Install(&story.dialogs);
    }
};

QTEST_MAIN(TestAutoview)
#include "test_autoview.moc"
