// SPDX-License-Identifier: MIT
#include "ProgramTest.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/Settings.h"
#include "viewer/ViewerFlags.h"

#include <csignal>

#include <sys/resource.h>

using namespace GeneralModule;

class TestMainWindow : public ProgramTest
{
    Q_OBJECT

private slots:
    void KeepsTheChoiceOfTransitions()
    {
        for (const bool isOn : {false, true}) {
            Start({});
            auto& entry = *Find<QAction>("mnuSoftTransitions");
            if (entry.isChecked() != isOn)
                entry.trigger();
            QCOMPARE(SoftTransitions, isOn);
            SoftTransitions = !isOn;
            Start({});
            QCOMPARE(Find<QAction>("mnuSoftTransitions")->isChecked(), isOn);
            QCOMPARE(SoftTransitions, isOn);
        }
        SoftTransitions = false;
    }

    void GuidesFromNothingToTheFirstChapter()
    {
        ReleaseAlbum();
        SaveLastAlbum({});
        Start({});
        QCOMPARE(Warning(), "Please OPEN or CREATE an ALBUM\nPress F1 for Help");
        QVERIFY(!Find<QPushButton>("cmdReadChapter")->isVisible() &&
                !IsEnabled("mnuCreateChapter"));

        const QString path = album_->PathOf("new.alb");
        dialogs_->ExpectSaveFile("Create a new Album", path, "My Album.alb");
        Choose("mnuCreateScript");
        QCOMPARE(GetLastAlbum(), path);
        QCOMPARE(Warning(), "Please LOAD and INDEX Pictures\nPress F1 for Help");
        QVERIFY(!IsEnabled("mnuSelectedUndefined") && !IsEnabled("mnuAllPictures"));
        QVERIFY(HasButton("cmdLoadPictures") && IsEnabled("mnuLoadPictures"));

        album_->AddPicture("a.png", {{"Legend", "A boat"}});
        dialogs_->ExpectOpenFile("Open Album", path);
        Click("cmdOpenAlbum");
        QCOMPARE(Warning(), "Please Create the first Chapter of your Album");
        QVERIFY(IsEnabled("mnuSelectedUndefined") && IsEnabled("mnuAllPictures"));

        // The viewer opens on the new chapter, which offers to create its first paragraph.
        dialogs_->ExpectInput("Please Enter Chapter Name", "First");
        WhenModal("frmReelvane", [](QWidget& viewer) {
            const auto& legend = ::Find<QLabel>(viewer, "lblLegend");
            QTRY_COMPARE(legend.text(),
                         "Click HERE to create first paragraph of the new chapter 'First'");
            WhenModal("frmEditParagraph", [](QWidget& editor) {
                ::Click(editor, "cmdInsertCar");
                ClickLine(::Find<QListWidget>(editor, "lstInsertCar"), 0);
                QTest::keyClicks(&::Find<QPlainTextEdit>(editor, "txtParagraph"), ", quietly");
                ::Click(editor, "cmdExit");
            });
            ::Click(viewer, "lblLegend");
            QCOMPARE(legend.text(), "A boat, quietly");
            QTest::keyClick(&viewer, Qt::Key_Escape);
        });
        Click("cmdCreateChapter");
        QCOMPARE(Chapters(), "*First");
        QCOMPARE(Warning(), "");
    }

    void CopiesTheSampleOnceAndNothingOfTheUsers()
    {
        const QString sample = MakeSample();
        Start({});
        QVERIFY(!Find<QWidget>("cmdOpenSample")->isVisible());
        QVERIFY(!Find<QAction>("mnuOpenSample")->isVisible());
        WriteFile(documents_ + "/Lumenark Sample Story/mine.txt");
        Start({}, sample);
        Click("cmdOpenSample");
        QVERIFY(!IsAlbumReadOnly() && !Find<QWidget>("firstSteps")->isVisible());
        const QString copied = documents_ + "/Lumenark Sample Story 2/pictures/b.png";
        ImageSet->MoveFirst();
        QCOMPARE(ImageSet->Text(u"File"), copied);
        LinkedImagesSet->MoveFirst();
        QCOMPARE(LinkedImagesSet->Text(u"File"), copied);
        RenameChapter(FirstChapter(), "Mine");
        Choose("mnuOpenSample");
        QCOMPARE(Chapters(), "*Mine");
        QCOMPARE(Documents(), "Lumenark Sample Story|Lumenark Sample Story 2");
    }

