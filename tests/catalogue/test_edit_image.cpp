// SPDX-License-Identifier: MIT
#include "catalogue/LastDescribed.h"
#include "catalogue/frmEditImage.h"
#include "core/AlbumSets.h"
#include "platform/widgets/PictureBox.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

#include <deque>

// The indexing window, worked by keys and clicks.
class TestEditImage : public AlbumTest
{
    Q_OBJECT

private slots:
    void IndexesByKeyboardAlone()
    {
        album_->Execute("INSERT INTO Car0 VALUES ('Winter'),('Summer')");
        album_->Execute("INSERT INTO Car2 VALUES ('Calm')");
        const QStringList files = Open(2);
        QCOMPARE(Find<QLabel>(*window_, "lblFileName").text(), files[0]);
        QCOMPARE(Shown(), files[0]);
        const auto type = [this](const char* text, Qt::Key end = Qt::Key_Tab) {
            QTest::keyClicks(window_->focusWidget(), text);
            QTest::keyClick(window_->focusWidget(), end);
        };
        type("quiet lake");
        type("summer");   // takes the spelling that is known
        type("(*O'Neil"); // what no value may begin with, or hold
        type("Calm", Qt::Key_Return);
        QCOMPARE(Shown(), files[1]);
        QVERIFY(!Find<QPushButton>(*window_, "cmdNextImage").isVisible());
        type("q");
        // There is nothing behind the last one, and no other button takes the key.
        QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
        QVERIFY(window_->isVisible());
        QTest::keyClick(window_, Qt::Key_Escape);
        QVERIFY(!window_->isVisible());
        QCOMPARE(album_->Joined("SELECT Legend,Car0,Car1,Car2 FROM Image"),
                 "quiet lake|Summer|O Neil|Calm; q|-|-|-");
        QCOMPARE(album_->Joined("SELECT Name FROM Car1"), "-; O Neil");
    }

    // Keys reach the list as they do from the system, through the window.
    void OffersValuesAndTakesTheChosenOne()
    {
        album_->Execute("INSERT INTO Car0 VALUES ('Hannah'),('anna'),('Bob'),('Ann-Marie')");
        Open(3);
        const auto key = [this](Qt::Key one) { QTest::keyClick(window_->windowHandle(), one); };
        const auto list = [this] { return Combo(0).lineEdit()->completer()->popup(); };
        TypeInto(0, "Ann");
        const QAbstractItemModel& lines = *Combo(0).lineEdit()->completer()->completionModel();
        QStringList offered;
        for (int row = 0; row < lines.rowCount(); ++row)
            offered += lines.index(row, 0).data().toString();
        QCOMPARE(offered, QStringList({"Ann-Marie", "anna", "Hannah"}));
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        QCOMPARE(Combo(0).currentText(), "anna");
        key(Qt::Key_Escape); // gives up the choice, not the window
        QCOMPARE(Combo(0).currentText(), "Ann");
        QVERIFY(!list()->isVisible() && window_->isVisible());
        TypeInto(0, "NA");
        key(Qt::Key_Down);
        key(Qt::Key_Return); // takes the value, and the next one goes on
        QCOMPARE(Combo(0).currentText(), "anna");
        QCOMPARE(next_.size(), 2);
        key(Qt::Key_Return);
        QCOMPARE(next_.size(), 1);
        TypeInto(0, "An");
        QVERIFY(list()->isVisible());
        key(Qt::Key_Return); // with none chosen what was typed is stored
        QCOMPARE(next_.size(), 0);
        QCOMPARE(album_->Joined("SELECT Car0 FROM Image"), "anna; An; -");
    }

