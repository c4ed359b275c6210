// SPDX-License-Identifier: MIT
#include "ProgramTest.h"
#include "core/Settings.h"
#include "core/StartUp.h"
#include "platform/widgets/HelpWindow.h"
#include "support/TestFiles.h"
#include "ui/main/MainWindowKeys.h"
#include "viewer/LegendArea.h"
#include "viewer/ViewerFlags.h"

using namespace GeneralModule;

// Other ways to the main window's commands, and what it tells of itself.
class TestMainWindowWays : public ProgramTest
{
    Q_OBJECT

private slots:
    void KeysDoWhatTheMenuDoes()
    {
        AddChapters({"A", "B", "C", "D"});
        album_->AddParagraph(1, "Hello");
        Start();
        Press(Qt::Key_Down, Qt::ControlModifier);
        Press(Qt::Key_Down, Qt::ControlModifier | Qt::KeypadModifier);
        QCOMPARE(Chapters(), "B C *A D");
        Press(Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(Chapters(), "B *A C D");
        dialogs_->ExpectInput("Enter new name for chapter 'A'", "Z", "A");
        Press(Qt::Key_F2);
        dialogs_->ExpectBox("This chapter contains paragraphs and can't be deleted",
                            Icon::Critical);
        Press(Qt::Key_Delete);
        WhenModal("frmFullScreen", [](QWidget& window) {
            QTRY_COMPARE(::Find<QLabel>(window, "lblLegend").text(), "Hello");
            QTest::keyClick(&window, Qt::Key_Escape); // to the viewer
            WhenModal("frmReelvane",
                      [](QWidget& viewer) { QTest::keyClick(&viewer, Qt::Key_Escape); });
        });
        Press(Qt::Key_F5);
        dialogs_->ExpectOpenFile("Open Album", {});
        Press(Qt::Key_O, Qt::ControlModifier);
        dialogs_->ExpectSaveFile("Create a new Album", {}, "My Album.alb");
        Press(Qt::Key_N, Qt::ControlModifier);
        // A key held down deletes one chapter, not the whole list.
        Find<QListWidget>("lstChapter")->setCurrentRow(2);
        for (const bool isRepeated : {false, true, true}) {
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Delete, {}, {}, isRepeated);
            QCoreApplication::sendEvent(Find<QListWidget>("lstChapter"), &held);
        }
        QCOMPARE(Chapters(), "B Z *D");
        QVERIFY(dialogs_->IsDone());
    }

