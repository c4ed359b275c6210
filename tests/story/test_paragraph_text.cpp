// SPDX-License-Identifier: MIT
// Markers in both forms, and what is pasted.
#include "core/Parameters.h"
#include "story/ParagraphMarkers.h"
#include "story/ParagraphText.h"
#include "story/PastedText.h"
#include "support/AlbumFixture.h"

#include <QtTest>

#include <set>

namespace {

void NameEverything()
{
    for (int group = 0; group < 4; ++group)
        GeneralModule::SetCaractLabel(group, QStringLiteral("G%1").arg(group));
    for (const int column : {0, 1, 2, 3, 4, 5, 9, 10, 11})
        GeneralModule::SetColumnLabel(column, QStringLiteral("C%1").arg(column));
}

} // namespace

class TestParagraphText : public QObject
{
    Q_OBJECT

private slots:
    void AllThirteenMarkers()
    {
        AlbumFixture album;
        NameEverything();
        const std::vector<TextMarker> markers = ReadTextMarkers();
        QString stored = "Begin ";
        QString display = "Begin ";
        const QStringList shown{"Picture Legend", "C0 (G0)",  "C1 (G0)", "C2 (G0)", "C3 (G1)",
                                "C4 (G1)",        "C5 (G1)",  "C3 (G2)", "C4 (G2)", "C5 (G2)",
                                "C9 (G3)",        "C10 (G3)", "C11 (G3)"};
        for (int i = 0; i < 13; ++i) {
            stored += i == 0 ? "<[Picture Legend]>" : QStringLiteral("<[%1]>").arg(i - 1);
            display += "<<" + shown[i] + ">>";
        }
        QCOMPARE(ToDisplayMarkers(stored + stored, markers), display + display);
        QCOMPARE(ToStoredMarkers(display + display, markers), stored + stored);
    }

    void WhatIsNoMarkerStays_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::newRow("stray, then a marker") << "a << b <<C0 (G0)>> c"
                                              << "a << b <[0]> c";
        QTest::newRow("stray with an end, then a marker") << "<<no such>> <<Picture Legend>>"
                                                          << "<<no such>> <[Picture Legend]>";
        QTest::newRow("marker behind <") << "<<<C0 (G0)>>>"
                                         << "<<[0]>>";
        QTest::newRow("stray end") << ">> <<C3 (G2)>>"
                                   << ">> <[6]>";
        QTest::newRow("cut off") << "<<C0 (G0)"
                                 << "<<C0 (G0)";
        QTest::newRow("letter case counts") << "<<c0 (g0)>>"
                                            << "<<c0 (g0)>>";
        QTest::newRow("other brackets") << "<[12]> <[x]> <[ 3]> <["
                                        << "<[12]> <[x]> <[ 3]> <[";
    }

    void WhatIsNoMarkerStays()
    {
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        AlbumFixture album;
        NameEverything();
        const std::vector<TextMarker> markers = ReadTextMarkers();
        QCOMPARE(ToStoredMarkers(typed, markers), stored);
        QCOMPARE(ToDisplayMarkers(stored, markers), typed);
    }

    // A stored marker that the user types is one, and is shown in words the next time.
    void TypedInStoredForm()
    {
        AlbumFixture album;
        NameEverything();
        const std::vector<TextMarker> markers = ReadTextMarkers();
        QCOMPARE(ToStoredMarkers("<[4]>", markers), QString("<[4]>"));
        QCOMPARE(ToDisplayMarkers("<[4]>", markers), QString("<<C4 (G1)>>"));
    }

    void LabelsOfAllKinds_data()
    {
        QTest::addColumn<QStringList>("columns");
        QTest::addColumn<QStringList>("groups");
        const QStringList names{"a", "b", "c", "d", "e", "f", "g", "h", "i"};
        const QStringList groups{"p", "q", "r", "s"};
        QTest::newRow("none") << QStringList() << QStringList();
        QTest::newRow("no groups") << names << QStringList();
        QTest::newRow("all the same") << QStringList(9, "x") << QStringList(4, "y");
        QTest::newRow("twins told apart by nothing") << names << QStringList{"p", "q", "q", "s"};
        QTest::newRow("brackets and signs")
            << QStringList{"<", ">", "<<", ">>", "a>>b", ")>>", "<a", "(", ";'"} << groups;
        QTest::newRow("one begins another")
            << QStringList{"a", "a (p)", "a (p)>", "<a", "a<", "a ", " a", "A", "a\nb"} << groups;
    }

    void LabelsOfAllKinds()
    {
        QFETCH(QStringList, columns);
        QFETCH(QStringList, groups);
        AlbumFixture album;
        const QList<int> labelled{0, 1, 2, 3, 4, 5, 9, 10, 11};
        for (int i = 0; i < columns.size(); ++i)
            GeneralModule::SetColumnLabel(labelled[i], columns[i]);
        for (int i = 0; i < groups.size(); ++i)
            GeneralModule::SetCaractLabel(i, groups[i]);
        const std::vector<TextMarker> markers = ReadTextMarkers();
        std::set<QString> displays;
        std::set<QString> titles;
        for (const TextMarker& marker : markers) {
            displays.insert(marker.display);
            titles.insert(marker.title);
            QCOMPARE(ToStoredMarkers(marker.display, markers), marker.stored);
        }
        QCOMPARE(displays.size(), markers.size());
        QCOMPARE(titles.size(), markers.size());
        for (const char* between : {"", "<", ">", " (p)>>", "]>", "<["}) {
            QString stored;
            for (const TextMarker& marker : markers)
                stored += marker.stored + between;
            QCOMPARE(ToStoredMarkers(ToDisplayMarkers(stored, markers), markers), stored);
        }
    }

    void ARenamedLabelLeavesWhatIsStored()
    {
        AlbumFixture album;
        NameEverything();
        QCOMPARE(ToStoredMarkers("<<C4 (G2)>>", ReadTextMarkers()), QString("<[7]>"));
        GeneralModule::SetColumnLabel(4, "Renamed");
        QCOMPARE(ToDisplayMarkers("<[7]>", ReadTextMarkers()), QString("<<Renamed (G2)>>"));
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

    void TheBoxLosesNoCharacter()
    {
        ParagraphText box;
        const QString text = QString::fromUtf8("Eh\u00a0! \u2028 tab\there \U0001F600 end")
                                 .replace(QChar(0x2028), '\n');
        box.SetText(text);
        QCOMPARE(box.GetText(), text);
    }
};

QTEST_MAIN(TestParagraphText)
#include "test_paragraph_text.moc"
