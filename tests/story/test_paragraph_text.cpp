// SPDX-License-Identifier: MIT
// Markers in both forms, and what is pasted.
#include "core/Parameters.h"
#include "story/ParagraphMarkers.h"
#include "story/ParagraphText.h"
#include "story/PastedText.h"
#include "support/AlbumTest.h"

#include <set>

namespace {

void NameEverything()
{
    for (int group = 0; group < 4; ++group)
        GeneralModule::SetCaractLabel(group, QString("G%1").arg(group));
    for (const int column : {0, 1, 2, 3, 4, 5, 9, 10, 11})
        GeneralModule::SetColumnLabel(column, QString("C%1").arg(column));
}

} // namespace

class TestParagraphText : public AlbumTest
{
    Q_OBJECT

private slots:
    void AllThirteenMarkers()
    {
        NameEverything();
        const std::vector<TextMarker> markers = ReadTextMarkers();
        QString stored = "Begin ";
        QString display = "Begin ";
        const QStringList shown{"Picture Legend", "C0 (G0)",  "C1 (G0)", "C2 (G0)", "C3 (G1)",
                                "C4 (G1)",        "C5 (G1)",  "C3 (G2)", "C4 (G2)", "C5 (G2)",
                                "C9 (G3)",        "C10 (G3)", "C11 (G3)"};
        for (int i = 0; i < 13; ++i) {
            stored += i == 0 ? "<[Picture Legend]>" : QString("<[%1]>").arg(i - 1);
            display += "<<" + shown[i] + ">>";
        }
        QCOMPARE(ToDisplayMarkers(stored + stored, markers), display + display);
        QCOMPARE(ToStoredMarkers(display + display, markers), stored + stored);

        // What is no marker stays: strays, one that is cut off, another letter case.
        const std::pair<QString, QString> rows[] = {
            {"a << b <<C0 (G0)>> <<no such>>", "a << b <[0]> <<no such>>"},
            {"<<<C0 (G0)>>>", "<<[0]>>"},
            {">> <<C3 (G2)>>", ">> <[6]>"},
            {"<<C0 (G0)", "<<C0 (G0)"},
            {"<<c0 (g0)>>", "<<c0 (g0)>>"},
            {"<[12]> <[x]> <[ 3]> <[", "<[12]> <[x]> <[ 3]> <["}};
        for (const auto& [typed, kept] : rows) {
            QCOMPARE(ToStoredMarkers(typed, markers), kept);
            QCOMPARE(ToDisplayMarkers(kept, markers), typed);
        }
        // One that is typed as it is stored is one, and a label's new name is shown.
        QCOMPARE(ToStoredMarkers("<[7]>", markers), QString("<[7]>"));
        GeneralModule::SetColumnLabel(4, "Renamed");
        QCOMPARE(ToDisplayMarkers("<[7]>", ReadTextMarkers()), QString("<<Renamed (G2)>>"));
    }

    // marker_fuzz tries labels of all kinds.
    void LabelsThatNameNoMarker()
    {
        NameEverything();
        GeneralModule::SetCaractLabel(2, "G1");
        std::set<QString> titles;
        for (const TextMarker& marker : ReadTextMarkers())
            titles.insert(marker.title);
        QCOMPARE(titles.size(), 13U); // of two columns with one label each can be chosen
        GeneralModule::SetColumnLabel(0, "a>>b");
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
        QCOMPARE(CleanPastedText("&eac<P>ute;<</P>P>"), QString("é<P>"));
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
        QCOMPARE(box.GetText(), QString("before <P>&eacute;t&eacute;</P>\n<P>x</P>after"));
        QTest::keyClick(&box, Qt::Key_Shift);
        QVERIFY(box.GetText().contains("<P>"));
        QTest::keyClick(&box, 'q');
        QCOMPARE(box.GetText(), QString("before été\nxqafter"));
        QCOMPARE(box.textCursor().position(), 13);
        // Back through the typing, the cleaning and the paste.
        for (int i = 0; i < 6 && box.GetText() != "before after"; ++i)
            QTest::keySequence(&box, QKeySequence::Undo);
        QCOMPARE(box.GetText(), QString("before after"));
    }

    // Without a place to break a line at, or with nothing but markup.
    void AMegabyteCanBeEdited()
    {
        const QString endless(1'000'000, u'x');
        ParagraphText box;
        box.show();
        QElapsedTimer timer;
        timer.start();
        box.SetText(endless);
        box.SetText("short");
        QCOMPARE(box.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
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
};

QTEST_MAIN(TestParagraphText)
#include "test_paragraph_text.moc"
