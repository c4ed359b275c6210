// SPDX-License-Identifier: MIT
#include "OpenViewer.h"
#include "core/Parameters.h"
#include "core/ViewerFlags.h"
#include "platform/widgets/QtDialogs.h"
#include "viewer/Autoview.h"

#include <QInputDialog>
#include <QThread>

using GeneralModule::AutoviewOn;

class TestAutoview : public QObject
{
    Q_OBJECT

private slots:
    void ReadsDelays_data();
    void ReadsDelays();
    void ProposesWhatIsStored();
    void AStepIsNeverOvertaken();
    void WorkCountsIntoTheDelay();
    void StepsThroughTheWholeStory();
    void StepsThroughEveryPicture();
    void KeysPauseItButNotF1();
    void WaitsForTheEditor();
    void WaitsForTheIndexingWindow();
    void WaitsWhileAPictureIsAlone();
    void WaitsForBoxes();
    void EndsWithTheViewer();
};

void TestAutoview::ReadsDelays_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("delay");
    QTest::newRow("empty") << "" << 10000;
    QTest::newRow("words") << "soon" << 10000;
    QTest::newRow("zero") << "0" << 10000;
    QTest::newRow("negative") << "-3" << 10000;
    QTest::newRow("infinite") << "inf" << 10000;
    QTest::newRow("whole") << " 4 " << 4000;
    QTest::newRow("point") << "2.5" << 2500;
    QTest::newRow("comma") << "0,25" << 250;
    QTest::newRow("no leading zero") << ",5" << 500;
    QTest::newRow("unit") << "3 s" << 3000;
    QTest::newRow("tiny") << "0.0001" << 1;
    QTest::newRow("longest") << "32.767" << 32767;
    QTest::newRow("too long") << "60" << 32767;
    QTest::newRow("absurd") << QString(400, '9') << 32767;
}

void TestAutoview::ReadsDelays()
{
    QFETCH(QString, answer);
    QTEST(int(DelayFromAnswer(answer)), "delay");
}

void TestAutoview::ProposesWhatIsStored()
{
    const AlbumFixture album;
    QCOMPARE(ProposedDelay(), "10");
    GeneralModule::SaveTimerDelay(2500);
    QCOMPARE(ProposedDelay(), "2.5");
    GeneralModule::SetParam("TimerDelay", "-4");
    QCOMPARE(ProposedDelay(), "10");
}

void TestAutoview::AStepIsNeverOvertaken()
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
        const auto pause = running->Pause(); // as a key's work does
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

void TestAutoview::WorkCountsIntoTheDelay()
{
    const AlbumFixture album;
    ScriptedDialogs dialogs;
    int steps = 0;
    unsigned long work = 0;
    const auto step = [&] {
        QThread::msleep(work);
        ++steps;
    };
    Autoview autoview(
        step, [] { return true; }, nullptr);
    dialogs.ExpectInput("Please enter delay in seconds : ", "20", "10");
    autoview.Switch();
    auto& timer = *autoview.findChild<QTimer*>("timImage");
    QCOMPARE(timer.interval(), 20000);
    work = 200;
    timer.start(0);
    QTRY_COMPARE(steps, 1);
    QVERIFY(timer.isActive());
    QVERIFY2(timer.interval() <= 19800, "the work was not counted");
    QVERIFY(timer.interval() >= 10000);
    autoview.End();

    dialogs.ExpectInput("Please enter delay in seconds : ", "0.1", "20");
    autoview.Switch();
    work = 300; // longer than the delay
    timer.start(0);
    QTRY_COMPARE(steps, 2);
    QCOMPARE(timer.interval(), 50);
    autoview.End();
}

void TestAutoview::StepsThroughTheWholeStory()
{
    OpenViewer story;
    const qint32 one = story.AddStory({"First", "Second"});
    story.album.AddChapter("Empty");
    story.album.AddParagraph(story.album.AddChapter("Three"), "Third");
    story.Open(one);
    auto& button = Find<QPushButton>(story.viewer, "cmdTimer");
    const QString offCaption = button.text();
    QCOMPARE(button.toolTip(), "Click to start autoview");

    story.StartAutoview("32");
    QVERIFY(AutoviewOn && story.Timer().isActive());
    QCOMPARE(story.Timer().interval(), 32000);
    QCOMPARE(story.Legend(), "Timer On");
    QVERIFY(button.text() != offCaption);
    QCOMPARE(story.album.Rows("SELECT Value FROM Params WHERE Param='TimerDelay'"),
             QStringList("32000"));
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
    for (const char* text : {"Third", "First"}) // by its own delay
        QTRY_COMPARE(story.Legend(), text);
}

