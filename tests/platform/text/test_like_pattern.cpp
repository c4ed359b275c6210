// SPDX-License-Identifier: MIT
#include "platform/text/LikePattern.h"
#include "platform/text/TextFold.h"

#include <QElapsedTimer>
#include <QtTest>

class TestLikePattern : public QObject
{
    Q_OBJECT

private slots:
    void Matches_data();
    void Matches();
    void RefusesBrokenLists();
    void TellsCaseWhereTheProgramComparesItself();
    void EscapedTextMatchesOnlyItself();
    void TakesNoLongerThanPatternTimesText();
    void FoldsAllLetters();
};

void TestLikePattern::Matches_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("fits");
    QTest::newRow("letter case does not count") << "*.JPG"
                                                << "/a/Sea.jpg" << true;
    QTest::newRow("nor for accented letters") << "*É*"
                                              << "/a/été.jpg" << true;
    QTest::newRow("accents count") << "*e*"
                                   << "/a/ÉTÉ" << false;
    QTest::newRow("an empty pattern fits nothing else") << ""
                                                        << "a" << false;
    QTest::newRow("a run may be empty") << "a*b"
                                        << "ab" << true;
    QTest::newRow("a run reaches over separators") << "/a*.*"
                                                   << "/a/b/c.jpg" << true;
    QTest::newRow("the point must be there") << "/a/*.*"
                                             << "/a/readme" << false;
    QTest::newRow("head and tail must not overlap") << "aba*aba"
                                                    << "ababa" << false;
    QTest::newRow("middle parts in their order") << "*sea*boat*"
                                                 << "boat at sea" << false;
    QTest::newRow("later place of a middle part") << "*ab*abc"
                                                  << "ab abx abc" << true;
    QTest::newRow("one character, not one byte") << "caf?"
                                                 << "café" << true;
    QTest::newRow("one character beyond the basic plane") << "?.jpg"
                                                          << "\U0001F305.jpg" << true;
    QTest::newRow("digit") << "IMG_##"
                           << "IMG_07" << true;
    QTest::newRow("no digit") << "IMG_##"
                              << "IMG_0x" << false;
    QTest::newRow("list with a range") << "[a-c,x]1"
                                       << "B1" << true;
    QTest::newRow("negated list") << "[!a-c]1"
                                  << "b1" << false;
    QTest::newRow("exclamation mark alone is itself") << "[!]"
                                                      << "!" << true;
    QTest::newRow("empty list stands for nothing") << "a[]b"
                                                   << "ab" << true;
    QTest::newRow("listed wildcard is itself") << "what[?]"
                                               << "whats" << false;
    QTest::newRow("closing bracket outside a list") << "a]"
                                                    << "a]" << true;
    QTest::newRow("apostrophe as wildcard") << "Jane?s trip"
                                            << "Jane's trip" << true;
}

void TestLikePattern::Matches()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QFETCH(bool, fits);
    const LikePattern like(pattern.toStdString(), LikePattern::Case::Insensitive);
    QVERIFY(like.IsValid());
    QCOMPARE(like.Matches(text.toStdString()), fits);
}

void TestLikePattern::RefusesBrokenLists()
{
    for (const char* pattern : {"[ab", "a[", "[z-a]"}) {
        const LikePattern like(pattern, LikePattern::Case::Insensitive);
        QVERIFY2(!like.IsValid(), pattern);
        QVERIFY(!like.Matches(pattern));
    }
}

void TestLikePattern::TellsCaseWhereTheProgramComparesItself()
{
    QVERIFY(IsLike("Abc", "[A-Z]*"));
    QVERIFY(!IsLike("abc", "[A-Z]*"));
    QVERIFY(!IsLike("Éa", "[A-Z]*"));
    QVERIFY(IsLike("1998 Summer", "#*"));
    QVERIFY(IsLike(",x", "[A-Z,a-z]*"));
    QVERIFY(!IsLike("", "[A-Z,a-z]*"));
}

void TestLikePattern::EscapedTextMatchesOnlyItself()
{
    const QString folder = "/pictures/[2001] #1 * what?/";
    const QByteArray pattern = EscapedForLike(folder).toUtf8();
    const LikePattern like(pattern.toStdString(), LikePattern::Case::Insensitive);
    QVERIFY(like.Matches(folder.toStdString()));
    QVERIFY(!like.Matches("/pictures/2 11 x whats/"));
}

// A pattern of runs against a text that almost fits: trying every split would take for ever.
void TestLikePattern::TakesNoLongerThanPatternTimesText()
{
    std::string pattern;
    for (int i = 0; i < 40; ++i)
        pattern += "*a";
    const LikePattern like(pattern + "*b", LikePattern::Case::Insensitive);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!like.Matches(std::string(20000, 'a')));
    QVERIFY(timer.elapsed() < 5000);
}

void TestLikePattern::FoldsAllLetters()
{
    QCOMPARE(CompareFolded("Été", "éTÉ"), 0);
    QVERIFY(CompareFolded("ete", "été") != 0);
    QVERIFY(CompareFolded("a", "ab") < 0);
    QVERIFY(CompareFolded("b", "A") > 0);
    QVERIFY(CompareFolded("\xC3", "\xE9") != 0); // cut and stray bytes
}

QTEST_GUILESS_MAIN(TestLikePattern)
#include "test_like_pattern.moc"
