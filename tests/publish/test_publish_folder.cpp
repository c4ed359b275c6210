// SPDX-License-Identifier: MIT
// What is published again and again: nothing of others is touched, nothing is half there.
#include "publish/PublishFolder.h"
#include "publish/PublishReport.h"
#include "support/TestFiles.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <functional>

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

static std::function<bool()> beforeRename; // false: it fails

// Stands before the system's own, so that it can fail, and the program can end, at each one.
extern "C" int rename(const char* from, const char* to)
{
    static const auto real =
        reinterpret_cast<int (*)(const char*, const char*)>(dlsym(RTLD_NEXT, "rename"));
    if (beforeRename && !beforeRename()) {
        errno = EIO;
        return -1;
    }
    return real(from, to);
}

class TestPublishFolder : public QObject
{
    Q_OBJECT

private:
    // Name and contents of all files, but for the list.
    QMap<QString, QByteArray> Contents() const
    {
        QMap<QString, QByteArray> files;
        QDirIterator each(path_, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (each.hasNext()) {
            const QString name = QDir(path_).relativeFilePath(each.next());
            if (name != publishListName && !name.startsWith(".lumenark-publish/"))
                files.insert(name, ReadFile(each.filePath()));
        }
        return files;
    }

    // Publishes files whose contents also tell what they are made from; how many were made.
    int Publish(const QMap<QString, QByteArray>& files, const QString& kind = "web") const
    {
        PublishFolder folder(path_, kind);
        const int made = Fill(folder, files);
        folder.Commit();
        return made;
    }

    static int Fill(PublishFolder& folder, const QMap<QString, QByteArray>& files)
    {
        int made = 0;
        for (auto file = files.begin(); file != files.end(); ++file) {
            if (folder.Keeps(file.key(), file.value()))
                continue;
            WriteFile(folder.PathFor(file.key(), file.value()), file.value());
            ++made;
        }
        return made;
    }

    QString Refusal(const QMap<QString, QByteArray>& files, const QString& kind = "web") const
    {
        try {
            Publish(files, kind);
        } catch (const PublishError& error) {
            return error.GetText();
        }
        return "not refused";
    }

    std::unique_ptr<QTemporaryDir> around_;
    QString path_;
    const QMap<QString, QByteArray> first_{
        {"a/1.jpg", "one"}, {"a/2.jpg", "two"}, {"b/3.jpg", "three"}, {"index.html", "first"}};
    const QMap<QString, QByteArray> second_{
        {"a/1.jpg", "one"}, {"a/2.jpg", "2"}, {"c/4.jpg", "four"}, {"index.html", "second"}};

private slots:
    void init()
    {
        around_ = std::make_unique<QTemporaryDir>();
        path_ = around_->filePath("new/site");
    }
    void cleanup() { beforeRename = {}; }

    void MakesOnlyWhatChanged()
    {
        QCOMPARE(Publish(first_), 4);
        QCOMPARE(Contents(), first_);
        QCOMPARE(Publish(first_), 0);
        WriteFile(path_ + "/a/mine.txt", "mine");
        WriteFile(path_ + "/b/3.jpg", "edited");
        QCOMPARE(Publish(second_), 3);
        QMap<QString, QByteArray> expected = second_;
        expected.insert("a/mine.txt", "mine");
        expected.insert("b/3.jpg", "edited"); // changed, so it is no longer ours
        QCOMPARE(Contents(), expected);
        QCOMPARE(Publish({{"x", "x"}}), 1);
        QCOMPARE(QDir(path_).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({"a", "b"})); // empty ones and the hidden one are gone
        QFile::remove(path_ + "/x");
        QCOMPARE(Publish({{"x", "x"}}), 1);
    }

    void RefusesWhatIsNotOurs()
    {
        QDir().mkpath(path_);
        WriteFile(path_ + "/.hidden");
        Publish(first_);
        const auto before = Contents();
        QVERIFY(Refusal(second_, "album").contains("Something else was published"));
        WriteFile(path_ + "/c/4.jpg", "mine");
        QVERIFY(Refusal(second_).contains("is in the way"));
        QFile::remove(path_ + "/c/4.jpg");
        WriteFile(path_ + "/index.html", "edited");
        QVERIFY(Refusal(second_).contains("has been changed"));
        WriteFile(path_ + "/index.html", "first");
        {
            const PublishFolder running(path_, "web");
            QVERIFY(Refusal(second_).contains("already"));
        }
        QDir().rmdir(path_ + "/c");
        QVERIFY(QFile::link(around_->path(), path_ + "/c"));
        QVERIFY(Refusal(second_).contains("Nothing can be written"));
        QFile::remove(path_ + "/c");
        QCOMPARE(Contents(), before);
        QFile::remove(path_ + '/' + publishListName);
        QVERIFY(Refusal(second_).contains("holds files of yours"));
        QCOMPARE(Contents(), before);
        // A list from a stranger.
        WriteFile(around_->filePath("victim"), "victim");
        WriteFile(path_ + '/' + publishListName,
                  WritePublishList({"web", {{"../../victim", "", 6, 0}}}));
        QVERIFY(Refusal(second_).contains("cannot be read"));
        path_ = "/proc/lumenark/site";
        QVERIFY(Refusal(first_).contains("cannot be made"));
    }

    void WhatIsNotCommittedGoes()
    {
        {
            PublishFolder folder(path_, "web");
            Fill(folder, first_);
        }
        QVERIFY(!QFileInfo::exists(around_->filePath("new")));
        Publish(first_);
        {
            PublishFolder folder(path_, "web");
            Fill(folder, second_);
        }
        QCOMPARE(Contents(), first_);
        QVERIFY(!QFileInfo::exists(path_ + "/.lumenark-publish"));
    }

    // A failure at any step of Commit changes nothing; a kill there leaves either result whole, and
    // the next run ends what was begun.
    void FailuresAndKillsLeaveWholeResults()
    {
        Publish(first_);
        bool hasFailed = true;
        int steps = 0;
        for (; hasFailed; ++steps) {
            hasFailed = false;
            beforeRename = [&hasFailed, left = steps]() mutable {
                const bool fails = left-- == 0;
                hasFailed = hasFailed || fails;
                return !fails;
            };
            const QString refusal = Refusal(second_);
            beforeRename = {};
            QCOMPARE(refusal.contains("cannot be put in place"), hasFailed);
            QCOMPARE(Contents(), hasFailed ? first_ : second_);
            QVERIFY(!QFileInfo::exists(path_ + "/.lumenark-publish"));
        }
        QVERIFY(steps > 4);
        for (int step = 0; step < steps; ++step) {
            Publish(first_);
            const pid_t child = fork();
            if (child == 0) {
                beforeRename = [left = step]() mutable {
                    if (left-- == 0)
                        _exit(9);
                    return true;
                };
                Publish(second_);
                _exit(0);
            }
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            const auto left = Contents();
            const bool isOld = left["index.html"] == "first";
            const auto& whole = isOld ? first_ : second_;
            for (auto file = whole.begin(); file != whole.end(); ++file)
                QVERIFY(left.contains(file.key())); // no file is missing at any time
            {
                const PublishFolder next(path_, "web");
            }
            QCOMPARE(Contents(), step == 0 ? first_ : second_);
        }
    }
};

QTEST_GUILESS_MAIN(TestPublishFolder)
#include "test_publish_folder.moc"
