// SPDX-License-Identifier: MIT
#include "catalogue/MovedPictures.h"
#include "catalogue/PictureLoading.h"
#include "catalogue/frmLoadFiles.h"
#include "catalogue/frmReloadPictures.h"
#include "core/AlbumSets.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

#include <stdexcept>

using GeneralModule::AlbumDatabase;

namespace {

QStringList Numbered(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QString("%1.jpg").arg(i));
    return names;
}

bool GoOn(int)
{
    return true;
}

} // namespace

// Loading pictures, and pointing to those that moved: by the windows and the routines below.
class TestPictureFiles : public AlbumTest
{
    Q_OBJECT

private slots:
    void CountsAndLoads()
    {
        for (const char* name : {"/a'b''.jpg", "/[1]#*%?\"\n.GIF", "/c.png", "/d.txt"})
            WriteFile(Folder() + name);
        album_->AddImageRow(Folder() + "/a'b''.jpg", {{"Legend", "kept"}, {"Car0", "Anna"}});
        frmLoadFiles window;
        window.show();
        auto& feedback = Find<QLabel>(window, "lblFeedback");
        auto& types = Find<QLineEdit>(window, "txtPictureTypes");
        Find<QWidget>(window, "dirPicturesToLoad").setProperty("Path", Folder());
        QCOMPARE(feedback.text(), "2 picture(s) selected");
        types.setText("*.*");
        QCOMPARE(feedback.text(), "4 picture(s) selected");
        types.setText("*.jpg;*.gif");
        for (int time = 0; time < 2; ++time) {
            Click(window, "cmdLoad");
            QCOMPARE(feedback.text(), "2 picture(s) loaded");
            QCOMPARE(album_->Rows("SELECT * FROM Image"),
                     QStringList({Folder() + "/a'b''.jpg||Anna|-|-|-|-|-|-|-|-|-|-|-|kept",
                                  Folder() + "/[1]#*%?\"\n.GIF||-|-|-|-|-|-|-|-|-|-|-|-|"}));
        }
    }

    void LoadsTreesAndMarkedFiles()
    {
        for (const char* name : {"/a.jpg", "/b.jpg", "/c.png", "/note.txt", "/deep/er/a.jpg",
                                 "/deep/d.gif", "/deep/er/e.webp", "/.hidden/f.jpg"})
            WriteFile(Folder() + name);
        QFile::link(Folder(), Folder() + "/deep/round"); // leads back
        frmLoadFiles window;
        std::vector<qint32> described;
        window.DescribePictures = [&](QWidget*, const auto& pictures) { described = pictures; };
        window.show();
        const auto text = [&](const char* label) { return Find<QLabel>(window, label).text(); };
        Find<QWidget>(window, "dirPicturesToLoad").setProperty("Path", Folder());
        QVERIFY(!Find<QWidget>(window, "cmdLoadMarked").isEnabled());
        auto& list = Find<QListView>(window, "filPicturesToLoad");
        list.setCurrentIndex(list.model()->index(1, 0));
        Click(window, "cmdLoadMarked");
        QCOMPARE(album_->Joined("SELECT File FROM Image"), Folder() + "/b.jpg");
        QCOMPARE(text("lblFeedback"), "1 picture(s) loaded");
        QCOMPARE(text("lblDetails"), "1 new");
        Click(window, "cmdLoad");
        QCOMPARE(text("lblDetails"), "1 new, 1 there already, 1 pictures of other kinds left out");
        Find<QCheckBox>(window, "chkFolders").click();
        Click(window, "cmdLoad");
        QCOMPARE(text("lblFeedback"), "4 picture(s) loaded");
        QCOMPARE(text("lblDetails"), "2 new, 2 there already, 2 pictures of other kinds left out");
        QCOMPARE(
            album_->Joined("SELECT replace(File,'" + Folder() + "','') FROM Image ORDER BY rowid"),
            "/b.jpg; /a.jpg; /deep/d.gif; /deep/er/a.jpg");
        Click(window, "cmdDescribeNew");
        QCOMPARE(described, std::vector<qint32>({3, 4}));
        Find<QCheckBox>(window, "chkTakeFromFiles").click();
        Click(window, "cmdLoad"); // nothing new, of which files could say something
        WriteFile(Folder() + "/deep/new.jpg");
        WhenModal("frmTakeFromFiles", [](QWidget& taking) {
            QVERIFY(Find<QLabel>(taking, "lblRead").text().contains(" of 1 file(s) read"));
            taking.close();
        });
        Click(window, "cmdLoad");
        QCOMPARE(text("lblDetails"), "1 new, 4 there already, 2 pictures of other kinds left out");
        frmLoadFiles next; // remembers the folder
        QCOMPARE(Find<QWidget>(next, "dirPicturesToLoad").property("Path").toString(), Folder());
    }

