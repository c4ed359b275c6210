// SPDX-License-Identifier: MIT
#include "platform/files/FilePatterns.h"
#include "platform/files/FolderListing.h"
#include "platform/widgets/DriveBox.h"
#include "platform/widgets/FileList.h"
#include "platform/widgets/FolderList.h"
#include "support/ScriptedDialogs.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <filesystem>
#include <fstream>

namespace {

void DoubleClick(FolderList& list, const QString& text)
{
    const auto rows = list.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    QVERIFY2(!rows.isEmpty(), qPrintable(text));
    QTreeWidgetItem* row = rows.constLast();
    list.scrollToItem(row);
    const QPoint at = list.visualItemRect(row).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
}

} // namespace

// Files and folders as they are listed, and as the lists show them.
class TestFolders : public QObject
{
    Q_OBJECT

private slots:
    // What the signs of patterns mean in a paragraph too is for picture_list_fuzz to see.
    void FitsPatterns()
    {
        const std::tuple<const char*, const char*, bool> rows[] = {
            {"*.jpg; *.gif", "A.GIF", true},
            {"*.jpg;*.gif", "a.jpg.txt", false},
            {"p?.jpg", "pÉ.jpg", true},
            {"*.jpg;", "a.png", false},
            {"", "a.jpg", false}};
        for (const auto& [patterns, name, fits] : rows)
            QVERIFY2(FilePatterns(patterns).Match(name) == fits, patterns);
    }

    void ListsFilesOfAnyName()
    {
        const QTemporaryDir folder;
        QStringList names{
            "-dash.jpg",       "Zoe.jpg",        "a'b\".jpg",           "br[1]#*%.jpg",
            "line\nbreak.jpg", "semi;colon.jpg", u8"\u00e9t\u00e9.jpg", u8"e\u0301te\u0301.jpg"};
        for (const QString& name : names)
            WriteFile(folder.filePath(name));
        QVERIFY(QFile::link(folder.filePath("Zoe.jpg"), folder.filePath("link.jpg")));
        QVERIFY(QFile::link(folder.filePath("nowhere"), folder.filePath("dangling.jpg")));
        QVERIFY(QDir(folder.path()).mkdir("sub.jpg"));
        WriteFile(folder.filePath(".hidden.jpg"));
        names += "link.jpg";
        const FolderListing listing = ListFiles(folder.path());
        QCOMPARE(listing.error, QString());
        QVERIFY(listing.names.indexOf("semi;colon.jpg") < listing.names.indexOf("Zoe.jpg"));
        QCOMPARE(QSet<QString>(listing.names.begin(), listing.names.end()),
                 QSet<QString>(names.begin(), names.end()));
        QCOMPARE(ListFolders(folder.path()).names, QStringList("sub.jpg"));
        const FolderListing gone = ListFiles(folder.filePath("gone"));
        QVERIFY(gone.names.isEmpty());
        QVERIFY2(gone.error.contains(folder.filePath("gone")), qPrintable(gone.error));
    }

    // Valid only as bytes: nothing could find these again by their text.
    void CountsNamesThatAreNoText()
    {
        const QTemporaryDir folder;
        const std::filesystem::path path = folder.path().toStdString();
        for (const char* name : {"\xff.jpg", "\xe9t\xe9.txt", ".\xff"})
            QVERIFY(std::ofstream(path / name).good());
        QVERIFY(std::filesystem::create_directory(path / "d\xff"));
        FileList files;
        FolderList folders;
        ScriptedDialogs dialogs;
        const QString ending = "'" + folder.path() + "' left out: their names are not valid text.";
        dialogs.ExpectBox("2 file(s) of the folder " + ending, Dialogs::Icon::Warning);
        dialogs.ExpectBox("1 folder(s) in " + ending, Dialogs::Icon::Warning);
        for (int time = 0; time < 2; ++time) { // told of once
            files.SetPath(folder.path());
            folders.SetPath(folder.path());
        }
        QVERIFY(dialogs.IsDone());
        QCOMPARE(files.Count(), 0);
        std::filesystem::remove_all(path);
    }

    void GoesThroughFolders()
    {
        const QTemporaryDir folder;
        const QString outer = folder.filePath("outer folder");
        const QString inner = outer + "/inner";
        QVERIFY(QDir().mkpath(inner));
        FolderList list;
        list.resize(300, 400);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        list.SetPath(folder.path() + '/');
        const QSignalSpy changes(&list, &FolderList::PathChanged);
        DoubleClick(list, "outer folder");
        DoubleClick(list, "inner");
        QCOMPARE(list.GetPath(), inner);
        QTest::keyClick(&list, Qt::Key_Backspace);
        QCOMPARE(list.GetPath(), outer);
        list.SetPath(folder.path());
        QVERIFY(QDir(outer).removeRecursively());
        ScriptedDialogs dialogs;
        dialogs.ExpectBoxBeginning("The folder '" + outer + "' cannot be read: ",
                                   Dialogs::Icon::Warning);
        DoubleClick(list, "outer folder");
        QCOMPARE(list.GetPath(), folder.path());
        QCOMPARE(changes.count(), 4);
    }

    void FilesAndDriveFollow()
    {
        const QTemporaryDir folder;
        for (const char* name : {"b.JPG", "a.png", "c.txt", "x.png"})
            WriteFile(folder.filePath(name));
        FileList list;
        list.setProperty("Path", folder.path());
        list.setProperty("Pattern", "*.jpg;a*");
        QCOMPARE(list.GetNames(), QStringList({"a.png", "b.JPG"}));

        DriveBox drives;
        drives.setCurrentIndex(-1);
        const QSignalSpy changes(&drives, &DriveBox::DriveChanged);
        drives.ShowVolumeOf("/");
        QCOMPARE(drives.GetDrive(), "/");
        QCOMPARE(changes.count(), 0); // or the folder would be left for the drive's root
    }
};

QTEST_MAIN(TestFolders)
#include "test_folders.moc"
