// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "platform/files/FilePatterns.h"
#include "story/FilterValues.h"
#include "story/PictureFilter.h"
#include "support/AlbumTest.h"

using namespace GeneralModule;
using Fields = QMap<QString, QString>;

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

    // What the editor would not store, the viewer reads as the editor would store it.
    void Storable()
    {
        const qint32 chapter = album_->AddChapter("One");
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
            QStringList built;
            for (const QString& filter : {row[0], row[1]}) {
                FindById(*ParagraphSet, album_->AddParagraph(chapter, "", {{"Car4", filter}}));
                built += BuildPictureFilter(*ParagraphSet);
            }
            QCOMPARE(built[0], built[1]);
            QCOMPARE(built[1].isEmpty(), !restricts);
            ImageSet->FindFirst(built[0]);
            QVERIFY(ImageSet->NoMatch());
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
        MakeParagraph({{"Car0", filter}});
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(FilterTokens(filter), tokens);
        QCOMPARE(FilterChoices(0, filter).size(), FilterChoices(0, "*").size() + 1000);
        QString told;
        PictureList pictures;
        const int error =
            ErrorOf([&] { BuildPictureList(*ParagraphSet, pictures, 100, [](int) {}); }, &told);
        QCOMPARE(error, 3360);
        QVERIFY2(told.startsWith("The filter is too long") && told.size() < 400, qPrintable(told));
        QVERIFY2(timer.elapsed() < 15000, qPrintable(QString::number(timer.elapsed())));
    }

    // Of a folder whose name is no pattern, beside one that it would stand for if it were.
    void SelectionFindsWhatTheFileListShows()
    {
        const QString folder = "/Jane's [2024] #1/";
        const QStringList names{"a.jpg", "B.JPG",  "c;d.png", "#1.png",  "11.png",  "[x].png",
                                "x.png", "no dot", "été.Gif", "ÉTÉ.GIF", "a]b.png", "d.png"};
        for (const QString& name : names) {
            album_->AddImageRow(folder + name);
            album_->AddImageRow("/Jane's 2 11/" + name);
        }
        for (const char* typed :
             {"*.*", "*", "*.jpg", "*.JPG; *.gif", "#*", "[x]*", "*]*", "c;d.png", "*;*", "?.png",
              "été.*", "", ";", "a.jpg;*.*", "*dot", "'"}) {
            QStringList shown;
            for (const QString& name : names) {
                if (FilePatterns(typed).Match(name))
                    shown += folder + name;
            }
            MakeParagraph({{"FileSelection", PatternOfSelection(folder + typed)}});
            PictureList pictures;
            BuildPictureList(*ParagraphSet, pictures, 100, [](int) {});
            QCOMPARE(pictures.GetFiles(), shown);
        }
    }

    void ListsPictures()
    {
        album_->AddImageRow("1", {{"Car0", "Sea"}, {"Car3", "Anna"}, {"Car5", "Lake"}});
        album_->AddImageRow("2", {{"Car0", "Sea"}, {"Car3", "Bert"}});
        album_->AddImageRow("3", {{"Car0", "lake"}, {"Car6", "anna"}, {"Car5", "Lake"}});
        album_->AddImageRow("4", {{"Car0", "Town"}});
        album_->AddImageRow("5");
        struct Row
        {
            Fields fields;
            QStringList linked; // to the paragraph
            int most;
            const char* listed;
        };
        const Row rows[] = {{{}, {}, 100, "1 2 3 4 5"},
                            {{}, {}, 3, "1 2 3"},
                            {{{"Car3", "Anna"}}, {"5", "3"}, 100, "5 3 1"},
                            {{{"Car3", "Nobody"}}, {"elsewhere"}, 100, "elsewhere"},
                            {{}, {"5", "4"}, 3, "5 4 1"},
                            {{{"Car0", "!;Sea;Lake"}}, {}, 100, "4 5"},
                            {{{"Car0", "Sea;Town;!;Town"}}, {}, 100, "1 2"},
                            {{{"Car0", "!;Town"}, {"Car3", "Bert;Anna"}}, {}, 100, "1 2 3"},
                            // All twins of a group change places together.
                            {{{"Car3", "Anna"}, {"Car8", "Lake"}}, {}, 100, "3"},
                            {{{"Car0", "Sea"}, {"Car6", "Anna"}}, {}, 100, "1"},
                            // Patterns one by one, unless the ";" is in brackets.
                            {{{"FileSelection", "1; 4"}, {"Car0", "Sea"}}, {}, 100, "1"},
                            {{{"FileSelection", "*[1;4]*"}}, {}, 100, "1 4"}};
        for (const Row& row : rows) {
            album_->Execute("DELETE FROM LinkedImages");
            const qint32 paragraph = MakeParagraph(row.fields);
            for (const QString& file : row.linked)
                album_->Link(paragraph, file);
            album_->Link(paragraph + 1, "4");
            PictureList pictures;
            int last = -1;
            BuildPictureList(*ParagraphSet, pictures, row.most, [&](int count) { last = count; });
            QCOMPARE(pictures.GetFiles().join(u' '), row.listed);
            QCOMPARE(last, pictures.Count());
        }
        MakeParagraph({{"Car0", "O'Neil"}});
        PictureList pictures;
        QVERIFY_THROWS_EXCEPTION(DatabaseError,
                                 BuildPictureList(*ParagraphSet, pictures, 10, [](int) {}));
    }

private:
    // The paragraph on which the set stands afterwards.
    qint32 MakeParagraph(const Fields& fields)
    {
        if (ChapterSet->IsEmpty())
            album_->AddChapter("One");
        const qint32 paragraph = album_->AddParagraph(1, "text", fields);
        FindById(*ParagraphSet, paragraph);
        return paragraph;
    }
};

QTEST_GUILESS_MAIN(TestFilters)
#include "test_filters.moc"
