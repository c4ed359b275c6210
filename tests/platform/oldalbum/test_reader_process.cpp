// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseError.h"
#include "platform/oldalbum/ReaderProcess.h"
#include "support/Rows.h"

#include <QtTest>

#include <sys/resource.h>

namespace {

// A page's frame with that number, as the shell's printf writes it.
QString PageFrame(int page)
{
    return QString("printf 'P\\004\\000\\000\\000\\%1\\000\\000\\000';")
        .arg(page, 3, 8, QLatin1Char('0'));
}

ReaderProcess Start(const QString& script)
{
    return ReaderProcess({"-c", script}, "/bin/sh");
}

quint32 PageOf(const std::optional<ReaderProcess::Frame>& frame)
{
    return frame ? FrameContents(frame->contents).Number() : 0;
}

} // namespace

// Readers that fail as no sound file makes them fail: scripts of the shell stand in for them.
class TestReaderProcess : public QObject
{
    Q_OBJECT

private slots:
    void TakesFramesInPieces()
    {
        ReaderProcess reader =
            Start("printf 'P\\004\\000'; sleep 0.1; printf '\\000\\000\\007\\000';"
                  "sleep 0.1; printf '\\000\\000';" +
                  PageFrame(8));
        int patience = 20000;
        QCOMPARE(PageOf(reader.Next(patience)), 7U);
        QCOMPARE(PageOf(reader.Next(patience)), 8U);
        QVERIFY(!reader.Next(patience));
        QCOMPARE(reader.GetVolume(), 18);
        QCOMPARE(patience, 20000);
        QCOMPARE(reader.Finish(), 0);
    }

    void EndsAReaderThatFails()
    {
        const QString drips = "printf 'P\\000\\000\\001\\000'; while printf x; do sleep 0.02; done";
        for (const QString& way :
             {u"exec sleep 100"_qs, drips, u"exec yes"_qs, u"kill -SEGV $$"_qs}) {
            const InRow row(way);
            ReaderProcess reader = Start(PageFrame(3) + way);
            int patience = 20000;
            QCOMPARE(PageOf(reader.Next(patience)), 3U);
            const bool hangs = way == "exec sleep 100" || way == drips;
            patience = hangs ? 300 : 20000;
            QVERIFY(!reader.Next(patience));
            QCOMPARE(patience == 0, hangs);
            QVERIFY(!reader.Next(patience));
            QCOMPARE(reader.Finish(), -1);
        }
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ReaderProcess({}, "/nowhere/reader"));
        QCOMPARE(Start("exec yes").Finish(), -1); // after seconds, of which nothing is kept
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        QVERIFY2(usage.ru_maxrss < 200'000, "KiB");
    }
};

QTEST_GUILESS_MAIN(TestReaderProcess)
#include "test_reader_process.moc"
