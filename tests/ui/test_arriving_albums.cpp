// SPDX-License-Identifier: MIT
#include "core/RecentAlbums.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"
#include "ui/main/frmOpenChapter.h"

#include <QAction>
#include <QDropEvent>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QtTest>

using namespace GeneralModule;

// Albums and pictures that come to the main window by another way than its file dialogs.
class TestArrivingAlbums : public QObject
{
    Q_OBJECT

private slots:
    void OffersTheAlbumsOpenedLately();
    void OpensADroppedAlbum();
    void LoadsDroppedPictures();
    void RefusesWhatItCannotTake();
};

namespace {

// False when the window does not take the files at all.
bool Drop(QWidget& window, const QStringList& paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls += path.contains("://") ? QUrl(path) : QUrl::fromLocalFile(path);
    data.setUrls(urls);
    QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QApplication::processEvents();
    return true;
}

QString OtherAlbum(const AlbumFixture& album, const QString& chapter)
{
    const QString path = album.PathOf(chapter + ".alb");
    if (!QFile::copy(album.GetAlbum(), path))
        qFatal("the album cannot be copied");
    return path;
}

QString CurrentChapter(frmOpenChapter& window)
{
    const auto* item = Find<QListWidget>(window, "lstChapter").currentItem();
    return item ? item->text() : QString();
}

} // namespace

void TestArrivingAlbums::OffersTheAlbumsOpenedLately()
{
    AlbumFixture album;
    ScriptedDialogs dialogs;
    const QString other = OtherAlbum(album, "R&D");
    album.AddChapter("Here");
    frmOpenChapter window(other);
    window.show();
    auto& menu = Find<QMenu>(window, "mnuRecent");
    QCOMPARE(RecentAlbums(), QStringList({other, album.GetAlbum()}));
    QVERIFY(menu.isEnabled());
    QVERIFY2(menu.actions()[0]->text().contains("R&&D.alb"), qPrintable(menu.actions()[0]->text()));

    menu.actions()[1]->trigger();
    QTRY_COMPARE(CurrentChapter(window), "Here");
    QCOMPARE(RecentAlbums(), QStringList({album.GetAlbum(), other}));
    QVERIFY(menu.actions()[0]->text().contains("story.alb"));

    // One that has gone is told of, and the list is not longer for it.
    QVERIFY(QFile::remove(other));
    dialogs.ExpectBoxBeginning("Error 3024 ", Dialogs::Icon::Warning);
    menu.actions()[1]->trigger();
    QTRY_VERIFY(dialogs.IsDone());
    QVERIFY(!window.AlbumOpen);
    QCOMPARE(RecentAlbums().size(), 2);

    for (int i = 0; i < 12; ++i)
        RememberRecentAlbum(QStringLiteral("/%1.alb").arg(i));
    QCOMPARE(RecentAlbums().size(), 10);
    QCOMPARE(RecentAlbums().first(), "/11.alb");
}

void TestArrivingAlbums::OpensADroppedAlbum()
{
    AlbumFixture album;
    ScriptedDialogs dialogs;
    const QString other = OtherAlbum(album, "other");
    album.AddChapter("Here");
    frmOpenChapter window(other);
    window.show();
    QVERIFY(Drop(window, {album.GetAlbum()}));
    QCOMPARE(CurrentChapter(window), "Here");

    // Another window may hold something that is not saved.
    WhenModal("frmAbout", [&](QWidget& about) {
        QVERIFY(!Drop(window, {other}));
        about.close();
    });
    Find<QAction>(window, "mnuAbout").trigger();
    QCOMPARE(CurrentChapter(window), "Here");
}

void TestArrivingAlbums::LoadsDroppedPictures()
{
    AlbumFixture album;
    ScriptedDialogs dialogs;
    album.AddPicture("held.jpg", {{"Legend", "kept"}});
    QVERIFY(QDir(album.PathOf({})).mkdir("more"));
    for (const char* name : {"one.jpg", "more/two.PNG", "more/note.txt"})
        QVERIFY(QFile::copy(album.PathOf("held.jpg"), album.PathOf(name)));
    frmOpenChapter window(album.GetAlbum());
    window.show();
    dialogs.ExpectBox("2 picture(s) loaded\n1 picture(s) were in the album already\n"
                      "2 file(s) left out: no pictures");
    QVERIFY(Drop(window, {album.PathOf("held.jpg"), album.PathOf("one.jpg"), album.PathOf("more"),
                          album.PathOf("more/note.txt"), "https://example.org/three.jpg"}));
    QVERIFY(dialogs.IsDone());
    QCOMPARE(album.Rows("SELECT File,Legend FROM Image ORDER BY File"),
             QStringList({album.PathOf("held.jpg") + "|kept", album.PathOf("more/two.PNG") + "|",
                          album.PathOf("one.jpg") + "|"}));
    QCOMPARE(album.Rows("SELECT count(*) FROM Image WHERE Car0='-' AND Car11='-'"),
             QStringList("3"));
}

void TestArrivingAlbums::RefusesWhatItCannotTake()
{
    AlbumFixture album;
    ScriptedDialogs dialogs;
    const QString picture = album.PathOf("a.jpg");
    PaintPicture(picture, {6, 4}, Qt::red);
    frmOpenChapter window(album.GetAlbum());
    window.show();
    const auto warning = Dialogs::Icon::Warning;
    dialogs.ExpectBox("Please drop one album at a time.", warning);
    Drop(window, {album.GetAlbum(), OtherAlbum(album, "b")});
    dialogs.ExpectBox("Please drop either an album, to open it, or pictures, to load them.",
                      warning);
    Drop(window, {picture, album.GetAlbum()});
    dialogs.ExpectBox("There is neither an album nor a picture among these files.", warning);
    Drop(window, {"https://example.org/a.jpg"});
    QCOMPARE(album.Rows("SELECT count(*) FROM Image"), QStringList("0"));

    QFile broken(album.PathOf("broken.alb"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no album") > 0);
    broken.close();
    dialogs.ExpectBoxBeginning("Error 3343 ", warning);
    Drop(window, {broken.fileName()});
    QVERIFY(!window.AlbumOpen);
    dialogs.ExpectBox("Please open or create an album first, then drop the pictures.", warning);
    Drop(window, {picture});
    QVERIFY(dialogs.IsDone());
}

QTEST_MAIN(TestArrivingAlbums)
#include "test_arriving_albums.moc"
