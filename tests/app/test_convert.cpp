// SPDX-License-Identifier: MIT
#include "platform/shell/ProgramFolder.h"
#include "support/AlbumFixture.h"
#include "support/OldAlbums.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Result
{
    int status;
    QString output;
    QString errors;
};

Result Run(const QStringList& arguments)
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

// The program itself, called as scripts call it, where there is no display.
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
            const Result result = Run(arguments);
            QCOMPARE(result.status, status);
            QVERIFY2(result.errors.startsWith("lumenark: " + complaint), qPrintable(result.errors));
            QCOMPARE(result.output, "");
        }
    }

    void Converts()
    {
        if (!HasOldAlbums())
            QSKIP("the sample albums of the former file format are not beside the repository");
        const QTemporaryDir folder;
        const QString target = folder.filePath("new.alb");
        const QString old = OldAlbumPath("small_jet3");
        Result result = Run({old, target});
        QCOMPARE(result.errors, "");
        QCOMPARE(result.status, 0);
        QVERIFY(result.output.startsWith("3 chapters, 12 paragraphs and 60 pictures came over.\n"));
        QVERIFY(result.output.contains("\"Reload Moved Pictures\""));
        QVERIFY(result.output.contains("\nC:\\Photos\\Été 1998\\\n"));

        WriteFile(target, "a letter");
        result = Run({old, target});
        QCOMPARE(result.status, 1);
        QCOMPARE(result.errors, QString("lumenark: %1: '%2' exists already.\n").arg(old, target));
        QCOMPARE(Run({"--force", old, target}).status, 0);
        const QJsonObject expected = OldAlbumContents("small_jet3");
        QCOMPARE(FoundRows(target, {}, expected, "Paragraph"), ExpectedRows(expected, "Paragraph"));

        const QString damaged = OldAlbumPath("hostile_memo_loop_jet3");
        result = Run({"--force", damaged, target});
        QCOMPARE(result.status, 3);
        QCOMPARE(result.errors,
                 "lumenark: " + damaged + ": Paragraph 5: the field Text cannot be read.\n");
    }

    void TakesThePasswordFromAFile()
    {
        if (!HasOldAlbums())
            QSKIP("the sample albums of the former file format are not beside the repository");
        const QTemporaryDir folder;
        const QString target = folder.filePath("new.alb");
        const QString secret = folder.filePath("secret");
        const QString old = OldAlbumPath("password_jet4");
        QCOMPARE(Run({old, target}).errors,
                 "lumenark: " + old +
                     ": It has a password; give the file that holds it with --password-file.\n");
        WriteFile(secret, "mirabelle 8\n");
        Result result = Run({old, target, "--password-file", secret});
        QCOMPARE(result.status, 1);
        QCOMPARE(result.errors, "lumenark: " + old + ": The password is wrong.\n");
        QVERIFY(!QFile::exists(target));
        WriteFile(secret, "Mirabelle 8\r\nnotes\n");
        result = Run({old, target, "--password-file", secret});
        QCOMPARE(result.errors, "");
        QCOMPARE(result.status, 0);
        const QJsonObject expected = OldAlbumContents("password_jet4");
        QCOMPARE(FoundRows(target, "Mirabelle 8", expected, "Image"),
                 ExpectedRows(expected, "Image"));
    }
};

QTEST_GUILESS_MAIN(TestConvert)
#include "test_convert.moc"
