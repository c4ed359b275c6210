// SPDX-License-Identifier: MIT
#include "platform/widgets/DriveBox.h"
#include "platform/widgets/FileList.h"
#include "platform/widgets/FolderList.h"
#include "platform/widgets/WorkProgress.h"
#include "support/AlbumFixture.h"
#include "support/ScriptedDialogs.h"

#include <QDir>
#include <QPushButton>
#include <QtTest>

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

class TestFolderWidgets : public QObject
{
    Q_OBJECT

private slots:
    void GoesThroughFolders()
    {
        const QTemporaryDir folder;
        const QString inner = folder.filePath("outer folder/inner");
        QVERIFY(QDir().mkpath(inner));
        FolderList list;
        list.resize(300, 400);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QVERIFY(list.setProperty("Path", folder.path() + '/'));
        QCOMPARE(list.property("Path").toString(), folder.path());
        const QSignalSpy changes(&list, &FolderList::PathChanged);
        DoubleClick(list, "outer folder");
        DoubleClick(list, "inner");
        QCOMPARE(list.GetPath(), inner);
        QTest::keyClick(&list, Qt::Key_Backspace);
        QCOMPARE(list.GetPath(), folder.filePath("outer folder"));
        list.setCurrentItem(list.currentItem()->child(0));
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(list.GetPath(), inner);
        list.SetPath(folder.path());
        QVERIFY(QDir(inner).removeRecursively());
        QVERIFY(QDir(folder.path()).rmdir("outer folder"));
        ScriptedDialogs dialogs;
        dialogs.ExpectBoxBeginning("The folder '" + folder.filePath("outer folder") +
                                       "' cannot be read: ",
                                   Dialogs::Icon::Warning);
        DoubleClick(list, "outer folder");
        QCOMPARE(list.GetPath(), folder.path());
        DoubleClick(list, "/");
        QCOMPARE(list.GetPath(), "/");
        QCOMPARE(changes.count(), 6);
    }

    void FilesAndDriveFollow()
    {
        const QTemporaryDir folder;
        for (const char* name : {"b.JPG", "a.png", "c.txt", "x.png"})
            WriteFile(folder.filePath(name));
        FileList list;
        list.setProperty("Path", folder.path());
        QCOMPARE(list.GetNames(), QStringList({"a.png", "b.JPG", "c.txt", "x.png"}));
        list.setProperty("Pattern", "*.jpg;a*");
        QCOMPARE(list.GetNames(), QStringList({"a.png", "b.JPG"}));
        QCOMPARE(list.Count(), 2);
        ScriptedDialogs dialogs;
        dialogs.ExpectBoxBeginning("The folder '/nowhere' cannot be read: ",
                                   Dialogs::Icon::Warning);
        list.SetPath("/nowhere");
        QCOMPARE(list.Count(), 0);

        DriveBox drives;
        drives.setCurrentIndex(-1);
        const QSignalSpy changes(&drives, &DriveBox::DriveChanged);
        drives.ShowVolumeOf("/");
        QCOMPARE(drives.GetDrive(), "/");
        QCOMPARE(changes.count(), 0); // or the folder would be left for the drive's root
    }

    void WorkTakesNothingButItsStop()
    {
        QWidget window;
        QPushButton other(&window);
        WorkProgress progress(&window);
        progress.setGeometry(0, 40, 200, 40);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QSignalSpy clicks(&other, &QPushButton::clicked);
        progress.Begin(10, true);
        QTest::mouseClick(&other, Qt::LeftButton);
        QVERIFY(progress.Advance(5));
        QVERIFY(!window.close());
        QVERIFY(!progress.Advance(6));
        progress.End();
        progress.Begin(10, true);
        QVERIFY(progress.Advance(1));
        QTest::mouseClick(progress.findChild<QPushButton*>("cmdStop"), Qt::LeftButton);
        QVERIFY(!progress.Advance(2));
        progress.End();
        QCOMPARE(clicks.count(), 0);
        QTest::mouseClick(&other, Qt::LeftButton);
        QCOMPARE(clicks.count(), 1);
    }
};

QTEST_MAIN(TestFolderWidgets)
#include "test_folder_widgets.moc"
