// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "support/AlbumFixture.h"

#include <QtTest>

#include <optional>

using namespace GeneralModule;

// Filters against rows: what a filter text means is what it finds.
class TestFilterText : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { album_.reset(); }
    void Finds_data();
    void Finds();
    void Refuses_data();
    void Refuses();
    void LongFiltersAreRefusedNotCrashed();

private:
    static QString FoundBy(const QString& filter);

    std::optional<AlbumFixture> album_;
};

void TestFilterText::initTestCase()
{
    album_.emplace();
    album_->AddImageRow("/a/Sea.jpg", {{"Car0", "Anna"}, {"Car1", "Été"}, {"Legend", "it's"}});
    album_->AddImageRow("/a/sea.jpg", {{"Car0", "anna"}, {"Car1", "ete"}});
    album_->AddImageRow("/b/O'Neil's [1].jpg", {{"Car0", "Bert"}, {"Car3", "c"}});
    album_->Execute("UPDATE Image SET Car5=NULL WHERE File='/a/Sea.jpg'");
    album_->AddChapter("One");
}

QString TestFilterText::FoundBy(const QString& filter)
{
    QString rows;
    int row = 0;
    for (ImageSet->MoveFirst(); !ImageSet->AtEnd(); ImageSet->MoveNext())
        ImageSet->Text(u"File"); // a walk before must not disturb a find
    for (ImageSet->FindFirst(filter); !ImageSet->NoMatch() && ++row < 10;
         ImageSet->FindNext(filter))
        rows += ImageSet->Text(u"File") + ' ';
    return rows.trimmed();
}

void TestFilterText::Finds_data()
{
    const QString first = "/a/Sea.jpg";
    const QString second = "/a/sea.jpg";
    const QString third = "/b/O'Neil's [1].jpg";
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("found");
    QTest::newRow("text without regard to case") << "[Car0]='ANNA'" << first + ' ' + second;
    QTest::newRow("accented letters too") << "[Car1]='éTÉ'" << first;
    QTest::newRow("paths compare exactly") << "[File] = '/a/sea.jpg'" << second;
    QTest::newRow("doubled quotes") << "[File]='/b/O''Neil''s [1].jpg'" << third;
    QTest::newRow("double quotes") << "[Legend]=\"it's\"" << first;
    QTest::newRow("like") << "([File] LIKE '*sea*')" << first + ' ' + second;
    QTest::newRow("like, escaped") << "[File] like '*[[]1].jpg'" << third;
    QTest::newRow("and before or")
        << "[Car0]='Bert' OR [Car0]='Anna' AND [Car1]='ete'" << second + ' ' + third;
    QTest::newRow("not before and") << "NOT [Car0]='Bert' and not([Car1]='ete')" << first;
    QTest::newRow("field names in any case, blanks") << " ( [fiLE]\t=\n'/a/Sea.jpg' ) " << first;
    QTest::newRow("Null is neither equal nor different")
        << "NOT([Car5]='x') AND [Car0]='Anna'" << second;
    QTest::newRow("a list of values")
        << "([Car0]='Anna' OR [Car0]='b') AND NOT([Car3]='c')" << first + ' ' + second;
    QTest::newRow("empty: every row") << "" << first + ' ' + second + ' ' + third;
}

void TestFilterText::Finds()
{
    QFETCH(QString, filter);
    QFETCH(QString, found);
    QCOMPARE(FoundBy(filter), found);
}

void TestFilterText::Refuses_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("number");
    QTest::newRow("quote in a value") << "[Car0]='O'Neil'" << 3075;
    QTest::newRow("no closing quote") << "[Car0]='x" << 3075;
    QTest::newRow("empty group") << "NOT()" << 3075;
    QTest::newRow("no closing parenthesis") << "([Car0]='x'" << 3075;
    QTest::newRow("two comparisons side by side") << "[Car0]='x' [Car1]='y'" << 3075;
    QTest::newRow("SQL is not the language") << "1=1; DROP TABLE Image" << 3075;
    QTest::newRow("like without a text") << "[File] LIKE 5" << 3075;
    QTest::newRow("unknown field") << "[Colour]='x'" << 3070;
    QTest::newRow("text field with a number") << "[Car0]=5" << 3464;
    QTest::newRow("broken pattern") << "[File] LIKE '[a'" << 93;
}

void TestFilterText::Refuses()
{
    QFETCH(QString, filter);
    QFETCH(int, number);
    ImageSet->FindFirst("[Car0]='Bert'");
    try {
        ImageSet->FindFirst(filter);
        QFAIL("was not refused");
    } catch (const DatabaseError& error) {
        QCOMPARE(error.GetNumber(), number);
        QVERIFY2(error.GetDescription().contains(filter), qPrintable(error.GetDescription()));
    }
    // The set is as usable as before, on the row that it stood on.
    QCOMPARE(ImageSet->Text(u"Car0"), "Bert");
    QCOMPARE(FoundBy("[Car0]='Bert'"), "/b/O'Neil's [1].jpg");
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ChapterSet->FindFirst("[Id]='5'"));
}

void TestFilterText::LongFiltersAreRefusedNotCrashed()
{
    QString chain = "[Car0]='v'";
    for (int i = 1; i < 800; ++i)
        chain += QStringLiteral(" OR [Car0]='v%1'").arg(i);
    QCOMPARE(FoundBy(chain), "");
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->FindFirst(chain + " OR " + chain));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->FindFirst(QString(100000, u'(')));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ImageSet->FindFirst(QString("NOT ").repeated(100000)));
}

QTEST_GUILESS_MAIN(TestFilterText)
#include "test_filter_text.moc"
