// SPDX-License-Identifier: MIT
#include "catalogue/ValueReplacement.h"
#include "catalogue/frmEditTables.h"
#include "core/Album.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

using GeneralModule::AlbumDatabase;

// Value tables and labels, worked by their windows.
class TestEditTables : public AlbumTest
{
    Q_OBJECT

private slots:
    void ChoosesEachTable()
    {
        const int columns[] = {0, 1, 2, 3, 4, 5, 9, 10, 11};
        for (const int column : columns)
            album_->Execute(QStringLiteral("INSERT INTO Car%1 VALUES ('z%1'),('a%1')").arg(column));
        Open();
        for (int i = 0; i < 9; ++i) {
            Choose(i / 3 + 1, i % 3 + 1);
            QCOMPARE(Values(), QStringLiteral("-;z%1;a%1").arg(columns[i]));
        }
    }

    void AddsValues()
    {
        Open();
        const QString prompt = "Please Enter Parameter's Name";
        const QString again = "Caracteristics must begin with a letter or a figure";
        dialogs_->ExpectInput(prompt, "");
        Click("cmdAddNew");
        dialogs_->ExpectInput(prompt, ";;;");
        dialogs_->ExpectInput(again, "*x");
        dialogs_->ExpectInput(again, "O'Neil; the elder brother");
        Click("cmdAddNew");
        dialogs_->ExpectInput(prompt, "o neil the elder bro");
        Click("cmdAddNew");
        QCOMPARE(Values(), "-;O Neil the elder bro");
    }

    void LeavesMarkersAndPictures()
    {
        album_->Execute("INSERT INTO Car0 VALUES ('Anna'),('Bob')");
        Open();
        album_->Execute("UPDATE Image SET Car0='Anna'");
        Click("cmdDelete"); // nothing is selected
        Click("cmdReplace");
        Select("-");
        for (const char* verb : {"delete", "modify"}) {
            dialogs_->ExpectBox(QStringLiteral("Sorry, you can't %1 the special markers").arg(verb),
                                Dialogs::Icon::Warning);
            Click(*verb == 'd' ? "cmdDelete" : "cmdReplace");
        }
        Select("Anna");
        for (const char* answer : {"", "Anna", "Anna "}) {
            dialogs_->ExpectInput("Replace all occurences of Anna by :", answer, "Anna");
            Click("cmdReplace");
            QCOMPARE(Values(), "-;Anna;Bob");
        }
        Click("cmdDelete");
        QCOMPARE(Values(), "-;Bob");
        QCOMPARE(album_->Rows("SELECT Car0 FROM Image"), QStringList("Anna"));
    }

    void ReplacesEverywhere()
    {
        album_->Execute("INSERT INTO Car4 VALUES ('Anna'),('Annabel')");
        album_->AddImageRow("/1", {{"Car4", "Anna"}, {"Car7", "Anna"}, {"Car3", "Anna"}});
        album_->AddImageRow("/2", {{"Car4", "Annabel"}, {"Car7", "ANNA"}});
        const qint32 chapter = album_->AddChapter("One");
        album_->AddParagraph(chapter, "a", {{"Car4", "Anna"}, {"Car7", "Anna;Bob"}});
        album_->AddParagraph(chapter, "b", {{"Car7", "Anna"}});
        Open();
        Choose(2, 2);
        Select("Anna");
        dialogs_->ExpectInput("Replace all occurences of Anna by :", "(x", "Anna");
        dialogs_->ExpectInput("Caracteristics must begin with a letter or a figure", "An'ne;");
        Click("cmdReplace");
        QCOMPARE(album_->Rows("SELECT Car3,Car4,Car7 FROM Image LIMIT 2"),
                 QStringList({"Anna|An ne|An ne", "-|Annabel|An ne"}));
        QCOMPARE(album_->Rows("SELECT Car4,Car7 FROM Paragraph"),
                 QStringList({"An ne|Anna;Bob", "*|An ne"}));
        QCOMPARE(Values(), "-;Annabel;An ne");
        // Another letter case, and a value that is there already.
        Select("An ne");
        dialogs_->ExpectInput("Replace all occurences of An ne by :", "an NE", "An ne");
        Click("cmdReplace");
        QCOMPARE(Values(), "-;Annabel;an NE");
        ReplaceValue(4, "an NE", "Annabel", [](int) {});
        QCOMPARE(album_->Rows("SELECT Name FROM Car4"), QStringList({"-", "Annabel"}));
        QCOMPARE(album_->Rows("SELECT Car4,Car7 FROM Image LIMIT 2"),
                 QStringList({"Annabel|Annabel", "Annabel|Annabel"}));
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
        dialogs_->ExpectInput("Replace all occurences of A by :", "Abcdefghijklmnopqrst", "A");
        dialogs_->ExpectBoxBeginning("3026 The disk is full", Dialogs::Icon::Critical);
        Click("cmdReplace");
        QCOMPARE(Values(), "-;A");
        QCOMPARE(album_->Rows("SELECT count(*) FROM Image WHERE Car0='A'"), QStringList("20000"));
        QCOMPARE(album_->Rows("PRAGMA integrity_check"), QStringList("ok"));
        AlbumDatabase->Execute("PRAGMA max_page_count=100000");
        dialogs_->ExpectInput("Replace all occurences of A by :", "B", "A");
        Click("cmdReplace");
        QCOMPARE(album_->Rows("SELECT count(*) FROM Image WHERE Car0='B'"), QStringList("20000"));
    }

    void EditsLabels()
    {
        Open();
        const auto caption = [this](const char* name) {
            return Find<QRadioButton>(*window_, name).text();
        };
        QCOMPARE(caption("optCaracteristic_2"), "Caracteristic2");
        const auto fill = [](QWidget& labels, const QString& ending) {
            for (QLineEdit* box : labels.findChildren<QLineEdit*>())
                box->setText(box->objectName().mid(3) + ending);
        };
        WhenModal("frmEditLabels", [&](QWidget& labels) {
            fill(labels, " & co");
            ::Click(labels, "cmdExit");
        });
        Click("cmdEditLabels");
        QCOMPARE(album_->Rows("SELECT count(*) FROM Params WHERE Value LIKE 'Car% & co'"),
                 QStringList("13"));
        QCOMPARE(caption("optCaracteristic_2"), "Caract_1 && co/Caract_2 && co");
        Choose(3, 1);
        QCOMPARE(caption("optColumn_3"), "Car_11 && co");
        WhenModal(
            "frmEditLabels", [&](QWidget& labels) { fill(labels, "lost"); }, false);
        Click("cmdEditLabels");
        QCOMPARE(caption("optColumn_3"), "Car_11 && co");
        QCOMPARE(album_->Rows("SELECT count(*) FROM Params"), QStringList("13"));
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
        Find<QRadioButton>(*window_, QStringLiteral("optCaracteristic_%1").arg(group)).click();
        Find<QRadioButton>(*window_, QStringLiteral("optColumn_%1").arg(column)).click();
    }

    void Select(const QString& value)
    {
        auto& list = Find<QListWidget>(*window_, "lstCar");
        const auto items = list.findItems(value, Qt::MatchExactly);
        QCOMPARE(items.size(), 1);
        list.setCurrentItem(items.first());
    }

    void Click(const char* button) { ::Click(*window_, button); }

    // As the list shows them, and the table holds them.
    QString Values()
    {
        const QString shown = Lines(Find<QListWidget>(*window_, "lstCar")).join(u';').remove(u'*');
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
