// SPDX-License-Identifier: MIT
#include "platform/shell/ProgramFolder.h"
#include "support/OldAlbums.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// The program itself, called as scripts call it, where there is no display.
class TestConvert : public QObject
{
    Q_OBJECT

private slots:
    void RefusesBadUse_data();
    void RefusesBadUse();
    void Converts();
    void TakesThePasswordFromAFile();
    void TellsWhatIsMissing();
};

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

void Write(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

void TestConvert::RefusesBadUse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");
    QTest::addColumn<int>("status");
    QTest::newRow("one path") << QStringList{"a.alb"}
                              << "lumenark: --convert takes the old album and the new one\nusage: "
                              << 2;
    QTest::newRow("unknown option")
        << QStringList{"a", "b", "--loud"} << "lumenark: Unknown option" << 2;
    QTest::newRow("missing") << QStringList{"/nowhere/a.alb", "b.alb"}
                             << "lumenark: /nowhere/a.alb: There is no such file.\n"
                             << 1;
    QTest::newRow("no old album") << QStringList{ProgramFile("Album.tpl"), "b.alb"}
                                  << "lumenark: " + ProgramFile("Album.tpl") +
                                         ": It is not an album of the former file format.\n"
                                  << 1;
}

void TestConvert::RefusesBadUse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, complaint);
    QFETCH(int, status);
    const Result result = Run(arguments);
    QCOMPARE(result.status, status);
    QVERIFY2(result.errors.startsWith(complaint), qPrintable(result.errors));
    QCOMPARE(result.output, "");
}

void TestConvert::Converts()
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

    Write(target, "a letter");
    result = Run({old, target});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             QStringLiteral("lumenark: %1: '%2' exists already.\n").arg(old, target));
    QCOMPARE(Run({"--force", old, target}).status, 0);
    const QJsonObject expected = OldAlbumContents("small_jet3");
    QCOMPARE(FoundRows(target, {}, expected, "Paragraph"), ExpectedRows(expected, "Paragraph"));
}

void TestConvert::TakesThePasswordFromAFile()
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
    Write(secret, "mirabelle 8\n");
    Result result = Run({old, target, "--password-file", secret});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, "lumenark: " + old + ": The password is wrong.\n");
    QVERIFY(!QFile::exists(target));
    Write(secret, "Mirabelle 8\r\nnotes\n");
    result = Run({old, target, "--password-file", secret});
    QCOMPARE(result.errors, "");
    QCOMPARE(result.status, 0);
    const QJsonObject expected = OldAlbumContents("password_jet4");
    QCOMPARE(FoundRows(target, "Mirabelle 8", expected, "Image"), ExpectedRows(expected, "Image"));
}

void TestConvert::TellsWhatIsMissing()
{
    if (!HasOldAlbums())
        QSKIP("the sample albums of the former file format are not beside the repository");
    const QTemporaryDir folder;
    const QString old = OldAlbumPath("hostile_memo_loop_jet3");
    const Result result = Run({old, folder.filePath("new.alb")});
    QCOMPARE(result.status, 3);
    QCOMPARE(result.errors, "lumenark: " + old + ": Paragraph 5: the field Text cannot be read.\n");
}

QTEST_GUILESS_MAIN(TestConvert)
#include "test_convert.moc"
