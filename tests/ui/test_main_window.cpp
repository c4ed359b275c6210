// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/Settings.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"
#include "ui/main/frmOpenChapter.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace GeneralModule;

// The real main window, its controls found by name.
class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void HasItsMenusInOrder();
    void GuidesFromNothingToTheFirstChapter();
    void FollowsTheChainNotTheRows();
    void AsksForNamesUntilTheyAreGood();
    void RenamesAndDeletes();
    void MovesKeepTheSelection();
    void ReadsByEnterAndDoubleClick();
    void FailedOpeningLeavesNoAlbum();
    void TellsAboutItself();
    void RepairsTheAlbum();
    void EscapeEndsTheProgram();

private:
    void Start(const QString& album);
    void Choose(const char* entry) { Find<QAction>(entry)->trigger(); }
    void Click(const char* button) { QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton); }
    template<typename Control>
    Control* Find(const QString& name) const
    {
        return &::Find<Control>(*window_, name);
    }
    QStringList Chapters() const;
    void Select(int row) { Find<QListWidget>("lstChapter")->setCurrentRow(row); }
    QString Warning() const;

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
    std::unique_ptr<frmOpenChapter> window_;
};

void TestMainWindow::init()
{
    album_ = std::make_unique<AlbumFixture>();
    dialogs_ = std::make_unique<ScriptedDialogs>();
}

void TestMainWindow::cleanup()
{
    window_.reset();
    dialogs_.reset();
    album_.reset();
}

void TestMainWindow::Start(const QString& album)
{
    window_ = std::make_unique<frmOpenChapter>(album);
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
}

QStringList TestMainWindow::Chapters() const
{
    QStringList names;
    const auto* list = Find<QListWidget>("lstChapter");
    for (int row = 0; row < list->count(); ++row)
        names += (row == list->currentRow() ? "*" : "") + list->item(row)->text();
    return names;
}

QString TestMainWindow::Warning() const
{
    const auto* label = Find<QLabel>("lblWarning");
    return label->isVisible() ? label->text() : QString();
}

void TestMainWindow::HasItsMenusInOrder()
{
    Start(album_->GetAlbum());
    QStringList entries;
    for (const QAction* top : window_->menuBar()->actions()) {
        entries += top->menu()->objectName() + '=' + top->text();
        for (const QAction* entry : top->menu()->actions())
            entries += (entry->menu() ? entry->menu()->objectName() : entry->objectName()) +
                       (entry->isSeparator() ? "" : '=' + entry->text());
    }
    QCOMPARE(entries.join("; "),
             "mnuFile=Album; mnuOpenScript=Open Album; mnuCreateScript=Create New Album; "
             "mnuRecent=Recent Albums; mnuSep3; "
             "mnuExit=Exit (ESC); mnuChapter=Chapter; mnuReadChapter=Read Chapter; "
             "mnuCreateChapter=Create New Chapter; mnuRename=Rename Chapter; "
             "mnuDeleteChapter=Delete Chapter; mnuImages=Pictures; mnuLoadPictures=Load Picture "
             "Files in Album; mnuReloadPictures=Reload Moved Pictures; mnuSep2; "
             "mnuUndefined=Index Undefined Pictures; mnuSelectedUndefined=Index Undefined Pictures "
             "from Folder; mnuSep1; mnuAllPictures=Display Pictures at Random; "
             "mnuSelectedPictures=Display Pictures from Folder; mnuTools=Tools; "
             "mnuSetCDBuffer=Set CD-ROM Buffer; mnuSep5; mnuRepair=Repair Album; "
             "mnuPassword=Set Album Password; "
             "mnuOptions=Options; mnuHelp=Help; mnuPhotoAlbumHelp=Lumenark Help (F1); mnuSep4; "
             "mnuAbout=About Lumenark");
}

