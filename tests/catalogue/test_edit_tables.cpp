// SPDX-License-Identifier: MIT
#include "catalogue/CharacteristicModel.h"
#include "catalogue/ValueReplacement.h"
#include "catalogue/frmEditLabels.h"
#include "catalogue/frmEditTables.h"
#include "core/AlbumSets.h"
#include "core/Parameters.h"
#include "platform/widgets/CountDelegate.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

using namespace GeneralModule;

// The rules of values, and the value tables and labels worked by their windows.
class TestEditTables : public AlbumTest
{
    Q_OBJECT

private slots:
    void ChoosesEachTable()
    {
        const int columns[] = {0, 1, 2, 3, 4, 5, 9, 10, 11};
        for (const int column : columns)
            album_->Execute(QString("INSERT INTO Car%1 VALUES ('z%1'),('a%1')").arg(column));
        Open();
        for (int i = 0; i < 9; ++i) {
            Choose(i / 3 + 1, i % 3 + 1);
            QCOMPARE(Values(), QString("-;z%1;a%1").arg(columns[i]));
        }
    }

    void AddsValues()
    {
        Open();
        const QString prompt = "Please Enter Parameter's Name";
        const QString again = "Caracteristics must begin with a letter or a figure";
        dialogs_->ExpectInput(prompt, ";;;");
        dialogs_->ExpectInput(again, "*x");
        dialogs_->ExpectInput(again, "O'Neil; the elder brother");
        Click("cmdAddNew");
        QCOMPARE(Values(), "-;O Neil the elder bro");
        // In the order of the alphabet, to read; the table keeps its own.
        for (const char* value : {"Room 10", "room 9"}) {
            dialogs_->ExpectInput(prompt, value);
            Click("cmdAddNew");
        }
        QLocale::setDefault(QLocale::French);
        const auto unset = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
        Find<QCheckBox>(*window_, "chkSorted").click();
        QCOMPARE(Shown(), "-;O Neil the elder bro;room 9;Room 10");
        dialogs_->ExpectInput(prompt, "Émile");
        Click("cmdAddNew");
        QCOMPARE(Shown(), "-;Émile;O Neil the elder bro;room 9;Room 10");
        Find<QCheckBox>(*window_, "chkSorted").click();
        QCOMPARE(Values(), "-;O Neil the elder bro;Room 10;room 9;Émile");
        QCOMPARE(Find<QListWidget>(*window_, "lstCar").currentItem()->text(), "Émile");
    }

    void LeavesMarkersAndPictures()
    {
        album_->Execute("INSERT INTO Car0 VALUES ('Anna'),('Bob')");
        Open();
        album_->Execute("UPDATE Image SET Car0='Anna'");
        Select("-");
        for (const char* verb : {"delete", "modify"}) {
            dialogs_->ExpectBox(QString("Sorry, you can't %1 the special markers").arg(verb),
                                Icon::Warning);
            Click(*verb == 'd' ? "cmdDelete" : "cmdReplace");
        }
        Select("Anna");
        Replace("Anna", "");
        Replace("Anna", "Anna ");
        QTRY_COMPARE(CountOf("Anna"), "1");
        QCOMPARE(CountOf("Bob"), "0");
        QCOMPARE(Values(), "-;Anna;Bob");
        for (int time = 0; time < 2; ++time) // as by a double click: nothing is chosen any more
            Click("cmdDelete");
        QCOMPARE(Values(), "-;Bob");
        QCOMPARE(album_->Joined("SELECT Car0 FROM Image"), "Anna");
        QCOMPARE(Find<QLabel>(*window_, "lblProgress").text(), "1 pictures still have 'Anna'");
    }

