// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "platform/data/DatabaseFile.h"
#include "support/AlbumFixture.h"
#include "support/ScriptedDialogs.h"
#include "ui/main/PasswordQuestions.h"

#include <QtTest>

using namespace GeneralModule;

namespace {

QStringList FilesBeside(const AlbumFixture& album)
{
    return QDir(QFileInfo(album.GetAlbum()).path()).entryList(QDir::Files);
}

// What a value of the album says through the open record sets.
QString Legend()
{
    ImageSet->FindFirst("[File]='/a.jpg'");
    return ImageSet->Text(u"Legend");
}

} // namespace

class TestAlbumPassword : public QObject
{
    Q_OBJECT

private slots:
    void SetsChangesAndRemoves()
    {
        AlbumFixture album;
        album.AddImageRow("/a.jpg", {{"Legend", "a secret place"}});
        QVERIFY(!AlbumHasPassword());
        for (const QString& password : {QString("it's \"odd\" é"), QString("second")}) {
            SetAlbumPassword(password);
            QVERIFY(AlbumHasPassword());
            QCOMPARE(Legend(), "a secret place");
            QCOMPARE(KindOfDatabaseFile(album.GetAlbum()), DatabaseFileKind::Encrypted);
            QVERIFY(!ReadFile(album.GetAlbum()).contains("secret place"));
            ScriptedDialogs dialogs;
            const QString prompt = "Please give the password for : " + album.GetAlbum();
            for (const QString& given : {QString("wrong; --"), password.toUpper(), password})
                dialogs.ExpectInput(prompt, given);
            QVERIFY(OpenAlbum(album.GetAlbum()));
            dialogs.ExpectInput(prompt, "");
            QVERIFY(!OpenAlbum(album.GetAlbum()));
            dialogs.ExpectInput(prompt, password);
            QVERIFY(OpenAlbum(album.GetAlbum()));
        }
        SetAlbumPassword({});
        QVERIFY(!AlbumHasPassword());
        QCOMPARE(KindOfDatabaseFile(album.GetAlbum()), DatabaseFileKind::Plain);
        QCOMPARE(Legend(), "a secret place");
        QCOMPARE(FilesBeside(album), QStringList("story.alb"));
    }

    void KeepsEverything()
    {
        AlbumFixture album;
        const qint32 chapter = album.AddChapter("One");
        album.AddParagraph(chapter, QString(100000, u'é'));
        FindById(*ParagraphSet, 1);
        ParagraphSet->Delete();
        album.AddParagraph(chapter, "kept");
        const auto everything = [&] {
            QStringList rows;
            for (const char* table : {"Chapter", "Paragraph", "sqlite_sequence"})
                rows += album.Rows(QString("SELECT * FROM ") + table);
            return rows;
        };
        const QStringList before = everything();
        SetAlbumPassword("x");
        SetAlbumPassword({});
        QCOMPARE(everything(), before);
        ParagraphSet->AddNew(); // identifiers go on where they were
        QCOMPARE(ParagraphSet->Number(u"Id"), 3);
    }

    void FailureLeavesTheAlbumAsItWas()
    {
        AlbumFixture album;
        album.AddImageRow("/a.jpg", {{"Legend", "here"}});
        QDir(QFileInfo(album.GetAlbum()).path()).mkpath("story.alb.new/in the way");
        const QByteArray before = ReadFile(album.GetAlbum());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, SetAlbumPassword("x"));
        QCOMPARE(ReadFile(album.GetAlbum()), before);
        QCOMPARE(Legend(), "here");
        QVERIFY(!AlbumHasPassword());
    }

    void AsksTwice()
    {
        AlbumFixture album;
        const QString first = "Please enter the new password";
        const QString second = "Please enter the new password once more";
        ScriptedDialogs dialogs;
        dialogs.ExpectInput(first, "");
        AskForNewPassword();
        QVERIFY(!AlbumHasPassword());

        dialogs.ExpectInput(first, "a");
        dialogs.ExpectInput(second, "b");
        dialogs.ExpectBox("The two passwords differ", Dialogs::Icon::Warning);
        dialogs.ExpectInput(first, "a");
        dialogs.ExpectInput(second, "a");
        dialogs.ExpectBoxBeginning("The album has its new password.", Dialogs::Icon::Information);
        AskForNewPassword();
        QVERIFY(AlbumHasPassword());

        const QString question =
            "This album has a password. Do you want to remove it ?\nChoose No to change it.";
        dialogs.ExpectBox(question, Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel,
                          Dialogs::Answer::Cancel);
        AskForNewPassword();
        QVERIFY(AlbumHasPassword());
        dialogs.ExpectBox(question, Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel,
                          Dialogs::Answer::Yes);
        dialogs.ExpectBox("The album has no password any more.");
        AskForNewPassword();
        QVERIFY(!AlbumHasPassword());
    }
};

QTEST_GUILESS_MAIN(TestAlbumPassword)
#include "test_album_password.moc"