void TestAutoview::StepsThroughEveryPicture()
{
    OpenViewer browsing;
    QStringList all;
    for (int i = 0; i < 60; ++i)
        all += browsing.album.AddPicture(QStringLiteral("p%1.png").arg(i), {}, {700, 500});
    GeneralModule::PictureAtRandom = true;
    browsing.Open(0);
    browsing.StartAutoview("30");
    QStringList seen;
    int left = 60;
    const auto look = [&] {
        for (const PictureBox* box : OpenViewer::Boxes(browsing.viewer))
            seen += box->GetTag();
    };
    look();
    while (left > 0) {
        left = 60 - int(seen.size());
        if (left == 0)
            break;
        const QString before = browsing.Legend();
        browsing.Tick();
        QTRY_VERIFY(browsing.Legend() != before);
        look();
        QCOMPARE(browsing.Legend(), QStringLiteral("%1 images left").arg(60 - seen.size()));
    }
    QVERIFY(seen != all);
    seen.sort();
    all.sort();
    QCOMPARE(seen, all);
    // Behind the last picture nothing more comes, and autoview stays on.
    browsing.Tick();
    QTRY_COMPARE(browsing.Timer().interval(), 30000);
    QVERIFY(AutoviewOn && browsing.viewer.isVisible());
}

void TestAutoview::KeysPauseItButNotF1()
{
    OpenViewer story;
    story.Open(story.AddStory({"First", "Second"}));
    story.StartAutoview("30");
    QTRY_VERIFY(story.Timer().remainingTime() < 29900);
    story.Press(Qt::Key_F1);
    QTest::keyClick(&story.viewer, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(story.Timer().remainingTime() < 29900);
    for (const int key : {int(Qt::Key_X), int(Qt::Key_Right)}) {
        story.Press(key); // the next step comes a whole delay later
        QVERIFY(story.Timer().isActive());
        QVERIFY(story.Timer().remainingTime() > 29900);
        QTRY_VERIFY(story.Timer().remainingTime() < 29900);
    }
    story.Press(Qt::Key_T);
    story.Press(Qt::Key_X);
    QVERIFY(!story.Timer().isActive());
}

void TestAutoview::WaitsForTheEditor()
{
    OpenViewer story;
    story.Open(story.AddStory({"First", "Second"}));
    story.StartAutoview("0.1");
    WhenModal("frmEditParagraph", [&](QWidget& editor) {
        QVERIFY(!story.Timer().isActive());
        const QString before = story.Legend();
        LetTimersRunOut(4, 100);
        QCOMPARE(story.Legend(), before);
        QTest::keyClick(&editor, Qt::Key_Escape);
    });
    story.Press(Qt::Key_E);
    QVERIFY(story.Timer().isActive());
    const QString after = story.Legend();
    QTRY_VERIFY(story.Legend() != after);
}

void TestAutoview::WaitsForTheIndexingWindow()
{
    OpenViewer browsing;
    for (const char* name : {"a.png", "b.png"})
        browsing.album.AddPicture(name, {}, {900, 600});
    browsing.Open(0);
    browsing.StartAutoview("30");
    WhenModal("frmEditImage", [&](QWidget& window) {
        QVERIFY(!browsing.Timer().isActive());
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    QTest::mouseClick(OpenViewer::Boxes(browsing.viewer).first(), Qt::RightButton);
    QVERIFY(browsing.Timer().isActive());
    QCOMPARE(browsing.Legend(), "1 images left");
}

void TestAutoview::WaitsWhileAPictureIsAlone()
{
    OpenViewer story;
    story.album.AddPicture("a.png");
    story.Open(story.AddStory({"First", "Second"}));
    story.StartAutoview("30");
    auto& alone = Find<PictureBox>(story.viewer, "imgFullSize");
    const auto showAlone = [&] {
        QTest::mouseClick(OpenViewer::Boxes(story.viewer).first(), Qt::LeftButton);
        QVERIFY(alone.isVisible() && !story.Timer().isActive());
    };
    showAlone();
    QTest::mouseClick(&alone, Qt::LeftButton);
    QVERIFY(story.Timer().isActive());
    showAlone();
    story.Click("cmdNextParagraph"); // leaves the picture as well
    QVERIFY(story.Timer().isActive());
    QCOMPARE(story.Legend(), "Second");
}

void TestAutoview::WaitsForBoxes()
{
    OpenViewer story;
    story.Open(story.AddStory({"First", "Second"}));
    QtDialogs real;
    Dialogs::Install(&real);
    WhenModal("QInputDialog", [&](QWidget& window) {
        auto& box = dynamic_cast<QInputDialog&>(window);
        QCOMPARE(box.windowTitle(), "Autoview Mode");
        QCOMPARE(box.labelText(), "Please enter delay in seconds : ");
        QVERIFY(!AutoviewOn);
        box.setTextValue("0.1");
        box.accept();
    });
    story.Click("cmdTimer");
    QVERIFY(AutoviewOn);
    QTRY_COMPARE(story.Legend(), "Second");
    WhenModal("QMessageBox", [&](QWidget& box) {
        const QString before = story.Legend();
        LetTimersRunOut(4, 100);
        QCOMPARE(story.Legend(), before);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    real.Ask({"Something else"});
    const QString after = story.Legend();
    QTRY_VERIFY(story.Legend() != after);
    Dialogs::Install(&story.dialogs);
}

void TestAutoview::EndsWithTheViewer()
{
    OpenViewer story;
    story.Open(story.AddStory({"First", "Second"}));
    story.StartAutoview("30");
    story.Press(Qt::Key_Escape);
    QVERIFY(!story.viewer.isVisible());
    QVERIFY(!AutoviewOn && !story.Timer().isActive());
}

QTEST_MAIN(TestAutoview)
#include "test_autoview.moc"