    void ReplacesEverywhere()
    {
        album_->Execute("INSERT INTO Car4 VALUES ('Anna'),('Annabel')");
        album_->AddImageRow("/1", {{"Car4", "Anna"}, {"Car7", "Anna"}, {"Car3", "Anna"}});
        album_->AddImageRow("/2", {{"Car4", "Annabel"}, {"Car7", "ANNA"}});
        const qint32 chapter = album_->AddChapter("One");
        album_->AddParagraph(chapter, "a", {{"Car4", "Anna"}, {"Car7", "Bob;anna"}});
        album_->AddParagraph(chapter, "b", {{"Car4", "!;Anna;Annabel"}, {"Car3", "Anna;Bob"}});
        Open();
        Choose(2, 2);
        Select("Anna");
        Replace("Anna", "An'ne;");
        QCOMPARE(album_->Joined("SELECT Car3,Car4,Car7 FROM Image LIMIT 2"),
                 "Anna|An ne|An ne; -|Annabel|An ne");
        QCOMPARE(album_->Rows("SELECT Car4,Car7 FROM Paragraph"),
                 QStringList({"An ne|Bob;An ne", "!;An ne;Annabel|*"}));
        QCOMPARE(album_->Joined("SELECT Car3 FROM Paragraph"), "*; Anna;Bob");
        QCOMPARE(Values(), "-;Annabel;An ne");
        const auto& told = Find<QLabel>(*window_, "lblProgress");
        QCOMPARE(told.text(), "Pictures changed: 2, paragraphs changed: 2");
        // Another letter case, and a value that is there already.
        Select("An ne");
        Replace("An ne", "an NE");
        QCOMPARE(Values(), "-;Annabel;an NE");
        album_->Execute("INSERT INTO Car4 VALUES ('other')");
        Choose(2, 2);
        Select("other");
        Replace("other", "ANNABEL");
        QCOMPARE(told.text(),
                 "Pictures changed: 0, paragraphs changed: 0. 'other' and 'Annabel' are one "
                 "value now.");
        ReplaceValue(4, "an NE", "Annabel", [](int) { return true; });
        QCOMPARE(album_->Joined("SELECT Name FROM Car4"), "-; Annabel");
        QCOMPARE(album_->Joined("SELECT Car4,Car7 FROM Image LIMIT 2"),
                 "Annabel|Annabel; Annabel|Annabel");
        QCOMPARE(album_->Joined("SELECT Car4 FROM Paragraph"), "Annabel; !;Annabel");
    }

    // One of two equal values goes, where it means nothing to the filter.
    void ReplacesInLists()
    {
        const QStringList rows[] = {
            {"b;a", "b"},         {"a;B;c", "b;c"},       {"a;!;b", "b;!;b"},
            {"!;c;A;b", "!;c;b"}, {"c;;a", "c;;b"},       {"*;a", "*;b"},
            {"aa;a a", "aa;a a"}, {"a#;[a];", "a#;[a];"}, {"a;a;", "b;"}};
        const qint32 chapter = album_->AddChapter("One");
        QStringList replaced;
        for (const QStringList& row : rows) {
            album_->AddParagraph(chapter, "", {{"Car0", row[0]}});
            replaced += row[1];
        }
        const auto done = ReplaceValue(0, "A", "b", [](int) { return true; });
        QCOMPARE(album_->Rows("SELECT Car0 FROM Paragraph"), replaced);
        QCOMPARE(done->paragraphs, 7);
        ReplaceValue(0, "A#", "Z", [](int) { return true; });
        QCOMPARE(album_->Rows("SELECT Car0 FROM Paragraph")[7], "Z;[a];");
    }

