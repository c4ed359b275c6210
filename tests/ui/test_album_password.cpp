// SPDX-License-Identifier: MIT
#include "core/AlbumPassword.h"
#include "core/AlbumSets.h"
#include "core/Settings.h"
#include "platform/data/CipherFile.h"
#include "platform/data/DatabaseFile.h"
#include "platform/files/FileReplacement.h"
#include "support/AlbumTest.h"
#include "ui/main/PasswordQuestions.h"

#include <QScopeGuard>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace GeneralModule;

namespace {

// What a value of the album says through the open record sets.
QString Legend()
{
    ImageSet->FindFirst("[File]='/a.jpg'");
    return ImageSet->Text(u"Legend");
}

} // namespace

class TestAlbumPassword : public AlbumTest
{
    Q_OBJECT

    bool OpensWithKey(const QByteArray& key)
    {
        return ErrorOf([&] {
                   Statement(CipherFile(album_->GetAlbum(), key).Get(), "SELECT 1 FROM Image")
                       .Step();
               }) == 0;
    }

private slots:
    void SetsChangesAndRemoves()
    {
        album_->AddImageRow("/a.jpg", {{"Legend", "a secret place"}});
        const qint32 chapter = album_->AddChapter("One");
        album_->AddParagraph(chapter, QString(100000, u'é'));
        album_->AddParagraph(chapter, "gone");
        FindById(*ParagraphSet, 2);
        ParagraphSet->Delete();
        const QStringList before = album_->Rows("SELECT * FROM Paragraph, Chapter");
        QVERIFY(!AlbumHasPassword());
        // The last one reads like a key that is written out.
        for (const QString& password :
             {QString("it's \"odd\" é"), QString("second"), "x'" + QString(64, u'a') + '\''}) {
            SetAlbumPassword(password);
            QVERIFY(AlbumHasPassword());
            QCOMPARE(Legend(), "a secret place");
            QCOMPARE(KindOfDatabaseFile(album_->GetAlbum()), DatabaseFileKind::Encrypted);
            QVERIFY(!ReadFile(album_->GetAlbum()).contains("secret place"));
            QVERIFY(OpensWithKey(CipherKeys(password).first()));
            QVERIFY(!password.startsWith('x') || !OpensWithKey(password.toUtf8()));
            const QString prompt = "Please give the password for : " + album_->GetAlbum();
            for (const QString& given : {QString("wrong; --"), password.toUpper(),
                                         password.normalized(QString::NormalizationForm_D)})
                dialogs_->ExpectInput(prompt, given);
            QVERIFY(OpenAlbum(album_->GetAlbum()));
            QCOMPARE(dialogs_->GetLastNote(), "Wrong password");
            dialogs_->ExpectInput(prompt, "");
            QVERIFY(!OpenAlbum(album_->GetAlbum()));
            QCOMPARE(dialogs_->GetLastNote(), "");
            dialogs_->ExpectInput(prompt, password);
            QVERIFY(OpenAlbum(album_->GetAlbum()));
        }
        SetAlbumPassword({});
        QVERIFY(!AlbumHasPassword());
        QCOMPARE(KindOfDatabaseFile(album_->GetAlbum()), DatabaseFileKind::Plain);
        QCOMPARE(album_->Rows("SELECT * FROM Paragraph, Chapter"), before);
        ParagraphSet->AddNew(); // identifiers go on where they were
        QCOMPARE(ParagraphSet->Number(u"Id"), 3);
        QCOMPARE(QDir(album_->PathOf("")).entryList(QDir::Files), QStringList("story.alb"));
    }

    // Made when passwords were taken byte for byte as they were typed.
    void AlbumsWithPasswordsAsTypedStillOpen()
    {
        const QString path = album_->PathOf("earlier.alb");
        const QString typed = QString("pâte").normalized(QString::NormalizationForm_D);
        WriteFile(path);
        {
            const CipherFile plain(album_->GetAlbum(), {});
            Statement attach(plain.Get(), "ATTACH ?1 AS target KEY ?2");
            attach.Bind(1, path);
            attach.Bind(2, typed);
            attach.Run();
            Statement(plain.Get(), "SELECT sqlcipher_export('target')").Run();
        }
        QVERIFY(OpenAlbum(path, QString("pâte")));
        SetAlbumPassword({});
        QVERIFY(!AlbumHasPassword());
    }

    void ClearsWhatABrokenChangeLeft()
    {
        const QString album = album_->GetAlbum();
        const pid_t child = fork();
        if (child == 0) {
            new FileReplacement(album);
            _exit(0);
        }
        waitpid(child, nullptr, 0);
        const auto leftovers = [this] {
            return QDir(album_->PathOf(".")).entryList({".lumenark*"}, QDir::Dirs | QDir::Hidden);
        };
        QCOMPARE(leftovers().size(), 1);
        SaveUserSetting("User", "PasswordChange", album);
        dialogs_->ExpectBoxBeginning("The last change of this album's password was broken off.",
                                     Icon::Information);
        QVERIFY(OpenAlbum(album));
        QCOMPARE(leftovers().size(), 0);
    }

