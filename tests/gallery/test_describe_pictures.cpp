// SPDX-License-Identifier: MIT
#include "catalogue/LastDescribed.h"
#include "gallery/ContactSheet.h"
#include "gallery/frmDescribePictures.h"
#include "platform/data/Database.h"
#include "platform/data/DatabaseError.h"
#include "platform/metadata/PictureTexts.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

#include <QComboBox>

// Many pictures described at once.
class TestDescribePictures : public AlbumTest
{
    Q_OBJECT

private slots:
    void ShowsWhatIsCommonAndWhatDiffers()
    {
        AddPictures();
        Open();
        Find<ContactSheet>(*window_, "sheet").selectAll();
        QTRY_COMPARE(Edit(3).placeholderText(), "Anna (2), - (1), Bob (1)");
        QCOMPARE(Edit(3).text(), "");
        QCOMPARE(Edit(0).text(), "Sea");
        QCOMPARE(Edit(0).placeholderText(), "");
        QCOMPARE(Edit(11).text(), "-");
        QCOMPARE(Legend().placeholderText(), "3 different legends");
        QCOMPARE(Items(3).first(3), QStringList({"Anna", "-", "Bob"}));
        QCOMPARE(Items(6).first(1), QStringList({"-"}));
        QVERIFY(!Find<QWidget>(*window_, "cmdApply").isEnabled());
        // Another picture, and what was typed stays.
        TypeInto(9, "Red");
        Sheet().GoTo(2);
        QTRY_COMPARE(Edit(3).text(), "Bob");
        QCOMPARE(Edit(9).text(), "Red");
        QCOMPARE(Legend().text(), "second");
        dialogs_->ExpectBox("Apply what you have entered to 1 pictures ?", Icon::Question,
                            Buttons::YesNoCancel, Answer::No);
        window_->close();
        QCOMPARE(Rows("Car9"), QStringList({"-", "-", "-", "-"}));
    }

