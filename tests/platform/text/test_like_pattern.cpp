// SPDX-License-Identifier: MIT
#include "platform/text/LikePattern.h"

#include <QElapsedTimer>
#include <QtTest>

class TestLikePattern : public QObject
{
    Q_OBJECT

private slots:
    // pattern_fuzz compares many more with a plain matcher.
    void Matches()
    {
        const std::tuple<const char*, const char*, bool> rows[] = {
            {"*.JPG", "/a/Sea.jpg", true}, // letter case does not count,
            {"*É*", "/a/été.jpg", true},   // nor for accented letters,
            {"*e*", "/a/ÉTÉ", false},      // but accents do
            {"/a*.*", "/a/b/c.jpg", true},
            {"aba*aba", "ababa", false},     // head and tail must not overlap
            {"*ab*abc", "ab abx abc", true}, // the later place of a middle part
            {"*aabaaa*", "aabaabaaa", true}, // which begins inside one that did not fit
            {"*abab*c", "abaababc", true},
            {"caf?", "café", true}, // one character, not one byte
            {"*é", "é\xBF", false}, // a stray byte is a character of its own, seen from either end
            {"*?é", "\xA9é", true},
            {"IMG_##", "IMG_0x", false},
            {"[a-c,x]1", "B1", true},
            {"[A-C]1", "b1", true},
            {"[!a-c]1", "b1", false},
            {"[!]", "!", true},
            {"a[]b", "ab", true},  // an empty list stands for nothing
            {"[ab", "[ab", false}, // lists without an end, or whose end comes first
            {"[z-a]", "z", false}};
        for (const auto& [pattern, text, fits] : rows) {
            const LikePattern like(pattern, LikePattern::Case::Insensitive);
            QVERIFY2(like.Matches(text) == fits, pattern);
        }
    }

    // A pattern of runs against a text that almost fits: trying every split would take for ever.
    void TakesNoLongerThanPatternTimesText()
    {
        std::string pattern;
        for (int i = 0; i < 40; ++i)
            pattern += "*a";
        const LikePattern like(pattern + "*b", LikePattern::Case::Insensitive);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!like.Matches(std::string(20000, 'a')));
        const std::string letters(2000, 'a');
        const LikePattern longPart('*' + letters + "b*", LikePattern::Case::Sensitive);
        QVERIFY(!longPart.Matches(std::string(200'000, 'a')));
        QVERIFY(longPart.Matches(letters + letters + "bc"));
        const LikePattern runs(std::string(1'000'000, '*') + 'b', LikePattern::Case::Sensitive);
        for (int i = 0; i < 1000; ++i)
            QVERIFY(runs.Matches("ab"));
        QVERIFY(timer.elapsed() < 5000);
    }
};

QTEST_GUILESS_MAIN(TestLikePattern)
#include "test_like_pattern.moc"
