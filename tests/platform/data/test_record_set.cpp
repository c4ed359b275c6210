// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "platform/data/WriteBatch.h"
#include "support/AlbumFixture.h"

#include <QtTest>

#include <memory>

using namespace GeneralModule;

class TestRecordSet : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { album_.reset(); }
    void FailedFindStaysWhereItWas();
    void RowsComeInTheOrderOfAdding();
    void AddedRowLeavesTheCurrentRow();
    void EditChangesOnlyTheRowItBegan();
    void DeletedRowIsNoCurrentRow();
    void IdentifiersNeverComeBack();
    void NullIsNotAnEmptyText();
    void RefusesWrongUse();
    void SeesWhatOthersWrote();
    void WalkSeesItsOwnChanges_data();
    void WalkSeesItsOwnChanges();
    void WalkHoldsNoLockBehindItsEnd();
    void DuplicateKeyKeepsTheBuffer();

private:
    QStringList Files();

    std::unique_ptr<AlbumFixture> album_;
};

void TestRecordSet::init()
{
    album_ = std::make_unique<AlbumFixture>();
    for (const char* file : {"/c", "/a", "/b", "/d"})
        album_->AddImageRow(file, {{"Car0", "x"}, {"Legend", QString("on ") + file}});
}

QStringList TestRecordSet::Files()
{
    QStringList files;
    const RecordSet::Walk walk(*ImageSet);
    for (ImageSet->MoveFirst(); !ImageSet->AtEnd(); ImageSet->MoveNext())
        files += ImageSet->Text(u"File");
    return files;
}

void TestRecordSet::FailedFindStaysWhereItWas()
{
    ImageSet->FindFirst("[File]='/b'");
    QVERIFY(!ImageSet->NoMatch());
    ImageSet->FindFirst("[File]='/nowhere'");
    QVERIFY(ImageSet->NoMatch());
    QCOMPARE(ImageSet->Text(u"legend"), "on /b");
    ImageSet->FindNext("[Car0]='x'");
    QCOMPARE(ImageSet->Text(u"File"), "/d");
    ImageSet->FindNext("[Car0]='x'");
    QVERIFY(ImageSet->NoMatch());
    QCOMPARE(ImageSet->Text(u"File"), "/d");
}

void TestRecordSet::RowsComeInTheOrderOfAdding()
{
    QCOMPARE(Files(), QStringList({"/c", "/a", "/b", "/d"}));
    QCOMPARE(ImageSet->RecordCount(), 4);
    QVERIFY(ImageSet->AtEnd());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->MoveNext());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Text(u"File"));
    ImageSet->FindNext("[Car0]='x'");
    QVERIFY(ImageSet->NoMatch());
    QVERIFY(ChapterSet->IsEmpty());
    ChapterSet->MoveFirst();
    QVERIFY(ChapterSet->AtEnd());
}

void TestRecordSet::AddedRowLeavesTheCurrentRow()
{
    ImageSet->FindFirst("[File]='/a'");
    ImageSet->AddNew();
    ImageSet->Set(u"FILE", QString("/new"));
    QCOMPARE(ImageSet->Text(u"File"), "/new");
    QVERIFY(ImageSet->IsNull(u"Car0"));
    ImageSet->Update();
    QCOMPARE(ImageSet->Text(u"File"), "/a");
    QCOMPARE(Files().last(), "/new");
    QCOMPARE(album_->Rows("SELECT File,SourceFile FROM Image WHERE File='/new'"),
             QStringList("/new|"));

    ImageSet->FindFirst("[File]='/a'");
    ImageSet->AddNew();
    ImageSet->Set(u"File", QString("/never"));
    ImageSet->CancelUpdate();
    QCOMPARE(ImageSet->Text(u"File"), "/a");
    QVERIFY(!Files().contains("/never"));
}

void TestRecordSet::EditChangesOnlyTheRowItBegan()
{
    ImageSet->FindFirst("[File]='/a'");
    ImageSet->Edit();
    ImageSet->Set(u"Legend", QString("changed"));
    QCOMPARE(ImageSet->Text(u"Legend"), "changed");
    QCOMPARE(album_->Rows("SELECT Legend FROM Image WHERE File='/a'"), QStringList("on /a"));
    ImageSet->FindFirst("[File]='/b'"); // leaving a row drops what was not updated
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Update());

    ImageSet->FindFirst("[File]='/a'");
    ImageSet->Edit();
    ImageSet->Set(u"Legend", QString("changed"));
    ImageSet->Update();
    QCOMPARE(ImageSet->Text(u"Legend"), "changed");
    QCOMPARE(album_->Rows("SELECT Legend FROM Image ORDER BY rowid"),
             QStringList({"on /c", "changed", "on /b", "on /d"}));
}

void TestRecordSet::DeletedRowIsNoCurrentRow()
{
    ImageSet->FindFirst("[File]='/a'");
    ImageSet->Delete();
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Text(u"File"));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Edit());
    ImageSet->FindNext("[Car0]='x'");
    QCOMPARE(ImageSet->Text(u"File"), "/b");
}