    void ReplacesTheFileThatIsMeant()
    {
        const QString link = album_->PathOf("link.alb");
        const QString place = album_->PathOf("elsewhere/story.alb");
        ReleaseAlbum();
        WriteFile(place, ReadFile(album_->GetAlbum()));
        WriteFile(place + ".new", "of the user");
        QVERIFY(QFile::link("elsewhere/story.alb", link));
        constexpr auto mine = QFile::ReadOwner | QFile::WriteOwner;
        QVERIFY(QFile::setPermissions(place, mine));
        QVERIFY(OpenAlbum(link));
        SetAlbumPassword("secret");
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(KindOfDatabaseFile(place), DatabaseFileKind::Encrypted);
        QCOMPARE(QFile::permissions(place) & 0x7077, QFile::Permissions(mine));
        QCOMPARE(ReadFile(place + ".new"), "of the user");
        const QDir folder(album_->PathOf("elsewhere"));
        QCOMPARE(folder.entryList(QDir::AllEntries | QDir::Hidden).size(), 4); // with "." and ".."
    }

    void FailureLeavesTheAlbumAsItWas()
    {
        album_->AddImageRow("/a.jpg", {{"Legend", "here"}});
        const auto fails = [this](int number) {
            const QByteArray before = ReadFile(album_->GetAlbum());
            QCOMPARE(ErrorOf([] { SetAlbumPassword("x"); }), number);
            QCOMPARE(ReadFile(album_->GetAlbum()), before);
            QCOMPARE(Legend(), "here");
            QVERIFY(!AlbumHasPassword());
            QCOMPARE(QDir(album_->PathOf(".")).entryList(QDir::Files | QDir::Hidden),
                     QStringList("story.alb"));
        };
        // Another program is writing.
        const std::shared_ptr<Database> other = Database::Open(album_->GetAlbum());
        other->Execute("BEGIN IMMEDIATE");
        fails(3260);
        other->Execute("ROLLBACK");
        {
            // As on a disk that is full.
            signal(SIGXFSZ, SIG_IGN);
            const rlimit small{4096, RLIM_INFINITY};
            const auto lift = qScopeGuard([] {
                const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
                setrlimit(RLIMIT_FSIZE, &none);
            });
            setrlimit(RLIMIT_FSIZE, &small);
            fails(3043);
        }
        // An index that lacks a row counts fewer rows than the copy then has.
        album_->Execute(
            "PRAGMA writable_schema=1; CREATE TABLE Kept AS SELECT * FROM sqlite_master "
            "WHERE name='ImageByFile'; DELETE FROM sqlite_master WHERE "
            "name='ImageByFile'");
        album_->Execute("INSERT INTO Image (File) VALUES ('/b.jpg')");
        album_->Execute("PRAGMA writable_schema=1; INSERT INTO sqlite_master SELECT * FROM Kept");
        fails(3043);
    }

    void AStoppedChangeLeavesTheAlbumAsItWas()
    {
        album_->Execute("WITH n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<2000) "
                        "INSERT INTO Image (File) SELECT '/'||i FROM n");
        const QByteArray before = ReadFile(album_->GetAlbum());
        int patience = 0;
        for (bool isDone = false; !isDone; patience += 3) {
            const StoppingDialogs stopping(patience);
            isDone = SetAlbumPassword("x");
            QCOMPARE(AlbumHasPassword(), isDone);
            QCOMPARE(ReadFile(album_->GetAlbum()) == before, !isDone);
            QCOMPARE(QDir(album_->PathOf(".")).entryList(QDir::Files | QDir::Hidden),
                     QStringList("story.alb"));
        }
        Dialogs::Install(dialogs_.get());
        QVERIFY(patience > 10);
        QCOMPARE(ImageSet->RecordCount(), 2000);
    }

    void AsksTwice()
    {
        const auto answer = [this](const char* first, const char* second) {
            dialogs_->ExpectInput("Please enter the new password", first);
            dialogs_->ExpectInput("Please enter the new password once more", second);
        };
        dialogs_->ExpectInput("Please enter the new password", "");
        AskForNewPassword();
        QVERIFY(!AlbumHasPassword());
        answer("a", "b");
        dialogs_->ExpectBox("The two passwords differ", Icon::Warning);
        answer("a", "a");
        dialogs_->ExpectBoxBeginning("The album has its new password.", Icon::Information);
        AskForNewPassword();
        QVERIFY(AlbumHasPassword());
        const QString question =
            "This album has a password. Do you want to remove it or to change it?";
        dialogs_->ExpectBox(question, Icon::Question, Buttons::YesNoCancel, Answer::Cancel);
        AskForNewPassword();
        QVERIFY(AlbumHasPassword());
        dialogs_->ExpectBox(question, Icon::Question, Buttons::YesNoCancel, Answer::Yes);
        dialogs_->ExpectBox("The album has no password any more.");
        AskForNewPassword();
        QVERIFY(!AlbumHasPassword());
    }
};

QTEST_GUILESS_MAIN(TestAlbumPassword)
#include "test_album_password.moc"
