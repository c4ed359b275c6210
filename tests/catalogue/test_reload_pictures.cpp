// SPDX-License-Identifier: MIT
#include "catalogue/MovedPictures.h"
#include "catalogue/frmReloadPictures.h"
#include "core/Album.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

#include <QLabel>
#include <QListWidget>

namespace {

bool GoOn(int)
{
    return true;
}

} // namespace

class TestReloadPictures : public AlbumTest
{
    Q_OBJECT

private slots:
    void ListsFoldersOfNeighbours()
    {
        for (const char* file :
             {"/a/1.jpg", "/A/2.jpg", "/b/3.jpg", "/a/4.jpg", "C:\\p\\5.jpg", "6"})
            album_->AddImageRow(file);
        QCOMPARE(PictureFolders(), QStringList({"/a/", "/b/", "/a/", "C:\\p\\", ""}));
    }

    void RepointsByItsWindow()
    {
        album_->AddImageRow("C:\\Photos\\a.jpg", {{"Legend", "kept"}});
        album_->AddImageRow("C:\\Photos\\sub\\b.jpg");
        album_->AddImageRow("C:\\Photos\\gone.jpg");
        album_->AddImageRow("C:\\Photos\\noextension");
        album_->AddImageRow("C:\\Other\\a.jpg");
        for (const char* name : {"new/a.jpg", "new/b.jpg", "new/noextension"})
            WriteFile(album_->PathOf(name));
        frmReloadPictures window;
        window.show();
        auto& feedback = Find<QLabel>(window, "lblFeedback");
        QCOMPARE(Find<QLabel>(window, "lblOldReferences").text(), "C:\\Photos\\*.*");
        dialogs_->ExpectBoxBeginning("Please choose the new folder first", Dialogs::Icon::Warning);
        Click(window, "cmdReloadPictures");
        Find<QWidget>(window, "dirNewReferences").setProperty("Path", album_->PathOf("new"));
        QCOMPARE(Find<QLabel>(window, "lblNewReferences").text(), album_->PathOf("new/*.*"));
        Click(window, "cmdReloadPictures");
        QCOMPARE(feedback.text(), "2 picture references updated");
        QCOMPARE(Files(), QStringList({album_->PathOf("new/a.jpg"), album_->PathOf("new/b.jpg"),
                                       "C:\\Photos\\gone.jpg", "C:\\Photos\\noextension",
                                       "C:\\Other\\a.jpg"}));
        QCOMPARE(album_->Rows("SELECT Legend FROM Image LIMIT 1"), QStringList("kept"));
        Find<QListWidget>(window, "lstOldReferences").setCurrentRow(3);
        QCOMPARE(feedback.text(), "");
        QCOMPARE(Find<QLabel>(window, "lblOldReferences").text(), "C:\\Other\\*.*");
    }

    void TakesFolderNamesAsTheyAre()
    {
        // Each beside one that it would stand for if its signs were read as a pattern.
        const QStringList folders{"/it's/", "/its/", "/a[1-3]/", "/a2/", "/a*?#/", "/abc1/"};
        QStringList files;
        for (const QString& folder : folders)
            files += folder + "x.jpg";
        for (int i = 0; i < 6; i += 2) {
            album_->Execute("DELETE FROM Image");
            for (const QString& file : files)
                album_->AddImageRow(file);
            const QString moved = album_->PathOf("n'e[w]/x.jpg");
            WriteFile(moved);
            QCOMPARE(RepointPictures(folders[i], album_->PathOf("n'e[w]"), GoOn), 1);
            QStringList expected = files;
            expected[i] = moved;
            QCOMPARE(Files(), expected);
        }
    }

    void NewFolderBelowTheOld()
    {
        const QString folder = album_->PathOf("old/");
        const QStringList moved = AddMoved(folder, folder + "new/");
        QCOMPARE(RepointPictures(folder, folder + "new", GoOn), 3);
        QCOMPARE(Files(), moved);
        // To where they are: each counts, and nothing changes.
        QCOMPARE(RepointPictures(folder, folder + "new", GoOn), 3);
        QCOMPARE(Files(), moved);
    }

    void FailureKeepsWhatWasDone()
    {
        const QStringList moved = AddMoved("/old/", album_->PathOf("new/"));
        const auto failAfterTwo = [](int updated) {
            if (updated == 2)
                GeneralModule::AlbumDatabase->Execute("PRAGMA query_only=1");
            return true;
        };
        QVERIFY_THROWS_EXCEPTION(DatabaseError,
                                 RepointPictures("/old/", album_->PathOf("new"), failAfterTwo));
        QCOMPARE(Files(), QStringList({moved[0], moved[1], "/old/3.jpg"}));
        QCOMPARE(album_->Rows("PRAGMA integrity_check"), QStringList("ok"));
    }

private:
    // Three pictures of the album that lie elsewhere now; returns where.
    QStringList AddMoved(const QString& from, const QString& to) const
    {
        QStringList moved;
        for (const char* name : {"1.jpg", "2.jpg", "3.jpg"}) {
            album_->AddImageRow(from + name);
            moved += to + name;
            WriteFile(moved.last());
        }
        return moved;
    }

    QStringList Files() const { return album_->Rows("SELECT File FROM Image ORDER BY rowid"); }
};

QTEST_MAIN(TestReloadPictures)
#include "test_reload_pictures.moc"