void TestRecordSet::IdentifiersNeverComeBack()
{
    const qint32 first = album_->AddChapter("One");
    const qint32 second = album_->AddChapter("Two");
    QVERIFY(second > first);
    QVERIFY(FindById(*ChapterSet, second));
    ChapterSet->Delete();
    const qint32 third = album_->AddChapter("Three");
    QVERIFY(third > second);
    // Also one that another program wrote counts.
    album_->Execute("INSERT INTO Chapter (Id,Name) VALUES (900,'Far')");
    ChapterSet->AddNew();
    QCOMPARE(ChapterSet->Number(u"Id"), 901);
    ChapterSet->CancelUpdate();
    album_->Execute("INSERT INTO Chapter (Id,Name) VALUES (2147483647,'Last')");
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ChapterSet->AddNew());
}

void TestRecordSet::NullIsNotAnEmptyText()
{
    album_->Execute("UPDATE Image SET Legend=NULL WHERE File='/a'");
    for (const bool walking : {false, true}) {
        std::optional<RecordSet::Walk> walk;
        if (walking)
            walk.emplace(*ImageSet);
        ImageSet->FindFirst("[File]='/a'");
        QVERIFY(ImageSet->IsNull(u"Legend"));
        QCOMPARE(ImageSet->TextOrEmpty(u"Legend"), "");
        try {
            ImageSet->Text(u"Legend");
            QFAIL("Null was read as a text");
        } catch (const DatabaseError& error) {
            QCOMPARE(error.GetNumber(), 94);
        }
    }
}

void TestRecordSet::RefusesWrongUse()
{
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Set(u"Legend", QString("x")));
    ImageSet->MoveFirst();
    ImageSet->Edit();
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Set(u"Colour", QString("x")));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Set(u"Legend", 5));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, RecordSet(AlbumDatabase, "Nothing"));
    album_->AddChapter("One");
    album_->Execute("UPDATE Chapter SET FirstParagraph=3000000000");
    ChapterSet->MoveFirst();
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ChapterSet->Number(u"FirstParagraph"));
    album_->Execute("UPDATE Chapter SET FirstParagraph='soon'");
    ChapterSet->MoveFirst();
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ChapterSet->Number(u"FirstParagraph"));
}

void TestRecordSet::SeesWhatOthersWrote()
{
    RecordSet second(AlbumDatabase, "Image");
    second.FindFirst("[File]='/a'");
    ImageSet->FindFirst("[File]='/a'");
    QCOMPARE(ImageSet->Text(u"Legend"), "on /a");
    second.Edit();
    second.Set(u"Legend", QString("by the second"));
    second.Update();
    QCOMPARE(ImageSet->Text(u"Legend"), "by the second");
    album_->Execute("DELETE FROM Image WHERE File='/a'");
    ImageSet->Edit();
    ImageSet->Set(u"Legend", QString("too late"));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Update());
}

void TestRecordSet::WalkSeesItsOwnChanges_data()
{
    QTest::addColumn<bool>("walking");
    QTest::addColumn<bool>("inBatch");
    QTest::newRow("asking anew for each row") << false << false;
    QTest::newRow("walking") << true << false;
    QTest::newRow("walking in a batch") << true << true;
}

// Every row is edited and every second deleted while the set goes through them; a field that the
// walk did not know of is asked for in the middle.
void TestRecordSet::WalkSeesItsOwnChanges()
{
    QFETCH(bool, walking);
    QFETCH(bool, inBatch);
    for (int i = 0; i < 40; ++i)
        album_->AddImageRow(QStringLiteral("/more/%1").arg(i), {{"Car0", "x"}});
    {
        std::optional<RecordSet::Walk> walk;
        std::optional<WriteBatch> batch;
        if (walking)
            walk.emplace(*ImageSet);
        if (inBatch)
            batch.emplace(AlbumDatabase);
        int row = 0;
        for (ImageSet->FindFirst("[Car0]='x'"); !ImageSet->NoMatch();
             ImageSet->FindNext("[Car0]='x'")) {
            const QString file = ImageSet->Text(u"File");
            if (row % 2 == 1) {
                ImageSet->Delete();
            } else {
                ImageSet->Edit();
                ImageSet->Set(u"Car0", QString("y"));
                ImageSet->Set(u"Legend", file);
                ImageSet->Update();
                QCOMPARE(ImageSet->Text(u"Legend"), file);
            }
            ++row;
        }
        QCOMPARE(row, 44);
    }
    QCOMPARE(album_->Rows("SELECT count(*) FROM Image WHERE Car0='y' AND Legend=File"),
             QStringList("22"));
    QCOMPARE(album_->Rows("SELECT count(*) FROM Image"), QStringList("22"));
}

void TestRecordSet::WalkHoldsNoLockBehindItsEnd()
{
    {
        const RecordSet::Walk walk(*ImageSet);
        ImageSet->FindFirst("[Car0]='x'");
    }
    album_->Execute("UPDATE Image SET Legend='from outside'"); // fails while a lock is held
    QCOMPARE(ImageSet->Text(u"Legend"), "from outside");
}

void TestRecordSet::DuplicateKeyKeepsTheBuffer()
{
    album_->AddChapter("One");
    ChapterSet->AddNew();
    ChapterSet->Set(u"Name", QString("ONE"));
    try {
        ChapterSet->Update();
        QFAIL("two chapters of one name");
    } catch (const DatabaseError& error) {
        QCOMPARE(error.GetNumber(), 3022);
    }
    ChapterSet->Set(u"Name", QString("Two"));
    ChapterSet->Update();
    QCOMPARE(album_->Rows("SELECT Name FROM Chapter"), QStringList({"One", "Two"}));
}

QTEST_GUILESS_MAIN(TestRecordSet)
#include "test_record_set.moc"