void TestMainWindow::GuidesFromNothingToTheFirstChapter()
{
    SaveLastAlbum({});
    Start({});
    QCOMPARE(window_->windowTitle(), "First Open or Create an Album");
    QCOMPARE(Warning(), "Please OPEN or CREATE an ALBUM\nPress F1 for Help");
    QVERIFY(!Find<QPushButton>("cmdReadChapter")->isVisible());
    QVERIFY(!Find<QAction>("mnuCreateChapter")->isEnabled());

    const QString path = album_->PathOf("new.alb");
    dialogs_->ExpectSaveFile("Create a new Album", path);
    Choose("mnuCreateScript");
    QVERIFY(window_->AlbumOpen);
    QCOMPARE(GetLastAlbum(), path);
    QCOMPARE(window_->windowTitle(), "Choose the chapter you want to read");
    QCOMPARE(Warning(), "Please LOAD and INDEX Pictures\nPress F1 for Help");
    QVERIFY(!Find<QAction>("mnuAllPictures")->isEnabled());
    QVERIFY(Find<QPushButton>("cmdLoadPictures")->isEnabled());
    QVERIFY(Find<QAction>("mnuLoadPictures")->isEnabled());
    QVERIFY(!Find<QAction>("mnuReloadPictures")->isEnabled());

    album_->AddImageRow("/a.jpg");
    dialogs_->ExpectOpenFile("Open Album", path);
    Click("cmdOpenAlbum");
    QCOMPARE(Warning(), "Please Create the first Chapter of your Album");
    QVERIFY(Find<QAction>("mnuAllPictures")->isEnabled());
    QVERIFY(Find<QAction>("mnuReloadPictures")->isEnabled());
    QVERIFY(!Find<QPushButton>("cmdReadChapter")->isEnabled());

    // The viewer opens on the new chapter, which offers to create its first paragraph.
    dialogs_->ExpectInput("Please Enter Chapter Name", "First");
    WhenModal("frmReelvane", [](QWidget& viewer) {
        auto& legend = ::Find<QLabel>(viewer, "lblLegend");
        QTRY_COMPARE(legend.text(),
                     "Click HERE to create first paragraph of the new chapter 'First'");
        QTest::keyClick(&viewer, Qt::Key_Escape);
    });
    Click("cmdCreateChapter");
    QCOMPARE(Chapters(), QStringList("*First"));
    QCOMPARE(Warning(), "");
    QVERIFY(Find<QPushButton>("cmdReadChapter")->isEnabled());
}

void TestMainWindow::FollowsTheChainNotTheRows()
{
    for (const char* name : {"C", "A", "B"})
        album_->AddChapter(name);
    album_->Execute("UPDATE Chapter SET PreviousChapter=3, NextChapter=0 WHERE Name='C'");
    album_->Execute("UPDATE Chapter SET PreviousChapter=0, NextChapter=3 WHERE Name='A'");
    album_->Execute("UPDATE Chapter SET PreviousChapter=2, NextChapter=1 WHERE Name='B'");
    Start({}); // the last album comes up by itself
    QCOMPARE(Chapters(), QStringList({"*A", "B", "C"}));
}

void TestMainWindow::AsksForNamesUntilTheyAreGood()
{
    for (const char* name : {"Abc", "Def"})
        album_->AddChapter(name);
    album_->AddImageRow("/a.jpg");
    Start(album_->GetAlbum());
    const QString prompt = "Please Enter Chapter Name";
    const auto warning = Dialogs::Icon::Warning;
    dialogs_->ExpectInput(prompt, "abc");
    dialogs_->ExpectBox("Chapter Names must begin with a letter or a figure", warning);
    dialogs_->ExpectInput(prompt, " x");
    dialogs_->ExpectBox("Chapter Names must begin with a letter or a figure", warning);
    dialogs_->ExpectInput(prompt, "ABC");
    dialogs_->ExpectBox("This chapter exists already", warning);
    dialogs_->ExpectInput(prompt, "");
    Choose("mnuCreateChapter");
    QVERIFY(dialogs_->IsDone());
    QCOMPARE(Chapters(), QStringList({"*Abc", "Def"}));

    dialogs_->ExpectInput(prompt, "Jane's trip");
    WhenModal("frmReelvane", [](QWidget& viewer) { QTest::keyClick(&viewer, Qt::Key_Q); });
    Choose("mnuCreateChapter");
    QCOMPARE(Chapters(), QStringList({"Abc", "*Jane's trip", "Def"}));
    QCOMPARE(album_->Rows("SELECT Name,PreviousChapter,NextChapter FROM Chapter"),
             QStringList({"Abc|0|3", "Def|1|0", "Jane's trip|1|2"}));
}

void TestMainWindow::RenamesAndDeletes()
{
    for (const char* name : {"Abc", "Def", "Ghi"})
        album_->AddChapter(name);
    album_->AddParagraph(2, "text");
    Start(album_->GetAlbum());
    Select(1);
    const QString prompt = "Enter new name for chapter 'Def'";
    dialogs_->ExpectInput(prompt, "Ghi", "Def");
    dialogs_->ExpectBox("This chapter exists already", Dialogs::Icon::Warning);
    dialogs_->ExpectInput(prompt, "DEF", "Def");
    Choose("mnuRename");
    QCOMPARE(Chapters(), QStringList({"Abc", "*DEF", "Ghi"}));
    dialogs_->ExpectBox("This chapter contains paragraphs and can't be deleted",
                        Dialogs::Icon::Critical);
    Choose("mnuDeleteChapter");
    Select(0);
    Choose("mnuDeleteChapter");
    QCOMPARE(Chapters(), QStringList({"*DEF", "Ghi"}));
    QCOMPARE(album_->Rows("SELECT Name,PreviousChapter,NextChapter FROM Chapter"),
             QStringList({"DEF|0|3", "Ghi|2|0"}));
}

