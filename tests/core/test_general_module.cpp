// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/Parameters.h"
#include "core/PathRoutines.h"
#include "core/PictureFile.h"
#include "core/Settings.h"
#include "core/TextRoutines.h"
#include "support/AlbumFixture.h"

#include <QtTest>

using namespace GeneralModule;

class TestGeneralModule : public QObject
{
    Q_OBJECT

private slots:
    void ReplacesText()
    {
        QCOMPARE(ReplaceText("aa", "a", "aa", 1), "aaaa");
        QCOMPARE(ReplaceText("a.a.a", "a", "b", 2), "a.b.b");
        QCOMPARE(ReplaceText("aA", "A", "", 1), "a");
        QCOMPARE(ReplaceText("abc", "", "x", 1), "abc");
        QCOMPARE(ReplaceText("abc", "c", "x", 9), "abc");
        QCOMPARE(LikeSafe("Jane's trip"), "Jane?s trip");
        QCOMPARE(Quoted("it's"), "'it''s'");
    }

    void CutsPaths()
    {
        const QStringList rows[] = {{"/a/b.jpg", "/a/", "b.jpg", ""},
                                    {"C:\\Photos\\a.jpg", "C:\\Photos\\", "a.jpg", "C:"},
                                    {"a.jpg", "", "a.jpg", "a.jpg"},
                                    {"", "", "", ""},
                                    {"/a/b/", "/a/b/", "", ""}};
        for (const QStringList& row : rows) {
            const QString& path = row.first();
            QCOMPARE(QStringList({path, FolderOf(path), FileNameOf(path), DriveOf(path)}), row);
        }
    }

    void KeepsParameters()
    {
        const AlbumFixture album;
        QCOMPARE(GetParam("TimerDelay"), "");
        QCOMPARE(GetLastFileSelection(), QCoreApplication::applicationDirPath() + "/*.*");
        SetColumnLabel(4, "Person");
        SetColumnLabel(4, "Who");
        SetCaractLabel(1, "it's \"quoted\"");
        SetLastFileSelection("/a/*.jpg");
        QCOMPARE(ColumnLabel(4), "Who");
        QCOMPARE(CaractLabel(1), "it's \"quoted\"");
        QCOMPARE(GetLastFileSelection(), "/a/*.jpg");
        QCOMPARE(
            album.Rows("SELECT Param,Value FROM Params"),
            QStringList({"Car4|Who", "Caract1|it's \"quoted\"", "LastFileSelection|/a/*.jpg"}));
        SetParam("strange's", "kept");
        QCOMPARE(GetParam("strange's"), "kept");
        // Delays go to the nearest whole number, halves to the even one, within 16 bits.
        const std::pair<const char*, int> delays[] = {{"2500.5", 2500}, {"2501.5", 2502},
                                                      {"40000", 32767}, {"-1e9", -32768},
                                                      {"soon", 0},      {"nan", 0}};
        for (const auto& [stored, delay] : delays) {
            SetParam("TimerDelay", stored);
            QCOMPARE(int(GetTimerDelay()), delay);
        }
        SaveTimerDelay(10000);
        QCOMPARE(GetParam("TimerDelay"), "10000");
    }

    void PrefersTheLocalCopy()
    {
        AlbumFixture album;
        const QString copy = album.PathOf("copy.png");
        PaintPicture(copy, {4, 4}, Qt::red);
        album.AddImageRow("/cd/it's.jpg", {{"SourceFile", copy}});
        QCOMPARE(ResolvePictureFile("/cd/it's.jpg"), copy);
        QFile::remove(copy);
        QCOMPARE(ResolvePictureFile("/cd/it's.jpg"), "/cd/it's.jpg");
        QCOMPARE(album.Rows("SELECT SourceFile FROM Image"), QStringList(""));
        QCOMPARE(ResolvePictureFile("/not/in/the/album.jpg"), "/not/in/the/album.jpg");
    }

    void KeepsSettings()
    {
        const AlbumFixture album;
        const QString path = "C:\\Fotos\\été; \"x\" = 1.alb";
        SaveLastAlbum(path);
        QCOMPARE(GetLastAlbum(), path);
        QVERIFY(QFileInfo::exists(album.PathOf("settings/QVRLumenark.ini")));
        QCOMPARE(GetUserSetting("User", "Nothing"), "");
    }
};

QTEST_GUILESS_MAIN(TestGeneralModule)
#include "test_general_module.moc"
