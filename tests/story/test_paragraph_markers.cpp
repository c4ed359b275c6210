// SPDX-License-Identifier: MIT
#include "story/ParagraphMarkers.h"
#include "support/AlbumFixture.h"

#include <QtTest>

class TestParagraphMarkers : public QObject
{
    Q_OBJECT

private slots:
    void Fills_data();
    void Fills();
};

void TestParagraphMarkers::Fills_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("filled");
    QTest::newRow("none") << "Plain text"
                          << "Plain text";
    QTest::newRow("legend") << "Look: <[Picture Legend]>!"
                            << "Look: The <[0]> sea!";
    QTest::newRow("characteristics") << "<[0]> and <[11]>, <[0]>"
                                     << "Anna and Blue, Anna";
    QTest::newRow("Null fills with nothing") << "(<[5]>)"
                                             << "()";
    QTest::newRow("unknown ones stay") << "<[12]> <[x]> <[01]> <[0]>"
                                       << "<[12]> <[x]> <[01]> Anna";
    QTest::newRow("stray opening") << "a <[ b <[0]>"
                                   << "a <[ b Anna";
    QTest::newRow("no closing") << "a <[0"
                                << "a <[0";
}

void TestParagraphMarkers::Fills()
{
    AlbumFixture album;
    album.AddImageRow("/it's.jpg",
                      {{"Legend", "The <[0]> sea"}, {"Car0", "Anna"}, {"Car11", "Blue"}});
    album.Execute("UPDATE Image SET Car5=NULL");
    QFETCH(QString, text);
    QTEST(FillPictureMarkers(text, "/it's.jpg"), "filled");
    QCOMPARE(FillPictureMarkers("<[Picture Legend]>|<[3]>", "/unknown.jpg"), "|");
}

QTEST_GUILESS_MAIN(TestParagraphMarkers)
#include "test_paragraph_markers.moc"
