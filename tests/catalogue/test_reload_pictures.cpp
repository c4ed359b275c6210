// SPDX-License-Identifier: MIT
#include "catalogue/MovedPictures.h"
#include "catalogue/frmReloadPictures.h"
#include "core/Album.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

class TestReloadPictures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ListsFoldersOfNeighbours();
    void RepointsByItsWindow();
    void TakesFolderNamesAsTheyAre_data();
    void TakesFolderNamesAsTheyAre();
    void NewFolderBelowTheOld();
    void FailureKeepsWhatWasDone();

private:
    QString MakeFile(const QString& path) const;
    QStringList Files() const { return album_->Rows("SELECT File FROM Image ORDER BY rowid"); }

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
};

namespace {

bool GoOn(int)
{
    return true;
}

} // namespace

void TestReloadPictures::init()
{
    album_ = std::make_unique<AlbumFixture>();
    dialogs_ = std::make_unique<ScriptedDialogs>();
}

void TestReloadPictures::cleanup()
{
    dialogs_.reset();
    album_.reset();
}

QString TestReloadPictures::MakeFile(const QString& path) const
{
    const QString full = album_->PathOf(path);
    QDir().mkpath(QFileInfo(full).path());
    QFile file(full);
    if (!file.open(QIODevice::WriteOnly))
        QTest::qFail(qPrintable("cannot write " + full), __FILE__, __LINE__);
    return full;
}

void TestReloadPictures::ListsFoldersOfNeighbours()
{
    for (const char* file : {"/a/1.jpg", "/A/2.jpg", "/b/3.jpg", "/a/4.jpg", "C:\\p\\5.jpg", "6"})
        album_->AddImageRow(file);
    QCOMPARE(PictureFolders(), QStringList({"/a/", "/b/", "/a/", "C:\\p\\", ""}));
}

void TestReloadPictures::RepointsByItsWindow()
{
    album_->AddImageRow("C:\\Photos\\a.jpg", {{"Legend", "kept"}});
    album_->AddImageRow("C:\\Photos\\sub\\b.jpg");
    album_->AddImageRow("C:\\Photos\\gone.jpg");
    album_->AddImageRow("C:\\Photos\\noextension");
    album_->AddImageRow("C:\\Other\\a.jpg");
    const QString a = MakeFile("new/a.jpg");
    const QString b = MakeFile("new/b.jpg");
    MakeFile("new/noextension");
    frmReloadPictures window;
    window.show();
    auto& feedback = Find<QLabel>(window, "lblFeedback");
    auto& reload = Find<QPushButton>(window, "cmdReloadPictures");
    QCOMPARE(Find<QLabel>(window, "lblOldReferences").text(), "C:\\Photos\\*.*");
    QCOMPARE(Find<QLabel>(window, "lblNewReferences").text(), "New reference");
    dialogs_->ExpectBoxBeginning("Please choose the new folder first", Dialogs::Icon::Warning);
    reload.click();
    Find<QWidget>(window, "dirNewReferences").setProperty("Path", album_->PathOf("new"));
    QCOMPARE(Find<QLabel>(window, "lblNewReferences").text(), album_->PathOf("new/*.*"));
    reload.click();
    QCOMPARE(feedback.text(), "2 picture references updated");
    QCOMPARE(Files(), QStringList({a, b, "C:\\Photos\\gone.jpg", "C:\\Photos\\noextension",
                                   "C:\\Other\\a.jpg"}));
    QCOMPARE(album_->Rows("SELECT Legend FROM Image LIMIT 1"), QStringList("kept"));
    Find<QListWidget>(window, "lstOldReferences").setCurrentRow(3);
    QCOMPARE(feedback.text(), "");
    QCOMPARE(Find<QLabel>(window, "lblOldReferences").text(), "C:\\Other\\*.*");
}

void TestReloadPictures::TakesFolderNamesAsTheyAre_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("other");
    QTest::newRow("quote") << "/it's/"
                           << "/its/";
    QTest::newRow("list") << "/a[1-3]/"
                          << "/a2/";
    QTest::newRow("wildcards") << "/a*?#/"
                               << "/abc1/";
}

void TestReloadPictures::TakesFolderNamesAsTheyAre()
{
    QFETCH(QString, folder);
    QFETCH(QString, other);
    album_->AddImageRow(folder + "x.jpg");
    album_->AddImageRow(other + "x.jpg");
    const QString moved = MakeFile("n'e[w]/x.jpg");
    QCOMPARE(RepointPictures(folder, album_->PathOf("n'e[w]"), GoOn), 1);
    QCOMPARE(Files(), QStringList({moved, other + "x.jpg"}));
}

void TestReloadPictures::NewFolderBelowTheOld()
{
    QStringList moved;
    for (const char* name : {"1.jpg", "2.jpg", "3.jpg"}) {
        moved += MakeFile(QStringLiteral("old/new/") + name);
        album_->AddImageRow(album_->PathOf(QStringLiteral("old/") + name));
    }
    const QString folder = album_->PathOf("old/");
    QCOMPARE(RepointPictures(folder, folder + "new", GoOn), 3);
    QCOMPARE(Files(), moved);
    // To where they are: each counts, and nothing changes.
    QCOMPARE(RepointPictures(folder, folder + "new", GoOn), 3);
    QCOMPARE(Files(), moved);
}

void TestReloadPictures::FailureKeepsWhatWasDone()
{
    QStringList moved;
    for (const char* name : {"1.jpg", "2.jpg", "3.jpg"}) {
        moved += MakeFile(QStringLiteral("new/") + name);
        album_->AddImageRow(QStringLiteral("/old/") + name);
    }
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

QTEST_MAIN(TestReloadPictures)
#include "test_reload_pictures.moc"
