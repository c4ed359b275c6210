// SPDX-License-Identifier: MIT
#include "core/LocalCopy.h"
#include "core/Parameters.h"
#include "core/PictureList.h"
#include "core/Settings.h"
#include "core/StartUp.h"
#include "platform/files/FileReplacement.h"
#include "support/AlbumTest.h"

#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <system_error>

using namespace GeneralModule;

// The routines that every window uses.
class TestCoreRoutines : public AlbumTest
{
    Q_OBJECT

private slots:
    void KeepsParameters()
    {
        QCOMPARE(GetParam("TimerDelay"), "");
        QCOMPARE(GetLastFileSelection(), QCoreApplication::applicationDirPath() + "/*.*");
        SetColumnLabel(4, "Person");
        SetColumnLabel(4, "Who");
        SetCaractLabel(1, "it's \"quoted\"");
        SetParam("strange's", "kept");
        QCOMPARE(ColumnLabel(4) + CaractLabel(1) + GetParam("strange's"), "Whoit's \"quoted\"kept");
        QCOMPARE(album_->Joined("SELECT Param,Value FROM Params"),
                 "Car4|Who; Caract1|it's \"quoted\"; strange's|kept");
        // Delays go to the nearest whole number, halves to the even one, within 16 bits.
        const std::pair<const char*, int> delays[] = {{"2500.5", 2500}, {"2501.5", 2502},
                                                      {"40000", 32767}, {"-1e9", -32768},
                                                      {"soon", 0},      {"nan", 0}};
        for (const auto& [stored, delay] : delays) {
            SetParam("TimerDelay", stored);
            QCOMPARE(int(GetTimerDelay()), delay);
        }
    }

    void PrefersTheLocalCopy()
    {
        const QString copy = album_->PathOf("copy.png");
        PaintPicture(copy, {4, 4}, Qt::red);
        album_->AddImageRow("/cd/it's.jpg", {{"SourceFile", copy}});
        QCOMPARE(ResolvePictureFile("/cd/it's.jpg"), copy);
        QFile::remove(copy);
        QCOMPARE(ResolvePictureFile("/cd/it's.jpg"), "/cd/it's.jpg");
        QCOMPARE(album_->Joined("SELECT SourceFile FROM Image"), "");
        QCOMPARE(ResolvePictureFile("/not/in/the/album_->jpg"), "/not/in/the/album_->jpg");
    }

    void HelpSpeaksTheUsersLanguage()
    {
        const QFileInfo english(HelpFile());
        QCOMPARE(english.fileName(), "lumenark.hlp");
        QFile translated(english.dir().filePath("lumenark_eo.hlp"));
        QVERIFY(translated.open(QIODevice::WriteOnly));
        QLocale::setDefault(QLocale("eo"));
        QCOMPARE(HelpFile(), translated.fileName());
        QLocale::setDefault(QLocale::system());
        QVERIFY(translated.remove());
        QCOMPARE(HelpFile(), english.filePath());
    }

    // How linked and other pictures follow is for picture_list_fuzz to see.
    void WhatIsPutBackComesFirst()
    {
        PictureList list;
        for (const char* file : {"gone", "linked"})
            list.AddLinked(file);
        list.Add("other");
        list.Remove("gone");
        QVERIFY(!list.HoldsLinked("other"));
        list.PutBack({"b", "c"});
        list.PutBack({"a"});
        QStringList taken;
        for (; list.Count() > 0; list.TakePicked())
            taken += list.PickNext(true, [](const QString&) { return true; });
        QCOMPARE(taken.join(u' '), "a b c linked other");
    }

    void ReplacesAFileInPrivate()
    {
        const QString place = album_->PathOf("letter");
        const auto folders = [this] {
            return QDir(album_->PathOf(".")).entryList({".lumenark-*"}, QDir::Dirs | QDir::Hidden);
        };
        WriteFile(place, "old");
        QVERIFY(QFile::setPermissions(place, QFile::ReadOwner | QFile::WriteOwner));
        WriteFile(album_->PathOf(".lumenark-mine/new"), "of the user");
        // A program that is killed leaves its folder.
        const pid_t child = fork();
        if (child == 0) {
            new FileReplacement(place);
            _exit(0);
        }
        QCOMPARE(waitpid(child, nullptr, 0), child);
        // One that was killed before it had written its number into its lock.
        const QString lock = album_->PathOf(".lumenark-early/lumenark-work");
        WriteFile(lock);
        const timeval longAgo[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
        QCOMPARE(utimes(qPrintable(lock), longAgo), 0);
        QVERIFY(QDir().mkdir(album_->PathOf(".lumenark-ended"))); // at the very beginning or end
        QCOMPARE(folders().size(), 4);
        {
            FileReplacement first(place);
            FileReplacement second(album_->PathOf("new letter"));
            QCOMPARE(folders().size(), 3); // the user's, and the two that are at work
            for (const QString& made : {first.GetPath(), QFileInfo(first.GetPath()).path()}) {
                struct stat status = {};
                QCOMPARE(stat(qPrintable(made), &status), 0);
                QCOMPARE(status.st_mode & 0077U, 0U);
            }
            WriteFile(first.GetPath(), "first");
            WriteFile(second.GetPath(), "second");
            second.Commit(FileReplacement::Taken::Refuse);
            QVERIFY_THROWS_EXCEPTION(std::system_error,
                                     first.Commit(FileReplacement::Taken::Refuse));
            QCOMPARE(ReadFile(place), "old");
            // A failure leaves the old file its journal.
            WriteFile(place + "-journal", "of the old file");
            QVERIFY(QFile::rename(place, place + "2") && QDir().mkdir(place));
            QVERIFY_THROWS_EXCEPTION(std::system_error, first.Commit());
            QCOMPARE(ReadFile(place + "-journal"), "of the old file");
            QVERIFY(QDir().rmdir(place) && QFile::rename(place + "2", place));
            first.Commit();
        }
        QCOMPARE(ReadFile(place), "first");
        QVERIFY(!QFile::exists(place + "-journal"));
        QCOMPARE(QFile::permissions(place) & 0x0077, QFile::Permissions());
        QCOMPARE(folders(), QStringList(".lumenark-mine"));
        QCOMPARE(ReadFile(album_->PathOf(".lumenark-mine/new")), "of the user");
        QVERIFY(QFile::setPermissions(place, QFile::ReadOwner));
        QVERIFY_THROWS_EXCEPTION(std::system_error, FileReplacement(QString(place)));
    }
};

QTEST_GUILESS_MAIN(TestCoreRoutines)
#include "test_core_routines.moc"