    // What the tables do not hold, or hold in another letter case.
    void UntouchedValuesStayAsTheyAre()
    {
        album_->Execute("INSERT INTO Car0 VALUES ('anna')");
        Open(
            {album_->AddPicture("a.png", {{"Car0", "ANNA"}, {"Car1", "O'Neil"}, {"Car2", "(?)"}})});
        QCOMPARE(Combo(0).currentText(), "ANNA");
        QCOMPARE(Combo(1).currentText(), "O'Neil");
        Find<QLineEdit>(*window_, "txtLegend").setText("new");
        window_->close();
        QCOMPARE(album_->Joined("SELECT Car0,Car1,Car2,Legend FROM Image"), "ANNA|O'Neil|(?)|new");
        QCOMPARE(album_->Joined("SELECT Name FROM Car1"), "-");
    }

    void WhatAnotherWindowWritesIsKept()
    {
        const QStringList files = Open(1);
        // Longer than a box of one line takes.
        album_->Execute("UPDATE Image SET Legend=hex(zeroblob(20000))");
        Open(files);
        album_->Execute("UPDATE Image SET Car1='others'");
        TypeInto(0, "Anna");
        TypeInto(1, "mine");
        for (const auto answer : {Answer::Cancel, Answer::No}) {
            dialogs_->ExpectBoxBeginning("This picture was changed in another window after it was "
                                         "opened here.\n\nThe other version:\n0000",
                                         Icon::Question, Buttons::YesNoCancel, answer);
            QTest::keyClick(window_, Qt::Key_Escape);
            QCOMPARE(window_->isVisible(), answer == Answer::Cancel);
        }
        QCOMPARE(album_->Joined("SELECT length(Legend),Car0,Car1 FROM Image"), "40000|Anna|others");
    }

    void FollowsRenamedValuesAndLabels()
    {
        album_->Execute("INSERT INTO Car4 VALUES ('Anna')");
        Open(2);
        const auto& label = Find<QLabel>(*window_, "lblCar_4");
        QCOMPARE(label.text(),
                 "Caracteristic 5 / 8"); // beside both boxes, which share their values
        TypeInto(7, "qQ");
        Click(*window_, "cmdNextImage");
        QVERIFY(Combo(4).findText("qQ") >= 0);
        TypeInto(4, "anna");
        dialogs_->ExpectInput("Replace all occurences of Anna by :", "Anne", "Anna");
        WhenModal("frmEditTables", [](QWidget& tables) {
            Find<QRadioButton>(tables, "optCaracteristic_2").click();
            Find<QRadioButton>(tables, "optColumn_2").click();
            auto& list = Find<QListWidget>(tables, "lstCar");
            list.setCurrentItem(list.findItems("Anna", Qt::MatchExactly).first());
            Click(tables, "cmdReplace");
            Click(tables, "cmdClose");
        });
        Click(*window_, "cmdEditTables");
        QCOMPARE(Combo(4).currentText(), "Anne");
        WhenModal("frmEditLabels", [](QWidget& labels) {
            Find<QLineEdit>(labels, "txtCar_4").setText("First name");
            Click(labels, "cmdExit");
        });
        Click(*window_, "cmdEditLabels");
        QCOMPARE(label.text(), "First name");
        QVERIFY(!Find<QPushButton>(*window_, "cmdEditLabels").isVisible());
        Click(*window_, "cmdExit");
        QCOMPARE(album_->Joined("SELECT Car4,Car7 FROM Image"), "-|qQ; Anne|-");
        QCOMPARE(album_->Joined("SELECT Name FROM Car4"), "-; qQ; Anne");
    }

    void AsksBeforeItLosesAnything()
    {
        Open(1);
        TypeInto(0, "Anna");
        const QString question =
            "The album cannot be changed: its file or its folder is read-only.\nThe picture could "
            "not be saved. Leave without saving ?";
        GeneralModule::AlbumDatabase->Execute("PRAGMA query_only=1");
        for (const auto answer : {Answer::No, Answer::Yes}) {
            dialogs_->ExpectBox(question, Icon::Warning, Buttons::YesNo, answer);
            window_->close();
            QCOMPARE(window_->isVisible(), answer == Answer::No);
        }
        QCOMPARE(album_->Joined("SELECT Car0 FROM Image"), "-");
    }

