// SPDX-License-Identifier: MIT
#include "ProgramTest.h"
#include "core/Parameters.h"
#include "core/ViewerFlags.h"
#include "platform/shell/ProgramFolder.h"
#include "platform/widgets/FileList.h"
#include "platform/widgets/FolderList.h"
#include "platform/widgets/PictureBox.h"
#include "support/Rows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

using namespace GeneralModule;

// Pictures outside the story: every way from the main window to them.
class TestBrowsing : public ProgramTest
{
    Q_OBJECT

private slots:
    void ShowsAllAndUndefined()
    {
        for (int i = 0; i < 5; ++i)
            album_->AddPicture(QStringLiteral("p%1.png").arg(i), {{"Car0", i < 2 ? "-" : "known"}});
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

    void CancelShowsNothing()
    {
        album_->AddPicture("a.png");
        SetLastFileSelection("/somewhere/*.png");
        Start();
        const std::function<void(QWidget&)> ways[] = {
            [](QWidget& chooser) { ::Click(chooser, "cmdCancel"); },
            [](QWidget& chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); },
            [](QWidget& chooser) { chooser.close(); }};
        for (const auto& leave : ways) {
            WhenModal("frmSelectImages", [&](QWidget& chooser) {
                Folders(chooser).SetPath(album_->PathOf(""));
                ::Find<QCheckBox>(chooser, "chkAtRandom").setChecked(true);
                leave(chooser);
            });
            Choose("mnuSelectedPictures"); // would wait for a viewer
            QCOMPARE(GetLastFileSelection(), "/somewhere/*.png");
            QVERIFY(!PictureAtRandom);
        }
    }

    void BeginsWithTheLastFolder()
    {
        album_->AddPicture("a.png");
        for (const char* name : {"sub/b.png", "sub/c.bmp"})
            WriteFile(album_->PathOf(name));
        Start();
        const auto look = [&](const QString& folder) {
            WhenModal("frmSelectImages", [=](QWidget& chooser) {
                QCOMPARE(Folders(chooser).GetPath(), QDir::toNativeSeparators(folder));
                QVERIFY(!::Find<QCheckBox>(chooser, "chkAtRandom").isChecked());
                if (folder.endsWith("sub")) {
                    auto& names = ::Find<FileList>(chooser, "filPicturesToSelect");
                    QCOMPARE(names.GetNames(), QStringList({"b.png", "c.bmp"}));
                    ::Find<QLineEdit>(chooser, "txtPictureTypes").setText("*.bmp");
                    QCOMPARE(names.GetNames(), QStringList("c.bmp"));
                }
                chooser.close();
            });
            Choose("mnuSelectedPictures");
        };
        look(ProgramFolder());
        SetLastFileSelection(album_->PathOf("sub/*.jpg"));
        look(album_->PathOf("sub"));
        // A folder that has gone is no reason to complain.
        SetLastFileSelection(album_->PathOf("gone/*.*"));
        WhenModal("frmSelectImages", [](QWidget& chooser) {
            QVERIFY(!Folders(chooser).GetPath().isEmpty());
            chooser.close();
        });
        Choose("mnuSelectedPictures");
    }

    void ShowsTheChosenFolder_data()
    {
        // Each beside one that it would stand for if its signs were read as a pattern.
        AddRows<QString, QString>({"name", "other"}, {{"quote", "Jane's", "Jane?s"},
                                                      {"list", "[2024] sea", "2 sea"},
                                                      {"number sign", "#1", "11"},
                                                      {"wildcards", "a*b?", "axb1"},
                                                      {"semicolon", "b ; c", "b"}});
    }

    void ShowsTheChosenFolder()
    {
        QFETCH(QString, name);
        QFETCH(QString, other);
        for (const QString& folder : {name, other})
            QVERIFY(QDir(album_->PathOf("")).mkdir(folder));
        album_->AddPicture(name + "/known.png", {{"Car0", "known"}});
        album_->AddPicture(name + "/new.png");
        album_->AddPicture(other + "/elsewhere.png");
        Start();
        const QString folder = album_->PathOf(name);
        ChooseFolder("mnuSelectedPictures", folder, false, [](QWidget& viewer) {
            QTRY_COMPARE(Legend(viewer), "2 images found");
            QCOMPARE(Shown(viewer), QStringList({"known", "new"}));
        });
        QCOMPARE(GetLastFileSelection(), QDir::toNativeSeparators(folder + "/*.*"));
        ChooseFolder("mnuSelectedUndefined", folder, false, [](QWidget& viewer) {
            QTRY_COMPARE(Legend(viewer), "1 images found");
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
        QCOMPARE(album_->Rows("SELECT Car0 FROM Image WHERE File LIKE '%new.png'"),
                 QStringList("Anna"));
    }

    void OrderIsChosen()
    {
        QStringList names;
        for (int i = 0; i < 40; ++i) {
            names += QStringLiteral("p%1").arg(i, 2, 10, QChar(u'0'));
            album_->AddPicture(names.last() + ".png", {}, {900, 600});
        }
        Start();
        for (const bool atRandom : {false, true, false}) {
            ChooseFolder("mnuSelectedPictures", album_->PathOf(""), atRandom, [&](QWidget& viewer) {
                QTRY_COMPARE(Legend(viewer), "40 images found");
                QStringList seen = Shown(viewer);
                while (seen.size() < names.size() && !Shown(viewer).isEmpty()) {
                    QTest::keyClick(&viewer, Qt::Key_Space);
                    seen += Shown(viewer);
                    QCOMPARE(Legend(viewer), QString("%1 images left").arg(40 - seen.size()));
                }
                QCOMPARE(seen != names, atRandom);
                seen.sort();
                QCOMPARE(seen, names); // each of them once
            });
        }
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
            const auto& box = ::Find<PictureBox>(viewer, QStringLiteral("imgImage_%1").arg(i));
            if (box.isVisible())
                names += QFileInfo(box.GetTag()).completeBaseName();
        }
        return names;
    }
};

QTEST_MAIN(TestBrowsing)
#include "test_browsing.moc"
