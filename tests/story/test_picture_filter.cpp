// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "story/PictureFilter.h"
#include "support/AlbumFixture.h"

#include <QtTest>

#include <memory>

using namespace GeneralModule;
using Fields = QMap<QString, QString>;

class TestPictureFilter : public QObject
{
    Q_OBJECT

private slots:
    void init() { album_ = std::make_unique<AlbumFixture>(); }
    void cleanup() { album_.reset(); }
    void CutsTokens();
    void WritesFilters_data();
    void WritesFilters();
    void SwapsOnlyTheTwins();
    void ListsPictures_data();
    void ListsPictures();
    void CountsOnItsWay();
    void BadValueReachesTheUser();
    void WorksForARowThatIsBeingAdded();

private:
    // The paragraph on which the set stands afterwards.
    void MakeParagraph(const Fields& fields)
    {
        const qint32 chapter = album_->AddChapter("One");
        FindById(*ParagraphSet, album_->AddParagraph(chapter, "text", fields));
    }

    std::unique_ptr<AlbumFixture> album_;
};

void TestPictureFilter::CutsTokens()
{
    QString values = "a;;b";
    QCOMPARE(NextToken(values), "a");
    QCOMPARE(NextToken(values), "");
    QCOMPARE(values, "b");
    QCOMPARE(NextToken(values), "b");
    QCOMPARE(values, "");
}

void TestPictureFilter::WritesFilters_data()
{
    QTest::addColumn<Fields>("fields");
    QTest::addColumn<QString>("filter");
    QTest::newRow("no restriction") << Fields() << "";
    QTest::newRow("one value") << Fields{{"Car0", "a"}} << "([Car0]='a')";
    QTest::newRow("values and a negation") << Fields{{"Car0", "a;b"}, {"Car9", "!;c"}}
                                           << "([Car0]='a' OR [Car0]='b') AND NOT([Car9]='c')";
    QTest::newRow("negation first") << Fields{{"Car0", "!;a;b"}, {"Car1", "c"}}
                                    << "NOT([Car0]='a' OR [Car0]='b') AND ([Car1]='c')";
    QTest::newRow("negation in the middle")
        << Fields{{"Car0", "a;!;b"}} << "([Car0]='a') AND NOT([Car0]='b')";
    QTest::newRow("an empty token ends the list") << Fields{{"Car0", "a;;b"}} << "([Car0]='a')";
    QTest::newRow("an empty list does not restrict") << Fields{{"Car0", ""}} << "";
    QTest::newRow("twins in either order")
        << Fields{{"Car4", "x"}} << "([Car4]='x') OR ([Car7]='x')";
    QTest::newRow("all twins and others")
        << Fields{{"Car0", "s"}, {"Car3", "x"}, {"Car8", "y"}, {"Car10", "z"}}
        << "([Car0]='s') AND ([Car3]='x') AND ([Car8]='y') AND ([Car10]='z') OR "
           "([Car0]='s') AND ([Car6]='x') AND ([Car5]='y') AND ([Car10]='z')";
    QTest::newRow("file pattern alone")
        << Fields{{"FileSelection", "*sea*"}} << "([File] LIKE '*sea*')";
    QTest::newRow("file pattern and values") << Fields{{"FileSelection", "/it's/*"}, {"Car0", "a"}}
                                             << "([File] LIKE '/it''s/*') AND (([Car0]='a'))";
}

void TestPictureFilter::WritesFilters()
{
    QFETCH(Fields, fields);
    MakeParagraph(fields);
    QTEST(BuildPictureFilter(*ParagraphSet), "filter");
}

void TestPictureFilter::SwapsOnlyTheTwins()
{
    QCOMPARE(SwapCarGroups("[Car3]='a' [Car7]='[Carx' [Car10]='Car4'"),
             "[Car6]='a' [Car4]='[Carx' [Car10]='Car4'");
}

