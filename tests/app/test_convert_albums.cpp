// SPDX-License-Identifier: MIT
#include "ConvertProgram.h"
#include "support/AlbumFixture.h"
#include "support/OldAlbums.h"

#include <QTemporaryDir>
#include <QtTest>

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
        const QJsonObject expected = OldAlbumContents("password_jet4");
        QCOMPARE(FoundRows(target, "Mirabelle 8", expected, "Image"),
                 ExpectedRows(expected, "Image"));
    }
};

QTEST_GUILESS_MAIN(TestConvertAlbums)
#include "test_convert_albums.moc"