    void WritesOnlyWhatWasTouched()
    {
        AddPictures();
        album_->Execute("INSERT INTO Car0 VALUES ('Lake')");
        Open();
        Sheet().GoTo(1);
        QTest::keyClick(&Sheet(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&Sheet(), Qt::Key_Right, Qt::ShiftModifier);
        QTRY_COMPARE(Edit(3).placeholderText(), "Anna (2), Bob (1)");
        TypeInto(0, "lake");     // takes the spelling that is known
        TypeInto(7, "Swims; x"); // cleaned, and added
        Find<QComboBox>(*window_, "cboLegendWay").setCurrentIndex(2);
        Legend().setFocus();
        Legend().selectAll();
        QTest::keyClicks(&Legend(), "in May");
        const auto other = Database::Open(album_->GetAlbum());
        other->Execute("UPDATE Image SET Car11='theirs' WHERE rowid=2");
        QTest::keyClick(&Legend(), Qt::Key_Return);
        QCOMPARE(Rows("Legend"), QStringList({"first in May", "second in May", "in May", "first"}));
        QCOMPARE(Rows("Car0"), QStringList({"Lake", "Lake", "Lake", "Sea"}));
        QCOMPARE(Rows("Car3"), QStringList({"Anna", "Bob", "Anna", "-"}));
        QCOMPARE(Rows("Car7"), QStringList({"Swims x", "Swims x", "Swims x", "-"}));
        QCOMPARE(Rows("Car11"), QStringList({"-", "theirs", "-", "-"}));
        QCOMPARE(album_->Joined("SELECT Name FROM Car4 WHERE Name='Swims x'"), "Swims x");
        QCOMPARE(Sheet().GetCurrent(), 4); // the next one
        QTRY_COMPARE(Edit(3).text(), "-");
        QTest::keyClick(window_, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(Edit(3).text(), "Anna");
        Click(*window_, "cmdApply");
        QCOMPARE(Rows("Car3"), QStringList({"Anna", "Bob", "Anna", "Anna"}));
        QCOMPARE(Rows("Legend").last(), "first");
        // Which are alike now, all but what the other program wrote.
        Sheet().GoTo(1);
        Click(*window_, "cmdSameValues");
        QCOMPARE(Sheet().GetSelected(), std::vector<qint32>({1, 3, 4}));
        Click(*window_, "cmdSameFolder");
        QCOMPARE(Sheet().GetSelected(), std::vector<qint32>({1, 2, 3}));
    }

    void ChoosesTheDayAndEditsTables()
    {
        const QList<QPair<const char*, const char*>> days{{"a.jpg", "1998:07:14 12:00:00"},
                                                          {"b.jpg", "1998:07:15 00:00:00"},
                                                          {"c.jpg", "1998:07:14 23:59:59"}};
        for (const auto& [name, day] : days)
            WritePicture(album_->AddPicture(name), {.exif = {{0x9003, QByteArray(day, 20)}}});
        album_->AddImageRow("/nowhere/d.jpg");
        Open();
        Click(*window_, "cmdSameDay");
        QTRY_COMPARE(Sheet().GetSelected(), std::vector<qint32>({1, 3}));
        Sheet().GoTo(4);
        Click(*window_, "cmdSameDay");
        QTRY_COMPARE(Find<QLabel>(*window_, "lblFeedback").text(),
                     "The day of this picture is not known");
        TypeInto(3, "Typed");
        WhenModal("frmEditTables", [this](QWidget& tables) {
            album_->Execute("INSERT INTO Car3 VALUES ('Added')");
            tables.close();
        });
        Click(*window_, "cmdEditTables");
        QTRY_VERIFY(Items(3).contains("Added"));
        QCOMPARE(Edit(3).text(), "Typed");
        dialogs_->ExpectBoxBeginning("Apply what you have entered", Icon::Question,
                                     Buttons::YesNoCancel, Answer::No);
        window_->close();
    }

    void WritesAllOrNone()
    {
        AddPictures();
        GroupChange change;
        change.values[5] = "new";
        const auto other = Database::Open(album_->GetAlbum());
        other->Execute("BEGIN IMMEDIATE");
        QCOMPARE(ErrorOf([&] { ApplyToGroup({1, 2, 4}, change); }), DatabaseError::InUse);
        other->Execute("ROLLBACK");
        QCOMPARE(Rows("Car5"), QStringList({"-", "-", "-", "-"}));
        QCOMPARE(album_->Joined("SELECT count(*) FROM Car5 WHERE Name='new'"), "0");
        ApplyToGroup({4, 1, 2, 99}, change);
        QCOMPARE(Rows("Car5"), QStringList({"new", "new", "-", "new"}));
    }

private:
    void AddPictures()
    {
        album_->AddImageRow("/walk/1.jpg",
                            {{"Legend", "first"}, {"Car0", "Sea"}, {"Car3", "Anna"}});
        album_->AddImageRow("/walk/2.jpg",
                            {{"Legend", "second"}, {"Car0", "Sea"}, {"Car3", "Bob"}});
        album_->AddImageRow("/walk/3.jpg", {{"Car0", "Sea"}, {"Car3", "Anna"}});
        album_->AddImageRow("/town/1.jpg", {{"Legend", "first"}, {"Car0", "Sea"}});
    }

    void Open()
    {
        window_ = Make<frmDescribePictures>();
        window_->Pictures = {1, 2, 3, 4};
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_));
    }

    ContactSheet& Sheet() { return Find<ContactSheet>(*window_, "sheet"); }
    QLineEdit& Legend() { return Find<QLineEdit>(*window_, "txtLegend"); }
    QComboBox& Box(int column)
    {
        return Find<QComboBox>(*window_, QString("cboCategory_%1").arg(column));
    }
    QLineEdit& Edit(int column) { return *Box(column).lineEdit(); }
    QStringList Items(int column)
    {
        QStringList items;
        for (int i = 0; i < Box(column).count(); ++i)
            items += Box(column).itemText(i);
        return items;
    }
    void TypeInto(int column, const QString& text)
    {
        Box(column).setFocus();
        Edit(column).selectAll();
        QTest::keyClicks(&Box(column), text);
    }
    QStringList Rows(const QString& field)
    {
        return album_->Rows("SELECT ifnull(" + field + ",'') FROM Image");
    }

    frmDescribePictures* window_ = nullptr;
};

QTEST_MAIN(TestDescribePictures)
#include "test_describe_pictures.moc"