    void DescriptionsGoOutAndIn()
    {
        album_->AddPicture("a.jpg", {{"Legend", "A;\"b\""}, {"Car3", "Anna"}});
        album_->AddPicture("b.jpg", {{"Legend", "=1"}});
        const auto descriptions = [this] {
            return album_->Rows("SELECT Legend,Car3,Car9 FROM Image");
        };
        const QStringList before = descriptions();
        Start();
        const QString table = album_->PathOf("out.csv");
        dialogs_->ExpectSaveFile("Export Descriptions", table,
                                 QFileInfo(album_->GetAlbum()).completeBaseName() + ".csv");
        dialogs_->ExpectBox("The descriptions of 2 picture(s) were written.");
        Choose("mnuExportTable");
        const QString question = "Write an XMP file beside each of 2 picture(s)? What other "
                                 "programs have written into such files stays.";
        dialogs_->ExpectBox(question, Icon::Question, Buttons::YesNo, Answer::No);
        Choose("mnuExportSidecars");
        QVERIFY(!QFile::exists(album_->PathOf("a.jpg.xmp")));
        for (const char* entry : {"mnuImportTable", "mnuImportSidecars"}) {
            const bool isTable = entry == QLatin1String("mnuImportTable");
            const auto choose = [&] {
                if (isTable)
                    dialogs_->ExpectOpenFile("Import Descriptions", table);
            };
            if (!isTable) {
                dialogs_->ExpectBox(question, Icon::Question, Buttons::YesNo, Answer::Yes);
                dialogs_->ExpectBox("The descriptions of 2 picture(s) were written.");
                Choose("mnuExportSidecars");
            }
            album_->Execute("UPDATE Image SET Legend='x', Car3='-' WHERE rowid=1");
            const QStringList changed = descriptions();
            for (const Answer answer : {Answer::No, Answer::Yes}) {
                choose();
                dialogs_->ExpectBoxBeginning("1 picture(s) change: 1 legend(s), ", Icon::Question,
                                             Buttons::YesNo, answer);
                if (answer == Answer::Yes)
                    dialogs_->ExpectBox("1 picture(s) changed.");
                Choose(entry);
                QCOMPARE(descriptions(), answer == Answer::Yes ? before : changed);
            }
        }
        dialogs_->ExpectOpenFile("Import Descriptions", album_->GetAlbum());
        dialogs_->ExpectBoxBeginning("The table '", Icon::Warning);
        Choose("mnuImportTable");
        // An album is no place for a table.
        const QByteArray bytes = ReadFile(album_->GetAlbum());
        dialogs_->ExpectSaveFile("Export Descriptions", album_->GetAlbum(),
                                 QFileInfo(album_->GetAlbum()).completeBaseName() + ".csv");
        dialogs_->ExpectBoxBeginning("The table '", Icon::Warning);
        Choose("mnuExportTable");
        QCOMPARE(ReadFile(album_->GetAlbum()), bytes);
        dialogs_->ExpectSaveFile("Export Descriptions", "/nowhere/out.csv",
                                 QFileInfo(album_->GetAlbum()).completeBaseName() + ".csv");
        dialogs_->ExpectBoxBeginning("", Icon::Warning);
        Choose("mnuExportTable");
        dialogs_->ExpectBox("Nothing changes.\n2 picture(s) are described so already.");
        Choose("mnuImportSidecars");
        QVERIFY(dialogs_->IsDone());
    }

    void TheSheetTellsAllKeys()
    {
        AddChapters({"A"});
        Start();
        QStringList shown;
        WhenModal("frmKeys", [&](QWidget& sheet) {
            for (const QLabel* label : sheet.findChildren<QLabel*>())
                shown += label->text();
            QTest::keyClick(&sheet, Qt::Key_Escape);
        });
        Press(Qt::Key_Question);
        HelpWindow help(HelpFile(), nullptr, AllKeys());
        const QString manual = ::Find<QTextBrowser>(help, "txtHelp").toPlainText();
        int rows = 0;
        for (const KeySection& section : AllKeys()) {
            for (const KeyRow& row : section.rows) {
                ++rows;
                QVERIFY2(shown.contains(row.keys) && shown.contains(row.meaning),
                         qPrintable(row.keys));
                QVERIFY2(manual.contains(row.meaning), qPrintable(row.keys));
            }
        }
        QVERIFY(rows > 15);
    }

    void TheManualComesAtTheFirstStoryAndKnowsOtherWords()
    {
        InstallHelpKey(HelpFile());
        ReleaseAlbum();
        SaveLastAlbum({});
        Start({});
        WhenModal("frmHelp", [](QWidget& help) {
            auto& text = ::Find<QTextBrowser>(help, "txtHelp");
            const QListWidget& contents = ::Find<QListWidget>(help, "lstContents");
            QCOMPARE(contents.currentItem()->text(), "Your first story");
            for (const char* word : {"slide show", "keyword", "caption", "undo", "print", "tag"}) {
                ::Find<QLineEdit>(help, "txtSearch").setText(word);
                QTextBlock block = text.textCursor().block();
                while (block.isValid() && block.blockFormat().headingLevel() != 2)
                    block = block.previous();
                QVERIFY2(text.textCursor().hasSelection() && block.text() == "Other words", word);
            }
            emit text.anchorClicked(QUrl("#autoview"));
            QCOMPARE(contents.currentItem()->text(), "Autoview");
            help.close();
        });
        QTest::keyClick(window_, Qt::Key_F1);
    }

