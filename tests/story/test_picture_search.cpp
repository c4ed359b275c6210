// SPDX-License-Identifier: MIT
#include "catalogue/MovedPictures.h"
#include "catalogue/PictureLoading.h"
#include "catalogue/ValueCounts.h"
#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/LocalCopy.h"
#include "platform/data/Database.h"
#include "platform/data/DatabaseError.h"
#include "platform/shell/IdleWork.h"
#include "story/FilterSentence.h"
#include "story/PictureFilter.h"
#include "story/PictureSearch.h"
#include "support/AlbumFixture.h"
#include "support/Rows.h"
#include "support/TestFiles.h"

#include <QFileInfo>

using namespace std::chrono_literals;
using namespace GeneralModule;

namespace {

// Works in the shortest slices.
template<typename Work>
int CountSlices(Work& work)
{
    int slices = 1;
    while (work.Work(0ms))
        ++slices;
    return slices;
}

} // namespace

class TestPictureSearch : public QObject
{
    Q_OBJECT

private slots:
    void FindsByEachTerm()
    {
        AlbumFixture album;
        album.AddPicture("lake.png", {{"Legend", "Anna swims, 100%"}, {"Car3", "Anna"}});
        album.AddPicture("Town.png", {{"Legend", "Bob's [shop]"}, {"Car6", "Bob"}});
        album.AddPicture("none.png");
        album.AddImageRow("/gone/Lake/x.png", {{"Car3", "Bob"}, {"Car0", "anna"}});
        const QString folder = QFileInfo(album.GetAlbum()).path();
        PictureQuery bob;
        bob.values[3] = "Bob";
        const std::pair<SearchTerms, QString> rows[] = {
            {{}, "1 2 3 4"},
            {{.query = bob}, "2 4"},
            {{.words = "anna"}, "1 4"},
            {{.words = " ANNA  lake "}, "1 4"},
            {{.words = "%"}, "1"},
            {{.words = "'s [shop"}, "2"},
            {{.words = "town"}, "2"},
            {{.words = "anna bob"}, "4"},
            {{.folder = folder}, "1 2 3"},
            {{.folder = "/gone"}, "4"},
            {{.folder = "/gon"}, ""},
            {{.isNotIndexed = true}, "3"},
            {{.isMissing = true}, "4"},
            {{.query = bob, .words = "shop", .folder = folder}, "2"}};
        for (const auto& [terms, expected] : rows) {
            const InRow row(BuildSearchFilter(terms));
            PictureSearch search(terms);
            CountSlices(search);
            QStringList found;
            for (const qint32 picture : search.GetFound())
                found += QString::number(picture);
            QCOMPARE(found.join(u' '), expected);
        }
    }

    // The pictures of an album that travels with them are those beside it, wherever that is.
    void RelativePathsCountFromTheAlbum()
    {
        AlbumFixture album;
        for (const char* name : {"trip/a.png", "trip/in/b.png", "c.png"}) {
            WriteFile(album.PathOf(name));
            album.AddImageRow(name);
        }
        album.AddImageRow("C:\\Photos\\d.png");
        album.AddImageRow("trip\\e.png"); // written by another system, and missing
        QCOMPARE(FindPictureFile("trip/a.png"), album.PathOf("trip/a.png"));
        QCOMPARE(FindPictureFile("trip\\e.png"), album.PathOf("trip/e.png"));
        QCOMPARE(FindPictureFile("C:\\Photos\\d.png"), "C:\\Photos\\d.png");
        const auto found = [](const SearchTerms& terms) {
            PictureSearch search(terms);
            CountSlices(search);
            QStringList all;
            for (const qint32 picture : search.GetFound())
                all += QString::number(picture);
            return all.join(u' ');
        };
        QCOMPARE(found({.isMissing = true}), "4 5");
        QCOMPARE(found({.folder = album.PathOf("trip")}), "1 2");
        QCOMPARE(found({.folder = album.PathOf("")}), "1 2 3 5");
        QCOMPARE(found({.folder = QFileInfo(album.PathOf("")).path()}), "1 2 3 5");
        for (const auto& [selection, expected] :
             {std::pair("trip/*.*", 2), std::pair("c*", 1), std::pair("*.png", 4)}) {
            PictureList pictures;
            BuildPictureList({.fileSelection = PatternOfSelection(album.PathOf(selection))},
                             pictures, 100, [](int) {});
            QVERIFY2(pictures.Count() == expected, qPrintable(pictures.GetFiles().join(" ")));
        }
        // What is there is not added a second time, and stays relative.
        LoadPictures(album.PathOf("trip"), {"a.png", "new.png"}, [](int) { return true; });
        QCOMPARE(album.Joined("SELECT File FROM Image WHERE rowid>5"),
                 album.PathOf("trip/new.png"));
        WriteFile(album.PathOf("moved/a.png"));
        QCOMPARE(RepointPictures("trip/", album.PathOf("moved"), [](int) { return true; }).updated,
                 1);
        QCOMPARE(album.Joined("SELECT File FROM Image WHERE rowid=1"), "moved/a.png");
    }

