// SPDX-License-Identifier: MIT
#include "platform/files/FilePatterns.h"
#include "platform/files/FolderListing.h"
#include "platform/files/Volumes.h"
#include "support/AlbumFixture.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <filesystem>
#include <fstream>

class TestFiles : public QObject
{
    Q_OBJECT

private slots:
    void FitsPatterns()
    {
        const std::tuple<const char*, const char*, bool> rows[] = {
            {"*.jpg;*.gif", "A.JPG", true},
            {"*.jpg; *.gif", "a.gif", true},
            {"*.jpg;*.gif", "a.png", false},
            {"*.jpg", "a.jpg.txt", false},
            {"*.*", "no point", true},
            {"p?.jpg", "pé.jpg", true},
            {"a[1].jpg", "a1.jpg", false},
            {"a[1]*", "a[1].jpg", true}, // brackets are no list,
            {"#*", "1.jpg", false},
            {"*.jpg;", "a.png", false}, // nor # a digit
            {"", "a.jpg", false}};
        for (const auto& [patterns, name, fits] : rows)
            QVERIFY2(FilePatterns(patterns).Match(name) == fits, patterns);
    }

    void ListsFilesOfAnyName()
    {
        const QTemporaryDir folder;
        QStringList names{"-dash.jpg", "Zoe.jpg", "a'b\".jpg", "br[1]#*%.jpg", "line\nbreak.jpg"};
        names += {"semi;colon.jpg", u8"\u00e9t\u00e9.jpg", u8"e\u0301te\u0301.jpg",
                  QString(251, u'x') + ".jpg"};
        for (const QString& name : names)
            WriteFile(folder.filePath(name));
        // Valid only as bytes: nothing could find this file again by its text.
        const std::string invalid = folder.path().toStdString() + "/\xff.jpg";
        QVERIFY(std::ofstream(invalid).good());
        const FolderListing listing = ListFiles(folder.path());
        QCOMPARE(listing.error, QString());
        QVERIFY(listing.names.indexOf("semi;colon.jpg") < listing.names.indexOf("Zoe.jpg"));
        QStringList sorted = listing.names;
        sorted.sort();
        names.sort();
        QCOMPARE(sorted, names);
        QVERIFY(std::filesystem::remove(invalid));
    }

    void TellsFilesFromFolders()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("sub.jpg"));
        WriteFile(folder.filePath("a.jpg"));
        WriteFile(folder.filePath(".hidden.jpg"));
        QVERIFY(QFile::link(folder.filePath("a.jpg"), folder.filePath("link.jpg")));
        QVERIFY(QFile::link(folder.filePath("nowhere"), folder.filePath("dangling.jpg")));
        QCOMPARE(ListFiles(folder.path()).names, QStringList({"a.jpg", "link.jpg"}));
        QCOMPARE(ListFolders(folder.path()).names, QStringList("sub.jpg"));
        const FolderListing gone = ListFiles(folder.filePath("gone"));
        QVERIFY(gone.names.isEmpty());
        QVERIFY2(gone.error.contains(folder.filePath("gone")), qPrintable(gone.error));
    }

    void FindsTheVolume()
    {
        const QStringList volumes{"/", "/media/card", "/media/card/inner"};
        QCOMPARE(VolumeOf("/media/card/inner/a", volumes), "/media/card/inner");
        QCOMPARE(VolumeOf("/media/cards", volumes), "/");
        QCOMPARE(VolumeOf("/media/card", volumes), "/media/card");
        const QStringList mounted = MountedVolumes();
        QVERIFY(mounted.contains("/"));
        for (const char* pseudo : {"/proc", "/sys", "/dev"})
            QVERIFY2(!mounted.contains(pseudo), pseudo);
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "test_files.moc"
