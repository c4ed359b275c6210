// SPDX-License-Identifier: MIT
#include "platform/files/FilePatterns.h"
#include "platform/files/FolderListing.h"
#include "platform/files/Volumes.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <filesystem>
#include <fstream>

class TestFiles : public QObject
{
    Q_OBJECT

private slots:
    void FitsPatterns_data();
    void FitsPatterns();
    void ListsFilesOfAnyName();
    void TellsFilesFromFolders();
    void TellsWhyAFolderCannotBeRead();
    void SeparatesOnce();
    void FindsTheVolume();
};

namespace {

void WriteFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        QTest::qFail(qPrintable("cannot write " + path), __FILE__, __LINE__);
}

} // namespace

void TestFiles::FitsPatterns_data()
{
    QTest::addColumn<QString>("patterns");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("fits");
    QTest::newRow("letter case") << "*.jpg;*.gif"
                                 << "A.JPG" << true;
    QTest::newRow("second of a list") << "*.jpg; *.gif"
                                      << "a.gif" << true;
    QTest::newRow("other extension") << "*.jpg;*.gif"
                                     << "a.png" << false;
    QTest::newRow("extension only at the end") << "*.jpg"
                                               << "a.jpg.txt" << false;
    QTest::newRow("every file") << "*.*"
                                << "no point" << true;
    QTest::newRow("one character") << "p?.jpg" << u8"pé.jpg" << true;
    QTest::newRow("brackets are no list") << "a[1].jpg"
                                          << "a1.jpg" << false;
    QTest::newRow("brackets stand for themselves") << "a[1]*"
                                                   << "a[1].jpg" << true;
    QTest::newRow("number sign is no digit") << "#*"
                                             << "1.jpg" << false;
    QTest::newRow("unfinished list") << "*.jpg;"
                                     << "a.png" << false;
    QTest::newRow("nothing") << ""
                             << "a.jpg" << false;
}

void TestFiles::FitsPatterns()
{
    QFETCH(QString, patterns);
    QFETCH(QString, name);
    QTEST(FilePatterns(patterns).Match(name), "fits");
}

void TestFiles::ListsFilesOfAnyName()
{
    const QTemporaryDir folder;
    QStringList names{"-dash.jpg",
                      "Zoe.jpg",
                      "a'b\".jpg",
                      "br[1]#*%.jpg",
                      "line\nbreak.jpg",
                      "semi;colon.jpg",
                      u8"\u00e9t\u00e9.jpg",
                      u8"e\u0301te\u0301.jpg",
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

void TestFiles::TellsFilesFromFolders()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("sub.jpg"));
    WriteFile(folder.filePath("a.jpg"));
    WriteFile(folder.filePath(".hidden.jpg"));
    QVERIFY(QFile::link(folder.filePath("a.jpg"), folder.filePath("link.jpg")));
    QVERIFY(QFile::link(folder.filePath("nowhere"), folder.filePath("dangling.jpg")));
    QCOMPARE(ListFiles(folder.path()).names, QStringList({"a.jpg", "link.jpg"}));
    QCOMPARE(ListFolders(folder.path()).names, QStringList("sub.jpg"));
}

void TestFiles::TellsWhyAFolderCannotBeRead()
{
    const QTemporaryDir folder;
    const FolderListing listing = ListFiles(folder.filePath("gone"));
    QVERIFY(listing.names.isEmpty());
    QVERIFY2(listing.error.contains(folder.filePath("gone")), qPrintable(listing.error));
}

void TestFiles::SeparatesOnce()
{
    QCOMPARE(PathIn("/a", "b"), "/a/b");
    QCOMPARE(PathIn("/", "b"), "/b");
}

void TestFiles::FindsTheVolume()
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

QTEST_GUILESS_MAIN(TestFiles)
#include "test_files.moc"
