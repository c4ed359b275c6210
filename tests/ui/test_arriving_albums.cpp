// SPDX-License-Identifier: MIT
#include "ProgramTest.h"
#include "core/RecentAlbums.h"

#include <QMimeData>

using namespace GeneralModule;

// Albums and pictures that come to the main window by another way than its file dialogs.
class TestArrivingAlbums : public ProgramTest
{
    Q_OBJECT

private slots:
    void OffersTheAlbumsOpenedLately()
    {
        const QString here = album_->GetAlbum();
        const QString other = OtherAlbum("R&D");
        AddChapters({"Here"});
        Start(other);
        auto* menu = Find<QMenu>("mnuRecent");
        QCOMPARE(RecentAlbums(), QStringList({other, here}));
        QVERIFY2(menu->actions()[0]->text().contains("R&&D.alb"),
                 qPrintable(menu->actions()[0]->text()));
        menu->actions()[1]->trigger();
        QTRY_COMPARE(FirstChapter(), "Here");
        QCOMPARE(RecentAlbums(), QStringList({here, other}));

        // One that has gone is told of, and the list is not longer for it.
        QVERIFY(QFile::remove(other));
        dialogs_->ExpectBoxBeginning("Error 3024 ", Icon::Warning);
        menu->actions()[1]->trigger();
        QTRY_VERIFY(dialogs_->IsDone());
        QVERIFY(!window_->AlbumOpen());
        for (int i = 0; i < 12; ++i)
            RememberRecentAlbum(QStringLiteral("/%1.alb").arg(i));
        QCOMPARE(RecentAlbums().size(), 10);
        QCOMPARE(RecentAlbums().first(), "/11.alb");
    }

    void OpensADroppedAlbum()
    {
        const QString other = OtherAlbum("other");
        AddChapters({"Here"});
        Start(other);
        QVERIFY(Drop({album_->GetAlbum()}));
        QCOMPARE(FirstChapter(), "Here");
        // Another window may hold something that is not saved.
        WhenModal("frmAbout", [&](QWidget& about) {
            QVERIFY(!Drop({other}));
            about.close();
        });
        Choose("mnuAbout");
        QCOMPARE(FirstChapter(), "Here");
    }

    void LoadsDroppedPictures()
    {
        const QString held = album_->AddPicture("held.jpg", {{"Legend", "kept"}});
        QVERIFY(QDir(album_->PathOf({})).mkdir("more"));
        for (const char* name : {"one.jpg", "more/two.PNG", "more/note.txt"})
            QVERIFY(QFile::copy(held, album_->PathOf(name)));
        Start();
        dialogs_->ExpectBox("2 picture(s) loaded\n1 picture(s) were in the album already\n"
                            "2 file(s) left out: no pictures");
        QVERIFY(Drop({held, album_->PathOf("one.jpg"), album_->PathOf("more"),
                      album_->PathOf("more/note.txt"), "https://example.org/three.jpg"}));
        QVERIFY(dialogs_->IsDone());
        QCOMPARE(album_->Rows("SELECT File,Legend,Car0 FROM Image ORDER BY File"),
                 QStringList({held + "|kept|-", album_->PathOf("more/two.PNG") + "||-",
                              album_->PathOf("one.jpg") + "||-"}));
    }

    void RefusesWhatItCannotTake()
    {
        const QString picture = album_->PathOf("a.jpg");
        PaintPicture(picture, {6, 4}, Qt::red);
        const QString broken = album_->PathOf("broken.alb");
        QVERIFY(QFile::copy(picture, broken));
        Start();
        const std::vector<std::pair<QStringList, QString>> drops{
            {{album_->GetAlbum(), OtherAlbum("b")}, "Please drop one album at a time."},
            {{picture, album_->GetAlbum()},
             "Please drop either an album, to open it, or pictures, to load them."},
            {{"https://example.org/a.jpg"},
             "There is neither an album nor a picture among these files."},
            {{broken}, "Error 3343 "},
            {{picture}, "Please open or create an album first, then drop the pictures."}};
        for (const auto& [paths, complaint] : drops) {
            dialogs_->ExpectBoxBeginning(complaint, Icon::Warning);
            Drop(paths);
            QVERIFY(dialogs_->IsDone());
        }
        QVERIFY(!window_->AlbumOpen());
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image"), "0");
    }

private:
    // False when the window does not take the files at all.
    bool Drop(const QStringList& paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls += path.contains("://") ? QUrl(path) : QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_, &drop);
        QApplication::processEvents();
        return true;
    }

    QString OtherAlbum(const QString& name)
    {
        const QString path = album_->PathOf(name + ".alb");
        return QFile::copy(album_->GetAlbum(), path) ? path : QString();
    }

    QString FirstChapter()
    {
        const auto* item = Find<QListWidget>("lstChapter")->item(0);
        return item ? item->text() : QString();
    }
};

QTEST_MAIN(TestArrivingAlbums)
#include "test_arriving_albums.moc"
