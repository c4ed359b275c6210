// SPDX-License-Identifier: MIT
#include "catalogue/CharacteristicModel.h"
#include "support/AlbumFixture.h"

#include <QtTest>

class TestCharacteristicModel : public QObject
{
    Q_OBJECT

private slots:
    void TwinsShareTables();
    void CleansValues_data();
    void CleansValues();
    void NormalizesTypedValues_data();
    void NormalizesTypedValues();
    void AddsValuesOnce();
};

void TestCharacteristicModel::TwinsShareTables()
{
    QCOMPARE(ValueTableOf(2), "Car2");
    QCOMPARE(ValueTableOf(4), "Car4");
    QCOMPARE(ValueTableOf(7), "Car4");
    QCOMPARE(ValueTableOf(11), "Car11");
    QCOMPARE(TwinColumnOf(3), std::optional(6));
    QCOMPARE(TwinColumnOf(5), std::optional(8));
    for (const int column : {0, 2, 6, 8, 9, 11})
        QVERIFY(!TwinColumnOf(column));
}

void TestCharacteristicModel::CleansValues_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("cleaned");
    QTest::newRow("quote and semicolon") << "O'Neil; Jr"
                                         << "O Neil Jr";
    QTest::newRow("too long") << "abcdefghijklmnopqrs uvwxyz"
                              << "abcdefghijklmnopqrs";
    QTest::newRow("only semicolons") << ";;;"
                                     << "";
    QTest::newRow("blanks count before they are trimmed") << "   abcdefghijklmnopqrstuvw"
                                                          << "abcdefghijklmnopq";
}

void TestCharacteristicModel::CleansValues()
{
    QFETCH(QString, typed);
    QTEST(CleanValue(typed), "cleaned");
}

void TestCharacteristicModel::NormalizesTypedValues_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("normalized");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("letter") << "anna"
                            << "anna";
    QTest::newRow("comma") << ",x"
                           << ",x";
    QTest::newRow("digit") << "7"
                           << "7";
    QTest::newRow("hyphen") << "-x"
                            << "-";
    QTest::newRow("marker") << "*x"
                            << "x";
    QTest::newRow("accented letter is a marker") << "Éa"
                                                 << "a";
    QTest::newRow("one character at a time") << "((x"
                                             << "(x";
}

void TestCharacteristicModel::NormalizesTypedValues()
{
    QFETCH(QString, typed);
    QTEST(NormalizedValue(typed), "normalized");
}

void TestCharacteristicModel::AddsValuesOnce()
{
    const AlbumFixture album;
    QCOMPARE(AddValueToTable(7, "O'Neil"), "O Neil");
    QCOMPARE(AddValueToTable(4, "o neil"), "");
    QCOMPARE(AddValueToTable(4, ""), "");
    QCOMPARE(album.Rows("SELECT Name FROM Car4"), QStringList({"-", "O Neil"}));
}

QTEST_GUILESS_MAIN(TestCharacteristicModel)
#include "test_characteristic_model.moc"
