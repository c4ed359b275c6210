// SPDX-License-Identifier: MIT
#include "catalogue/ValueReplacement.h"
#include "catalogue/frmEditTables.h"
#include "core/Album.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using GeneralModule::AlbumDatabase;

// Value tables and labels, worked by their windows.
class TestEditTables : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ChoosesEachTable();
    void AddsValues();
    void DeletesWithoutTouchingPictures();
    void ReplacesEverywhere();
    void MergesWithAnotherValue();
    void ChangesLetterCase();
    void LeavesWhatIsNotReplaced();
    void FailedReplacementChangesNothing();
    void EditsLabels();

private:
    void Open();
    void Choose(int group, int column);
    void Select(const QString& value);
    void Click(const char* button) { Find<QPushButton>(*window_, button).click(); }
    QString Values() const;

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
    std::unique_ptr<frmEditTables> window_;
};

void TestEditTables::init()
{
    album_ = std::make_unique<AlbumFixture>();
    dialogs_ = std::make_unique<ScriptedDialogs>();
}

void TestEditTables::cleanup()
{
    window_.reset();
    dialogs_.reset();
    album_.reset();
}

void TestEditTables::Open()
{
    window_ = std::make_unique<frmEditTables>(album_->AddPicture("shown.png"), nullptr);
    window_->show();
}

void TestEditTables::Choose(int group, int column)
{
    Find<QRadioButton>(*window_, QStringLiteral("optCaracteristic_%1").arg(group)).click();
    Find<QRadioButton>(*window_, QStringLiteral("optColumn_%1").arg(column)).click();
}

void TestEditTables::Select(const QString& value)
{
    auto& list = Find<QListWidget>(*window_, "lstCar");
    const auto items = list.findItems(value, Qt::MatchExactly);
    QCOMPARE(items.size(), 1);
    list.setCurrentItem(items.first());
}

QString TestEditTables::Values() const
{
    const auto& list = Find<QListWidget>(*window_, "lstCar");
    QStringList values;
    for (int row = 0; row < list.count(); ++row)
        values += list.item(row)->text();
    return values.join(u';');
}

void TestEditTables::ChoosesEachTable()
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

void TestEditTables::AddsValues()
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
    QCOMPARE(album_->Rows("SELECT Name FROM Car0").join(u';'), Values());
}

void TestEditTables::DeletesWithoutTouchingPictures()
{
    album_->Execute("INSERT INTO Car0 VALUES ('Anna'),('Bob')");
    Open();
    album_->Execute("UPDATE Image SET Car0='Anna'");
    Click("cmdDelete");
    Select("-");
    dialogs_->ExpectBox("Sorry, you can't delete the special markers", Dialogs::Icon::Warning);
    Click("cmdDelete");
    Select("Anna");
    Click("cmdDelete");
    QCOMPARE(Values(), "-;Bob");
    QCOMPARE(album_->Rows("SELECT Name FROM Car0").join(u';'), Values());
    QCOMPARE(album_->Rows("SELECT Car0 FROM Image"), QStringList("Anna"));
}

void TestEditTables::ReplacesEverywhere()
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
    QCOMPARE(album_->Rows("SELECT Name FROM Car4").join(u';'), Values());
}

void TestEditTables::MergesWithAnotherValue()
{
    album_->Execute(u8"INSERT INTO Car0 VALUES ('Anna'),('Étienne')");
    album_->AddImageRow("/1", {{"Car0", "Anna"}});
    ReplaceValue(0, "Anna", u8"Étienne", [](int) {});
    QCOMPARE(album_->Rows("SELECT Name FROM Car0"), QStringList({"-", u8"Étienne"}));
    QCOMPARE(album_->Rows("SELECT Car0 FROM Image"), QStringList(u8"Étienne"));
}

void TestEditTables::ChangesLetterCase()
{
    album_->Execute("INSERT INTO Car0 VALUES ('anna'),('Bob')");
    album_->AddImageRow("/1", {{"Car0", "anna"}});
    album_->AddImageRow("/2", {{"Car0", "anna"}});
    Open();
    Select("anna");
    dialogs_->ExpectInput("Replace all occurences of anna by :", "Anna", "anna");
    Click("cmdReplace");
    QCOMPARE(Values(), "-;Bob;Anna");
    QCOMPARE(album_->Rows("SELECT Name FROM Car0").join(u';'), Values());
    QCOMPARE(album_->Rows("SELECT Car0 FROM Image LIMIT 2"), QStringList({"Anna", "Anna"}));
}

void TestEditTables::LeavesWhatIsNotReplaced()
{
    album_->Execute("INSERT INTO Car0 VALUES ('Anna'),('Bob')");
    Open();
    Click("cmdReplace");
    Select("-");
    dialogs_->ExpectBox("Sorry, you can't modify the special markers", Dialogs::Icon::Warning);
    Click("cmdReplace");
    Select("Anna");
    for (const char* answer : {"", "Anna", "Anna "}) {
        dialogs_->ExpectInput("Replace all occurences of Anna by :", answer, "Anna");
        Click("cmdReplace");
        QCOMPARE(Values(), "-;Anna;Bob");
    }
    QCOMPARE(album_->Rows("SELECT Name FROM Car0").join(u';'), Values());
}

void TestEditTables::FailedReplacementChangesNothing()
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
    QCOMPARE(album_->Rows("SELECT Name FROM Car0").join(u';'), Values());
    QCOMPARE(album_->Rows("SELECT count(*) FROM Image WHERE Car0='A'"), QStringList("20000"));
    QCOMPARE(album_->Rows("PRAGMA integrity_check"), QStringList("ok"));
    AlbumDatabase->Execute("PRAGMA max_page_count=100000");
    dialogs_->ExpectInput("Replace all occurences of A by :", "B", "A");
    Click("cmdReplace");
    QCOMPARE(album_->Rows("SELECT count(*) FROM Image WHERE Car0='B'"), QStringList("20000"));
}

void TestEditTables::EditsLabels()
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
        Find<QPushButton>(labels, "cmdExit").click();
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

QTEST_MAIN(TestEditTables)
#include "test_edit_tables.moc"
