// SPDX-License-Identifier: MIT
// A paragraph's filter as a person changes it value by value.
#include "core/Album.h"
#include "story/FilterValues.h"
#include "story/PictureFilter.h"
#include "support/AlbumFixture.h"

#include <QtTest>

using namespace GeneralModule;

class TestFilterValues : public QObject
{
    Q_OBJECT

private slots:
    // A filter, what is clicked one after the other, and what comes of it.
    void Toggle()
    {
        const QStringList rows[] = {{"*", "a", "a"},           {"a;b;c", "b", "a;c"},
                                    {"a", "a", "*"},           {"Anna;b", "anna", "b"},
                                    {"a;b", "!", "!;a;b"},     {"!;a;b", "!", "a;b"},
                                    {"!;a", "a", "*"},         {"*", "! a b", "!;a;b"},
                                    {"*", "! !", "*"},         {"!;a;b", "*", "*"},
                                    {"a;!;b", "c", "a;!;b;c"}, // groups that were written by hand
                                    {"a;!;b", "b", "a"},       {"a;;b", "c", "a;c"},
                                    {"a;b;a", "a", "b"},       {"(a)", "[b]* a", "(a);[b]*;a"}};
        for (const QStringList& row : rows) {
            QString filter = row[0];
            for (const QString& token : row[1].split(u' '))
                filter = ToggleToken(filter, token);
            QCOMPARE(filter, row[2]);
            QCOMPARE(StorableFilter(filter), filter);
        }
    }

    // What is stored always gives a filter that the engine takes.
    void Storable()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        const QStringList rows[] = {// as it is, as it is stored, and in words
                                    {"*", "*", "*"},
                                    {"", "*", "*"},
                                    {"!", "*", "*"},
                                    {"a;!", "a", "a"},
                                    {"!;!;a", "!;a", "not a"},
                                    {"!;;a", "*", "*"},
                                    {"a;b", "a;b", "a, b"},
                                    {"!;a;b", "!;a;b", "not a, b"},
                                    {"a;!;b", "a;!;b", "a, not b"},
                                    {"a;;b", "a;;b", "a"}};
        for (const QStringList& row : rows) {
            const bool restricts = row[2] != "*";
            QCOMPARE(StorableFilter(row[0]), row[1]);
            QCOMPARE(DescribeFilter(row[0]), row[2]);
            QCOMPARE(Restricts(row[0]), restricts);
            FindById(*ParagraphSet, album.AddParagraph(chapter, "", {{"Car4", row[1]}}));
            const QString built = BuildPictureFilter(*ParagraphSet);
            QCOMPARE(built.isEmpty(), !restricts);
            ImageSet->FindFirst(built);
            QVERIFY(ImageSet->NoMatch());
        }
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