    void RowsAreDragged()
    {
        AddChapters({"A", "B", "C", "D"});
        Start();
        auto& list = *Find<QListWidget>("lstChapter");
        QVERIFY(list.dragEnabled());
        DropLine(list, 0, 2, true);
        QCOMPARE(Chapters(), "B C *A D");
        DropLine(list, 3, 1, false);
        QCOMPARE(Chapters(), "B *D C A");
        DropLine(list, 1, 1, true);
        QCOMPARE(Chapters(), "B *D C A");
        // Files dropped there are for the window.
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile("/a.alb")});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(list.viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QMenu& menu = OpenMenuOf(list);
        QCOMPARE(menu.objectName(), "mnuChapter");
        menu.close();
    }

    void NothingMovesWhereNothingMayBeChanged()
    {
        AddChapters({"A", "B"});
        album_->AddPicture("a.png");
        ReleaseAlbum();
        QVERIFY(QFile::setPermissions(album_->GetAlbum(), QFile::ReadOwner));
        Start();
        Press(Qt::Key_Down, Qt::ControlModifier);
        Press(Qt::Key_F2);
        Press(Qt::Key_Delete);
        QVERIFY(!Find<QListWidget>("lstChapter")->dragEnabled());
        QCOMPARE(Chapters(), "*A B");
        QTRY_COMPARE(Text("cmdNotIndexed"), "1 not indexed");
        QVERIFY(!HasButton("cmdNotIndexed"));
        QCOMPARE(Find<QPushButton>("cmdNotIndexed")->toolTip(), ReadOnlyReason());
    }

    void TellsWhereOneIs()
    {
        album_->AddPicture("there.png", {{"Car3", "Lake"}});
        album_->AddPicture("new.png");
        album_->AddImageRow("/nowhere/gone.png");
        // A copy stands for a file that is away.
        album_->AddImageRow("/nowhere/b.png", {{"SourceFile", album_->PathOf("new.png")}});
        AddChapters({"One", "Empty"});
        album_->AddParagraph(1, "x");
        album_->AddParagraph(1, "y");
        Start();
        QVERIFY(Text("lblAlbum").startsWith(FileOf(album_->GetAlbum()) + "  ("));
        QVERIFY(window_->windowTitle().startsWith("Choose the chapter you want to read - "));
        QTRY_COMPARE(Text("cmdMissing"), "1 file(s) missing");
        QCOMPARE(Text("lblPictures"), "4 picture(s)");
        QCOMPARE(Text("cmdNotIndexed"), "3 not indexed");
        QCOMPARE(Notes(), "2 paragraph(s); 0 paragraph(s)");
        QCOMPARE(Chapters(), "*One Empty");
        WhenModal("frmMissingPictures", [](QWidget& missing) {
            WhenModal("frmFindPictures", [](QWidget& finder) {
                QVERIFY(::Find<QCheckBox>(finder, "chkMissing").isChecked());
                finder.close();
            });
            auto& show = ::Find<QPushButton>(missing, "cmdShow");
            QTRY_VERIFY(show.isEnabled());
            show.click();
            missing.close();
        });
        Click("cmdMissing");
        WhenModal("frmReelvane", [](QWidget& viewer) { viewer.close(); });
        Click("cmdNotIndexed");

        album_->Execute("DELETE FROM Image WHERE File LIKE '/nowhere/%'");
        album_->AddParagraph(2, "z");
        window_->resize(window_->size() + QSize(9, 9)); // reads the chapters again
        QTRY_COMPARE(Text("cmdMissing"), "no file missing");
        QCOMPARE(Text("lblPictures"), "2 picture(s)");
        QCOMPARE(Notes(), "2 paragraph(s); 1 paragraph(s)");
        ReleaseAlbum();
        window_->resize(window_->size() + QSize(9, 9));
        QVERIFY(!Find<QWidget>("albumStatus")->isVisible());
    }

    // Counted in slices, none of which keeps a key waiting, and not while another window is worked
    // with.
    void CountsWhileNothingElseIsDone()
    {
        album_->Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE "
                        "i<60000) INSERT INTO Image(File) SELECT '/nowhere/'||i FROM n");
        Start();
        QElapsedTimer sinceTurn;
        sinceTurn.start();
        int turns = 0;
        while (Find<QPushButton>("cmdMissing")->isHidden()) {
            QCoreApplication::processEvents();
            ++turns;
            QVERIFY(sinceTurn.elapsed() < 60000);
        }
        QCOMPARE(Text("cmdMissing"), "60,000 file(s) missing");
        QVERIFY2(turns > 5, qPrintable(QString::number(turns)));
        album_->Execute("DELETE FROM Image WHERE rowid>1");
        WhenModal("frmAbout", [this](QWidget& about) {
            window_->resize(window_->size() + QSize(9, 9)); // asks for the counts
            for (int i = 0; i < 20; ++i)
                QCoreApplication::processEvents();
            QCOMPARE(Text("lblPictures"), "60,000 picture(s)");
            about.close();
        });
        Choose("mnuAbout");
        window_->activateWindow();
        QTRY_COMPARE(Text("cmdMissing"), "1 file(s) missing");
    }

    void KeepsHowItLooks()
    {
        const QColor desktops = QApplication::palette().color(QPalette::Window);
        Start();
        const double usual = LegendArea().GetFullFont().pointSizeF();
        Choose("mnuTextSize_Large");
        Choose("mnuColors_Dark");
        Choose("mnuLanguage_en");
        TextScale = 1;
        Start();
        QVERIFY(LegendArea().GetFullFont().pointSizeF() > usual * 1.2);
        QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 80);
        QVERIFY(QApplication::palette().color(QPalette::WindowText).lightness() > 180);
        for (const char* entry : {"mnuTextSize_Large", "mnuColors_Dark", "mnuLanguage_en"})
            QVERIFY2(Find<QAction>(entry)->isChecked(), entry);
        Choose("mnuColors_Desktop");
        QCOMPARE(QApplication::palette().color(QPalette::Window), desktops);
        Choose("mnuTextSize_Normal");
        QCOMPARE(LegendArea().GetFullFont().pointSizeF(), usual);
    }

    void OpensTablesAndLabels()
    {
        Start();
        for (const auto& [entry, name] :
             {std::pair("mnuEditTables", "frmEditTables"), {"mnuEditLabels", "frmEditLabels"}}) {
            WhenModal(name, [](QWidget& window) { window.close(); });
            Choose(entry);
        }
        ReleaseAlbum();
        window_->resize(window_->size() + QSize(9, 9));
        QVERIFY(!IsEnabled("mnuEditTables") && !IsEnabled("mnuEditLabels"));
    }

private:
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        window_->activateWindow(); // a box that was open has taken its place
        QVERIFY(QTest::qWaitForWindowActive(window_));
        QTest::keyClick(Find<QListWidget>("lstChapter"), key, modifiers);
    }
    QString Chapters() const { return Lines(*Find<QListWidget>("lstChapter")).join(u' '); }
    QString Text(const char* control) const
    {
        return Find<QWidget>(control)->property("text").toString();
    }
    static QString FileOf(const QString& path) { return QFileInfo(path).fileName(); }
    QString Notes() const
    {
        QStringList notes;
        const auto& list = *Find<QListWidget>("lstChapter");
        for (int row = 0; row < list.count(); ++row)
            notes += list.item(row)->data(Qt::AccessibleDescriptionRole).toString();
        return notes.join("; ");
    }
};

QTEST_MAIN(TestMainWindowWays)
#include "test_main_window_ways.moc"