    void LockedAlbumIsTold()
    {
        WriteFile(Folder() + "/a.jpg");
        frmLoadFiles window;
        window.show();
        Find<QWidget>(window, "dirPicturesToLoad").setProperty("Path", Folder());
        const auto other = Database::Open(album_->GetAlbum());
        other->Execute("BEGIN IMMEDIATE");
        dialogs_->ExpectBoxBeginning("3260 The album is being changed", Icon::Critical);
        Click(window, "cmdLoad");
        QVERIFY(dialogs_->IsDone());
        other->Execute("ROLLBACK");
        Click(window, "cmdLoad");
        QCOMPARE(Find<QLabel>(window, "lblFeedback").text(), "1 picture(s) loaded");
    }

    void KeepsWhatWasLoadedBeforeItStopped()
    {
        QVERIFY(QDir().mkpath(Folder()));
        const auto stop = [](int count) { return count < 20; };
        QCOMPARE(LoadPictures(Folder(), Numbered(50), stop), 20);
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image"), "20");
        const auto vanish = [this](int count) {
            if (count == 500)
                QDir(Folder()).removeRecursively();
            return true;
        };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 LoadPictures(Folder(), Numbered(3000), vanish));
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image"), "1000");
    }

    void RepointsByItsWindow()
    {
        album_->AddImageRow("C:\\Photos\\a.jpg", {{"Legend", "kept"}});
        album_->AddImageRow("C:\\Photos\\sub\\b.jpg");
        album_->AddImageRow("C:\\Photos\\gone.jpg");
        album_->AddImageRow("C:\\Photos\\noextension");
        album_->AddImageRow("C:\\Other\\a.jpg");
        QCOMPARE(PictureFolders(),
                 QStringList({"C:\\Photos\\", "C:\\Photos\\sub\\", "C:\\Photos\\", "C:\\Other\\"}));
        for (const char* name : {"new/a.jpg", "new/b.jpg", "new/noextension"})
            WriteFile(album_->PathOf(name));
        frmReloadPictures window;
        window.show();
        auto& feedback = Find<QLabel>(window, "lblFeedback");
        dialogs_->ExpectBoxBeginning("Please choose the new folder first", Icon::Warning);
        Click(window, "cmdReloadPictures");
        Find<QWidget>(window, "dirNewReferences").setProperty("Path", album_->PathOf("new"));
        QCOMPARE(Find<QLabel>(window, "lblNewReferences").text(), album_->PathOf("new/*.*"));
        Click(window, "cmdReloadPictures");
        QCOMPARE(feedback.text(), "2 picture references updated");
        QCOMPARE(album_->Rows("SELECT File,Legend FROM Image").join(u'|').remove("C:\\Photos\\"),
                 album_->PathOf("new/a.jpg") + "|kept|" + album_->PathOf("new/b.jpg") +
                     "||gone.jpg||noextension||C:\\Other\\a.jpg|");
        // What is left stays chosen in the list made anew.
        QCOMPARE(Find<QLabel>(window, "lblOldReferences").text(), "C:\\Photos\\*.*");
        Find<QListWidget>(window, "lstOldReferences").setCurrentRow(2);
        QCOMPARE(Find<QLabel>(window, "lblOldReferences").text(), "C:\\Other\\*.*");
    }

    void TakesFolderNamesAsTheyAre()
    {
        // Beside one that it would stand for if its signs were read as a pattern.
        const QString folder = album_->PathOf("it's [1]*#/");
        const QString other = album_->PathOf("it's 1 and 2/1.jpg");
        album_->AddImageRow(other);
        const QStringList files = QStringList(other) + AddMoved(folder, folder + "n'e[w]/");
        for (int time = 0; time < 2; ++time) { // then they are there: each counts, none changes
            QCOMPARE(RepointPictures(folder, folder + "n'e[w]", GoOn).updated, 3);
            QCOMPARE(Files(), files);
        }
    }

    // Three pictures of one name and one that is loaded there already: no two rows get one path.
    void GivesNoPathTwice()
    {
        const QString fresh = album_->PathOf("new/");
        for (const char* file : {"/old/sub/a.jpg", "/old/b.jpg", "/old/a.jpg", "/old/sub/b.jpg"})
            album_->AddImageRow(file);
        for (const char* name : {"a.jpg", "b.jpg", "below/a.jpg", "below/b.jpg", "below/c.jpg"})
            WriteFile(fresh + name);
        album_->AddImageRow(fresh + "b.jpg");
        const RepointedPictures done = RepointPictures("/old/", album_->PathOf("new"), GoOn);
        QCOMPARE(done.updated, 1);
        QCOMPARE(done.alreadyHeld, 3);
        QCOMPARE(Files(), QStringList({"/old/sub/a.jpg", "/old/b.jpg", fresh + "a.jpg",
                                       "/old/sub/b.jpg", fresh + "b.jpg"}));
        // To a folder below the old one each still has one turn.
        album_->AddImageRow(fresh + "sub/c.jpg");
        for (int time = 0; time < 2; ++time) {
            QCOMPARE(RepointPictures(fresh, fresh + "below/", GoOn).updated, 3);
            QCOMPARE(Files().filter(fresh + "below/").size(), 3);
        }
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
        QCOMPARE(album_->Joined("PRAGMA integrity_check"), "ok");
    }

private:
    QString Folder() const { return album_->PathOf("pictures"); }

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

QTEST_MAIN(TestPictureFiles)
#include "test_picture_files.moc"
