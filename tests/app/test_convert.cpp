// SPDX-License-Identifier: MIT
#include "ConvertProgram.h"

#include <QtTest>

class TestConvert : public QObject
{
    Q_OBJECT

private slots:
    void RefusesBadUse()
    {
        const QString sound = ProgramFile("Album.tpl");
        const std::tuple<QStringList, QString, int> calls[] = {
            {{"a.alb"}, "--convert takes the old album and the new one\nusage: ", 2},
            {{"a", "b", "--loud"}, "Unknown option", 2},
            {{"/nowhere/a.alb", "b.alb"}, "/nowhere/a.alb: There is no such file.\n", 1},
            {{sound, "b.alb"}, sound + ": It is not an album of the former file format.\n", 1}};
        for (const auto& [arguments, complaint, status] : calls) {
            const ConvertResult result = Convert(arguments);
            QCOMPARE(result.status, status);
            QVERIFY2(result.errors.startsWith("lumenark: " + complaint), qPrintable(result.errors));
            QCOMPARE(result.output, "");
        }
    }
};

QTEST_GUILESS_MAIN(TestConvert)
#include "test_convert.moc"