    void CopiesTheSampleCompletelyOrNotAtAll()
    {
        Start({}, MakeSample());
        const auto limitFiles = [](rlim_t bytes) {
            const rlimit limit{bytes, RLIM_INFINITY};
            setrlimit(RLIMIT_FSIZE, &limit);
        };
        signal(SIGXFSZ, SIG_IGN);
        limitFiles(200000); // as on a disk that becomes full
        dialogs_->ExpectBoxBeginning("The sample story cannot be copied to '", Icon::Warning);
        Click("cmdOpenSample");
        limitFiles(RLIM_INFINITY);
        QCOMPARE(Documents(), "");
        // What a killed program leaves: half a copy, and the lock of a process that is gone.
        WriteFile(documents_ + "/.lumenark_sample/pictures/b.png", "half");
        WriteFile(documents_ + "/.lumenark_sample.lock", "99999999\nlumenark\n\n\n\n");
        Click("cmdOpenSample");
        QCOMPARE(Documents(), "Lumenark Sample Story");
        QCOMPARE(QFileInfo(documents_ + "/Lumenark Sample Story/pictures/b.png").size(), 300000);
    }

    void AsksForNamesUntilTheyAreGood()
    {
        AddChapters({"Abc", "Def"});
        album_->AddImageRow("/a.jpg");
        Start();
        const QString prompt = "Please Enter Chapter Name";
        dialogs_->ExpectInput(prompt, "abc");
        dialogs_->ExpectBox("Chapter Names must begin with a letter or a figure", Icon::Warning);
        dialogs_->ExpectInput(prompt, "ABC", "abc"); // which is still in the box
        dialogs_->ExpectBox("This chapter exists already", Icon::Warning);
        dialogs_->ExpectInput(prompt, "Jane's", "ABC");
        WhenModal("frmReelvane", [](QWidget& viewer) { QTest::keyClick(&viewer, Qt::Key_Q); });
        Choose("mnuCreateChapter");
        QCOMPARE(Chapters(), "Abc *Jane's Def");
    }

    void RenamesMovesAndDeletes()
    {
        AddChapters({"Abc", "Def", "Ghi"});
        album_->AddParagraph(2, "Hello");
        Start();
        QVERIFY(!HasButton("cmdMoveUp"));
        auto* list = Find<QListWidget>("lstChapter");
        list->setCurrentRow(1);
        const QString prompt = "Enter new name for chapter 'Def'";
        dialogs_->ExpectInput(prompt, "Ghi", "Def");
        dialogs_->ExpectBox("This chapter exists already", Icon::Warning);
        dialogs_->ExpectInput(prompt, "DEF", "Ghi");
        Choose("mnuRename");
        QCOMPARE(Chapters(), "Abc *DEF Ghi");
        Click("cmdMoveDown");
        QCOMPARE(Chapters(), "Abc Ghi *DEF");
        QVERIFY(!HasButton("cmdMoveDown"));
        Click("cmdMoveUp");
        QCOMPARE(Chapters(), "Abc *DEF Ghi");
        for (const bool byMouse : {false, true}) {
            WhenModal("frmReelvane", [](QWidget& viewer) {
                QTRY_COMPARE(::Find<QLabel>(viewer, "lblLegend").text(), "Hello");
                QTest::keyClick(&viewer, Qt::Key_Escape);
            });
            if (byMouse)
                ClickLine(*list, 1, true);
            else
                QTest::keyClick(list, Qt::Key_Return);
        }
        dialogs_->ExpectBox("This chapter contains paragraphs and can't be deleted",
                            Icon::Critical);
        Choose("mnuDeleteChapter");
        list->setCurrentRow(0);
        Choose("mnuDeleteChapter");
        QCOMPARE(Chapters(), "*DEF Ghi");
    }

    void FailedOpeningLeavesNoAlbum()
    {
        AddChapters({"A"});
        Start({}); // the last album comes up by itself
        dialogs_->ExpectOpenFile("Open Album", "");
        Choose("mnuOpenScript");
        QCOMPARE(Chapters(), "*A"); // cancelled: nothing changed
        dialogs_->ExpectOpenFile("Open Album", album_->PathOf("missing.alb"));
        dialogs_->ExpectBoxBeginning("Error 3024 ", Icon::Warning);
        Choose("mnuOpenScript");
        QVERIFY(!window_->AlbumOpen() && Chapters().isEmpty());
        QTest::keyClick(Find<QListWidget>("lstChapter"), Qt::Key_Return); // reads nothing
        dialogs_->ExpectOpenFile("Open Album", album_->GetAlbum());
        Choose("mnuOpenScript");
        QCOMPARE(Chapters(), "*A");
        dialogs_->ExpectSaveFile("Create a new Album", album_->PathOf("missing/new.alb"),
                                 "My Album.alb");
        dialogs_->ExpectBoxBeginning("The album '", Icon::Warning);
        Choose("mnuCreateScript");
        QVERIFY(!window_->AlbumOpen() && Chapters().isEmpty());
        Choose("mnuExit");
        QVERIFY(!window_->isVisible());
    }

