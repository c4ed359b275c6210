// SPDX-License-Identifier: MIT
#include "catalogue/frmEditImage.h"
#include "core/Album.h"
#include "platform/widgets/PictureBox.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <deque>

// The indexing window, worked by keys and clicks.
class TestEditImage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void IndexesByKeyboardAlone();
    void SavesValues_data();
    void SavesValues();
    void TwinColumnsShareTheirValues();
    void UntouchedValuesStayAsTheyAre();
    void LeavesByKeysAndSaves();
    void AsksBeforeItLosesAnything();
    void DeletesTheRowOrTheFileToo();
    void FileThatCannotBeDeletedKeepsItsRow();
    void PictureThatTheAlbumDoesNotHold();

private:
    void Open(const QStringList& files);
    void Click(const char* button) { Find<QPushButton>(*window_, button).click(); }
    QComboBox& Combo(int column)
    {
        return Find<QComboBox>(*window_, QStringLiteral("cboCategory_%1").arg(column));
    }
    void TypeInto(int column, const QString& text);
    void ExpectDeletion(const QString& file, Dialogs::Answer answer);
    QString Shown() { return Find<PictureBox>(*window_, "imgImage").GetTag(); }

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
    std::unique_ptr<frmEditImage> window_;
    std::deque<QString> next_;
};

void TestEditImage::init()
{
    album_ = std::make_unique<AlbumFixture>();
    dialogs_ = std::make_unique<ScriptedDialogs>();
}

void TestEditImage::cleanup()
{
    window_.reset();
    dialogs_.reset();
    album_.reset();
}

// Opens the window on the first file; the others are the selection behind it.
void TestEditImage::Open(const QStringList& files)
{
    next_ = {files.begin() + 1, files.end()};
    window_ = std::make_unique<frmEditImage>();
    window_->CurrentImage = files.first();
    window_->HasNextPicture = [this] { return !next_.empty(); };
    window_->NextPicture = [this] {
        const QString next = next_.empty() ? QString() : next_.front();
        if (!next_.empty())
            next_.pop_front();
        return next;
    };
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
}

void TestEditImage::TypeInto(int column, const QString& text)
{
    Combo(column).lineEdit()->selectAll();
    QTest::keyClick(&Combo(column), Qt::Key_Backspace);
    QTest::keyClicks(&Combo(column), text);
}

void TestEditImage::ExpectDeletion(const QString& file, Dialogs::Answer answer)
{
    dialogs_->ExpectBox("Do you also want to delete the file " + file + " ?",
                        Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel, answer);
}

void TestEditImage::IndexesByKeyboardAlone()
{
    album_->Execute("INSERT INTO Car0 VALUES ('Winter'),('Summer')");
    album_->Execute("INSERT INTO Car2 VALUES ('Calm')");
    const QStringList files{album_->AddPicture("a.png"), album_->AddPicture("b.png")};
    Open(files);
    QCOMPARE(Find<QLabel>(*window_, "lblFileName").text(), files[0]);
    QCOMPARE(Shown(), files[0]);
    QVERIFY(Find<QPushButton>(*window_, "cmdNextImage").isVisible());
    const auto type = [this](const char* text) {
        QTest::keyClicks(window_->focusWidget(), text);
        QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
    };
    type("quiet lake");
    type("su");
    type("2004");
    QTest::keyClicks(window_->focusWidget(), "ca");
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
    QCOMPARE(Shown(), files[1]);
    QVERIFY(!Find<QPushButton>(*window_, "cmdNextImage").isVisible());
    type("q");
    // There is nothing behind the last one, and no other button takes the key.
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
    QVERIFY(window_->isVisible());
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    QVERIFY(!window_->isVisible());
    QCOMPARE(album_->Rows("SELECT Legend,Car0,Car1,Car2 FROM Image"),
             QStringList({"quiet lake|Summer|2004|Calm", "q|-|-|-"}));
    QCOMPARE(album_->Rows("SELECT Name FROM Car1"), QStringList({"-", "2004"}));
}

void TestEditImage::SavesValues_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("table");
    QTest::newRow("nothing") << ""
                             << "-"
                             << "-;Anna;Érik";
    QTest::newRow("hyphen and more") << "-none"
                                     << "-"
                                     << "-;Anna;Érik";
    QTest::newRow("marker loses its sign") << "(*Zoe"
                                           << "Zoe"
                                           << "-;Anna;Érik;Zoe";
    QTest::newRow("only markers") << "*("
                                  << "-"
                                  << "-;Anna;Érik";
    QTest::newRow("cleaned") << "O'Neil; Jr"
                             << "O Neil Jr"
                             << "-;Anna;Érik;O Neil Jr";
    QTest::newRow("too long") << "abcdefghijklmnopqrstuvwxyz"
                              << "abcdefghijklmnopqrst"
                              << "-;Anna;Érik;abcdefghijklmnopqrst";
    QTest::newRow("held in another case") << "ANNA"
                                          << "Anna"
                                          << "-;Anna;Érik";
    QTest::newRow("comma") << ",x"
                           << ",x"
                           << "-;Anna;Érik;,x";
}

void TestEditImage::SavesValues()
{
    QFETCH(QString, typed);
    album_->Execute(u8"INSERT INTO Car4 VALUES ('Anna'),('Érik')");
    Open({album_->AddPicture("a.png", {{"Car4", "Anna"}})});
    QCOMPARE(Combo(4).currentText(), "Anna");
    TypeInto(4, typed);
    window_->close();
    QTEST(album_->Rows("SELECT Car4 FROM Image").first(), "stored");
    QTEST(album_->Rows("SELECT Name FROM Car4").join(";"), "table");
}

