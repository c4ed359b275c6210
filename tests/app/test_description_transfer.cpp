// SPDX-License-Identifier: MIT
#include "core/AlbumPassword.h"
#include "platform/shell/ProgramFolder.h"
#include "support/AlbumTest.h"

#include <QProcess>

namespace {

struct TransferResult
{
    int status;
    QString output;
    QString errors;
};

// Calls the program as scripts call it, where there is no display.
TransferResult Transfer(const QStringList& arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    program.setProcessEnvironment(environment);
    program.start(ProgramFile("lumenark"), arguments);
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return {-1, {}, program.errorString()};
    return {program.exitCode(), QString::fromLocal8Bit(program.readAllStandardOutput()),
            QString::fromLocal8Bit(program.readAllStandardError())};
}

} // namespace

class TestDescriptionTransfer : public AlbumTest
{
    Q_OBJECT

private slots:
    void GoesOutAndIn()
    {
        const QString album = album_->GetAlbum();
        const QString table = album_->PathOf("t.csv");
        const QString picture =
            album_->AddPicture("a.jpg", {{"Legend", "=x"}, {"Car3", "Anna"}, {"Car6", "Bob"}});
        album_->AddImageRow("/nowhere/b.jpg");
        TransferResult result = Transfer({"--export-descriptions", album, "--to", table});
        QCOMPARE(result.errors, "");
        QCOMPARE(result.status, 0);
        QCOMPARE(result.output, "2 pictures written.\n");
        result = Transfer({"--export-descriptions", album, "--to", table});
        QCOMPARE(result.status, 1);
        QVERIFY(result.errors.contains("t.csv"));
        result = Transfer({"--export-descriptions", album, "--to", "--sidecars"});
        QCOMPARE(result.status, 3);
        QCOMPARE(result.errors, "lumenark: /nowhere/b.jpg: The picture is not there.\n");
        QCOMPARE(result.output, "1 sidecar written.\n");

        for (const QStringList& from : {QStringList{"--from", table}, QStringList{"--sidecars"}}) {
            album_->Execute("UPDATE Image SET Legend='', Car6='-'");
            result = Transfer(QStringList{"--import-descriptions", album, "--dry-run"} + from);
            QCOMPARE(result.status, 0);
            QCOMPARE(album_->Joined("SELECT Legend, Car6 FROM Image"), "|-; |-");
            QVERIFY2(result.output.contains("1 picture differs.\n  1 legend\n  Caracteristic 7: 1 "
                                            "value\n  Caracteristic 7: new value \"Bob\"\n"),
                     qPrintable(result.output));
            result = Transfer(QStringList{"--import-descriptions", album} + from);
            QCOMPARE(result.errors, "");
            QVERIFY(result.output.endsWith("1 picture changed.\n"));
            QCOMPARE(album_->Joined("SELECT Legend, Car6 FROM Image"), "=x|Bob; |-");
            album_->Execute("DELETE FROM Car3 WHERE Name='Bob'");
        }
        album_->Execute("DELETE FROM Image WHERE Legend=''");
        result = Transfer({"--import-descriptions", album, "--from", table});
        QCOMPARE(result.status, 3);
        QCOMPARE(result.errors,
                 "lumenark: /nowhere/b.jpg: The album does not hold this picture.\n");
        QCOMPARE(picture, album_->Joined("SELECT File FROM Image"));
    }

    void TakesThePasswordFromAFile()
    {
        const QString secret = album_->PathOf("secret");
        const QString table = album_->PathOf("t.csv");
        QVERIFY(GeneralModule::SetAlbumPassword("mirabelle 8"));
        const QStringList arguments{"--export-descriptions", album_->GetAlbum(), "--to", table};
        TransferResult result = Transfer(arguments);
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains("with --password-file."), qPrintable(result.errors));
        for (const auto& [line, status] :
             {std::pair("wrong\n", 1), {"mirabelle 8\r\nnotes\n", 0}}) {
            WriteFile(secret, line);
            result = Transfer(arguments + QStringList{"--password-file", secret});
            QCOMPARE(result.status, status);
            QCOMPARE(result.errors.contains("The password is wrong."), status == 1);
        }
        QVERIFY(QFile::exists(table));
    }
};

QTEST_GUILESS_MAIN(TestDescriptionTransfer)
#include "test_description_transfer.moc"
