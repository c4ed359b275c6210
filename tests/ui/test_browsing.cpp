// SPDX-License-Identifier: MIT
#include "core/Parameters.h"
#include "core/ViewerFlags.h"
#include "platform/shell/ProgramFolder.h"
#include "platform/widgets/DriveBox.h"
#include "platform/widgets/FileList.h"
#include "platform/widgets/FolderList.h"
#include "platform/widgets/PictureBox.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"
#include "ui/main/frmOpenChapter.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace GeneralModule;

// Pictures outside the story: every way from the main window to them.
class TestBrowsing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void EntriesNeedPictures();
    void ShowsAllAndUndefined();
    void CancelShowsNothing_data();
    void CancelShowsNothing();
    void BeginsWithTheLastFolder();
    void ShowsTheChosenFolder_data();
    void ShowsTheChosenFolder();
    void OrderIsChosen();
    void IndexedPicturesDropOut();

private:
    void Start();
    void Choose(const char* entry) { Find<QAction>(*window_, entry).trigger(); }
    // Chooses a folder from an entry, and hands the viewer over.
    void ChooseFolder(const char* entry, const QString& folder,
                      const std::function<void(QWidget&)>& viewer, bool atRandom = false);
    static QString Legend(QWidget& viewer) { return Find<QLabel>(viewer, "lblLegend").text(); }
    static QStringList Shown(QWidget& viewer);

    std::unique_ptr<AlbumFixture> album_;
    std::unique_ptr<ScriptedDialogs> dialogs_;
    std::unique_ptr<frmOpenChapter> window_;
};

void TestBrowsing::init()
{
    album_ = std::make_unique<AlbumFixture>();
    dialogs_ = std::make_unique<ScriptedDialogs>();
}

void TestBrowsing::cleanup()
{
    window_.reset();
    dialogs_.reset();
    album_.reset();
}

void TestBrowsing::Start()
{
    window_ = std::make_unique<frmOpenChapter>(album_->GetAlbum());
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
}

QStringList TestBrowsing::Shown(QWidget& viewer)
{
    QStringList names;
    for (int i = 0; i < 21; ++i) {
        const auto& box = Find<PictureBox>(viewer, QStringLiteral("imgImage_%1").arg(i));
        if (box.isVisible())
            names += QFileInfo(box.GetTag()).completeBaseName();
    }
    return names;
}

void TestBrowsing::ChooseFolder(const char* entry, const QString& folder,
                                const std::function<void(QWidget&)>& viewer, bool atRandom)
{
    WhenModal("frmSelectImages", [&](QWidget& chooser) {
        Find<FolderList>(chooser, "dirPicturesToSelect").SetPath(folder);
        Find<QCheckBox>(chooser, "chkAtRandom").setChecked(atRandom);
        WhenModal("frmReelvane", viewer, false);
        QTest::mouseClick(&Find<QPushButton>(chooser, "cmdSelect"), Qt::LeftButton);
    });
    Choose(entry);
}

void TestBrowsing::EntriesNeedPictures()
{
    Start();
    const QStringList names{"mnuUndefined", "mnuSelectedUndefined", "mnuAllPictures",
                            "mnuSelectedPictures"};
    for (const QString& name : names)
        QVERIFY2(!Find<QAction>(*window_, name).isEnabled(), qPrintable(name));
    album_->AddImageRow("/a.jpg");
    window_->resize(700, 500);
    QTRY_VERIFY(Find<QAction>(*window_, "mnuUndefined").isEnabled());
    for (const QString& name : names)
        QVERIFY2(Find<QAction>(*window_, name).isEnabled(), qPrintable(name));
}

void TestBrowsing::ShowsAllAndUndefined()
{
    for (int i = 0; i < 5; ++i)
        album_->AddPicture(QStringLiteral("p%1.png").arg(i), {{"Car0", i < 2 ? "-" : "known"}});
    Start();
    const auto expect = [&](const QString& legend) {
        AutoviewOn = true;
        PictureAtRandom = false;
        WhenModal(
            "frmReelvane",
            [legend](QWidget& viewer) {
                QTRY_COMPARE(Legend(viewer), legend);
                QVERIFY(!AutoviewOn && PictureAtRandom);
            },
            false);
    };
    expect("5 images found");
    Choose("mnuAllPictures");
    expect("2 images found");
    Choose("mnuUndefined");
    expect("2 images found");
    QTest::mouseClick(&Find<QPushButton>(*window_, "cmdDisplayUndefined"), Qt::LeftButton);
}

void TestBrowsing::CancelShowsNothing_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("button") << "cmdCancel";
    QTest::newRow("key") << "Escape";
    QTest::newRow("frame") << "close";
}

void TestBrowsing::CancelShowsNothing()
{
    QFETCH(QString, how);
    album_->AddPicture("a.png");
    SetLastFileSelection("/somewhere/*.png");
    Start();
    WhenModal("frmSelectImages", [&](QWidget& chooser) {
        Find<FolderList>(chooser, "dirPicturesToSelect").SetPath(album_->PathOf(""));
        Find<QCheckBox>(chooser, "chkAtRandom").setChecked(true);
        if (how == "close")
            chooser.close();
        else if (how == "Escape")
            QTest::keyClick(&chooser, Qt::Key_Escape);
        else
            QTest::mouseClick(&Find<QPushButton>(chooser, how), Qt::LeftButton);
    });
    Choose("mnuSelectedPictures"); // would wait for a viewer
    QCOMPARE(GetLastFileSelection(), "/somewhere/*.png");
    QVERIFY(!PictureAtRandom);
}

