// SPDX-License-Identifier: MIT
#include "core/AlbumPassword.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/EarlierStates.h"
#include "core/Settings.h"
#include "core/StateKeeping.h"
#include "core/StateReturn.h"
#include "core/StateThinning.h"
#include "platform/data/WriteBatch.h"
#include "support/AlbumTest.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

#include <sys/wait.h>
#include <unistd.h>

using namespace GeneralModule;

namespace {

// A program of its own that, when told to, tries to begin a change of the album. Made before this
// one locks anything: the engine in it would take over what this one knows of locks.
class OtherProgram
{
public:
    explicit OtherProgram(const QString& album)
    {
        if (pipe(go_.data()) != 0)
            qFatal("no pipe");
        child_ = fork();
        if (child_ != 0)
            return;
        char byte = 0;
        sqlite3* engine = nullptr;
        const bool isTold = read(go_[0], &byte, 1) == 1;
        sqlite3_open_v2(QFile::encodeName(album), &engine, SQLITE_OPEN_READWRITE, nullptr);
        _exit(isTold ? sqlite3_exec(engine, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) : 99);
    }
    Q_DISABLE_COPY_MOVE(OtherProgram)
    ~OtherProgram()
    {
        close(go_[0]);
        close(go_[1]);
    }

    // The engine's result code in that program.
    int TryToChange()
    {
        int status = 0;
        if (write(go_[1], "x", 1) != 1 || waitpid(child_, &status, 0) != child_)
            return -1;
        return WEXITSTATUS(status);
    }

private:
    std::array<int, 2> go_{};
    pid_t child_ = 0;
};

StateSize At(const QString& time, qint64 bytes = 1, bool isSound = true)
{
    return {QDateTime::fromString(time, Qt::ISODate), bytes, isSound};
}

} // namespace

class TestEarlierStates : public AlbumTest
{
    Q_OBJECT

private:
    std::vector<EarlierState> States() const { return EarlierStatesOf(album_->GetAlbum()); }

    // As if all of them had been kept that many days earlier.
    void Age(int days) const
    {
        std::vector<EarlierState> states = States();
        std::reverse(states.begin(), states.end());
        for (const EarlierState& state : states) {
            const QFileInfo file(state.path);
            const QString name = state.kept.addDays(-days).toString("yyyy-MM-dd HH-mm-ss") +
                                 (state.isReplaced ? " replaced.alb" : ".alb");
            QVERIFY(QFile::rename(state.path, file.dir().filePath(name)));
        }
    }

    void OpenAgain(const QString& password = {}) const
    {
        QVERIFY(OpenAlbum(album_->GetAlbum(), password));
    }

private slots:
    // A year and a half with a state each morning and evening, thinned every day.
    void ThinsToDaysWeeksAndMonths()
    {
        std::vector<StateSize> states;
        const QDateTime begin = At("2024-01-01T08:00:00").kept;
        QDateTime now;
        for (int day = 0; day < 550; ++day) {
            for (const int hours : {0, 12}) {
                now = begin.addDays(day).addSecs(hours * 3600);
                states.push_back({now, 1});
                const std::vector<std::size_t> removed = StatesToRemove(states, now, 1000);
                std::vector<StateSize> left;
                for (std::size_t i = 0; i < states.size(); ++i)
                    if (std::find(removed.begin(), removed.end(), i) == removed.end())
                        left.push_back(states[i]);
                states = left;
            }
        }
        QCOMPARE(now, At("2025-07-03T20:00:00").kept);
        QStringList kept;
        for (const StateSize& state : states)
            kept += state.kept.toString("yy-MM-dd hh");
        // The last Sunday of each month is what the weeks have left.
        const QStringList monthly{"24-01-28 20", "24-02-25 20", "24-03-31 20", "24-04-28 20",
                                  "24-05-26 20", "24-06-30 20", "24-07-28 20", "24-08-25 20",
                                  "24-09-29 20", "24-10-27 20", "24-11-24 20", "24-12-29 20",
                                  "25-01-26 20", "25-02-23 20", "25-03-30 20"};
        QCOMPARE(kept.mid(0, 15), monthly);
        QCOMPARE(kept.mid(kept.size() - 4),
                 QStringList({"25-07-02 08", "25-07-02 20", "25-07-03 08", "25-07-03 20"}));
        const int daily = int(std::count_if(states.begin(), states.end(), [&](const auto& state) {
            const qint64 age = state.kept.date().daysTo(now.date());
            return age > 1 && age <= 16;
        }));
        QCOMPARE(daily, 15);
        const int weekly = int(kept.size()) - 15 - 4 - daily;
        QVERIFY2(weekly >= 10 && weekly <= 12, qPrintable(kept.join(", ")));
    }

