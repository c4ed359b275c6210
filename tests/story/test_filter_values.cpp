// SPDX-License-Identifier: MIT
// A paragraph's filter as a person changes it value by value.
#include "core/Album.h"
#include "story/FilterValues.h"
#include "story/PictureFilter.h"
#include "support/AlbumFixture.h"

#include <QtTest>

class TestFilterValues : public QObject
{
    Q_OBJECT

private slots:
    void Toggle_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("clicked"); // one after the other, separated by ";"
        QTest::addColumn<QString>("result");
        QTest::newRow("first value") << "*"
                                     << "a"
                                     << "a";
        QTest::newRow("second value") << "a"
                                      << "b"
                                      << "a;b";
        QTest::newRow("take one away") << "a;b;c"
                                       << "b"
                                       << "a;c";
        QTest::newRow("take the last away") << "a"
                                            << "a"
                                            << "*";
        QTest::newRow("another letter case") << "Anna;b"
                                             << "anna"
                                             << "b";
        QTest::newRow("turn round") << "a;b"
                                    << "!"
                                    << "!;a;b";
        QTest::newRow("turn back") << "!;a;b"
                                   << "!"
                                   << "a;b";
        QTest::newRow("take the last away from a negation") << "!;a"
                                                            << "a"
                                                            << "*";
        QTest::newRow("! first, then values") << "*"
                                              << "!;a;b"
                                              << "!;a;b";
        QTest::newRow("! and back") << "*"
                                    << "!;!"
                                    << "*";
        QTest::newRow("reset") << "!;a;b"
                               << "*"
                               << "*";
        QTest::newRow("by hand, two groups") << "a;!;b"
                                             << "c"
                                             << "a;!;b;c";
        QTest::newRow("by hand, last value of a group") << "a;!;b"
                                                        << "b"
                                                        << "a";
        QTest::newRow("by hand, an end in the middle") << "a;;b"
                                                       << "c"
                                                       << "a;c";
        QTest::newRow("by hand, twice the same") << "a;b;a"
                                                 << "a"
                                                 << "b";
        QTest::newRow("signs inside") << "(a)"
                                      << "[b]*"
                                      << "(a);[b]*";
        QTest::newRow("part of another value") << "(a)"
                                               << "a"
                                               << "(a);a";
    }

    void Toggle()
    {
        QFETCH(QString, filter);
        QFETCH(QString, clicked);
        QFETCH(QString, result);
        for (const QString& token : clicked.split(u';'))
            filter = ToggleToken(filter, token);
        QCOMPARE(filter, result);
        QCOMPARE(StorableFilter(filter), filter);
    }

    void Storable_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("description");
        QTest::newRow("any") << "*"
                             << "*"
                             << "*";
        QTest::newRow("nothing") << ""
                                 << "*"
                                 << "*";
        QTest::newRow("lone !") << "!"
                                << "*"
                                << "*";
        QTest::newRow("! at the end") << "a;!"
                                      << "a"
                                      << "a";
        QTest::newRow("! twice") << "!;!;a"
                                 << "!;a"
                                 << "not a";
        QTest::newRow("! before the end of the list") << "!;;a"
                                                      << "*"
                                                      << "*";
        QTest::newRow("values") << "a;b"
                                << "a;b"
                                << "a, b";
        QTest::newRow("negated") << "!;a;b"
                                 << "!;a;b"
                                 << "not a, b";
        QTest::newRow("two groups") << "a;!;b"
                                    << "a;!;b"
                                    << "a, not b";
        QTest::newRow("left as it is") << "a;;b"
                                       << "a;;b"
                                       << "a";
    }

    // What is stored always gives a filter that the engine takes.
    void Storable()
    {
        QFETCH(QString, filter);
        QFETCH(QString, stored);
        QFETCH(QString, description);
        QCOMPARE(StorableFilter(filter), stored);
        QCOMPARE(DescribeFilter(filter), description);
        QCOMPARE(Restricts(filter), description != "*");
        AlbumFixture album;
        album.AddParagraph(album.AddChapter("One"), "", {{"Car4", stored}});
        GeneralModule::ParagraphSet->MoveFirst();
        const QString built = BuildPictureFilter(*GeneralModule::ParagraphSet);
        QCOMPARE(built.isEmpty(), description == "*");
        GeneralModule::ImageSet->FindFirst(built);
        QVERIFY(GeneralModule::ImageSet->NoMatch());
    }

    void Choices()
    {
        AlbumFixture album;
        for (const char* value : {"zoe", "Anna", "(both)", "", "!", "*", "a;b", "Élise", "bob"})
            album.Execute(QStringLiteral("INSERT INTO Car4 VALUES ('%1')").arg(value));
        QStringList texts;
        QStringList unknown;
        for (const FilterChoice& choice : FilterChoices(7, "!;ANNA;gone;(x);gone")) {
            texts += choice.text;
            if (!choice.isKnown)
                unknown += choice.token;
        }
        QCOMPARE(texts.first(2), QStringList({"* (Reset)", "!"}));
        // Special markers, then the others by name, then what only the filter holds.
        const QSet<QString> markers{"(both)", "-", "Élise"};
        QCOMPARE(QSet<QString>(texts.begin() + 2, texts.begin() + 5), markers);
        QCOMPARE(texts.sliced(5), QStringList({"Anna", "bob", "zoe", "gone", "(x)"}));
        QCOMPARE(unknown, QStringList({"gone", "(x)"}));
        QVERIFY(HoldsToken("!;ANNA;gone", "Anna"));
        QVERIFY(!HoldsToken("!;ANNA;gone", "Ann"));
        QVERIFY(HoldsToken("!;ANNA;gone", "!"));
        QVERIFY(!HoldsToken("*", "*"));
    }
};

QTEST_GUILESS_MAIN(TestFilterValues)
#include "test_filter_values.moc"
