// SPDX-License-Identifier: MIT
#include "catalogue/FileTaking.h"
#include "catalogue/PictureCards.h"
#include "catalogue/frmTakeFromFiles.h"
#include "core/Parameters.h"
#include "platform/metadata/PictureTexts.h"
#include "support/AlbumTest.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

using Keywords = TakingChoices::Keywords;
using DatePart = TakingChoices::DatePart;

class TestTakeFromFiles : public AlbumTest
{
    Q_OBJECT

private:
    // Three pictures; the first has all, the second is described, the third's file is damaged.
    void AddPictures()
    {
        const QString a = album_->AddPicture("a.jpg");
        WritePicture(a, {.xmp = XmpCaption("a boat") + XmpKeywords({"anna", "Bob", "Lake; Sea"}),
                         .exif = {{0x9003, QByteArray("1998:07:14 12:00:00\0", 20)},
                                  {0x0132, QByteArray("2020:01:01 12:00:00\0", 20)}}});
        const QString b =
            album_->AddPicture("b.jpg", {{"Legend", "mine"}, {"Car3", "Eve"}, {"Car0", "x"}});
        WritePicture(b,
                     {.xmp = XmpCaption("not taken") + XmpKeywords({"Anna"}), .iptc = {{25, "?"}}});
        WriteFile(album_->AddPicture("c.jpg"), "no picture");
        for (const char* name : {"Anna", "Bob"})
            AddValueToTable(3, name);
    }

    static std::unique_ptr<FileTaking> Read()
    {
        auto taking = std::make_unique<FileTaking>(AllPictureIds());
        while (taking->Work(std::chrono::milliseconds(20)))
            ;
        return taking;
    }

    QString AfterTaking(const TakingChoices& choices)
    {
        ApplyChanges(Read()->Plan(choices).changes);
        return album_->Joined("SELECT Legend, Car0, Car3, Car6, Car9 FROM Image");
    }

private slots:
    void TakesWhatIsFreeWhereItIsKnown()
    {
        AddPictures();
        const TakingPlan plan = Read()->Plan({});
        QCOMPARE(plan.changes.size(), 2U);
        QCOMPARE(plan.captionFields.at("Xmp.dc.description"), 1);
        QCOMPARE(plan.keywordFields.at("Xmp.dc.subject"), 2);
        QCOMPARE(plan.keywordsLeft, 2);
        QCOMPARE(AfterTaking({}), "a boat|-|Anna|Bob|-; mine|x|Eve|Anna|-; |-|-|-|-");
        QCOMPARE(AfterTaking({}), "a boat|-|Anna|Bob|-; mine|x|Eve|Anna|-; |-|-|-|-");
    }

    void TakesIntoANamedColumn()
    {
        AddPictures();
        TakingChoices choices{.takesCaptions = false,
                              .keywords = Keywords::IntoColumn,
                              .keywordColumn = 0,
                              .datePart = DatePart::Month,
                              .dateColumn = 9,
                              .leftOut = {}};
        choices.leftOut = {"Exif.Photo.DateTimeOriginal", "File time"};
        QCOMPARE(AfterTaking(choices), "|anna|-|-|2020-01; mine|x|Eve|-|-; |-|-|-|-");
        QVERIFY(ValuesOf(0).contains("anna"));
        QVERIFY(ValuesOf(9).contains("2020-01"));
        QCOMPARE(DateValue({1998, 7, 0}, DatePart::Day), "");
        QCOMPARE(DateValue({1998, 7, 4}, DatePart::Day), "1998-07-04");
    }

    void TheWindowTellsBeforeItTakes()
    {
        AddPictures();
        GeneralModule::SetColumnLabel(3, "Person");
        GeneralModule::SetCaractLabel(1, "First");
        auto* window = Make<frmTakeFromFiles>();
        window->Pictures = AllPictureIds();
        window->show();
        auto* take = window->findChild<QPushButton*>("cmdTake");
        QTRY_VERIFY(take->isEnabled());
        const auto text = [window](const char* name) {
            return window->findChild<QLabel*>(name)->text();
        };
        QCOMPARE(text("lblRead"), "3 of 3 file(s) read; 1 cannot be read to the end");
        QCOMPARE(text("lblSummary"),
                 "2 picture(s) change: 1 legend(s), Person (First): 1 value(s), "
                 "Person (7): 2 value(s).\n2 keyword(s) find no place.");
        QCOMPARE(album_->Joined("SELECT Legend FROM Image"), "; mine; ");
        auto* fields = window->findChild<QTreeWidget*>("treFields");
        QCOMPARE(fields->topLevelItemCount(), 6);
        QCOMPARE(fields->topLevelItem(5)->text(0), "Date: of the last change of the file");
        QCOMPARE(fields->topLevelItem(5)->checkState(0), Qt::Unchecked);
        fields->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        window->findChild<QComboBox*>("cboKeywords")->setCurrentIndex(0);
        QVERIFY(!take->isEnabled());
        QCOMPARE(text("lblSummary"), "Nothing changes.");
        window->findChild<QComboBox*>("cboDatePart")->setCurrentIndex(1);
        QCOMPARE(text("lblSummary"), "1 picture(s) change: Caracteristic 1: 1 value(s).\n"
                                     "1 new value(s): 1998 (Caracteristic 1)");
        dialogs_->ExpectBox("1 picture(s) changed.", Icon::Information, Buttons::Ok, Answer::Ok);
        take->click();
        QCOMPARE(window->result(), int(QDialog::Accepted));
        QCOMPARE(album_->Joined("SELECT Car0 FROM Image"), "1998; x; -");
    }
};

QTEST_MAIN(TestTakeFromFiles)
#include "test_take_from_files.moc"
