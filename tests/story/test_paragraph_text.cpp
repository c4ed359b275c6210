// SPDX-License-Identifier: MIT
#include "core/Parameters.h"
#include "platform/data/DatabaseError.h"
#include "story/FilterValues.h"
#include "story/ParagraphMarkers.h"
#include "story/ParagraphText.h"
#include "story/PastedText.h"
#include "story/PictureFilter.h"
#include "support/AlbumTest.h"
#include "support/Rows.h"

#include <set>

using namespace GeneralModule;

namespace {

void NameEverything()
{
    for (int group = 0; group < 4; ++group)
        SetCaractLabel(group, QString("G%1").arg(group));
    for (const int column : {0, 1, 2, 3, 4, 5, 9, 10, 11})
        SetColumnLabel(column, QString("C%1").arg(column));
}

} // namespace

// What a paragraph holds: its text with markers in both forms, and its filter.
class TestParagraphText : public AlbumTest
{
    Q_OBJECT

private slots:
    void AllThirteenMarkers()
    {
        NameEverything();
        const std::vector<TextMarker> markers = ReadTextMarkers();
        QString stored = "Begin <[Picture Legend]>";
        for (int i = 0; i < 12; ++i)
            stored += QString("<[%1]>").arg(i);
        const QString display =
            "Begin <<Picture Legend>><<C0 (G0)>><<C1 (G0)>><<C2 (G0)>><<C3 (G1)>><<C4 (G1)>>"
            "<<C5 (G1)>><<C3 (G2)>><<C4 (G2)>><<C5 (G2)>><<C9 (G3)>><<C10 (G3)>><<C11 (G3)>>";
        // What is no marker stays: strays, one that is cut off, another letter case.
        const std::pair<QString, QString> rows[] = {
            {display, stored},
            {"a << b <<C0 (G0)>> <<no such>>", "a << b <[0]> <<no such>>"},
            {"<<<C0 (G0)>>>", "<<[0]>>"},
            {"<<C0 (G0)", "<<C0 (G0)"},
            {"<<c0 (g0)>>", "<<c0 (g0)>>"},
            {"<[12]> <[x]> <[ 3]> <[", "<[12]> <[x]> <[ 3]> <["}};
        for (const auto& [typed, kept] : rows) {
            const InRow row(typed);
            QCOMPARE(ToStoredMarkers(typed, markers), kept);
            QCOMPARE(ToDisplayMarkers(kept, markers), typed);
        }
        // One that is typed as it is stored is one, and a label's new name is shown.
        QCOMPARE(ToStoredMarkers("<[7]>", markers), "<[7]>");
        SetColumnLabel(4, "Renamed");
        QCOMPARE(ToDisplayMarkers("<[7]>", ReadTextMarkers()), "<<Renamed (G2)>>");
    }

    // marker_fuzz tries labels of all kinds.
    void LabelsThatNameNoMarker()
    {
        NameEverything();
        SetCaractLabel(2, "G1");
        std::set<QString> titles;
        for (const TextMarker& marker : ReadTextMarkers())
            titles.insert(marker.title);
        QCOMPARE(titles.size(), 13U); // of two columns with one label each can be chosen
        SetColumnLabel(0, "a>>b");
        QCOMPARE(ReadTextMarkers()[1].display, "<[0]>"); // the label would end it too early
    }

    // Markers of a text are filled with what a picture says; marker_fuzz tries strange texts.
    void FillsMarkers()
    {
        album_->AddImageRow("/it's.jpg", {{"Legend", "The <[0]> sea"}, {"Car11", "Blue"}});
        album_->Execute("UPDATE Image SET Car5=NULL");
        const QString text = "<[Picture Legend]>: (<[5]>) <[11]> <[12]>";
        QCOMPARE(FillPictureMarkers(text, "/it's.jpg"), "The <[0]> sea: () Blue <[12]>");
        QCOMPARE(FillPictureMarkers(text, "/unknown.jpg"), ": ()  <[12]>");
    }

    void PastedMarkup()
    {
        QCOMPARE(CleanPastedText("<P>&egrave;&eacute;&ecirc;&agrave;&acirc;&ucirc;&icirc;&ocirc;"
                                 "&ugrave;&ccedil;</P><p>&amp;<BR>&Eacute;"),
                 QString("èéêàâûîôùç<p>&amp;<BR>&Eacute;"));
        // One kind after the other: what a tag hid is found, what an entity leaves is not.
        QCOMPARE(CleanPastedText("&eac<P>ute;<</P>P>"), "é<P>");
    }

    void TypingCleansAndKeepsCaretAndUndo()
    {
        ParagraphText box;
        const QString text = QString::fromUtf8("Eh\u00a0! \n tab\there \U0001F600 end");
        box.SetText(text);
        QCOMPARE(box.GetText(), text); // loses no character
        box.SetText("before after");
        QTextCursor caret = box.textCursor();
        caret.setPosition(7);
        box.setTextCursor(caret);
        box.insertPlainText("<P>&eacute;t&eacute;</P>\n<P>x</P>");
        QTest::keyClick(&box, Qt::Key_Shift);
        QCOMPARE(box.GetText(), "before <P>&eacute;t&eacute;</P>\n<P>x</P>after");
        QTest::keyClick(&box, 'q');
        QCOMPARE(box.GetText(), "before été\nxqafter");
        QCOMPARE(box.textCursor().position(), 13);
        // Back through the typing, the cleaning and the paste.
        for (int i = 0; i < 6 && box.GetText() != "before after"; ++i)
            QTest::keySequence(&box, QKeySequence::Undo);
        QCOMPARE(box.GetText(), "before after");
    }

