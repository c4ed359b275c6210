// SPDX-License-Identifier: MIT
#include "core/AlbumSets.h"
#include "platform/data/WriteBatch.h"
#include "support/AlbumTest.h"
#include "support/Rows.h"

using namespace GeneralModule;

// What is left by record_set_fuzz, which reads and changes rows through sets, walks and batches,
// and by filter_fuzz.
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
        QCOMPARE(ChapterSet->Text(u"Name"), "One"); // the set stands where it stood
        QCOMPARE(album_->Joined("SELECT Name FROM Chapter"), "One; Two");
    }

    // A value that is neither text nor number does not keep the rest from being read.
    void GoesOnAfterAWrongValue()
    {
        AddFour();
        album_->Execute("UPDATE Image SET Legend=x'00' WHERE File='/a'");
        for (const char* file : {"/a", "/c", "/a", "/b"}) {
            const InRow row(file);
            ImageSet->FindFirst(QString("[File]='%1'").arg(file));
            QCOMPARE(ErrorOf([] { ImageSet->Text(u"Legend"); }), file == QString("/a") ? 3464 : 0);
        }
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
            for (int i = 0; i < 15000; ++i) {
                AddParam(i);
                batch.RowDone();
            }
            WriteBatch inner(AlbumDatabase); // belongs to the outer one
            inner.Finish();
            const int seenOutside = Params();
            QVERIFY(seenOutside > 0 && seenOutside < 15000);
        }
        QCOMPARE(Params(), 15000);
    }

    // What a filter text means is what it finds.
    void Finds()
    {
        AddPictures();
        const std::pair<const char*, const char*> rows[] = {
            {"[Car0]='ANNA'", "1 2"},       // text without regard to case,
            {"[Car1]='éTÉ'", "1"},          // accented letters too,
            {"[File] = '/a/sea.jpg'", "2"}, // but paths exactly
            {"[File]='/b/O''Neil''s [1].jpg'", "3"},
            {"[Legend]=\"it's\"", "1"},
            {"([File] LIKE '*sea*')", "2"}, // in patterns as well
            {"[File] like '*[[]1].jpg'", "3"},
            {"[Car0]='Bert' OR [Car0]='Anna' AND [Car1]='ete'", "2 3"},
            {"NOT [Car0]='Bert' and not([Car1]='ete')", "1"},
            {" ( [fiLE]\t=\n'/a/Sea.jpg' ) ", "1"},
            {"NOT([Car5]='x') AND [Car0]='Anna'", "2"}, // Null is neither equal nor different
            {"", "1 2 3"}};
        for (const auto& [filter, found] : rows) {
            const InRow row(filter);
            QCOMPARE(FoundBy(filter), found);
        }
    }

    void Refuses()
    {
        AddPictures();
        album_->AddChapter("One");
        ImageSet->FindFirst("[Car0]='Bert'");
        const std::pair<QString, int> rows[] = {
            {"[Car0]='O'Neil'", 3075},
            {"[Car0]='x", 3075},
            {"NOT()", 3075},
            {"([Car0]='x'", 3075},
            {"[Car0]='x' [Car1]='y'", 3075},
            {"1=1; DROP TABLE Image", 3075},
            {"[File] LIKE 5", 3075},
            {"[Colour]='x'", 3070},
            {"[Car0]=5", 3464},
            {"[File] LIKE '[a'", 93},
            // Long is only what runs stand on both sides of.
            {"[File] LIKE '*" + QString(256, u'?') + "*'", 3360}};
        for (const auto& [filter, number] : rows) {
            const InRow row(filter.left(200));
            QString told;
            QCOMPARE(ErrorOf([&] { ImageSet->FindFirst(filter); }, &told), number);
            QVERIFY2(told.contains(filter.left(200)) && told.size() < 300, qPrintable(told));
            // The set is as usable as before, on the row that it stood on.
            QCOMPARE(ImageSet->Text(u"Car0"), "Bert");
        }
        QCOMPARE(FoundBy("[Car0]='Bert'"), "3");
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ChapterSet->FindFirst("[Id]='5'"));
    }

    // In one column and its twin, as a paragraph asks for them.
    void TakesThousandsOfValues()
    {
        AddPictures();
        QString chain = "[Car0]='v'";
        for (const char* value : {"ANNA", "été", "3:Bert", "Bert:", "O''Neil"})
            chain += QString(" OR [Car0]='%1'").arg(value);
        for (int i = 0; i < 3000; ++i)
            chain += QString(" OR [Car0]='v%1'").arg(i);
        const QString twin = QString(chain).replace("[Car0]", "[Car1]");
        QCOMPARE(FoundBy(chain), "1 2");
        QCOMPARE(FoundBy("([Car9]='1') AND (" + chain + ") OR (" + twin + ")"), "1");
        QCOMPARE(FoundBy("NOT(" + chain + ")"), "3");
        QCOMPARE(FoundBy("NOT(" + QString(chain).replace("[Car0]", "[Car5]") + ")"), "2 3"); // Null
        // Paths are compared one by one, to the letter.
        QString paths = "[File]='/a/SEA.jpg'";
        for (int i = 0; i < 890; ++i)
            paths += QString(" OR [File]='%1'").arg(i);
        QCOMPARE(FoundBy(paths), "");
        QCOMPARE(FoundBy(QString("NOT ").repeated(14) + '(' + paths + ')'), "");
    }

    // Those of a depth that may still be found are left to filter_fuzz.
    void LongFiltersAreRefusedNotCrashed()
    {
        for (const QString& filter : {QString("[File] LIKE 'a' AND ").repeated(1000) + "[Car0]='x'",
                                      QString(100000, u'('), QString("NOT ").repeated(100000)})
            QCOMPARE(ErrorOf([&] { ImageSet->FindFirst(filter); }), int(DatabaseError::TooComplex));
    }

private:
    void AddPictures()
    {
        album_->AddImageRow("/a/Sea.jpg",
                            {{"Car0", "Anna"}, {"Car1", "Été"}, {"Legend", "it's"}, {"Car9", "1"}});
        album_->AddImageRow("/a/sea.jpg", {{"Car0", "anna"}, {"Car1", "ete"}, {"Car9", "2"}});
        album_->AddImageRow("/b/O'Neil's [1].jpg",
                            {{"Car0", "Bert"}, {"Car3", "c"}, {"Car9", "3"}});
        album_->Execute("UPDATE Image SET Car5=NULL WHERE Car9='1'");
    }

    static QString FoundBy(const QString& filter)
    {
        QString rows;
        int row = 0;
        for (ImageSet->MoveFirst(); !ImageSet->AtEnd(); ImageSet->MoveNext())
            ImageSet->Text(u"File"); // a walk before must not disturb a find
        for (ImageSet->FindFirst(filter); !ImageSet->NoMatch() && ++row < 10;
             ImageSet->FindNext(filter))
            rows += ImageSet->Text(u"Car9") + ' ';
        return rows.trimmed();
    }

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
