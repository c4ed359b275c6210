// SPDX-License-Identifier: MIT
#include "catalogue/FoundPictures.h"
#include "catalogue/frmMissingPictures.h"
#include "catalogue/frmReloadPictures.h"
#include "core/Parameters.h"
#include "platform/data/Database.h"
#include "support/AlbumTest.h"
#include "support/ModalDriver.h"

#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <filesystem>

// Pictures whose files have moved are found again.
class TestMissingPictures : public AlbumTest
{
    Q_OBJECT

private slots:
    void FindsByTheLongestCommonEnd()
    {
        // A moved disk of another system, with names in another case.
        const QStringList gone{"C:\\Photos\\2010\\Lake\\IMG_1.JPG",
                               "C:\\Photos\\2011\\Lake\\IMG_1.JPG",
                               "/mnt/a/Sea/x.jpg",
                               "/mnt/a/Sea/only.jpg",
                               "/mnt/a/Sea/nowhere.jpg",
                               "/mnt/a/Hill/\u00c9t\u00e9.jpg"};
        for (const char* file :
             {"new/2010/lake/img_1.jpg", "new/2011/lake/img_1.jpg", "new/Coast/x.jpg",
              "new/Coast/only.jpg", "new/Shore/x.jpg", "new/.hidden/nowhere.jpg"})
            WriteFile(album_->PathOf(file));
        WriteFile(album_->PathOf(QString("new/Hill/e\u0301te\u0301.jpg"))); // decomposed
        std::filesystem::create_directory_symlink(album_->PathOf("new").toStdString(),
                                                  album_->PathOf("new/Coast/round").toStdString());
        const QStringList found = Find(gone);
        QCOMPARE(found.mid(0, 2),
                 QStringList({"new/2010/lake/img_1.jpg", "new/2011/lake/img_1.jpg"}));
        // Of two as like, that where the others of the folder are.
        QCOMPARE(found.mid(2, 3), QStringList({"new/Coast/x.jpg", "new/Coast/only.jpg", "-"}));
        QCOMPARE(found[5], QString("new/Hill/e\u0301te\u0301.jpg"));
    }

    void LeavesDoubtsToTheUser()
    {
        for (const char* file : {"new/a/x.jpg", "new/b/x.jpg", "new/a/y.jpg", "new/b/y.jpg",
                                 "new/c/z.jpg", "new/one/held.jpg", "new/held/held.jpg"})
            WriteFile(album_->PathOf(file), file);
        WriteFile(album_->PathOf("new/b/x.jpg"), "longer than the other");
        const QDateTime time(QDate(2001, 2, 3), QTime(4, 5));
        for (const char* file : {"new/a/y.jpg", "new/b/y.jpg"}) { // copies
            WriteFile(album_->PathOf(file), "the same");
            QFile copy(album_->PathOf(file));
            QVERIFY(copy.open(QFile::ReadWrite) &&
                    copy.setFileTime(time, QFile::FileModificationTime));
        }
        // A file of the album is no other picture, and none is two.
        held_ = album_->PathOf("new/held/held.jpg");
        QCOMPARE(
            Find({"/old/x.jpg", "/old/y.jpg", "/old/z.jpg", "/other/z.jpg", "/old/held/held.jpg"}),
            QStringList({"? new/a/x.jpg new/b/x.jpg", "new/a/y.jpg", "? new/c/z.jpg",
                         "? new/c/z.jpg", "new/one/held.jpg"}));
    }

    void TakesPathsLinksAndPatterns()
    {
        const auto found = AddMoved();
        GeneralModule::SetLastFileSelection("/old/s[1]/*.jpg;*.png");
        const auto taken = TakeFound(found, [](int) { return true; });
        QVERIFY(taken);
        QCOMPARE(taken->pictures, 3);
        QCOMPARE(taken->alreadyHeld, 1);
        QCOMPARE(taken->links, 2);
        QCOMPARE(taken->patterns, 1);
        QCOMPARE(taken->patternsLeft, 2);
        QCOMPARE(album_->Rows("SELECT File FROM Image ORDER BY rowid"),
                 QStringList({"/new/s[1]/a.jpg", "/new/s[1]/in/b.jpg", "/other/c.jpg",
                              "/old/s#/d.jpg", "/new/d.jpg", "/stays/e.jpg"}));
        QCOMPARE(album_->Rows("SELECT File FROM LinkedImages ORDER BY rowid"),
                 QStringList({"/new/s[1]/a.jpg", "/stays/e.jpg", "/other/c.jpg"}));
        QCOMPARE(
            album_->Rows("SELECT FileSelection FROM Paragraph ORDER BY Id"),
            QStringList({"/new/s[[]1]/*.*", "*sea*", "/old/s[#]/*.*", "/old/s[#]/c*", "/stays/*"}));
        QCOMPARE(GeneralModule::GetLastFileSelection(), "/new/s[1]/*.jpg;*.png");
        // The second time nothing is missing any more under these paths.
        QCOMPARE(TakeFound(found, [](int) { return true; })->pictures, 0);
    }

