// SPDX-License-Identifier: MIT
#include "core/AlbumSets.h"
#include "platform/data/WriteBatch.h"
#include "support/AlbumTest.h"

using namespace GeneralModule;

// What record_set_fuzz, which reads and changes rows through sets, walks and batches, leaves out.
class TestRecordSet : public AlbumTest
{
    Q_OBJECT

private slots:
    void IdentifiersNeverComeBack()
    {
        // Also one that another program wrote counts.
        album_->Execute("INSERT INTO Chapter (Id,Name) VALUES (900,'Far')");
        ChapterSet->AddNew();
        QCOMPARE(ChapterSet->Number(u"Id"), 901);
        ChapterSet->CancelUpdate();
        // What no number can follow stops nothing.
        for (const auto& [last, next] :
             {std::pair("9223372036854775807", 901), std::pair("2147483647", 2147483646)}) {
            album_->Execute(QString("INSERT INTO Chapter (Id,Name) VALUES (%1,%1)").arg(last));
            ChapterSet->AddNew();
            QCOMPARE(ChapterSet->Number(u"Id"), next);
            ChapterSet->CancelUpdate();
        }
    }

    void RefusesWrongUse()
    {
        AddFour();
        ImageSet->MoveFirst();
        ImageSet->Edit();
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Set(u"Colour", QString("x")));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Set(u"Legend", 5));
        ImageSet->Set(u"Legend", QString(65 * 1024 * 1024, u'x'));
        QCOMPARE(ErrorOf([] { ImageSet->Update(); }), 3360);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, RecordSet(AlbumDatabase, "Nothing"));
        album_->AddChapter("One");
        for (const char* value : {"3000000000", "'soon'"}) {
            album_->Execute(QString("UPDATE Chapter SET FirstParagraph=") + value);
            ChapterSet->MoveFirst();
            QVERIFY_THROWS_EXCEPTION(DatabaseError, ChapterSet->Number(u"FirstParagraph"));
        }
        // A name that is there already: what was typed is not lost.
        ChapterSet->AddNew();
        ChapterSet->Set(u"Name", QString("ONE"));
        QCOMPARE(ErrorOf([] { ChapterSet->Update(); }), 3022);
        ChapterSet->Set(u"Name", QString("Two"));
        ChapterSet->Update();
        QCOMPARE(album_->Joined("SELECT Name FROM Chapter"), "One; Two");
    }

    // A value that is neither text nor number does not keep the rest from being read.
    void GoesOnAfterAWrongValue()
    {
        AddFour();
        album_->Execute("UPDATE Image SET Legend=x'00' WHERE File='/a'");
        for (const char* file : {"/a", "/c", "/a", "/b"}) {
            const QString filter = QString("[File]='%1'").arg(file);
            const int error = ErrorOf([&filter] {
                ImageSet->FindFirst(filter);
                ImageSet->Text(u"Legend");
            });
            QCOMPARE(error, file == QString("/a") ? 3464 : 0);
        }
        QCOMPARE(ImageSet->Text(u"Legend"), "on /b");
        {
            const RecordSet::Walk walk(*ImageSet);
            ImageSet->FindFirst("[File]='/c'");
        }
        album_->Execute("DELETE FROM Image"); // fails while a lock is held
    }

    void BatchCommitsOnItsWay()
    {
        {
            WriteBatch batch(AlbumDatabase);
            for (int i = 0; i < 1500; ++i) {
                AddParam(i);
                batch.RowDone();
            }
            WriteBatch inner(AlbumDatabase); // belongs to the outer one
            inner.Finish();
            const int seenOutside = Params();
            QVERIFY(seenOutside >= 1000 && seenOutside < 1500);
        }
        QCOMPARE(Params(), 1500);
    }

private:
    void AddFour()
    {
        for (const char* file : {"/c", "/a", "/b", "/d"})
            album_->AddImageRow(file, {{"Car0", "x"}, {"Legend", QString("on ") + file}});
    }

    static void AddParam(int number)
    {
        ParamsSet->AddNew();
        ParamsSet->Set(u"Param", QString("p%1").arg(number));
        ParamsSet->Set(u"Value", QString(200, u'v'));
        ParamsSet->Update();
    }

    int Params() const { return album_->Rows("SELECT count(*) FROM Params").first().toInt(); }
};

QTEST_GUILESS_MAIN(TestRecordSet)
#include "test_record_set.moc"