    void DeletesTheRowOrTheFileToo()
    {
        const QString last = album_->AddPicture("last.png");
        const QStringList files = Open(3);
        TypeInto(0, "Anna");
        Delete(files[0], Answer::Cancel);
        QCOMPARE(Shown(), files[0]);
        Delete(files[0], Answer::No);
        Delete(files[1], Answer::Yes);
        QCOMPARE(Shown(), files[2]);
        QVERIFY(QFile::exists(files[0]) && !QFile::exists(files[1]));
        QCOMPARE(album_->Rows("SELECT File FROM Image ORDER BY rowid"),
                 QStringList({last, files[2]}));
        QCOMPARE(album_->Joined("SELECT Name FROM Car0"), "-");
        window_->IsSinglePicture = true;
        next_ = {last};
        Delete(files[2], Answer::No);
        QVERIFY(!window_->isVisible());
        QCOMPARE(window_->TakenOut, files);

        // A folder in the file's place cannot be deleted as a file, whoever runs the test.
        const QString path = album_->PathOf("folder.png");
        QVERIFY(QDir().mkpath(path));
        album_->AddImageRow(path);
        Open({path});
        Delete(path, Answer::Yes, "The file '" + path + "' cannot be deleted: ");
        QCOMPARE(album_->Rows("SELECT File FROM Image ORDER BY rowid"), QStringList({last, path}));
    }

    void PictureThatTheAlbumDoesNotHold()
    {
        dialogs_->ExpectBox("Internal Error : Image File /x.png not found", Icon::Critical);
        Open(QStringList("/x.png"));
        TypeInto(0, "Anna");
        window_->close();
        QVERIFY(!window_->isVisible());
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image"), "0");
        QCOMPARE(album_->Joined("SELECT Name FROM Car0"), "-");
    }

    void GoesBackAndOn()
    {
        const QStringList files = Open(3);
        const auto place = [this] { return Find<QLabel>(*window_, "lblPlace").text(); };
        QCOMPARE(place(), "1 of 3");
        QVERIFY(!Find<QWidget>(*window_, "cmdPreviousImage").isEnabled());
        Click(*window_, "cmdNextImage");
        Click(*window_, "cmdNextImage");
        QVERIFY(!Find<QWidget>(*window_, "cmdNextImage").isVisible());
        Find<QLineEdit>(*window_, "txtLegend").setText("third");
        Click(*window_, "cmdPreviousImage");
        Click(*window_, "cmdPreviousImage");
        QCOMPARE(place(), "1 of 3");
        QCOMPARE(Shown(), files[0]);
        Click(*window_, "cmdNextImage");
        QCOMPARE(place(), "2 of 3");
        Delete(files[1], Answer::No); // goes on to the third, which was seen
        QCOMPARE(place(), "2 of 2");
        QCOMPARE(Find<QLineEdit>(*window_, "txtLegend").text(), "third");
        Click(*window_, "cmdPreviousImage");
        QCOMPARE(Shown(), files[0]);
    }

