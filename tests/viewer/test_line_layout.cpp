// SPDX-License-Identifier: MIT
#include "viewer/LineLayout.h"

#include <QtTest>

#include <random>

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

class TestLineLayout : public QObject
{
    Q_OBJECT

private slots:
    void FillsLinesFromTheTop()
    {
        // Small stays, too high, too wide, both.
        const std::tuple<float, float, QString> sizes[] = {
            {10, 20, "10 20"}, {30, 80, "15 40"}, {300, 30, "100 10"}, {900, 90, "100 10"}};
        for (const auto& [width, height, expected] : sizes) {
            const UnitSize fitted = FitPicture({width, height}, 40, 100);
            QCOMPARE(QStringLiteral("%1 %2").arg(fitted.width).arg(fitted.height), expected);
        }
        LineLayout layout(2, 80);
        QCOMPARE(Write(*layout.Place({60, 40})), "0 0 60 40");
        QCOMPARE(Write(*layout.Place({50, 20})), "0 60 50 20");  // on the second line's bottom edge
        QCOMPARE(Write(*layout.Place({40, 10})), "60 30 40 10"); // still fits the first, exactly
        QCOMPARE(Write(*layout.Place({100, 80})), "50 40 50 40"); // halved to the line's height
        QVERIFY(!layout.Place({1, 1}));
        LineLayout alone(0, 80);
        QCOMPARE(Write(*alone.Place({50, 160})), "37.5 0 25 80");
        QVERIFY(!alone.Place({1, 1}));
        QCOMPARE(Write(*LineLayout(0, 80).Place({20, 10})), "40 35 20 10");
    }

    void CentresEachLine()
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

    void NeverOverlapsNorLeavesTheBand()
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
};

QTEST_GUILESS_MAIN(TestLineLayout)
#include "test_line_layout.moc"