void TestPictureFilter::ListsPictures_data()
{
    QTest::addColumn<Fields>("fields");
    QTest::addColumn<QStringList>("linked");
    QTest::addColumn<int>("most");
    QTest::addColumn<QString>("listed");
    QTest::newRow("everything") << Fields() << QStringList() << 100 << "1 2 3 4 5";
    QTest::newRow("at most") << Fields() << QStringList() << 3 << "1 2 3";
    QTest::newRow("twins") << Fields{{"Car3", "Anna"}} << QStringList() << 100 << "1 3";
    QTest::newRow("a linked one that matches is listed once")
        << Fields{{"Car3", "Anna"}} << QStringList({"5", "3"}) << 100 << "5 3 1";
    QTest::newRow("linked ones outside the album too")
        << Fields{{"Car3", "Nobody"}} << QStringList({"elsewhere"}) << 100 << "elsewhere";
    QTest::newRow("linked ones count") << Fields() << QStringList({"5", "4"}) << 3 << "5 4 1";
    QTest::newRow("none of") << Fields{{"Car0", "!;Sea;Lake"}} << QStringList() << 100 << "4 5";
}

void TestPictureFilter::ListsPictures()
{
    QFETCH(Fields, fields);
    QFETCH(QStringList, linked);
    QFETCH(int, most);
    album_->AddImageRow("1", {{"Car0", "Sea"}, {"Car3", "Anna"}});
    album_->AddImageRow("2", {{"Car0", "Sea"}, {"Car3", "Bert"}});
    album_->AddImageRow("3", {{"Car0", "lake"}, {"Car6", "anna"}});
    album_->AddImageRow("4", {{"Car0", "Town"}});
    album_->AddImageRow("5");
    MakeParagraph(fields);
    for (const QString& file : linked)
        album_->Link(ParagraphSet->Number(u"Id"), file);
    album_->Link(ParagraphSet->Number(u"Id") + 1, "4");
    PictureList pictures;
    int last = -1;
    BuildPictureList(*ParagraphSet, pictures, most, [&last](int count) { last = count; });
    QTEST(pictures.GetFiles().join(u' '), "listed");
    QCOMPARE(last, pictures.Count());
}

void TestPictureFilter::CountsOnItsWay()
{
    AlbumDatabase->Execute("BEGIN");
    for (int i = 0; i < 1200; ++i)
        album_->AddImageRow(QString::number(i));
    AlbumDatabase->Execute("COMMIT");
    MakeParagraph({});
    PictureList pictures;
    QList<int> counts;
    BuildPictureList(*ParagraphSet, pictures, 30000, [&counts](int count) { counts += count; });
    QCOMPARE(counts, QList<int>({500, 1000, 1200}));
}

void TestPictureFilter::BadValueReachesTheUser()
{
    album_->AddImageRow("1");
    MakeParagraph({{"Car0", "O'Neil"}});
    PictureList pictures;
    QVERIFY_THROWS_EXCEPTION(DatabaseError,
                             BuildPictureList(*ParagraphSet, pictures, 10, [](int) {}));
}

void TestPictureFilter::WorksForARowThatIsBeingAdded()
{
    album_->AddImageRow("1", {{"Car0", "x"}});
    album_->AddImageRow("2");
    ParagraphSet->AddNew();
    for (int column = 0; column < 12; ++column)
        ParagraphSet->Set(QStringLiteral("Car%1").arg(column), QStringLiteral("-"));
    ParagraphSet->Set(u"FileSelection", QString());
    PictureList pictures;
    BuildPictureList(*ParagraphSet, pictures, 10, [](int) {});
    ParagraphSet->CancelUpdate();
    QCOMPARE(pictures.GetFiles(), QStringList("2"));
    QCOMPARE(album_->Rows("SELECT count(*) FROM Paragraph"), QStringList("0"));
}

QTEST_GUILESS_MAIN(TestPictureFilter)
#include "test_picture_filter.moc"