    // The window is resized while the boxes are up.
    void OffersNoChangesOfAnAlbumThatCanOnlyBeRead()
    {
        album_->AddPicture("a.png");
        album_->AddParagraph(album_->AddChapter("One"), "text");
        album_->AddChapter("Two");
        ReleaseAlbum();
        QVERIFY(QFile::setPermissions(album_->GetAlbum(), QFile::ReadOwner));
        Start();
        QCOMPARE(Warning(), ReadOnlyReason());
        for (const char* button : {"cmdCreateChapter", "cmdLoadPictures", "cmdMoveDown"})
            QVERIFY2(!HasButton(button), button);
        for (const char* entry : {"mnuCreateChapter", "mnuRename", "mnuDeleteChapter",
                                  "mnuLoadPictures", "mnuReloadPictures", "mnuUndefined",
                                  "mnuSelectedUndefined", "mnuRepair", "mnuPassword"})
            QVERIFY2(!IsEnabled(entry) && Find<QAction>(entry)->toolTip() == ReadOnlyReason(),
                     entry);
        WhenModal("frmReelvane", [this](QWidget& viewer) {
            QTRY_COMPARE(::Find<QLabel>(viewer, "lblLegend").text(), "text");
            QVERIFY(!::Find<QPushButton>(viewer, "cmdEditParagraph").isEnabled());
            dialogs_->ExpectBox(ReadOnlyReason());
            ::Click(viewer, "lblLegend");
            WhenModal("frmEditImage", [](QWidget& window) {
                for (const char* control : {"cboCategory_0", "cmdDelete"})
                    QVERIFY(!::Find<QWidget>(window, control).isEnabled());
                QVERIFY(::Find<QLineEdit>(window, "txtLegend").isReadOnly());
                window.close();
            });
            QTest::mouseClick(&::Find<QWidget>(viewer, "imgImage_0"), Qt::RightButton);
            viewer.close();
        });
        Click("cmdReadChapter");
    }

    void KeepsTheSelectionAndTheListThatItHas()
    {
        AddChapters({"A", "B", "C"});
        Start();
        Find<QListWidget>("lstChapter")->setCurrentRow(1);
        dialogs_->ExpectBoxBeginning("3049 ", Icon::Critical);
        const FailingEngine failing(0);
        window_->resize(window_->size() + QSize(40, 40));
        QCOMPARE(Chapters(), "A *B C");
    }

    void RepairsWhenToldTo()
    {
        AddChapters({"A", "B"});
        album_->Execute("UPDATE Chapter SET NextChapter=0 WHERE Name='A'");
        Start();
        QCOMPARE(Chapters(), "*A");
        WhenModal("frmRepairAlbum", [](QWidget& repair) { ::Click(repair, "Command2"); });
        Choose("mnuRepair");
        QCOMPARE(Chapters(), "*A");
        WhenModal("frmRepairAlbum", [](QWidget& repair) {
            QTimer presser;
            connect(&presser, &QTimer::timeout, &repair, [&repair] {
                ::Find<QPushButton>(repair, "cmdStop").click(); // does nothing but during the work
            });
            presser.start(0);
            ::Click(repair, "cmdProceed");
            presser.stop();
            QVERIFY(repair.isVisible());
            ::Click(repair, "Command2");
        });
        Choose("mnuRepair");
        QCOMPARE(Chapters(), "*A");
        dialogs_->ExpectBoxBeginning("Chapters linked anew: 1\n", Icon::Information);
        WhenModal("frmRepairAlbum", [](QWidget& repair) { ::Click(repair, "cmdProceed"); });
        Choose("mnuRepair");
        QCOMPARE(Chapters(), "*A B");
    }

private:
    QString Chapters() const { return Lines(*Find<QListWidget>("lstChapter")).join(u' '); }

    // With the user's documents in a folder of the test.
    QString MakeSample()
    {
        qputenv("HOME", QFile::encodeName(album_->PathOf("home")));
        documents_ = album_->PathOf("home/Documents");
        QDir().mkpath(documents_);
        WriteFile(album_->PathOf("installed/pictures/b.png"), QByteArray(300000, 'b'));
        album_->AddImageRow("pictures/b.png");
        album_->Link(album_->AddParagraph(album_->AddChapter("One"), "text"), "pictures/b.png");
        ReleaseAlbum();
        SaveLastAlbum({});
        const QString sample = album_->PathOf("installed/Lake.alb");
        QFile::copy(album_->GetAlbum(), sample);
        QFile::setPermissions(sample, QFile::ReadOwner);
        return sample;
    }

    QString Documents() const
    {
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        return QDir(documents_).entryList(all).join('|');
    }

    QString Warning() const
    {
        const auto* label = Find<QLabel>("lblWarning");
        return label->isVisible() ? label->text() : QString();
    }

    QString documents_;
};

QTEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