void TestEditImage::TwinColumnsShareTheirValues()
{
    const QStringList files{album_->AddPicture("a.png"), album_->AddPicture("b.png")};
    album_->Execute("DELETE FROM Car4");
    Open(files);
    TypeInto(7, "Anna");
    Click("cmdNextImage");
    QCOMPARE(Combo(4).currentText(), "-");
    QCOMPARE(Combo(4).findText("Anna"), Combo(7).findText("Anna"));
    QVERIFY(Combo(4).findText("Anna") >= 0);
    window_->close();
    QCOMPARE(album_->Rows("SELECT Car4,Car7 FROM Image"), QStringList({"-|Anna", "-|-"}));
    QCOMPARE(album_->Rows("SELECT Name FROM Car4"), QStringList("Anna"));
}

void TestEditImage::UntouchedValuesStayAsTheyAre()
{
    album_->Execute("INSERT INTO Car0 VALUES ('anna')");
    Open({album_->AddPicture("a.png", {{"Car0", "ANNA"}, {"Car1", "O'Neil"}, {"Car2", "(?)"}})});
    QCOMPARE(Combo(0).currentText(), "ANNA");
    QCOMPARE(Combo(1).currentText(), "O'Neil");
    QCOMPARE(Combo(1).currentIndex(), -1);
    Find<QLineEdit>(*window_, "txtLegend").setText("new");
    window_->close();
    QCOMPARE(album_->Rows("SELECT Car0,Car1,Car2,Legend FROM Image"),
             QStringList("ANNA|O'Neil|(?)|new"));
    QCOMPARE(album_->Rows("SELECT Name FROM Car1"), QStringList("-"));
}

void TestEditImage::LeavesByKeysAndSaves()
{
    const QString file = album_->AddPicture("a.png");
    for (const Qt::Key key : {Qt::Key_Q, Qt::Key_Escape}) {
        Open({file});
        TypeInto(0, "qQ");
        QVERIFY(window_->isVisible());
        auto& button = Find<QPushButton>(*window_, "cmdExit");
        button.setFocus();
        QTest::keyClick(&button, key);
        QVERIFY(!window_->isVisible());
        QCOMPARE(window_->CurrentImage, file);
        QCOMPARE(album_->Rows("SELECT Car0 FROM Image"), QStringList("qQ"));
        album_->Execute("UPDATE Image SET Car0='-'");
    }
}

void TestEditImage::AsksBeforeItLosesAnything()
{
    Open({album_->AddPicture("a.png")});
    TypeInto(0, "Anna");
    const QString question =
        "The album cannot be changed: its file or its folder is read-only.\nThe picture could not "
        "be saved. Leave without saving ?";
    GeneralModule::AlbumDatabase->Execute("PRAGMA query_only=1");
    for (const auto answer : {Dialogs::Answer::No, Dialogs::Answer::Yes}) {
        dialogs_->ExpectBox(question, Dialogs::Icon::Warning, Dialogs::Buttons::YesNo, answer);
        window_->close();
        QCOMPARE(window_->isVisible(), answer == Dialogs::Answer::No);
    }
    QCOMPARE(album_->Rows("SELECT Car0 FROM Image"), QStringList("-"));
}

void TestEditImage::DeletesTheRowOrTheFileToo()
{
    QStringList files;
    for (const char* name : {"a.png", "b.png", "c.png", "d.png"})
        files += album_->AddPicture(name);
    Open(files.first(3));
    TypeInto(0, "Anna");
    ExpectDeletion(files[0], Dialogs::Answer::Cancel);
    Click("cmdDelete");
    QCOMPARE(Shown(), files[0]);
    ExpectDeletion(files[0], Dialogs::Answer::No);
    Click("cmdDelete");
    QCOMPARE(Shown(), files[1]);
    ExpectDeletion(files[1], Dialogs::Answer::Yes);
    Click("cmdDelete");
    QCOMPARE(Shown(), files[2]);
    QVERIFY(QFile::exists(files[0]) && !QFile::exists(files[1]));
    QCOMPARE(album_->Rows("SELECT File FROM Image ORDER BY rowid"), files.sliced(2));
    QCOMPARE(album_->Rows("SELECT Name FROM Car0"), QStringList("-"));
    window_->IsSinglePicture = true;
    next_ = {files[3]};
    ExpectDeletion(files[2], Dialogs::Answer::No);
    Click("cmdDelete");
    QVERIFY(!window_->isVisible());
    QCOMPARE(window_->CurrentImage, "");
    QCOMPARE(window_->TakenOut, files.first(3));
}

void TestEditImage::FileThatCannotBeDeletedKeepsItsRow()
{
    // A folder in the file's place cannot be deleted as a file, whoever runs the test.
    const QString path = album_->PathOf("folder.png");
    QVERIFY(QDir().mkpath(path));
    album_->AddImageRow(path);
    Open({path});
    ExpectDeletion(path, Dialogs::Answer::Yes);
    dialogs_->ExpectBoxBeginning("The file '" + path + "' cannot be deleted: ",
                                 Dialogs::Icon::Warning);
    Click("cmdDelete");
    QCOMPARE(window_->CurrentImage, path);
    QCOMPARE(album_->Rows("SELECT File FROM Image ORDER BY rowid"), QStringList(path));
}

void TestEditImage::PictureThatTheAlbumDoesNotHold()
{
    dialogs_->ExpectBox("Internal Error : Image File /x.png not found", Dialogs::Icon::Critical);
    Open({"/x.png"});
    TypeInto(0, "Anna");
    window_->close();
    QVERIFY(!window_->isVisible());
    QCOMPARE(album_->Rows("SELECT count(*) FROM Image"), QStringList("0"));
    QCOMPARE(album_->Rows("SELECT Name FROM Car0"), QStringList("-"));
}

QTEST_MAIN(TestEditImage)
#include "test_edit_image.moc"
