// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

namespace {

struct Message
{
    QString source;
    QString translation;
    bool isUnfinished;
};

QString ReadText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

std::vector<Message> ReadMessages(const QString& path)
{
    // Counted texts have a form for each number; the last is as good as any.
    static const QRegularExpression expression(
        R"(<source>(.*?)</source>.*?<translation([^>]*)>(?:\s*<numerusform>.*?>)?([^<>]*)</)"
        R"((?:numerusform>\s*</)?translation>)",
        QRegularExpression::DotMatchesEverythingOption);
    const QString text = ReadText(path).replace("&apos;", "'");
    std::vector<Message> messages;
    for (auto match = expression.globalMatch(text); match.hasNext();) {
        const auto message = match.next();
        messages.push_back(
            {message.captured(1), message.captured(3), message.captured(2).contains("type=")});
    }
    return messages;
}

QStringList Captures(const QString& text, const char* pattern)
{
    QStringList found;
    const QRegularExpression expression(QString::fromLatin1(pattern));
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found += match.next().captured(1);
    return found;
}

// What the code puts together with other texts must stay: %1, %2, blanks at the ends, the colon or
// apostrophe before what follows, the bar and patterns of a file dialog.
QStringList Fixtures(const QString& text)
{
    QStringList found = Captures(text, R"((%\d|^\s|\s$|\s'$|\|.*))");
    found.sort();
    return found;
}

} // namespace

// The French translation against the texts that the sources hold today.
class TestTranslation : public QObject
{
    Q_OBJECT

private slots:
    void IsWholeAndFitting()
    {
        const QTemporaryDir folder;
        const QString copy = folder.filePath("lumenark_fr.ts");
        QVERIFY(QFile::copy(TRANSLATION, copy));
        QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
        QProcess lupdate;
        lupdate.start(LUPDATE, {"-no-obsolete", "-locations", "none", SOURCES, "-ts", copy});
        QVERIFY(lupdate.waitForFinished(120000));
        QCOMPARE(lupdate.exitCode(), 0);

        const std::vector<Message> messages = ReadMessages(copy);
        QVERIFY(messages.size() > 300);
        QStringList faults;
        for (const Message& message : messages) {
            if (message.isUnfinished || message.translation.isEmpty() ||
                Fixtures(message.source) != Fixtures(message.translation))
                faults += message.source;
        }
        QCOMPARE(faults.join("\n"), "");
        // No text has gone from the sources and stayed here.
        QCOMPARE(ReadMessages(TRANSLATION).size(), messages.size());

        QTranslator translator;
        QVERIFY(translator.load(COMPILED_TRANSLATION));
        QCOMPARE(translator.translate("frmOpenChapter", "Read Chapter"), "Lire le chapitre");
    }

    void ManualsHoldTheSameChapters()
    {
        const QDir folder(QCoreApplication::applicationDirPath());
        const QString english = ReadText(folder.filePath("lumenark.hlp"));
        const QString french = ReadText(folder.filePath("lumenark_fr.hlp"));
        const char* const anchor = "<a name=\"(\\w+)\">";
        QVERIFY(Captures(english, anchor).size() > 10);
        QCOMPARE(Captures(french, anchor), Captures(english, anchor));
        QCOMPARE(Captures(english, anchor).removeDuplicates(), 0);
        for (const QString& link : Captures(english + french, "<a href=\"#(\\w+)\">"))
            QVERIFY2(Captures(english, anchor).contains(link), qPrintable(link));
        const QStringList pictures = Captures(english + french, "<img src=\"([^\"]+)\"");
        QVERIFY(pictures.size() > 20);
        for (const QString& picture : pictures)
            QVERIFY2(folder.exists(picture), qPrintable(picture));
    }
};

QTEST_GUILESS_MAIN(TestTranslation)
#include "test_translation.moc"