    void DescribesAsBefore()
    {
        Open(4);
        auto& legend = Find<QLineEdit>(*window_, "txtLegend");
        QVERIFY(!Find<QWidget>(*window_, "cmdAsBefore").isEnabled());
        TypeInto(0, "Sea");
        TypeInto(4, "Anna");
        legend.setText("A walk");
        Click(*window_, "cmdNextImage");
        QTest::keyClick(&legend, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(legend.text(), "");
        legend.setText("A rest");
        QTest::keyClick(&legend, Qt::Key_Return);
        QTest::keyClick(&legend, Qt::Key_Space, Qt::ControlModifier);
        Combo(4).setFocus();
        QTest::keyClick(&Combo(4), Qt::Key_Space, Qt::ControlModifier);
        TypeInto(0, "Lake");
        Click(*window_, "cmdNextImage");
        TypeInto(11, "own"); // which the last one has none for
        Click(*window_, "cmdAsBefore");
        window_->close();
        QCOMPARE(album_->Rows("SELECT Legend,Car0,Car4,Car11 FROM Image"),
                 QStringList({"A walk|Sea|Anna|-", "A rest|Sea|Anna|-", "A rest|Lake|Anna|-",
                              "|Lake|Anna|own"}));
        QVERIFY(LastDescribed().has_value());
        QCOMPARE(RecentValues(0), QStringList({"Lake", "Sea"}));
        QCOMPARE(RecentValues(7), QStringList("Anna")); // which shares the table
        album_->Execute("INSERT INTO Car0 VALUES ('Aster')");
        Open({album_->PathOf("0.png")});
        TypeInto(0, "a");
        const QAbstractItemModel& lines = *Combo(0).lineEdit()->completer()->completionModel();
        QStringList offered;
        for (int row = 0; row < lines.rowCount(); ++row)
            offered += lines.index(row, 0).data().toString();
        QCOMPARE(offered, QStringList({"Lake", "Sea", "Aster"}));
        window_->reject();
        const AlbumFixture other;
        QVERIFY(!LastDescribed().has_value());
    }

    // Wherever the engine fails on the way to the next picture, none gets the values of another.
    void WhatCannotBeReadIsNotSaved()
    {
        album_->AddPicture("a.png", {{"Legend", "A"}, {"Car4", "Anna"}});
        album_->AddPicture("b.png", {{"Legend", "B"}, {"Car4", "Bob"}});
        album_->Execute("INSERT INTO Car4 VALUES ('Anna'),('Bob')");
        const auto rows = [this] { return album_->Rows("SELECT * FROM Image"); };
        const QStringList before = rows();
        dialogs_.reset();
        const PatientDialogs patient;
        FailAtEachStep(
            1,
            [this] {
                Open({album_->PathOf("a.png"), album_->PathOf("b.png")});
            },
            [this] { Click(*window_, "cmdNextImage"); },
            [&] {
                const bool isFirst = window_->CurrentImage.endsWith("a.png");
                QCOMPARE(Find<QLineEdit>(*window_, "txtLegend").text(), isFirst ? "A" : "B");
                QCOMPARE(Combo(4).currentText(), isFirst ? "Anna" : "Bob");
                window_->close();
                QCOMPARE(rows(), before);
            });
    }

private:
    // Opens the window on the first file; the others are the selection behind it.
    void Open(const QStringList& files)
    {
        next_ = {files.begin() + 1, files.end()};
        window_ = Make<frmEditImage>();
        window_->CurrentImage = files.first();
        window_->CountUpcoming = [this] { return int(next_.size()); };
        window_->NextPicture = [this] {
            const QString next = next_.empty() ? QString() : next_.front();
            if (!next_.empty())
                next_.pop_front();
            return next;
        };
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_));
    }

    QStringList Open(int count)
    {
        QStringList files;
        for (int i = 0; i < count; ++i)
            files += album_->AddPicture(QString("%1.png").arg(i));
        Open(files);
        return files;
    }

    QComboBox& Combo(int column)
    {
        return Find<QComboBox>(*window_, QString("cboCategory_%1").arg(column));
    }

    void TypeInto(int column, const QString& text)
    {
        Combo(column).setFocus();
        Combo(column).lineEdit()->selectAll();
        QTest::keyClick(&Combo(column), Qt::Key_Backspace);
        QTest::keyClicks(&Combo(column), text);
    }

    void Delete(const QString& file, Answer answer, const QString& complaint = {})
    {
        dialogs_->ExpectBox("Do you also want to delete the file " + file + " ?", Icon::Question,
                            Buttons::YesNoCancel, answer);
        if (!complaint.isEmpty())
            dialogs_->ExpectBoxBeginning(complaint, Icon::Warning);
        Click(*window_, "cmdDelete");
    }

    QString Shown() { return Find<PictureBox>(*window_, "imgImage").GetTag(); }

    frmEditImage* window_ = nullptr;
    std::deque<QString> next_;
};

QTEST_MAIN(TestEditImage)
#include "test_edit_image.moc"