    // Without a place to break a line at, or with nothing but markup.
    void AMegabyteCanBeEdited()
    {
        const QString endless(1'000'000, u'x');
        ParagraphText box;
        box.show();
        QElapsedTimer timer;
        timer.start();
        box.SetText("short");
        box.Insert(endless);
        QTest::keyClick(&box, 'q');
        QCOMPARE(box.GetText(), endless + "qshort");
        box.SetText(QString("a <P>").repeated(200'000));
        QTest::keyClick(&box, 'q');
        QCOMPARE(box.GetText(), 'q' + QString("a ").repeated(200'000));
        for (int i = 0; i < 2; ++i) // the typing, the cleaning
            QTest::keySequence(&box, QKeySequence::Undo);
        QCOMPARE(box.GetText(), QString("a <P>").repeated(200'000));
        QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
    }

    // A filter, what is clicked one after the other, and what comes of it.
    void Toggle()
    {
        const QStringList rows[] = {
            {"*", "a", "a"},         {"a;b;c", "b", "a;c"},   {"a", "a", "*"},
            {"Anna;b", "anna", "b"}, {"a;b", "!", "!;a;b"},   {"!;a;b", "!", "a;b"},
            {"!;a", "a", "*"},       {"*", "! a b", "!;a;b"}, {"*", "! !", "*"},
            {"!;a;b", "*", "*"},     {"a;!;b", "b", "a"},     {"a;!;b", "c", "a;!;b;c"},
            {"a;;b", "c", "a;c"},    {"a;b;a", "a", "b"}};
        for (const QStringList& row : rows) {
            const InRow name(row.join(", "));
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
        // As it is, as it is stored, and in words.
        const QStringList rows[] = {
            {"", "*", "*"},     {"!", "*", "*"},           {"a;!", "a", "a"},
            {"!;;a", "*", "*"}, {"a;;b", "a;;b", "a"},     {"a;b", "a;b", "a, b"},
            {"*", "*", "*"},    {"!;!;a", "!;a", "not a"}, {"a;!;b", "a;!;b", "a, not b"}};
        for (const QStringList& row : rows) {
            const InRow name(row.join(", "));
            QCOMPARE(StorableFilter(row[0]), row[1]);
            QCOMPARE(DescribeFilter(row[0]), row[2]);
            QCOMPARE(Restricts(row[0]), row[2] != "*");
        }
    }

    void Choices()
    {
        for (const char* value : {"zoe", "Anna", "(both)", "", "!", "*", "a;b", "bob"})
            album_->Execute(QString("INSERT INTO Car4 VALUES ('%1')").arg(value));
        QStringList texts;
        for (const FilterChoice& choice : FilterChoices(7, "!;ANNA;gone;(x);gone"))
            texts += choice.isKnown ? choice.text : choice.token + " is unknown";
        // Special markers, then the others by name, then what only the filter holds.
        QVERIFY(texts.removeOne("-")); // where it stands is the locale's matter
        QCOMPARE(texts, QStringList({"* (Reset)", "!", "(both)", "Anna", "bob", "zoe",
                                     "gone is unknown", "(x) is unknown"}));
        const HeldTokens held("!;ANNA;gone");
        QVERIFY(held.Contain("Anna") && !held.Contain("Ann") && !HeldTokens("*").Contain("*"));
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
        QCOMPARE(FilterChoices(0, filter).size(), FilterChoices(0, "*").size() + 1000);
        QString told;
        PictureList pictures;
        QCOMPARE(ErrorOf([&] { BuildPictureList(query, pictures, 100, [](int) {}); }, &told), 3360);
        QVERIFY(told.startsWith("The filter is too long") && told.size() < 400);
        QVERIFY2(timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
    }

    // As a person may have written it; what the windows write, a fuzz program tries.
    void ReadsWhatIsWrittenByHand()
    {
        for (const char* file : {"1", "3", "4"})
            album_->AddImageRow(file);
        PictureList pictures;
        const auto listed = [&](const QString& selection, const QString& filter = anyValue) {
            PictureQuery query{.fileSelection = selection};
            query.values[0] = filter;
            BuildPictureList(query, pictures, 100, [](int) {});
            return pictures.GetFiles().join(u' ');
        };
        QCOMPARE(listed("1; 4"), "1 4");
        QCOMPARE(listed("*[1;4]*"), "1 4"); // no pattern ends in brackets
        QCOMPARE(listed("1; 4", "Sea"), "");
        QCOMPARE(SwapCarGroups("[Car3]='a' OR [Car5]='[Car8]' OR [Car7]='b'"),
                 "[Car6]='a' OR [Car8]='[Car5]' OR [Car4]='b'");
        QVERIFY_THROWS_EXCEPTION(DatabaseError, listed("", "O'Neil"));
    }
};

QTEST_MAIN(TestParagraphText)
#include "test_paragraph_text.moc"