void TestMainWindow::MovesKeepTheSelection()
{
    for (const char* name : {"A", "B", "C"})
        album_->AddChapter(name);
    Start(album_->GetAlbum());
    QVERIFY(!Find<QPushButton>("cmdMoveUp")->isEnabled());
    Click("cmdMoveDown");
    QCOMPARE(Chapters(), QStringList({"B", "*A", "C"}));
    Click("cmdMoveDown");
    QCOMPARE(Chapters(), QStringList({"B", "C", "*A"}));
    QVERIFY(!Find<QPushButton>("cmdMoveDown")->isEnabled());
    Click("cmdMoveUp");
    QCOMPARE(Chapters(), QStringList({"B", "*A", "C"}));
}

void TestMainWindow::ReadsByEnterAndDoubleClick()
{
    album_->AddChapter("A");
    const qint32 second = album_->AddChapter("B");
    album_->AddParagraph(second, "Hello");
    Start(album_->GetAlbum());
    Select(1);
    int read = 0;
    const auto lookAndLeave = [&read](QWidget& viewer) {
        QTRY_COMPARE(::Find<QLabel>(viewer, "lblLegend").text(), "Hello");
        ++read;
        QTest::keyClick(&viewer, Qt::Key_Escape);
    };
    auto* list = Find<QListWidget>("lstChapter");
    WhenModal("frmReelvane", lookAndLeave);
    QTest::keyClick(list, Qt::Key_Return);
    WhenModal("frmReelvane", lookAndLeave);
    const QPoint place = list->visualItemRect(list->item(1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(read, 2);
    QCOMPARE(Chapters(), QStringList({"A", "*B"}));
}

void TestMainWindow::FailedOpeningLeavesNoAlbum()
{
    album_->AddChapter("A");
    Start(album_->GetAlbum());
    dialogs_->ExpectOpenFile("Open Album", "");
    Choose("mnuOpenScript");
    QCOMPARE(Chapters(), QStringList("*A")); // cancelled: nothing changed

    dialogs_->ExpectOpenFile("Open Album", album_->PathOf("missing.alb"));
    dialogs_->ExpectBoxBeginning("Error 3024 ", Dialogs::Icon::Warning);
    Choose("mnuOpenScript");
    QVERIFY(!window_->AlbumOpen);
    QCOMPARE(Chapters(), QStringList());
    QCOMPARE(Warning(), "Please OPEN or CREATE an ALBUM\nPress F1 for Help");
    window_->resize(700, 500);
    Choose("mnuExit");
    QVERIFY(!window_->isVisible());
}

void TestMainWindow::TellsAboutItself()
{
    Start(album_->GetAlbum());
    QApplication::setApplicationDisplayName("Lumenark");
    QApplication::setApplicationVersion("1.2.3");
    WhenModal("frmAbout", [](QWidget& about) {
        QCOMPARE(about.windowTitle(), "About Lumenark");
        QCOMPARE(::Find<QLabel>(about, "lblVersion").text(), "Version 1.2.3");
        QTest::mouseClick(&::Find<QPushButton>(about, "cmdOK"), Qt::LeftButton);
    });
    Choose("mnuAbout");
}

void TestMainWindow::RepairsTheAlbum()
{
    for (const char* name : {"A", "B"})
        album_->AddChapter(name);
    album_->Execute("UPDATE Chapter SET NextChapter=0 WHERE Name='A'");
    Start(album_->GetAlbum());
    QCOMPARE(Chapters(), QStringList("*A"));
    WhenModal("frmRepairAlbum", [](QWidget& repair) {
        QTest::mouseClick(&::Find<QPushButton>(repair, "Command2"), Qt::LeftButton);
    });
    Choose("mnuRepair");
    QCOMPARE(Chapters(), QStringList("*A"));
    dialogs_->ExpectBoxBeginning("Chapters linked anew: 1\n", Dialogs::Icon::Information);
    WhenModal("frmRepairAlbum", [](QWidget& repair) {
        QTest::mouseClick(&::Find<QPushButton>(repair, "cmdProceed"), Qt::LeftButton);
    });
    Choose("mnuRepair");
    QCOMPARE(Chapters(), QStringList({"*A", "B"}));
}

void TestMainWindow::EscapeEndsTheProgram()
{
    Start(album_->GetAlbum());
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    QTRY_VERIFY(!window_->isVisible());
}

QTEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
