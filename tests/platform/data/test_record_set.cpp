// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "platform/data/WriteBatch.h"
#include "support/AlbumTest.h"
#include "support/Rows.h"

using namespace GeneralModule;

class TestRecordSet : public AlbumTest
{
    Q_OBJECT

private slots:
    void GoesThroughRowsAndFindsThem()
    {
        AddFour();
        QStringList files;
        for (ImageSet->MoveFirst(); !ImageSet->AtEnd(); ImageSet->MoveNext())
            files += ImageSet->Text(u"File");
        QCOMPARE(files, QStringList({"/c", "/a", "/b", "/d"}));
        QCOMPARE(ImageSet->RecordCount(), 4);
        QVERIFY(ImageSet->AtEnd());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->MoveNext());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Text(u"File"));
        ImageSet->FindNext("[Car0]='x'");
        QVERIFY(ImageSet->NoMatch());
        ImageSet->FindFirst("[File]='/b'");
        ImageSet->FindFirst("[File]='/nowhere'");
        QVERIFY(ImageSet->NoMatch());
        QCOMPARE(ImageSet->Text(u"legend"), "on /b"); // where it was
        ImageSet->FindNext("[Car0]='x'");
        QCOMPARE(ImageSet->Text(u"File"), "/d");
        ImageSet->FindNext("[Car0]='x'");
        QVERIFY(ImageSet->NoMatch());
        QCOMPARE(ImageSet->Text(u"File"), "/d");
        QVERIFY(ChapterSet->IsEmpty());
        ChapterSet->MoveFirst();
        QVERIFY(ChapterSet->AtEnd());
    }

    void ChangesReachOnlyTheirRow()
    {
        AddFour();
        ImageSet->FindFirst("[File]='/a'");
        for (const QString& file : {QString("/new"), QString("/never")}) {
            ImageSet->AddNew();
            ImageSet->Set(u"FILE", file);
            QCOMPARE(ImageSet->Text(u"File"), file);
            QVERIFY(ImageSet->IsNull(u"Car0"));
            if (file == "/new")
                ImageSet->Update();
            else
                ImageSet->CancelUpdate();
            QCOMPARE(ImageSet->Text(u"File"), "/a"); // as before
        }
        ImageSet->Edit();
        ImageSet->Set(u"Legend", QString("changed"));
        QCOMPARE(ImageSet->Text(u"Legend"), "changed");
        QCOMPARE(album_->Joined("SELECT Legend FROM Image WHERE File='/a'"), "on /a");
        ImageSet->FindFirst("[File]='/b'"); // leaving a row drops what was not updated
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Update());
        ImageSet->Edit();
        ImageSet->Set(u"Legend", QString("changed"));
        ImageSet->Update();
        QCOMPARE(ImageSet->Text(u"Legend"), "changed");
        ImageSet->FindFirst("[File]='/c'");
        ImageSet->Delete();
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Text(u"File"));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Edit());
        ImageSet->FindNext("[Car0]='x'");
        QCOMPARE(ImageSet->Text(u"File"), "/a");
        QCOMPARE(album_->Joined("SELECT File,Legend,SourceFile FROM Image ORDER BY rowid"),
                 "/a|on /a|; /b|changed|; /d|on /d|; /new|NULL|");
    }

    void IdentifiersNeverComeBack()
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
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Set(u"Legend", QString("x")));
        ImageSet->MoveFirst();
        ImageSet->Edit();
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Set(u"Colour", QString("x")));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->Set(u"Legend", 5));
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

    void TextsAboveTheLimitAreRefused()
    {
        AddFour();
        ImageSet->MoveFirst();
        ImageSet->Edit();
        ImageSet->Set(u"Legend", QString(65 * 1024 * 1024, u'x'));
        QCOMPARE(ErrorOf([] { ImageSet->Update(); }), 3360);
        QCOMPARE(ImageSet->Text(u"Legend").size(), 65 * 1024 * 1024); // what was typed
        QCOMPARE(album_->Joined("SELECT Legend FROM Image WHERE File='/c'"), "on /c");
        ImageSet->Set(u"Legend", QString("shorter"));
        ImageSet->Update();
        QCOMPARE(album_->Joined("SELECT Legend FROM Image WHERE File='/c'"), "shorter");
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
        album_->Execute("DELETE FROM Image"); // fails while a lock is held
    }

    void SeesWhatOthersWrote()
    {
        AddFour();
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

    void WalkSeesItsOwnChanges_data()
    {
        AddRows<bool, bool>({"walking", "inBatch"}, {{"asking anew for each row", false, false},
                                                     {"walking", true, false},
                                                     {"walking in a batch", true, true}});
    }

    // Every row is edited and every second deleted while the set goes through them; a field that
    // the walk did not know of is asked for in the middle.
    void WalkSeesItsOwnChanges()
    {
        QFETCH(bool, walking);
        QFETCH(bool, inBatch);
        for (int i = 0; i < 40; ++i)
            album_->AddImageRow(QString("/more/%1").arg(i), {{"Car0", "x"}});
        album_->Execute("UPDATE Image SET Legend=NULL");
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
                QVERIFY(ImageSet->IsNull(u"Legend"));
                QCOMPARE(ImageSet->TextOrEmpty(u"Legend"), "");
                QCOMPARE(ErrorOf([] { ImageSet->Text(u"Legend"); }), 94);
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
            QCOMPARE(row, 40);
        }
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image WHERE Car0='y' AND Legend=File"), "20");
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image"), "20");
        album_->Execute("UPDATE Image SET Legend='outside'"); // fails while a lock is held
        ImageSet->MoveFirst();
        QCOMPARE(ImageSet->Text(u"Legend"), "outside");
    }

    void BatchCommitsOnItsWayAndAtItsEnd()
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
        const auto addTwice = [] {
            WriteBatch batch(AlbumDatabase);
            AddParam(2000);
            AddParam(2000);
        };
        QCOMPARE(ErrorOf(addTwice), 3022);
        QCOMPARE(Params(), 1501); // what was done before an error stays
        const auto addAllOrNone = [] {
            WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
            AddParam(2001);
            AddParam(2000);
            batch.Finish();
        };
        QCOMPARE(ErrorOf(addAllOrNone), 3022);
        QCOMPARE(Params(), 1501);
        AddParam(2001); // alone again: it is committed at once
        QCOMPARE(Params(), 1502);
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
