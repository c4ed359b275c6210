// SPDX-License-Identifier: MIT
#include "ProgramTest.h"
#include "core/Parameters.h"
#include "core/RecentAlbums.h"
#include "platform/widgets/FileList.h"
#include "platform/widgets/FolderList.h"
#include "support/Rows.h"
#include "viewer/OpenViewer.h"
#include "viewer/ViewerFlags.h"

#include <QMimeData>

#include <filesystem>
#include <fstream>

#include <sys/resource.h>
#include <unistd.h>

using namespace GeneralModule;

// While one lives, this process can open no file and no folder.
class NoMoreFiles
{
public:
    NoMoreFiles()
    {
        getrlimit(RLIMIT_NOFILE, &usual_);
        const int next = dup(0);
        close(next);
        const rlimit none{rlim_t(next), usual_.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &usual_); }
    NoMoreFiles(const NoMoreFiles&) = delete;
    NoMoreFiles& operator=(const NoMoreFiles&) = delete;

private:
    rlimit usual_;
};

// Pictures outside the story, and every other way to them and to albums than the file dialogs.
class TestBrowsing : public ProgramTest
{
    Q_OBJECT

private slots:
    void ShowsAllAndUndefined()
    {
        for (int i = 0; i < 5; ++i)
            album_->AddPicture(QString("p%1.png").arg(i), {{"Car0", i < 2 ? "-" : "known"}});
        Start();
        for (const bool isAll : {true, false}) {
            AutoviewOn = true;
            PictureAtRandom = false;
            const auto look = [isAll](QWidget& viewer) {
                QTRY_COMPARE(OpenViewer::LegendOf(viewer),
                             isAll ? "5 images found" : "2 images found");
                QVERIFY(!AutoviewOn && PictureAtRandom);
            };
            WhenModal("frmReelvane", look, false);
            isAll ? Choose("mnuAllPictures") : Click("cmdDisplayUndefined");
        }
    }

    void FolderBeginsWithTheLast()
    {
        album_->AddPicture("a.png");
        for (const char* name : {"sub/b.png", "sub/c.bmp"})
            WriteFile(album_->PathOf(name));
        Start();
        // One that has gone is no reason to complain.
        for (const QString& last : {QString("/gone/*.*"), album_->PathOf("sub/*.jpg")}) {
            SetLastFileSelection(last);
            WhenModal("frmSelectImages", [&](QWidget& chooser) {
                auto& names = ::Find<FileList>(chooser, "filPicturesToSelect");
                ::Find<QLineEdit>(chooser, "txtPictureTypes").setText("*.bmp");
                const QStringList expected{"c.bmp"};
                QCOMPARE(names.GetNames(), last.startsWith("/gone") ? QStringList() : expected);
                Folders(chooser).SetPath(album_->PathOf(""));
                ::Find<QCheckBox>(chooser, "chkAtRandom").setChecked(true);
                last.startsWith("/gone") ? void(chooser.close()) : ::Click(chooser, "cmdCancel");
            });
            Choose("mnuSelectedPictures"); // would wait for a viewer
            QVERIFY(!PictureAtRandom);
        }
    }

    void ShowsTheChosenFolder()
    {
        // Beside one that it would stand for if its signs were read as a pattern.
        const QString name = "Jane's [2024] #1 a*b? ; c";
        const QString other = "Jane's 2 11 axb1 ; c";
        for (const QString& folder : {name, other})
            QVERIFY(QDir(album_->PathOf("")).mkdir(folder));
        album_->AddPicture(name + "/known.png", {{"Car0", "known"}});
        album_->AddPicture(name + "/new.png");
        album_->AddPicture(other + "/elsewhere.png");
        Start();
        const QString folder = album_->PathOf(name);
        ChooseFolder("mnuSelectedPictures", folder, false, [](QWidget& viewer) {
            QTRY_COMPARE(OpenViewer::LegendOf(viewer), "2 images found");
            QVERIFY(!PictureAtRandom);
            QCOMPARE(OpenViewer::Shown(viewer), QStringList({"known", "new"}));
        });
        QCOMPARE(GetLastFileSelection(), QDir::toNativeSeparators(folder + "/*.*"));
        ChooseFolder("mnuSelectedUndefined", folder, true, [this](QWidget& viewer) {
            QTRY_COMPARE(OpenViewer::LegendOf(viewer), "1 images found");
            QVERIFY(PictureAtRandom);
            QCOMPARE(OpenViewer::Shown(viewer), QStringList("new"));
            // What is indexed drops out.
            album_->Execute("UPDATE Image SET Car0='Anna' WHERE File LIKE '%new.png'");
            ::Click(viewer, "cmdRefresh");
            QCOMPARE(OpenViewer::Shown(viewer), QStringList());
        });
    }