    void TakesAllOrNothing()
    {
        const auto found = AddMoved();
        const QStringList before = Everything();
        QVERIFY(!TakeFound(found, [](int done) { return done < 3; }));
        QCOMPARE(Everything(), before);
        const auto other = Database::Open(album_->GetAlbum());
        other->Execute("UPDATE Image SET File='/elsewhere.jpg' WHERE rowid=1");
        QCOMPARE(TakeFound(found, [](int) { return true; })->pictures, 2);
        QCOMPARE(album_->Joined("SELECT File FROM Image WHERE rowid=1"), "/elsewhere.jpg");
    }

    void WorksByItsWindow()
    {
        for (const char* file : {"new/a/x.jpg", "new/b/x.jpg", "new/s/y.jpg"}) {
            QDir().mkpath(QFileInfo(album_->PathOf(file)).path());
            PaintPicture(album_->PathOf(file), {30 + int(file[4]), 20}, Qt::red);
        }
        QFile other(album_->PathOf("new/b/x.jpg")); // no copy of the one in new/a
        QVERIFY(other.open(QFile::ReadWrite) &&
                other.setFileTime(QDateTime(QDate(2001, 2, 3), QTime(4, 5)),
                                  QFile::FileModificationTime));
        other.close();
        album_->AddPicture("there.jpg");
        for (const char* file : {"/old/x.jpg", "/gone/s/y.jpg", "/gone/s/z.jpg"})
            album_->AddImageRow(file);
        auto* window = Make<frmMissingPictures>();
        window->show();
        const auto text = [&](const char* name) { return ::Find<QLabel>(*window, name).text(); };
        QTRY_COMPARE(text("lblMissing"), "3 of 4 picture(s) missing");
        auto& folders = ::Find<QTreeWidget>(*window, "treFolders");
        QCOMPARE(folders.topLevelItemCount(), 2);
        QCOMPARE(folders.topLevelItem(1)->text(0) + folders.topLevelItem(1)->text(1), "/gone/s/2");
        ::Find<QLineEdit>(*window, "txtFolder").setText(album_->PathOf("nowhere"));
        dialogs_->ExpectBoxBeginning("There is no folder", Icon::Warning);
        Click(*window, "cmdSearch");
        dialogs_->ExpectFolder("Folder to Look In", album_->PathOf("new"));
        Click(*window, "cmdFolder");
        Click(*window, "cmdSearch");
        QCOMPARE(text("lblResult"), "1 of 3 found, 1 doubtful, 1 not found");
        auto& found = ::Find<QTreeView>(*window, "treFound");
        const auto row = [&](int at) {
            return found.model()->index(at, 0).data().toString() + " " +
                   found.model()->index(at, 1).data().toString();
        };
        QCOMPARE(row(0), "/old/x.jpg 2 files to choose from");
        QCOMPARE(row(1), "/gone/s/z.jpg not found");
        QCOMPARE(row(2), "/gone/s/y.jpg " + album_->PathOf("new/s/y.jpg"));
        auto& candidates = ::Find<QListWidget>(*window, "lstCandidates");
        QCOMPARE(candidates.count(), 2);
        candidates.setCurrentRow(1);
        QCOMPARE(text("lblResult"), "2 of 3 found, 0 doubtful, 1 not found");
        const QString chosen = candidates.item(1)->toolTip();
        Click(*window, "cmdTake");
        QCOMPARE(text("lblResult"), "2 picture(s) found again");
        QCOMPARE(album_->Rows("SELECT File FROM Image WHERE rowid>1"),
                 QStringList({chosen, album_->PathOf("new/s/y.jpg"), "/gone/s/z.jpg"}));
        QTRY_COMPARE(text("lblMissing"), "1 of 4 picture(s) missing");
        QVERIFY(!::Find<QWidget>(*window, "cmdTake").isEnabled());
    }

