// SPDX-License-Identifier: MIT
#include "platform/shell/ProgramFolder.h"
#include "support/AlbumFixture.h"
#include "support/OldAlbums.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct ConvertResult
{
    int status;
    QString output;
    QString errors;
};

// Calls the program with --convert, as scripts call it, where there is no display.
ConvertResult Convert(const QStringList& arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    program.setProcessEnvironment(environment);
    program.start(ProgramFile("lumenark"), QStringList("--convert") + arguments);
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return {-1, {}, program.errorString()};
    return {program.exitCode(), QString::fromLocal8Bit(program.readAllStandardOutput()),
            QString::fromLocal8Bit(program.readAllStandardError())};
}

} // namespace

class TestConvertAlbums : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!HasOldAlbums())
            QSKIP("LUMENARK_OLD_ALBUMS names no folder of old albums");
    }

    void Converts()
    {
        const QTemporaryDir folder;
        const QString target = folder.filePath("new.alb");
        const QString old = OldAlbumPath("small_jet3");
        ConvertResult result = Convert({old, target});
        QCOMPARE(result.errors, "");
        QCOMPARE(result.status, 0);
        QVERIFY(result.output.startsWith("3 chapters, 12 paragraphs and 60 pictures came over.\n"));
        QVERIFY(result.output.contains("\"Reload Moved Pictures\""));
        QVERIFY(result.output.contains("\nC:\\Photos\\Été 1998\\\n"));

        WriteFile(target, "a letter");
        result = Convert({old, target});
        QCOMPARE(result.status, 1);
        QCOMPARE(result.errors, QString("lumenark: %1: '%2' exists already.\n").arg(old, target));
        QCOMPARE(Convert({"--force", old, target}).status, 0);
        QVERIFY(ReadFile(target).startsWith("SQLite format 3"));

        const QString damaged = OldAlbumPath("hostile_memo_loop_jet3");
        result = Convert({"--force", damaged, target});
        QCOMPARE(result.status, 3);
        QCOMPARE(result.errors,
                 "lumenark: " + damaged + ": Paragraph 5: the field Text cannot be read.\n");
    }

    void TakesThePasswordFromAFile()
    {
        const QTemporaryDir folder;
        const QString target = folder.filePath("new.alb");
        const QString secret = folder.filePath("secret");
        const QString old = OldAlbumPath("password_jet4");
        QCOMPARE(Convert({old, target}).errors,
                 "lumenark: " + old +
                     ": It has a password; give the file that holds it with --password-file.\n");
        WriteFile(secret, "mirabelle 8\n");
        ConvertResult result = Convert({old, target, "--password-file", secret});
        QCOMPARE(result.status, 1);
        QCOMPARE(result.errors, "lumenark: " + old + ": The password is wrong.\n");
        QVERIFY(!QFile::exists(target));
        WriteFile(secret, "Mirabelle 8\r\nnotes\n");
        result = Convert({old, target, "--password-file", secret});
        QCOMPARE(result.errors, "");
        QCOMPARE(result.status, 0);
        QVERIFY(!ReadFile(target).startsWith("SQLite format 3"));
    }
};

QTEST_GUILESS_MAIN(TestConvertAlbums)
#include "test_convert_albums.moc"