    void OpensRecentAndDroppedAlbums()
    {
        const QString here = album_->GetAlbum();
        const QString other = OtherAlbum("R&D");
        AddChapters({"Here"});
        Start(other);
        auto* menu = Find<QMenu>("mnuRecent");
        QCOMPARE(RecentAlbums(), QStringList({other, here}));
        QVERIFY(menu->actions()[0]->text().contains("R&&D.alb"));
        menu->actions()[1]->trigger();
        QTRY_COMPARE(FirstChapter(), "Here");
        QCOMPARE(RecentAlbums(), QStringList({here, other}));
        // By dropping one, but not while another window may hold something that is not saved.
        QVERIFY(Drop({other}));
        QCOMPARE(FirstChapter(), "");
        WhenModal("frmAbout", [&](QWidget& about) {
            QVERIFY(!Drop({here}));
            about.close();
        });
        Choose("mnuAbout");
        QCOMPARE(RecentAlbums(), QStringList({other, here}));

        for (int i = 0; i < 12; ++i)
            RememberRecentAlbum(QStringLiteral("/%1.alb").arg(i));
        QCOMPARE(RecentAlbums().size(), 10);
        QCOMPARE(RecentAlbums().first(), "/11.alb");
    }

    void LoadsDroppedPictures()
    {
        const QString held = album_->AddPicture("held.jpg", {{"Legend", "kept"}});
        QVERIFY(QDir(album_->PathOf({})).mkdir("more"));
        for (const char* name : {"one.jpg", "more/two.PNG", "more/note.txt"})
            QVERIFY(QFile::copy(held, album_->PathOf(name)));
        const std::string noText = album_->PathOf("more").toStdString() + "/\xff.jpg";
        QVERIFY(std::ofstream(noText).good());
        Start();
        dialogs_->ExpectBox("2 picture(s) loaded\n1 picture(s) were in the album already\n"
                            "2 file(s) left out: no pictures\n"
                            "2 file(s) left out: their names are not valid text");
        QVERIFY(Drop({held, album_->PathOf("one.jpg"), album_->PathOf("more"),
                      album_->PathOf("more/note.txt"), "https://example.org/three.jpg",
                      "file:///nowhere/%FF.jpg"}));
        QVERIFY(dialogs_->IsDone() && std::filesystem::remove(noText));
        QCOMPARE(album_->Rows("SELECT File,Legend,Car0 FROM Image ORDER BY File"),
                 QStringList({held + "|kept|-", album_->PathOf("more/two.PNG") + "||-",
                              album_->PathOf("one.jpg") + "||-"}));
        // The folders inside only where the user says so.
        QVERIFY(QDir(album_->PathOf("more")).mkpath("in/side"));
        QVERIFY(QFile::copy(held, album_->PathOf("more/in/side/deep.jpg")));
        for (const auto& [answer, message] :
             {std::pair(Answer::Cancel, ""), std::pair(Answer::No, "0 picture(s) loaded"),
              std::pair(Answer::Yes, "1 picture(s) loaded")}) {
            dialogs_->ExpectBox("Load the pictures of the folders inside, too ?", Icon::Question,
                                Buttons::YesNoCancel, answer);
            if (*message)
                dialogs_->ExpectBoxBeginning(message, Icon::Information);
            QVERIFY(Drop({album_->PathOf("more")}));
            QVERIFY(dialogs_->IsDone());
        }
        // Who stops the search gets none of what was found.
        QVERIFY(QFile::copy(held, album_->PathOf("more/late.jpg")));
        for (const int patience : {0, 2}) {
            StoppingDialogs stopping(patience);
            stopping.ExpectBox("Load the pictures of the folders inside, too ?", Icon::Question,
                               Buttons::YesNoCancel, Answer::Yes);
            QVERIFY(Drop({album_->PathOf("more")}));
            QVERIFY(stopping.IsDone());
        }
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image"), "4");
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
            const InRow row(complaint);
            dialogs_->ExpectBoxBeginning(complaint, Icon::Warning);
            Drop(paths);
            QVERIFY(dialogs_->IsDone());
        }
        {
            const NoMoreFiles none;
            const QString folder = album_->PathOf("");
            dialogs_->ExpectBoxBeginning(
                "There is neither an album nor a picture among these files.\nThe folder '" +
                    QDir(folder).absolutePath() + "' cannot be read: ",
                Icon::Warning);
            Drop({folder});
        }
        QVERIFY(dialogs_->IsDone());
        QVERIFY(!window_->AlbumOpen());
        QCOMPARE(album_->Joined("SELECT count(*) FROM Image"), "0");
    }

private:
    bool Drop(const QStringList& paths) { return DropFiles(*window_, paths); }

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

    // Chooses a folder from an entry, and hands the viewer over.
    void ChooseFolder(const char* entry, const QString& folder, bool atRandom,
                      const std::function<void(QWidget&)>& viewer)
    {
        WhenModal("frmSelectImages", [&](QWidget& chooser) {
            Folders(chooser).SetPath(folder);
            ::Find<QCheckBox>(chooser, "chkAtRandom").setChecked(atRandom);
            WhenModal("frmReelvane", viewer, false);
            ::Click(chooser, "cmdSelect");
        });
        Choose(entry);
    }

    static FolderList& Folders(QWidget& chooser)
    {
        return ::Find<FolderList>(chooser, "dirPicturesToSelect");
    }
};

QTEST_MAIN(TestBrowsing)
#include "test_browsing.moc"