    void FailedReplacementChangesNothing()
    {
        album_->Execute("INSERT INTO Car0 VALUES ('A')");
        album_->Execute("WITH n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<20000) "
                        "INSERT INTO Image (File,Car0) SELECT i,'A' FROM n");
        const int pages = album_->Rows("PRAGMA page_count").first().toInt();
        Open();
        AlbumDatabase->Execute("PRAGMA max_page_count=" + QByteArray::number(pages + 20));
        Select("A");
        Replace("A", "Abcdefghijklmnopqrst", "3026 The disk is full");
        QCOMPARE(Values(), "-;A");
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image WHERE Car0='A'"), "20000");
        QCOMPARE(album_->Joined("PRAGMA integrity_check"), "ok");
        AlbumDatabase->Execute("PRAGMA max_page_count=100000");
        // Nor does a stopped one.
        QTimer presser;
        connect(&presser, &QTimer::timeout, this, [this] {
            auto& stop = Find<QPushButton>(*window_, "cmdStop");
            if (stop.isVisible())
                stop.click();
        });
        presser.start(0);
        Replace("A", "B");
        presser.stop();
        QCOMPARE(Values(), "-;A");
        QCOMPARE(Find<QLabel>(*window_, "lblProgress").text(), "Stopped: nothing was changed");
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image WHERE Car0='A'"), "20000");
        Replace("A", "B");
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image WHERE Car0='B'"), "20000");
    }

    // A read that fails leaves what is on show, and nothing empty is written.
    void WhatCannotBeReadStaysAsItIs()
    {
        SetColumnLabel(0, "Season");
        album_->Execute("INSERT INTO Car1 VALUES ('a'),('b'),('c')");
        Open();
        dialogs_.reset();
        const PatientDialogs patient;
        auto& other = Find<QRadioButton>(*window_, "optColumn_2");
        FailAtEachStep(
            1, [] {}, [&] { other.click(); },
            [&] {
                QString shown = Lines(Find<QListWidget>(*window_, "lstCar")).join(u';');
                QCOMPARE(shown.remove(u'*'), other.isChecked() ? "-;a;b;c" : "-");
            });
        std::optional<FailingEngine> failing(3);
        frmEditLabels labels;
        QVERIFY(failing->HasFailed());
        failing.reset();
        labels.show();
        ::Click(labels, "cmdExit");
        QCOMPARE(ColumnLabel(0), "Season");
    }

    void EditsLabels()
    {
        Open();
        const auto caption = [this](const char* name) {
            return Find<QRadioButton>(*window_, name).text();
        };
        QCOMPARE(caption("optCaracteristic_2"), "Caracteristic2");
        WhenModal("frmEditLabels", [](QWidget& labels) {
            for (QLineEdit* box : labels.findChildren<QLineEdit*>())
                box->setText(box->objectName().mid(3) + " & co");
            ::Click(labels, "cmdExit");
        });
        Click("cmdEditLabels");
        QCOMPARE(caption("optCaracteristic_2"), "Caract_1 && co/Caract_2 && co");
        QCOMPARE(album_->Joined("SELECT count(*) FROM Params WHERE Value LIKE 'Car% & co'"), "13");
        Choose(3, 1);
        QCOMPARE(caption("optColumn_3"), "Car_11 && co");
    }

    void ProposesLabels()
    {
        SetColumnLabel(3, "Who");
        frmEditLabels labels;
        labels.show();
        const QList<QAction*> sets = Find<QMenu>(labels, "mnuPropose").actions();
        QCOMPARE(sets.size(), 3);
        sets[1]->trigger();
        QCOMPARE(ColumnLabel(1), ""); // until Exit
        ::Click(labels, "cmdExit");
        QCOMPARE(ColumnLabel(1), "Country");
        QCOMPARE(ColumnLabel(3), "Who");
        QCOMPARE(ColumnLabel(11), "Time of Day");
        QCOMPARE(CaractLabel(0), "Journey");
        for (const LabelSet& set : StarterLabels()) {
            for (const QString& label : set.columns)
                QVERIFY(!label.isEmpty());
        }
    }