    void TheLimitSparesTheNewestSoundOne()
    {
        using Removed = std::vector<std::size_t>;
        const QDateTime now = At("2024-05-05T10:00:00").kept;
        const std::vector<StateSize> states{
            At("2024-03-01T10:00:00", 1), At("2024-05-01T10:00:00", 40),
            At("2024-05-04T10:00:00", 70), At("2024-05-05T09:00:00", 50, false)};
        QCOMPARE(StatesToRemove(states, now, 1000), Removed());
        QCOMPARE(StatesToRemove(states, now, 120), Removed({1, 0}));
        QCOMPARE(StatesToRemove(states, now, 10), Removed({1, 0}));
        QCOMPARE(StatesToRemove({}, now, 10), Removed());
        const StateSize twin = At("2024-05-05T09:00:00"); // in one second, as a quick user may
        QCOMPARE(StatesToRemove({twin, twin, twin}, now, 10), Removed());
    }

    void TheFirstChangeOfADayKeepsTheAlbumAsItWas_data()
    {
        QTest::addColumn<QString>("password");
        QTest::newRow("plain") << QString();
        QTest::newRow("with a password") << "key";
    }

    void TheFirstChangeOfADayKeepsTheAlbumAsItWas()
    {
        QFETCH(const QString, password);
        AddChapterOf("Secret beginnings");
        if (!password.isEmpty())
            SetAlbumPassword(password);
        for (const EarlierState& state : States())
            RemoveState(state);
        QVERIFY(!QFileInfo::exists(StatesFolderOf(album_->GetAlbum())));
        OpenAgain(password);
        QByteArray before = ReadFile(album_->GetAlbum());
        QVERIFY(States().empty());
        // Without a batch, and in one.
        FindChapter("Secret beginnings");
        ChapterSet->Edit();
        ChapterSet->Set(u"Name", QString("Other"));
        ChapterSet->Update();
        QCOMPARE(States().size(), 1U);
        QCOMPARE(ReadFile(States().front().path), before);
        constexpr auto onlyUser = QFile::ReadOwner | QFile::WriteOwner;
        constexpr auto user = QFile::ReadUser | QFile::WriteUser;
        QCOMPARE(QFile::permissions(States().front().path), onlyUser | user);
        CreateChapter("Two", "Other");
        OpenAgain(password);
        RenameChapter(*FindChapter("Two"), "Three");
        QCOMPARE(States().size(), 1U);

        Age(1);
        OpenAgain(password);
        before = ReadFile(album_->GetAlbum());
        CreateChapter("Four", {});
        QCOMPARE(States().size(), 2U);
        QCOMPARE(ReadFile(States().front().path), before);
        if (!password.isEmpty())
            QVERIFY(!before.contains("Secret"));

        // The newest one holds the same already.
        Age(1);
        ReleaseAlbum();
        QFile::remove(album_->GetAlbum());
        QVERIFY(QFile::copy(States().front().path, album_->GetAlbum()));
        QFile album(album_->GetAlbum());
        QVERIFY(album.open(QIODevice::ReadWrite));
        album.setFileTime(QFileInfo(States().front().path).lastModified(),
                          QFileDevice::FileModificationTime);
        album.close();
        OpenAgain(password);
        CreateChapter("Five", {});
        QCOMPARE(States().size(), 2U);
        QVERIFY(!TakeStateTrouble());
    }

    // Whoever closes the file once too often loses the engine's locks on it.
    void NobodyElseMayChangeTheAlbumMeanwhile()
    {
        OtherProgram other(album_->GetAlbum());
        {
            const WriteBatch batch(AlbumDatabase);
            QCOMPARE(States().size(), 1U);
            QCOMPARE(other.TryToChange(), SQLITE_BUSY);
        }
    }

    void ADamagedAlbumIsNoState()
    {
        for (int i = 0; i < 200; ++i)
            album_->AddImageRow(QString("/pictures/%1.jpg").arg(i), {{"Legend", "some words"}});
        Age(1);
        ReleaseAlbum();
        QFile file(album_->GetAlbum());
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.seek(file.size() - 3 * 4096);
        file.write(QByteArray(4096, 0));
        file.close();
        OpenAgain();
        SetParameterOfTest();
        QCOMPARE(States().size(), 1U);
        const auto trouble = TakeStateTrouble();
        QVERIFY(trouble && trouble->isDamaged);
        QVERIFY(!TakeStateTrouble());
        QVERIFY(!QFileInfo::exists(StatesFolderOf(album_->GetAlbum()) + "/.lumenark"));
    }

    void WhereNoneCanBeKeptTheChangeIsMade()
    {
        WriteFile(album_->PathOf("file"));
        SetStatesFolder(album_->PathOf("file"));
        CreateChapter("One", {});
        QCOMPARE(ChapterNames(), QStringList("One"));
        const auto trouble = TakeStateTrouble();
        QVERIFY(trouble && !trouble->isDamaged);
    }

    void LargeAlbumsAreAskedAboutOnce()
    {
        SaveUserSetting("EarlierStates", "MillisecondsPerMegabyte", "1e6");
        const QString question = "Before the first change of each day";
        CreateChapter("One", {});
        QVERIFY(States().empty());
        dialogs_->ExpectBoxBeginning(question, Icon::Question, Buttons::YesNo, Answer::No);
        OpenAgain();
        OpenAgain();
        CreateChapter("Two", {});
        QVERIFY(States().empty());
        SetStateWish(album_->GetAlbum(), StateWish::NotAsked);
        dialogs_->ExpectBoxBeginning(question, Icon::Question, Buttons::YesNo, Answer::Yes);
        OpenAgain();
        CreateChapter("Three", {});
        QCOMPARE(States().size(), 1U);
    }