void TestBrowsing::BeginsWithTheLastFolder()
{
    album_->AddPicture("a.png");
    QDir(album_->PathOf("")).mkdir("sub");
    PaintPicture(album_->PathOf("sub/b.png"), {30, 20}, Qt::red);
    PaintPicture(album_->PathOf("sub/c.bmp"), {30, 20}, Qt::red);
    Start();
    const auto look = [&](const QString& folder, const QStringList& files) {
        WhenModal("frmSelectImages", [=](QWidget& chooser) {
            QCOMPARE(Find<FolderList>(chooser, "dirPicturesToSelect").GetPath(), folder);
            QCOMPARE(Find<QLineEdit>(chooser, "txtPictureTypes").text(), "*.*");
            QVERIFY(!Find<QCheckBox>(chooser, "chkAtRandom").isChecked());
            auto& names = Find<FileList>(chooser, "filPicturesToSelect");
            if (!files.isEmpty())
                QCOMPARE(names.GetNames(), files);
            Find<QLineEdit>(chooser, "txtPictureTypes").setText("*.bmp");
            QCOMPARE(names.GetNames(), files.filter(".bmp"));
            chooser.close();
        });
        Choose("mnuSelectedPictures");
    };
    look(QDir::toNativeSeparators(ProgramFolder()), {});
    SetLastFileSelection(album_->PathOf("sub/*.jpg"));
    look(QDir::toNativeSeparators(album_->PathOf("sub")), {"b.png", "c.bmp"});
    // A folder that has gone is no reason to complain.
    SetLastFileSelection(album_->PathOf("gone/*.*"));
    WhenModal("frmSelectImages", [](QWidget& chooser) {
        QVERIFY(!Find<FolderList>(chooser, "dirPicturesToSelect").GetPath().isEmpty());
        chooser.close();
    });
    Choose("mnuSelectedPictures");
}

void TestBrowsing::ShowsTheChosenFolder_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"plain", "Jane's", "[2024] sea", "#1", "a*b?", "a]b[", "b ; c"})
        QTest::newRow(name) << name;
}

void TestBrowsing::ShowsTheChosenFolder()
{
    QFETCH(QString, name);
    for (const QString& folder : {name, QString("2 sea"), QString("11"), QString("axb1"),
                                  QString("Jane?s"), QString("other")})
        QDir(album_->PathOf("")).mkdir(folder);
    album_->AddPicture(name + "/known.png", {{"Car0", "known"}});
    album_->AddPicture(name + "/new.png");
    for (const char* folder : {"2 sea", "11", "axb1", "Jane?s", "other"})
        album_->AddPicture(QString(folder) + "/elsewhere.png");
    Start();
    const QString folder = album_->PathOf(name);
    ChooseFolder("mnuSelectedPictures", folder, [](QWidget& viewer) {
        QTRY_COMPARE(Legend(viewer), "2 images found");
        QCOMPARE(Shown(viewer), QStringList({"known", "new"}));
    });
    QCOMPARE(GetLastFileSelection(), QDir::toNativeSeparators(folder + "/*.*"));
    ChooseFolder("mnuSelectedUndefined", folder, [](QWidget& viewer) {
        QTRY_COMPARE(Legend(viewer), "1 images found");
        QCOMPARE(Shown(viewer), QStringList("new"));
    });
    // The folder comes up again as it was chosen.
    WhenModal("frmSelectImages", [&](QWidget& chooser) {
        QCOMPARE(Find<FolderList>(chooser, "dirPicturesToSelect").GetPath(),
                 QDir::toNativeSeparators(folder));
        chooser.close();
    });
    Choose("mnuSelectedPictures");
}

void TestBrowsing::OrderIsChosen()
{
    QStringList names;
    for (int i = 0; i < 40; ++i) {
        names += QStringLiteral("p%1").arg(i, 2, 10, QChar(u'0'));
        album_->AddPicture(names.last() + ".png", {}, {900, 600});
    }
    Start();
    for (const bool atRandom : {false, true, false}) {
        ChooseFolder(
            "mnuSelectedPictures", album_->PathOf(""),
            [&](QWidget& viewer) {
                QTRY_COMPARE(Legend(viewer), "40 images found");
                QStringList seen = Shown(viewer);
                while (seen.size() < names.size() && !Shown(viewer).isEmpty()) {
                    QTest::keyClick(&viewer, Qt::Key_Space);
                    seen += Shown(viewer);
                    QCOMPARE(Legend(viewer),
                             QStringLiteral("%1 images left").arg(names.size() - seen.size()));
                }
                QCOMPARE(seen != names, atRandom);
                seen.sort();
                QCOMPARE(seen, names); // each of them once
            },
            atRandom);
    }
}

void TestBrowsing::IndexedPicturesDropOut()
{
    for (const char* name : {"a.png", "b.png", "c.png"})
        album_->AddPicture(name);
    Start();
    ChooseFolder("mnuSelectedUndefined", album_->PathOf(""), [&](QWidget& viewer) {
        QTRY_COMPARE(Legend(viewer), "3 images found");
        auto& box = Find<PictureBox>(viewer, "imgImage_1");
        QCOMPARE(QFileInfo(box.GetTag()).fileName(), "b.png");
        WhenModal("frmEditImage", [](QWidget& window) {
            Find<QComboBox>(window, "cboCategory_0").setEditText("Anna");
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        QTest::mouseClick(&box, Qt::RightButton);
        QCOMPARE(Shown(viewer).size(), 3);
        QTest::mouseClick(&Find<QPushButton>(viewer, "cmdRefresh"), Qt::LeftButton);
        QCOMPARE(Legend(viewer), "2 images found");
        QCOMPARE(Shown(viewer), QStringList({"a", "c"}));
    });
    QCOMPARE(album_->Rows("SELECT Car0 FROM Image WHERE File LIKE '%b.png'"), QStringList("Anna"));
}

QTEST_MAIN(TestBrowsing)
#include "test_browsing.moc"
