// SPDX-License-Identifier: MIT
#include "viewer/LineLayout.h"

#include <QtTest>

#include <random>

class TestLineLayout : public QObject
{
    Q_OBJECT

private slots:
    void Fits_data();
    void Fits();
    void FillsLinesFromTheTop();
    void StandsAlone();
    void CentresEachLine();
    void NeverOverlapsNorLeavesTheBand();
};

namespace {

QString Write(const UnitRect& rect)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(rect.left)
        .arg(rect.top)
        .arg(rect.width)
        .arg(rect.height);
}

} // namespace

void TestLineLayout::Fits_data()
{
    QTest::addColumn<float>("width");
    QTest::addColumn<float>("height");
    QTest::addColumn<QString>("fitted");
    QTest::newRow("small stays") << 10.0F << 20.0F << "10 20";
    QTest::newRow("too high") << 30.0F << 80.0F << "15 40";
    QTest::newRow("too wide") << 300.0F << 30.0F << "100 10";
    QTest::newRow("too high and then too wide") << 900.0F << 90.0F << "100 10";
    QTest::newRow("exactly") << 100.0F << 40.0F << "100 40";
}

void TestLineLayout::Fits()
{
    QFETCH(float, width);
    QFETCH(float, height);
    const UnitSize fitted = FitPicture({width, height}, 40, 100);
    QTEST(QStringLiteral("%1 %2").arg(fitted.width).arg(fitted.height), "fitted");
}

void TestLineLayout::FillsLinesFromTheTop()
{
    LineLayout layout(2, 80);
    QCOMPARE(Write(*layout.Place({60, 40})), "0 0 60 40");
    QCOMPARE(Write(*layout.Place({50, 20})), "0 60 50 20");   // on the second line's bottom edge
    QCOMPARE(Write(*layout.Place({40, 10})), "60 30 40 10");  // still fits the first, exactly
    QCOMPARE(Write(*layout.Place({100, 80})), "50 40 50 40"); // halved to the line's height
    QVERIFY(!layout.Place({1, 1}));
}

void TestLineLayout::StandsAlone()
{
    LineLayout layout(0, 80);
    QCOMPARE(Write(*layout.Place({50, 160})), "37.5 0 25 80");
    QVERIFY(!layout.Place({1, 1}));
    LineLayout other(0, 80);
    QCOMPARE(Write(*other.Place({20, 10})), "40 35 20 10");
}

void TestLineLayout::CentresEachLine()
{
    LineLayout layout(2, 80);
    std::vector<UnitRect> places{*layout.Place({60, 40}), *layout.Place({20, 30}),
                                 *layout.Place({90, 20}), *layout.Place({10, 8})};
    CentreLines(places);
    const std::vector<UnitRect> once = places;
    CentreLines(places);
    QCOMPARE(Write(places[3]), Write(once[3])); // what is in the middle stays there
    QCOMPARE(Write(places[0]), "5 0 60 40");
    QCOMPARE(Write(places[1]), "65 10 20 30");
    QCOMPARE(Write(places[2]), "5 60 90 20");
    QCOMPARE(Write(places[3]), "85 32 10 8"); // it found room on the first line
}

void TestLineLayout::NeverOverlapsNorLeavesTheBand()
{
    std::mt19937 random(4);
    std::uniform_real_distribution<float> size(0.05F, 160);
    for (int round = 0; round < 500; ++round) {
        const int lines = round % 5;
        LineLayout layout(lines, 70);
        std::vector<UnitRect> places;
        while (const auto place = layout.Place({size(random), size(random)}))
            places.push_back(*place);
        QVERIFY(!places.empty());
        CentreLines(places);
        for (std::size_t i = 0; i < places.size(); ++i) {
            const UnitRect& a = places[i];
            QVERIFY(a.left > -0.01F && a.left + a.width < 100.01F);
            QVERIFY(a.top > -0.01F && a.top + a.height < 70.01F);
            for (std::size_t j = 0; j < i; ++j) {
                const UnitRect& b = places[j];
                const bool apart =
                    a.left + a.width < b.left + 0.01F || b.left + b.width < a.left + 0.01F ||
                    a.top + a.height < b.top + 0.01F || b.top + b.height < a.top + 0.01F;
                QVERIFY(apart);
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestLineLayout)
#include "test_line_layout.moc"