    void LooksThroughRowsOfAnyNumber()
    {
        album_->Execute("INSERT INTO Image(rowid,File) VALUES (-9,'/a'),(1,'/b'),"
                        "(5000000000,'/c'),(9223372036854775807,'/d')");
        MissingPictures missing;
        for (int i = 0; missing.Work(std::chrono::milliseconds(0)); ++i)
            QVERIFY(i < 9);
        QCOMPARE(missing.GetRead(), 4);
        QCOMPARE(missing.GetFolders().front().missing, 4);
    }

    void ReloadingTellsWhatIsGoneAndLeft()
    {
        WriteFile(album_->PathOf("new/a.jpg"));
        album_->AddImageRow("/gone/a.jpg");
        album_->AddImageRow(album_->PathOf("new/b.jpg"));
        album_->Execute("INSERT INTO LinkedImages VALUES (1,'/gone/a.jpg'),(2,'/gone/a.jpg')");
        frmReloadPictures window;
        window.show();
        auto& list = ::Find<QListWidget>(window, "lstOldReferences");
        QVERIFY(list.item(0)->font().bold());
        QVERIFY(!list.item(1)->font().bold());
        ::Find<QWidget>(window, "dirNewReferences").setProperty("Path", album_->PathOf("new"));
        Click(window, "cmdReloadPictures");
        QCOMPARE(::Find<QLabel>(window, "lblFeedback").text(),
                 "1 picture references updated\n2 links made by hand keep the old path");
        QCOMPARE(list.count(), 1);
        QCOMPARE(list.item(0)->text(), album_->PathOf("new/"));
    }

private:
    // What is chosen for each file, as seen from the album's folder; "-" for nothing, "?" before
    // those of which one has to be chosen.
    QStringList Find(const QStringList& files)
    {
        std::vector<MissingPicture> missing;
        for (const QString& file : files)
            missing.push_back({qint32(missing.size()) + 1, file});
        MissingSearch search(missing, album_->PathOf("new"),
                             [this](const QString& path) { return path == held_; });
        while (search.Work(std::chrono::milliseconds(0)))
            ;
        QStringList all;
        for (const FoundPicture& found : search.Match()) {
            QStringList paths = found.candidates;
            if (found.IsFound())
                paths = {found.candidates[found.chosen]};
            paths.sort();
            const QString mark = found.IsDoubtful() ? "? " : "";
            all += QString(mark + (paths.isEmpty() ? QString("-") : paths.join(QChar(32))))
                       .remove(album_->PathOf("") + "/");
        }
        return all;
    }

    // Pictures of which some have moved, with links and paragraphs that follow them or do not.
    std::vector<FoundPicture> AddMoved()
    {
        for (const char* file : {"/old/s[1]/a.jpg", "/old/s[1]/in/b.jpg", "/old/s#/c.jpg",
                                 "/old/s#/d.jpg", "/new/d.jpg", "/stays/e.jpg"})
            album_->AddImageRow(file);
        album_->Execute("INSERT INTO LinkedImages VALUES (1,'/old/s[1]/a.jpg'),(1,'/stays/e.jpg'),"
                        "(2,'/old/s#/c.jpg')");
        const qint32 chapter = album_->AddChapter("One");
        for (const char* pattern :
             {"/old/s[[]1]/*.*", "*sea*", "/old/s[#]/*.*", "/old/s[#]/c*", "/stays/*"})
            album_->AddParagraph(chapter, "x", {{"FileSelection", pattern}});
        return {{{1, "/old/s[1]/a.jpg"}, {"/new/s[1]/a.jpg"}, 0},
                {{2, "/old/s[1]/in/b.jpg"}, {"/new/s[1]/in/b.jpg"}, 0},
                {{3, "/old/s#/c.jpg"}, {"/x/c.jpg", "/other/c.jpg"}, 1},
                {{4, "/old/s#/d.jpg"}, {"/new/d.jpg"}, 0},
                {{6, "/stays/e.jpg"}, {"/x/e.jpg", "/y/e.jpg"}, -1}};
    }

    QStringList Everything()
    {
        return album_->Rows("SELECT File FROM Image") +
               album_->Rows("SELECT File FROM LinkedImages") +
               album_->Rows("SELECT FileSelection FROM Paragraph");
    }

    QString held_;
};

QTEST_MAIN(TestMissingPictures)
#include "test_missing_pictures.moc"
