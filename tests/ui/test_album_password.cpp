// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "platform/data/DatabaseFile.h"
#include "support/AlbumTest.h"
#include "ui/main/PasswordQuestions.h"

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

private slots:
    void SetsChangesAndRemoves()
    {
        album_->AddImageRow("/a.jpg", {{"Legend", "a secret place"}});
        const qint32 chapter = album_->AddChapter("One");
        album_->AddParagraph(chapter, QString(100000, u'é'));
        FindById(*ParagraphSet, 1);
        ParagraphSet->Delete();
        album_->AddParagraph(chapter, "kept");
        const auto everything = [&] {
            return album_->Rows("SELECT * FROM Chapter") + album_->Rows("SELECT * FROM Paragraph");
        };
        const QStringList before = everything();
        QVERIFY(!AlbumHasPassword());
        for (const QString& password : {QString("it's \"odd\" é"), QString("second")}) {
            SetAlbumPassword(password);
            QVERIFY(AlbumHasPassword());
            QCOMPARE(Legend(), "a secret place");
            QCOMPARE(KindOfDatabaseFile(album_->GetAlbum()), DatabaseFileKind::Encrypted);
            QVERIFY(!ReadFile(album_->GetAlbum()).contains("secret place"));
            const QString prompt = "Please give the password for : " + album_->GetAlbum();
            for (const QString& given : {QString("wrong; --"), password.toUpper(), password})
                dialogs_->ExpectInput(prompt, given);
            QVERIFY(OpenAlbum(album_->GetAlbum()));
            dialogs_->ExpectInput(prompt, "");
            QVERIFY(!OpenAlbum(album_->GetAlbum()));
            dialogs_->ExpectInput(prompt, password);
            QVERIFY(OpenAlbum(album_->GetAlbum()));
        }
        SetAlbumPassword({});
        QVERIFY(!AlbumHasPassword());
        QCOMPARE(KindOfDatabaseFile(album_->GetAlbum()), DatabaseFileKind::Plain);
        QCOMPARE(Legend(), "a secret place");
        QCOMPARE(everything(), before);
        ParagraphSet->AddNew(); // identifiers go on where they were
        QCOMPARE(ParagraphSet->Number(u"Id"), 3);
        QCOMPARE(QDir(album_->PathOf("")).entryList(QDir::Files), QStringList("story.alb"));
    }

    void ReplacesTheFileThatIsMeant()
    {
        const QString link = album_->PathOf("link.alb");
        const QString place = album_->PathOf("elsewhere/story.alb");
        WriteFile(place);
        ReleaseAlbum();
        QVERIFY(QFile::remove(place) && QFile::rename(album_->GetAlbum(), place));
        QVERIFY(QFile::link("elsewhere/story.alb", link));
        WriteFile(place + ".new", "of the user");
        constexpr auto mine = QFile::ReadOwner | QFile::WriteOwner;
        QVERIFY(QFile::setPermissions(place, mine));
        QVERIFY(OpenAlbum(link));
        for (const char* password : {"secret", ""}) {
            SetAlbumPassword(password);
            QVERIFY(QFileInfo(link).isSymLink());
            QCOMPARE(KindOfDatabaseFile(place),
                     *password ? DatabaseFileKind::Encrypted : DatabaseFileKind::Plain);
            QCOMPARE(QFile::permissions(place) & 0x7077, QFile::Permissions(mine));
        }
        QCOMPARE(ReadFile(place + ".new"), "of the user");
        QCOMPARE(
            QDir(album_->PathOf("elsewhere")).entryList(QDir::AllEntries | QDir::Hidden).size(),
            4); // with "." and ".."
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
        // An index that lacks a row counts fewer rows than the copy then has.
        album_->Execute(
            "PRAGMA writable_schema=1; CREATE TABLE Kept AS SELECT * FROM sqlite_master "
            "WHERE name='ImageByFile'; DELETE FROM sqlite_master WHERE "
            "name='ImageByFile'");
        album_->Execute("INSERT INTO Image (File) VALUES ('/b.jpg')");
        album_->Execute("PRAGMA writable_schema=1; INSERT INTO sqlite_master SELECT * FROM Kept");
        fails(3043);
    }

    void AsksTwice()
    {
        const auto expect = [this](const char* first, const char* second) {
            dialogs_->ExpectInput("Please enter the new password", first);
            dialogs_->ExpectInput("Please enter the new password once more", second);
        };
        dialogs_->ExpectInput("Please enter the new password", "");
        AskForNewPassword();
        QVERIFY(!AlbumHasPassword());
        expect("a", "b");
        dialogs_->ExpectBox("The two passwords differ", Icon::Warning);
        expect("a", "a");
        dialogs_->ExpectBoxBeginning("The album has its new password.", Icon::Information);
        AskForNewPassword();
        QVERIFY(AlbumHasPassword());
        for (const auto answer : {Answer::Cancel, Answer::Yes}) {
            dialogs_->ExpectBox(
                "This album has a password. Do you want to remove it or to change it?",
                Icon::Question, Buttons::YesNoCancel, answer);
            if (answer == Answer::Yes)
                dialogs_->ExpectBox("The album has no password any more.");
            AskForNewPassword();
            QCOMPARE(AlbumHasPassword(), answer == Answer::Cancel);
        }
    }
};

QTEST_GUILESS_MAIN(TestAlbumPassword)
#include "test_album_password.moc"
