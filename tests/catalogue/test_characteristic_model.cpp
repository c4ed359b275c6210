// SPDX-License-Identifier: MIT
#include "catalogue/CharacteristicModel.h"
#include "support/AlbumFixture.h"

#include <QtTest>

class TestCharacteristicModel : public QObject
{
    Q_OBJECT

private slots:
    void TwinsShareTables()
    {
        QStringList tables;
        QStringList twins;
        for (int column = 0; column < 12; ++column) {
            tables += ValueTableOf(column).mid(3);
            twins += QString::number(TwinColumnOf(column).value_or(0));
        }
        QCOMPARE(tables.join(u' '), "0 1 2 3 4 5 3 4 5 9 10 11");
        QCOMPARE(twins.join(u' '), "0 0 0 6 7 8 0 0 0 0 0 0");
    }

    void CleansValues()
    {
        QCOMPARE(CleanValue("O'Neil; Jr"), "O Neil Jr");
        QCOMPARE(CleanValue("abcdefghijklmnopqrs uvwxyz"), "abcdefghijklmnopqrs");
        QCOMPARE(CleanValue(";;;"), "");
        // Blanks count before they are trimmed.
        QCOMPARE(CleanValue("   abcdefghijklmnopqrstuvw"), "abcdefghijklmnopq");
    }

    void NormalizesTypedValues()
    {
        for (const char* kept : {"", "anna", ",x", "7"})
            QCOMPARE(NormalizedValue(kept), kept);
        QCOMPARE(NormalizedValue("-x"), "-");
        QCOMPARE(NormalizedValue("*x"), "x");
        QCOMPARE(NormalizedValue("Éa"), "a"); // accented letters are markers
        QCOMPARE(NormalizedValue("((x"), "(x");
    }

    void AddsValuesOnce()
    {
        const AlbumFixture album;
        QCOMPARE(AddValueToTable(7, "O'Neil"), "O Neil");
        QCOMPARE(AddValueToTable(4, "o neil"), "");
        QCOMPARE(AddValueToTable(4, ""), "");
        QCOMPARE(album.Rows("SELECT Name FROM Car4"), QStringList({"-", "O Neil"}));
    }
};

QTEST_GUILESS_MAIN(TestCharacteristicModel)
#include "test_characteristic_model.moc"
