// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseError.h"
#include "platform/helper/HelperQueue.h"
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

HelperProcess Start(const QString& script)
{
    return HelperProcess("/bin/sh", {"-c", script});
}

quint32 PageOf(const std::optional<HelperProcess::Frame>& frame)
{
    return frame ? FrameContents(frame->contents).Number() : 0;
}

} // namespace

// Readers that fail as no sound file makes them fail: scripts of the shell stand in for them.
class TestHelperProcess : public QObject
{
    Q_OBJECT

private slots:
    void TakesFramesInPieces()
    {
        HelperProcess reader =
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
            HelperProcess reader = Start(PageFrame(3) + way);
            int patience = 20000;
            QCOMPARE(PageOf(reader.Next(patience)), 3U);
            const bool hangs = way == "exec sleep 100" || way == drips;
            patience = hangs ? 300 : 20000;
            QVERIFY(!reader.Next(patience));
            QCOMPARE(patience == 0, hangs);
            QVERIFY(!reader.Next(patience));
            QCOMPARE(reader.Finish(), -1);
        }
        QVERIFY_THROWS_EXCEPTION(DatabaseError, HelperProcess("/nowhere/reader", {}));
        QCOMPARE(Start("exec yes").Finish(), -1); // after seconds, of which nothing is kept
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        QVERIFY2(usage.ru_maxrss < 200'000, "KiB");
    }

    // Each request is one byte, and so nine with its head.
    void GoesOnAfterTheRequestThatKillsOrHangs()
    {
        const QString script = "printf 'H\\000\\000\\000\\000';"
                               "while r=$(head -c 9 | od -An -tu1) && [ -n \"$r\" ]; do set -- $r;"
                               "case $1 in 3|4|7) kill -SEGV $$;;"
                               "8) exec sleep 100;; esac;"
                               "printf 'A\\006\\000\\000\\000';"
                               "printf \"\\\\$(printf %03o $1)\\\\000\\\\000\\\\000ok\"; done";
        QStringList answers;
        HelperQueue queue(
            "/bin/sh", {"-c", script}, 10, [](int) { return QByteArray("x"); }, 300);
        while (queue.Work(std::chrono::milliseconds(50), [&answers](int number, auto contents) {
            answers += QString::number(number) + (contents ? contents->toByteArray() : "dead");
        }))
            ;
        QCOMPARE(answers.join(' '), "0ok 1ok 2ok 3dead 4dead 5ok 6ok 7dead 8dead 9ok");

        HelperQueue broken("/bin/false", {}, 2, [](int) { return QByteArray("x"); });
        QVERIFY_THROWS_EXCEPTION(
            DatabaseError, while (broken.Work(std::chrono::milliseconds(50), [](int, auto) {})));
    }
};

QTEST_GUILESS_MAIN(TestHelperProcess)
#include "test_helper_process.moc"