    void AStateIsTakenBackWhole()
    {
        album_->AddThreeChapters({8, 8});
        const QString day = album_->Story();
        KeepState(false);
        const EarlierState state = States().front();
        DeleteAllOf("Three");
        const QString later = album_->Story();
        QVERIFY(later != day);
        Age(1);
        const QString path = States().front().path;
        QVERIFY(TakeBackState(path, {}, album_->GetAlbum()));
        QCOMPARE(album_->Story(), day);
        QCOMPARE(OpenAlbumPath(), album_->GetAlbum());
        QVERIFY(States().front().isReplaced);
        QVERIFY(TakeBackState(States().front().path, {}, album_->GetAlbum()));
        QCOMPARE(album_->Story(), later);

        // In the place of a file that is no album any more, and of none; a change that broke off
        // is not played back into what is taken back.
        ReleaseAlbum();
        WriteFile(album_->GetAlbum(), "ruined");
        WriteFile(album_->GetAlbum() + "-journal", QByteArray(600, 'x'));
        QVERIFY(TakeBackState(path, {}, album_->GetAlbum()));
        QCOMPARE(album_->Story(), day);
        QCOMPARE(ReadFile(States().front().path), QByteArray("ruined"));
        ReleaseAlbum();
        QVERIFY(QFile::remove(album_->GetAlbum()));
        QVERIFY(TakeBackState(path, {}, album_->GetAlbum()));
        QCOMPARE(album_->Story(), day);

        // Nothing takes the album's place that is not sound.
        const QByteArray before = ReadFile(album_->GetAlbum());
        const QString ruined = States().back().path + "x";
        WriteFile(ruined, ReadFile(path).chopped(4096));
        QCOMPARE(ErrorOf([&] { TakeBackState(ruined, {}, album_->GetAlbum()); }), 3049);
        QCOMPARE(ReadFile(album_->GetAlbum()), before);
    }

    void ChaptersAreTakenBack()
    {
        const qint32 one = album_->AddThreeChapters({8, 8});
        album_->Link(1, album_->PathOf("a.png"));
        album_->Link(1, album_->PathOf("b.png"));
        KeepState(false);
        album_->Execute("DELETE FROM Image WHERE File LIKE '%b.png'");
        album_->Execute("DELETE FROM LinkedImages");
        album_->Execute("UPDATE Paragraph SET Text='new ',Car0='*'");
        album_->AddParagraph(one, "newer");
        const OpenState state(States().front().path, {});
        QCOMPARE(state.CountPictures(), 3);
        const std::vector<StateChapter> chapters = state.Chapters();
        QCOMPARE(chapters.size(), 3U);
        QCOMPARE(chapters[0].paragraphs, 2);
        ChapterReturnReport report =
            TakeBackChapters(state, {chapters[0].id}, ReturnPlace::InPlaceOfSame);
        QCOMPARE(album_->Story(), "One:First: <[Picture Legend]>Second: <[0]> Empty: Three:new ");
        QCOMPARE(report.links, 2);
        QCOMPARE(report.pictures, 1);
        QCOMPARE(album_->Joined("SELECT Legend FROM Image ORDER BY File"), "the a; the b; the c");
        QCOMPARE(album_->Joined("SELECT Car0 FROM Paragraph WHERE Chapter=1"), "a; b");
        QCOMPARE(album_->Joined("SELECT count(*) FROM LinkedImages JOIN Paragraph ON "
                                "Id=ParagraphId WHERE Text LIKE 'First%'"),
                 "2");
        report = TakeBackChapters(state, {chapters[0].id, chapters[2].id}, ReturnPlace::AtTheEnd);
        const QString date = QLocale().toString(QDate::currentDate(), QLocale::ShortFormat);
        const QString firstTexts = ":First: <[Picture Legend]>Second: <[0]>";
        QCOMPARE(album_->Story(), "One" + firstTexts + " Empty: Three:new  One (" + date + ")" +
                                      firstTexts + " Three (" + date + "):Third");
        QCOMPARE(report.chapters, 2);
        QCOMPARE(report.paragraphs, 3);
        QCOMPARE(report.pictures, 0);
    }

private:
    static void DeleteAllOf(const QString& chapter)
    {
        AlbumDatabase->Execute("DELETE FROM Paragraph WHERE Chapter=" +
                               QByteArray::number(*FindChapter(chapter)));
        AlbumDatabase->Execute("UPDATE Chapter SET FirstParagraph=0 WHERE Id=" +
                               QByteArray::number(*FindChapter(chapter)));
    }
    void AddChapterOf(const QString& name) { CreateChapter(name, {}); }
    static void SetParameterOfTest()
    {
        const WriteBatch batch(AlbumDatabase);
        AlbumDatabase->Execute("UPDATE Params SET Value='' WHERE Param=''");
    }
};

QTEST_GUILESS_MAIN(TestEarlierStates)
#include "test_earlier_states.moc"
