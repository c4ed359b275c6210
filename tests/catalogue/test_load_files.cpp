// SPDX-License-Identifier: MIT
#include "catalogue/PictureLoading.h"
#include "catalogue/frmLoadFiles.h"
#include "core/Album.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

#include <sqlcipher/sqlite3.h>

#include <QLabel>
#include <QLineEdit>

#include <stdexcept>

using GeneralModule::AlbumDatabase;

namespace {

QStringList Numbered(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QStringLiteral("%1.jpg").arg(i));
    return names;
}

} // namespace

// Loading, by its window and by the routine below it.
class TestLoadFiles : public AlbumTest
{
    Q_OBJECT

private slots:
    void CountsAndLoads()
    {
        for (const char* name : {"/a.jpg", "/b.GIF", "/c.png", "/d.txt"})
            WriteFile(Folder() + name);
        album_->AddImageRow(Folder() + "/a.jpg", {{"Legend", "kept"}, {"Car0", "Anna"}});
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
                     QStringList({Folder() + "/a.jpg||Anna|-|-|-|-|-|-|-|-|-|-|-|kept",
                                  Folder() + "/b.GIF||-|-|-|-|-|-|-|-|-|-|-|-|"}));
        }
        types.setText("*.tif");
        Click(window, "cmdLoad");
        QCOMPARE(feedback.text(), "0 picture(s) loaded");
    }

    void TakesFilesOfAnyName()
    {
        const QStringList names{
            "-dash.jpg",           "a'b''.jpg",      "q\"x.jpg",
            "[1]#*%?.jpg",         "semi;colon.jpg", "line\nbreak.jpg",
            u8"\u00e9t\u00e9.jpg", u8"e\u0301t.jpg", QString(251, u'x') + ".jpg"};
        for (const QString& name : names)
            WriteFile(Folder() + '/' + name);
        for (int time = 0; time < 2; ++time)
            QCOMPARE(LoadPictures(Folder(), names, [](int) { return true; }), int(names.size()));
        QCOMPARE(album_->Rows("SELECT count(*) FROM Image"), QStringList("9"));
        for (const QString& name : names) {
            QString quoted = Folder() + '/' + name;
            quoted.replace("'", "''");
            GeneralModule::ImageSet->FindFirst("[File]='" + quoted + "'");
            QVERIFY2(!GeneralModule::ImageSet->NoMatch(), qPrintable(name));
        }
    }

    void FullDiskKeepsRowsBefore()
    {
        QVERIFY(QDir().mkpath(Folder()));
        album_->AddImageRow("/before.jpg");
        const int pages = album_->Rows("PRAGMA page_count").first().toInt();
        AlbumDatabase->Execute("PRAGMA max_page_count=" + QByteArray::number(pages + 400));
        const auto load = [this] {
            LoadPictures(Folder(), Numbered(100'000), [](int) { return true; });
        };
        QCOMPARE(ErrorOf(load), int(DatabaseError::DiskFull));
        const QStringList files = album_->Rows("SELECT File FROM Image ORDER BY rowid");
        QVERIFY(files.size() >= 1001 && files.first() == "/before.jpg");
        QCOMPARE(album_->Rows("PRAGMA integrity_check"), QStringList("ok"));
    }

    void LockedAlbumIsTold()
    {
        WriteFile(Folder() + "/a.jpg");
        frmLoadFiles window;
        window.show();
        Find<QWidget>(window, "dirPicturesToLoad").setProperty("Path", Folder());
        sqlite3* other = nullptr;
        QCOMPARE(sqlite3_open(album_->GetAlbum().toUtf8(), &other), SQLITE_OK);
        QCOMPARE(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
        dialogs_->ExpectBoxBeginning("3260 The album is being changed", Dialogs::Icon::Critical);
        Click(window, "cmdLoad");
        QVERIFY(dialogs_->IsDone());
        QCOMPARE(Find<QLabel>(window, "lblFeedback").text(), "Loading pictures...");
        QVERIFY(!QApplication::overrideCursor());
        sqlite3_close(other);
        Click(window, "cmdLoad");
        QCOMPARE(Find<QLabel>(window, "lblFeedback").text(), "1 picture(s) loaded");
    }

    void KeepsWhatWasLoadedBeforeItStopped()
    {
        QVERIFY(QDir().mkpath(Folder()));
        const auto stop = [](int count) { return count < 20; };
        QCOMPARE(LoadPictures(Folder(), Numbered(50), stop), 20);
        QCOMPARE(album_->Rows("SELECT count(*) FROM Image"), QStringList("20"));
        const auto vanish = [this](int count) {
            if (count == 500)
                QDir(Folder()).removeRecursively();
            return true;
        };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 LoadPictures(Folder(), Numbered(3000), vanish));
        QCOMPARE(album_->Rows("SELECT count(*) FROM Image"), QStringList("1000"));
    }

private:
    QString Folder() const { return album_->PathOf("pictures"); }
};

QTEST_MAIN(TestLoadFiles)
#include "test_load_files.moc"