    // Rows far apart, and a change between two slices.
    void GoesOnWhereItWas()
    {
        AlbumFixture album;
        album.Execute("INSERT INTO Image(rowid, File, Car1) VALUES (-5, 'a', 'x'), (1, 'b', 'y'), "
                      "(9000, 'c', 'x'), (2147483647, 'd', 'X')");
        PictureQuery x;
        x.values[1] = "x";
        PictureSearch search({.query = x});
        QVERIFY(search.Work(0ms));
        QCOMPARE(search.Count(), 1);
        album.Execute("UPDATE Image SET Car1='x' WHERE File='b'");
        QVERIFY(CountSlices(search) >= 3);
        QCOMPARE(search.GetFound(), std::vector<qint32>({-5, 1, 9000, 2147483647}));

        const auto other = Database::Open(album.GetAlbum());
        other->Execute("BEGIN EXCLUSIVE");
        QElapsedTimer time;
        time.start();
        QCOMPARE(ErrorOf([] { PictureSearch({}); }), DatabaseError::InUse);
        QCOMPARE(ErrorOf([&] { search.Work(10s); }), DatabaseError::InUse);
        QVERIFY2(time.elapsed() < 3000, "it waits for the other program");
        {
            const GeneralModule::NoWaiting outer;
            QCOMPARE(ErrorOf([] { PictureSearch({}); }), DatabaseError::InUse);
            QCOMPARE(ErrorOf([] { GeneralModule::AlbumDatabase->Execute("DELETE FROM Image"); }),
                     DatabaseError::InUse);
        }
        QVERIFY2(time.elapsed() < 3000, "the search lets others wait again");
    }

    // A filter accepts a value in either of two twin columns.
    void CountsEachValue()
    {
        AlbumFixture album;
        album.Execute("INSERT INTO Image(File, Car3, Car6, Car0) VALUES "
                      "('a', 'Anna', '-', 'Été'), ('b', 'Bob', 'anna', 'été'), "
                      "('c', 'Anna', 'Anna', NULL)");
        for (const int column : {3, 6}) {
            ValueCounts counts(column);
            QVERIFY(CountSlices(counts) > 1);
            QCOMPARE(counts.CountOf("ANNA"), 3);
            QCOMPARE(counts.CountOf("Bob"), 1);
            QCOMPARE(counts.CountOf("-"), 1);
        }
        ValueCounts counts(0);
        CountSlices(counts);
        QCOMPARE(counts.CountOf("ÉTÉ"), 2);
    }

    void SaysTheFilterInWords()
    {
        ColumnTexts titles;
        titles[0] = "Year";
        titles[3] = "<b>";
        titles[7] = titles[9] = "&";
        const QStringList filters{"*",       "a",           "a;b",     "a;b;c",     "a;b;c;d",
                                  "!;a",     "!;a;b",       "!;a;b;c", "!;a;b;c;d", "a;!;b",
                                  "%1;%2;-", "a;b;c;d;e;f", "!;-"};
        const QStringList sentences{"Any picture",
                                    "Year is a",
                                    "Year is a or b",
                                    "Year is a, b or c",
                                    "Year is a, b or one of 2 others",
                                    "Year is not a",
                                    "Year is neither a nor b",
                                    "Year is none of a, b and c",
                                    "Year is none of a, b and 2 others",
                                    "Year is a, and Year is not b",
                                    "Year is %1, %2 or not given",
                                    "Year is a, b or one of 4 others",
                                    "Year is given"};
        for (qsizetype i = 0; i < filters.size(); ++i) {
            PictureQuery query;
            query.values[0] = filters[i];
            QString sentence = FilterSentence({.query = query}, titles);
            QCOMPARE(sentence.remove("<a href=\"0\">").remove("</a>"), sentences[i]);
        }
        PictureQuery query{.fileSelection = "*sea&*"};
        for (const int column : {3, 7, 9})
            query.values[std::size_t(column)] = "<i>";
        QCOMPARE(WithCount(FilterSentence({.query = query}, titles), 1),
                 "<a href=\"3\">&lt;b&gt; is &lt;i&gt;</a>, "
                 "<a href=\"7\">&amp; is &lt;i&gt;</a>, "
                 "<a href=\"9\">&amp; is &lt;i&gt;</a>, and the file is *sea&amp;*: "
                 "1 pictures");
        QCOMPARE(
            FilterSentence({.words = " a  <b> ", .isNotIndexed = true, .isMissing = true}, titles),
            "the words are a &lt;b&gt;, not indexed, and the file is missing");
        QCOMPARE(WithCount("x", 0), "x: no picture fits");
        QCOMPARE(WithCount("x", std::nullopt), "x: ...");
    }

    void WorksWhileNothingElseIsToDo()
    {
        IdleWork work;
        QStringList done;
        work.Begin([&](auto) {
            done += "a";
            work.Begin([&](auto) -> bool {
                done += "b";
                throw DatabaseError(done.size() < 4 ? DatabaseError::InUse : DatabaseError::NoAlbum,
                                    {});
            });
            return true;
        });
        QTRY_VERIFY(!work.IsWorking());
        QCOMPARE(done.join(u' '), "a b b b");
        int slices = 0;
        work.Begin([&](auto) { return ++slices < 3; });
        QTRY_VERIFY(!work.IsWorking());
        QCOMPARE(slices, 3);
        work.Begin([&](auto) { return ++slices < 100; }, 1ms);
        work.Stop();
        QTest::qWait(20);
        QCOMPARE(slices, 3);
    }
};

QTEST_GUILESS_MAIN(TestPictureSearch)
#include "test_picture_search.moc"
