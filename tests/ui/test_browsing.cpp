// SPDX-License-Identifier: MIT
#include "ProgramTest.h"
#include "core/Parameters.h"
#include "core/ViewerFlags.h"
#include "platform/widgets/FileList.h"
#include "platform/widgets/FolderList.h"
#include "platform/widgets/PictureBox.h"

using namespace GeneralModule;

// Pictures outside the story: every way from the main window to them.
class TestBrowsing : public ProgramTest
{
    Q_OBJECT

private slots:
    void ShowsAllAndUndefined()
    {
        for (int i = 0; i < 5; ++i)
            album_->AddPicture(QString("p%1.png").arg(i), {{"Car0", i < 2 ? "-" : "known"}});
        Start();
        const auto expect = [&](const QString& legend) {
            AutoviewOn = true;
            PictureAtRandom = false;
            const auto look = [legend](QWidget& viewer) {
                QTRY_COMPARE(Legend(viewer), legend);
                QVERIFY(!AutoviewOn && PictureAtRandom);
            };
            WhenModal("frmReelvane", look, false);
        };
        expect("5 images found");
        Choose("mnuAllPictures");
        expect("2 images found");
        Choose("mnuUndefined");
        expect("2 images found");
        Click("cmdDisplayUndefined");
    }

    void FolderBeginsWithTheLast()
    {
        album_->AddPicture("a.png");
        for (const char* name : {"sub/b.png", "sub/c.bmp"})
            WriteFile(album_->PathOf(name));
        SetLastFileSelection(album_->PathOf("sub/*.jpg"));
        Start();
        const std::function<void(QWidget&)> waysOut[] = {
            [](QWidget& chooser) { ::Click(chooser, "cmdCancel"); },
            [](QWidget& chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); },
            [](QWidget& chooser) { chooser.close(); }};
        for (const auto& leave : waysOut) {
            WhenModal("frmSelectImages", [&](QWidget& chooser) {
                QCOMPARE(Folders(chooser).GetPath(),
                         QDir::toNativeSeparators(album_->PathOf("sub")));
                auto& names = ::Find<FileList>(chooser, "filPicturesToSelect");
                QCOMPARE(names.GetNames(), QStringList({"b.png", "c.bmp"}));
                ::Find<QLineEdit>(chooser, "txtPictureTypes").setText("*.bmp");
                QCOMPARE(names.GetNames(), QStringList("c.bmp"));
                Folders(chooser).SetPath(album_->PathOf(""));
                ::Find<QCheckBox>(chooser, "chkAtRandom").setChecked(true);
                leave(chooser);
            });
            Choose("mnuSelectedPictures"); // would wait for a viewer
            QVERIFY(!PictureAtRandom);
        }
        // None yet, or one that has gone, is no reason to complain.
        for (const char* last : {"", "/gone/*.*"}) {
            SetLastFileSelection(last);
            WhenModal("frmSelectImages", [](QWidget& chooser) {
                QVERIFY(!Folders(chooser).GetPath().isEmpty());
                chooser.close();
            });
            Choose("mnuSelectedPictures");
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
            QTRY_COMPARE(Legend(viewer), "2 images found");
            QVERIFY(!PictureAtRandom);
            QCOMPARE(Shown(viewer), QStringList({"known", "new"}));
        });
        QCOMPARE(GetLastFileSelection(), QDir::toNativeSeparators(folder + "/*.*"));
        ChooseFolder("mnuSelectedUndefined", folder, true, [](QWidget& viewer) {
            QTRY_COMPARE(Legend(viewer), "1 images found");
            QVERIFY(PictureAtRandom);
            QCOMPARE(Shown(viewer), QStringList("new"));
            // What is indexed drops out.
            WhenModal("frmEditImage", [](QWidget& window) {
                ::Find<QComboBox>(window, "cboCategory_0").setEditText("Anna");
                QTest::keyClick(&window, Qt::Key_Escape);
            });
            QTest::mouseClick(&::Find<PictureBox>(viewer, "imgImage_0"), Qt::RightButton);
            QCOMPARE(Shown(viewer), QStringList("new"));
            ::Click(viewer, "cmdRefresh");
            QCOMPARE(Shown(viewer), QStringList());
        });
        QCOMPARE(album_->Joined("SELECT Car0 FROM Image WHERE File LIKE '%new.png'"), "Anna");
    }

private:
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

    static QString Legend(QWidget& viewer) { return ::Find<QLabel>(viewer, "lblLegend").text(); }

    static QStringList Shown(QWidget& viewer)
    {
        QStringList names;
        for (int i = 0; i < 21; ++i) {
            const auto& box = ::Find<PictureBox>(viewer, QString("imgImage_%1").arg(i));
            if (box.isVisible())
                names += QFileInfo(box.GetTag()).completeBaseName();
        }
        return names;
    }
};

QTEST_MAIN(TestBrowsing)
#include "test_browsing.moc"
