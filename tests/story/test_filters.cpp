// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "platform/data/DatabaseError.h"
#include "story/FilterValues.h"
#include "story/PictureFilter.h"
#include "support/AlbumTest.h"

using namespace GeneralModule;

// A paragraph's filter: as a person changes it value by value, as it is written, what it finds.
class TestFilters : public AlbumTest
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

    // What the editor would not store, the viewer reads as the editor would store it: that its
    // pictures are the same is for picture_list_fuzz to see.
    void Storable()
    {
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
            QCOMPARE(StorableFilter(row[0]), row[1]);
            QCOMPARE(DescribeFilter(row[0]), row[2]);
            QCOMPARE(Restricts(row[0]), row[2] != "*");
        }
    }

    void Choices()
    {
        for (const char* value : {"zoe", "Anna", "(both)", "", "!", "*", "a;b", "Élise", "bob"})
            album_->Execute(QString("INSERT INTO Car4 VALUES ('%1')").arg(value));
        QStringList texts;
        QStringList unknown;
        for (const FilterChoice& choice : FilterChoices(7, "!;ANNA;gone;(x);gone")) {
            texts += choice.text;
            if (!choice.isKnown)
                unknown += choice.token;
        }
        QCOMPARE(texts.first(2), QStringList({"* (Reset)", "!"}));
        // Special markers, then the others by name, then what only the filter holds.
        const QSet<QString> markers{"(both)", "-"};
        QCOMPARE(QSet<QString>(texts.begin() + 2, texts.begin() + 4), markers);
        texts = texts.sliced(4);
        QVERIFY(texts.removeOne("Élise")); // where it stands is the locale's matter
        QCOMPARE(texts, QStringList({"Anna", "bob", "zoe", "gone", "(x)"}));
        QCOMPARE(unknown, QStringList({"gone", "(x)"}));
        const HeldTokens held("!;ANNA;gone");
        QVERIFY(held.Contain("Anna") && !held.Contain("Ann"));
        QVERIFY(!HeldTokens("*").Contain("*"));
    }

    // As long as damage or malice makes them.
    void EndlessFiltersTakeNoTime()
    {
        QStringList tokens;
        for (int i = 0; i < 300'000; ++i)
            tokens += QString("value %1").arg(i);
        const QString filter = tokens.join(u';');
        PictureQuery query;
        query.values[0] = filter;
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(FilterTokens(filter), tokens);
        QCOMPARE(FilterChoices(0, filter).size(), FilterChoices(0, "*").size() + 1000);
        QString told;
        PictureList pictures;
        const int error =
            ErrorOf([&] { BuildPictureList(query, pictures, 100, [](int) {}); }, &told);
        QCOMPARE(error, 3360);
        QVERIFY2(told.startsWith("The filter is too long") && told.size() < 400, qPrintable(told));
        QVERIFY2(timer.elapsed() < 15000, qPrintable(QString::number(timer.elapsed())));
    }

    // As a person may have written it; what the windows write, a fuzz program tries.
    void ReadsWhatIsWrittenByHand()
    {
        for (const char* file : {"1", "3", "4"})
            album_->AddImageRow(file);
        QCOMPARE(Listed("1; 4"), "1 4");
        QCOMPARE(Listed("*[1;4]*"), "1 4"); // no pattern ends in brackets
        QCOMPARE(Listed("1; 4", "Sea"), "");
        QVERIFY_THROWS_EXCEPTION(DatabaseError, Listed("*", "O'Neil"));
    }

private:
    QString Listed(const QString& fileSelection, const QString& filter = anyValue)
    {
        PictureQuery query{.fileSelection = fileSelection};
        query.values[0] = filter;
        PictureList pictures;
        BuildPictureList(query, pictures, 100, [](int) {});
        return pictures.GetFiles().join(u' ');
    }
};

QTEST_GUILESS_MAIN(TestFilters)
#include "test_filters.moc"
