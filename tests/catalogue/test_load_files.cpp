// SPDX-License-Identifier: MIT
#include "catalogue/PictureLoading.h"
#include "catalogue/frmLoadFiles.h"
#include "core/Album.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"

#include <sqlcipher/sqlite3.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <stdexcept>

using GeneralModule::AlbumDatabase;

// Loading, by its window and by the routine below it.
class TestLoadFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void CountsAndLoads();
    void TakesFilesOfAnyName();
    void KeepsWhatWasLoadedWhenStopped();
    void FullDiskKeepsRowsBefore();
    void LockedAlbumIsTold();
    void VanishedFolderIsTold();

private:
    QString Folder() const { return album_->PathOf("pictures"); }
    void MakeFiles(const QStringList& names) const;

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
};

namespace {

bool GoOn(int)
{
    return true;
}

QStringList Numbered(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QStringLiteral("%1.jpg").arg(i));
    return names;
}

} // namespace

void TestLoadFiles::init()
{
    album_ = std::make_unique<AlbumFixture>();
    dialogs_ = std::make_unique<ScriptedDialogs>();
    QVERIFY(QDir().mkpath(Folder()));
}

void TestLoadFiles::cleanup()
{
    dialogs_.reset();
    album_.reset();
}

void TestLoadFiles::MakeFiles(const QStringList& names) const
{
    for (const QString& name : names) {
        QFile file(Folder() + '/' + name);
        QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(name));
    }
}

void TestLoadFiles::CountsAndLoads()
{
    MakeFiles({"a.jpg", "b.GIF", "c.png", "d.txt"});
    album_->AddImageRow(Folder() + "/a.jpg", {{"Legend", "kept"}, {"Car0", "Anna"}});
    frmLoadFiles window;
    window.show();
    auto& feedback = Find<QLabel>(window, "lblFeedback");
    auto& types = Find<QLineEdit>(window, "txtPictureTypes");
    QCOMPARE(types.text(), "*.jpg;*.gif;*.bmp");
    Find<QWidget>(window, "dirPicturesToLoad").setProperty("Path", Folder());
    QCOMPARE(feedback.text(), "2 picture(s) selected");
    types.setText("*.*");
    QCOMPARE(feedback.text(), "4 picture(s) selected");
    types.setText("*.jpg;*.gif");
    for (int time = 0; time < 2; ++time) {
        Find<QPushButton>(window, "cmdLoad").click();
        QCOMPARE(feedback.text(), "2 picture(s) loaded");
        QCOMPARE(album_->Rows("SELECT * FROM Image"),
                 QStringList({Folder() + "/a.jpg||Anna|-|-|-|-|-|-|-|-|-|-|-|kept",
                              Folder() + "/b.GIF||-|-|-|-|-|-|-|-|-|-|-|-|"}));
    }
    types.setText("*.tif");
    Find<QPushButton>(window, "cmdLoad").click();
    QCOMPARE(feedback.text(), "0 picture(s) loaded");
}

void TestLoadFiles::TakesFilesOfAnyName()
{
    const QStringList names{"-dash.jpg",           "a'b''.jpg",      "q\"x.jpg",
                            "[1]#*%?.jpg",         "semi;colon.jpg", "line\nbreak.jpg",
                            u8"\u00e9t\u00e9.jpg", u8"e\u0301t.jpg", QString(251, u'x') + ".jpg"};
    MakeFiles(names);
    for (int time = 0; time < 2; ++time)
        QCOMPARE(LoadPictures(Folder(), names, GoOn), int(names.size()));
    QCOMPARE(album_->Rows("SELECT count(*) FROM Image"), QStringList("9"));
    for (const QString& name : names) {
        QString quoted = Folder() + '/' + name;
        quoted.replace("'", "''");
        GeneralModule::ImageSet->FindFirst("[File]='" + quoted + "'");
        QVERIFY2(!GeneralModule::ImageSet->NoMatch(), qPrintable(name));
    }
}

void TestLoadFiles::KeepsWhatWasLoadedWhenStopped()
{
    const int done = LoadPictures(Folder(), Numbered(50), [](int count) { return count < 20; });
    QCOMPARE(done, 20);
    QCOMPARE(album_->Rows("SELECT count(*) FROM Image"), QStringList("20"));
}

void TestLoadFiles::FullDiskKeepsRowsBefore()
{
    album_->AddImageRow("/before.jpg");
    const int pages = album_->Rows("PRAGMA page_count").first().toInt();
    AlbumDatabase->Execute("PRAGMA max_page_count=" + QByteArray::number(pages + 400));
    int wasFull = 0;
    try {
        LoadPictures(Folder(), Numbered(100'000), GoOn);
    } catch (const DatabaseError& error) {
        wasFull = error.GetNumber();
    }
    QCOMPARE(wasFull, int(DatabaseError::DiskFull));
    QVERIFY(album_->Rows("SELECT count(*) FROM Image").first().toInt() >= 1001);
    QCOMPARE(album_->Rows("SELECT File FROM Image ORDER BY rowid LIMIT 1"),
             QStringList("/before.jpg"));
    QCOMPARE(album_->Rows("PRAGMA integrity_check"), QStringList("ok"));
}

void TestLoadFiles::LockedAlbumIsTold()
{
    MakeFiles({"a.jpg"});
    frmLoadFiles window;
    window.show();
    Find<QWidget>(window, "dirPicturesToLoad").setProperty("Path", Folder());
    sqlite3* other = nullptr;
    QCOMPARE(sqlite3_open(album_->GetAlbum().toUtf8(), &other), SQLITE_OK);
    QCOMPARE(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    dialogs_->ExpectBoxBeginning("3260 The album is being changed", Dialogs::Icon::Critical);
    Find<QPushButton>(window, "cmdLoad").click();
    QVERIFY(dialogs_->IsDone());
    QCOMPARE(Find<QLabel>(window, "lblFeedback").text(), "Loading pictures...");
    QVERIFY(!QApplication::overrideCursor());
    sqlite3_close(other);
    Find<QPushButton>(window, "cmdLoad").click();
    QCOMPARE(Find<QLabel>(window, "lblFeedback").text(), "1 picture(s) loaded");
}

void TestLoadFiles::VanishedFolderIsTold()
{
    const auto vanish = [this](int count) {
        if (count == 500)
            QDir(Folder()).removeRecursively();
        return true;
    };
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, LoadPictures(Folder(), Numbered(3000), vanish));
    QCOMPARE(album_->Rows("SELECT count(*) FROM Image"), QStringList("1000"));
}

QTEST_MAIN(TestLoadFiles)
#include "test_load_files.moc"