    // Of another window's labels only those that this one edits are asked about, or written.
    void LabelsThatAnotherWindowNames()
    {
        SetColumnLabel(9, "two\nlines");
        frmEditLabels labels;
        labels.show();
        album_->Execute("INSERT INTO Params VALUES ('Car4','theirs'),('Caract1','theirs')");
        Find<QLineEdit>(labels, "txtCar_4").setText("mine");
        Find<QLineEdit>(labels, "txtCar_5").setText("own");
        for (const auto answer : {Answer::Cancel, Answer::No}) {
            dialogs_->ExpectBox("One of these labels was changed in another window after it was "
                                "opened here.\n\nThe other version:\ntheirs\n\nYour version:\nmine",
                                Icon::Question, Buttons::YesNoCancel, answer);
            ::Click(labels, "cmdExit");
            QCOMPARE(labels.isVisible(), answer == Answer::Cancel);
        }
        QCOMPARE(album_->Joined("SELECT Value FROM Params ORDER BY Param"),
                 "theirs; own; two\nlines; theirs");
    }

    void AddsValuesOnce()
    {
        QCOMPARE(CleanValue("abcdefghijklmnopqrs uvwxyz"), "abcdefghijklmnopqrs");
        const QString accented = u8"e\u0301", face = u8"\U0001f600"; // one character each
        QCOMPARE(CleanValue("ab" + accented.repeated(20)), "ab" + accented.repeated(18));
        QCOMPARE(CleanValue("a" + face.repeated(20)), "a" + face.repeated(19));
        // Blanks count before they are trimmed.
        QCOMPARE(CleanValue("   abcdefghijklmnopqrstuvw"), "abcdefghijklmnopq");
        for (const char* kept : {"", "anna", ",x", "7", "Émile", "яблоко", "東京", "\U00010400"})
            QCOMPARE(NormalizedValue(kept), kept);
        QCOMPARE(NormalizedValue("-x"), "-");
        QCOMPARE(NormalizedValue(face + "a"), "a");
        QCOMPARE(NormalizedValue("((x"), "(x");
        QCOMPARE(AddValueToTable(7, "O'Neil"), "O Neil");
        QCOMPARE(AddValueToTable(4, "o neil"), "");
        QCOMPARE(AddValueToTable(4, ""), "");
        QCOMPARE(album_->Joined("SELECT Name FROM Car4"), "-; O Neil");
    }

private:
    void Open()
    {
        column_ = 0;
        window_ = Make<frmEditTables>(album_->AddPicture("shown.png"), nullptr);
        window_->show();
    }

    void Choose(int group, int column)
    {
        column_ = group * 3 - 4 + column + (group == 3 ? 3 : 0);
        Find<QRadioButton>(*window_, QString("optCaracteristic_%1").arg(group)).click();
        Find<QRadioButton>(*window_, QString("optColumn_%1").arg(column)).click();
    }

    void Select(const QString& value)
    {
        auto& list = Find<QListWidget>(*window_, "lstCar");
        const auto items = list.findItems(value, Qt::MatchExactly);
        QCOMPARE(items.size(), 1);
        list.setCurrentItem(items.first());
    }

    void Click(const char* button) { ::Click(*window_, button); }

    void Replace(const QString& value, const QString& answer, const QString& complaint = {})
    {
        dialogs_->ExpectInput("Replace all occurences of " + value + " by :", answer, value);
        if (!complaint.isEmpty())
            dialogs_->ExpectBoxBeginning(complaint, Icon::Critical);
        Click("cmdReplace");
    }

    QString CountOf(const QString& value)
    {
        const auto& list = Find<QListWidget>(*window_, "lstCar");
        return list.findItems(value, Qt::MatchExactly)
            .front()
            ->data(CountDelegate::countRole)
            .toString();
    }

    QString Shown() { return Lines(Find<QListWidget>(*window_, "lstCar")).join(u';').remove(u'*'); }

    // As the list shows them, and the table holds them.
    QString Values()
    {
        const QString shown = Shown();
        const QString table = QString("Car%1").arg(column_);
        if (shown != album_->Rows("SELECT Name FROM " + table).join(u';'))
            QTest::qFail("the list shows something else than the table", __FILE__, __LINE__);
        return shown;
    }

    frmEditTables* window_ = nullptr;
    int column_ = 0; // that is chosen
};

QTEST_MAIN(TestEditTables)
#include "test_edit_tables.moc"
