// SPDX-License-Identifier: MIT
#include "RandomAuthor.h"

#include "core/AlbumPassword.h"
#include "core/AlbumRepair.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/Parameters.h"
#include "core/UndoHistory.h"
#include "platform/data/WriteBatch.h"
#include "support/AlbumTest.h"
#include "support/Rows.h"

using namespace GeneralModule;

namespace {

void Name(const QString& step, const QString& value)
{
    const UndoStep named(step);
    SetParam("Title", value);
}

} // namespace

// Steps back and forth through what was done to an album.
class TestUndo : public AlbumTest
{
    Q_OBJECT

private slots:
    void GoesBackToEachStateAndForth_data()
    {
        AddRows<QString>({"password"}, {{"plain", ""}, {"protected", "secret"}});
    }

    void GoesBackToEachStateAndForth()
    {
        QFETCH(QString, password);
        album_->Execute("ALTER TABLE Image ADD COLUMN \"own \"\"field\"");
        album_->Execute("CREATE TABLE undo_log (Name)");
        if (password.isEmpty())
            OpenAlbum(album_->GetAlbum());
        else
            SetAlbumPassword(password);
        OpenedAlbum().history->SetShelfSize(500);
        RandomAuthor author(*album_, 7);
        QList<QByteArrayList> states{StateOfOpenAlbum()};
        const auto steps = [] {
            return qsizetype(OpenedAlbum().history->Of(UndoHistory::Direction::Undo).size());
        };
        for (int i = 0; i < 400; ++i) {
            author.Act();
            if (steps() == states.size())
                states += StateOfOpenAlbum();
            QCOMPARE(StateOfOpenAlbum(), states.last());
        }
        QVERIFY(steps() > 150);
        for (qsizetype i = states.size() - 1; i-- > 0;) {
            QCOMPARE(Undo(), "Undone: random");
            QCOMPARE(StateOfOpenAlbum(), states[i]);
        }
        QVERIFY(UndoNames().isEmpty());
        QVERIFY(!Redo(int(states.size()) - 1).isEmpty());
        QCOMPARE(StateOfOpenAlbum(), states.last());
        QVERIFY(!Undo(20).isEmpty());
        QCOMPARE(StateOfOpenAlbum(), states[states.size() - 21]);
        // What is done now cannot be followed by what was taken back.
        Name("new", "way");
        QVERIFY(RedoNames().isEmpty());
        QCOMPARE(UndoName(), "new");
    }

    void NamesWhatIsOneAction()
    {
        {
            const UndoStep outer("Outer");
            Name("Inner", "1");
            SetParam("Other", "2");
        }
        Name("Nothing", "1");
        QCOMPARE(UndoNames(), QStringList{"Outer"});
        // Outside all steps, and where a failure has left the beginning of an action.
        album_->AddImageRow("a.jpg");
        try {
            const UndoStep broken("Broken");
            SetParam("Other", "4");
            RenameChapter(CreateChapter("A", {}), "B");
            const WriteBatch lost(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
            CreateChapter("C", {});
            CreateChapter("c", {});
        } catch (const DatabaseError&) {
        }
        QCOMPARE(UndoNames(), QStringList({"Broken", "Change, 1 pictures", "Outer"}));
        Undo(2);
        QCOMPARE(GetParam("Other"), "2");
        QCOMPARE(RedoNames(), QStringList({"Change, 1 pictures", "Broken"}));
        QVERIFY(ChapterNames().isEmpty());
        Redo(2);
        QCOMPARE(GetParam("Other"), "4");
        // An identifier never comes back, a chapter does.
        QCOMPARE(ChapterNames(), QStringList{"B"});
        Undo();
        QCOMPARE(CreateChapter("D", {}), 2);
    }

    // Rows get other numbers then.
    void TakesBackARepair()
    {
        AlbumDatabase->Execute("INSERT INTO Chapter (Id,Name) VALUES (-5,'A'),(7000000000,'B')");
        AlbumDatabase->Execute("INSERT INTO Paragraph (Chapter,Text) VALUES (-5,'a')");
        const QByteArrayList state = StateOfOpenAlbum();
        const RepairReport report = RepairAlbum();
        QCOMPARE(report.renumbered, 2);
        QCOMPARE(Undo(), "Undone: Repair Album");
        QCOMPARE(StateOfOpenAlbum(), state);
    }

    void GivesUpWhatOthersChanged()
    {
        Name("One", "1");
        Name("Two", "2");
        Undo();
        album_->Execute("INSERT INTO Car0 VALUES ('theirs')");
        const int changes = GetAlbumVersion().changesHere;
        QVERIFY(Undo().isEmpty());
        QVERIFY(WhyNoUndo().startsWith("Another program"));
        QCOMPARE(GetAlbumVersion().changesHere, changes); // the log is no part of the album
        QCOMPARE(GetParam("Title"), "1");
        Name("Three", "3");
        QCOMPARE(UndoNames(), QStringList{"Three"});
        QVERIFY(RedoNames().isEmpty());
        Undo();
        QCOMPARE(GetParam("Title"), "1");
    }

    // Neither the album nor the steps have changed then.
    void StaysAsItIsWhenUndoFails()
    {
        {
            const UndoStep step("Chapters");
            for (const char* name : {"A", "B", "C"})
                CreateChapter(name, {});
        }
        const QByteArrayList state = StateOfOpenAlbum();
        QVERIFY(Undo(1, [](int done) { return done < 2; }).isEmpty());
        QCOMPARE(StateOfOpenAlbum(), state);
        FailAtEachStep(
            7, [] {}, [&] { ErrorOf([] { Undo(); }); },
            [&] {
                if (UndoName().isEmpty())
                    return;
                QCOMPARE(UndoName(), "Chapters");
                QCOMPARE(StateOfOpenAlbum(), state);
            });
        QCOMPARE(RedoName(), "Chapters");
        Redo();
        QCOMPARE(StateOfOpenAlbum(), state);
    }

    // Either way the second step needs room for a long text, and finds it once there is some.
    void StaysAsItIsOnAFullDisk()
    {
        AlbumDatabase->Execute("CREATE TABLE Own (Data)"); // not logged
        CreateChapter("A", {});
        for (const char* text : {"''", "hex(zeroblob(500000))", "''", "'B'"}) {
            const UndoStep step(text);
            AlbumDatabase->Execute("UPDATE Chapter SET Name=" + QByteArray(text));
        }
        const auto meetsFullDisk = [](const auto& turn) {
            AlbumDatabase->Execute("INSERT INTO Own VALUES (zeroblob(1200000))"); // no page is free
            AlbumDatabase->Execute("PRAGMA max_page_count=1");
            const QByteArrayList state = StateOfOpenAlbum();
            const QStringList names = UndoNames() + RedoNames();
            QCOMPARE(ErrorOf([&] { turn(); }), 3026);
            QCOMPARE(StateOfOpenAlbum(), state);
            QCOMPARE(UndoNames() + RedoNames(), names);
            AlbumDatabase->Execute("PRAGMA max_page_count=100000");
            QVERIFY(!turn().isEmpty());
            QVERIFY(StateOfOpenAlbum() != state);
        };
        meetsFullDisk([] { return Undo(2); });
        Undo(2);
        meetsFullDisk([] { return Redo(2); });
    }

    void KeepsWithinItsMemory_data()
    {
        AddRows<qint64>({"shelfSize"}, {{"in one", 20'000}, {"put aside", 20}});
    }

    void KeepsWithinItsMemory()
    {
        QFETCH(qint64, shelfSize);
        OpenedAlbum().history->SetShelfSize(shelfSize);
        OpenedAlbum().history->SetBudget(2'000'000);
        const QString text(10'000, 'x');
        for (int i = 0; i < 600; ++i)
            Name(QString::number(i), QString::number(i) + text);
        const QStringList names = UndoNames();
        QVERIFY(names.size() > 60 && names.size() < 300);
        QCOMPARE(names.first(), "599");
        QVERIFY(OpenedAlbum().database->GetLog()->GetBytes() < 3'000'000);
        Undo(int(names.size()));
        QVERIFY(GetParam("Title").startsWith(QString::number(600 - names.size() - 1) + 'x'));
        Name("Large", QString(5'000'000, 'x'));
        Name("Too Large", "1");
        QVERIFY(Undo().isEmpty() && UndoNames().isEmpty());
        QCOMPARE(WhyNoUndo(), "What was done last is too large to be undone.");
    }

    // A trigger that another program puts into the open album, under whatever name.
    void RunsNoTriggerOfTheAlbum()
    {
        SetParam("Title", "1");
        album_->Execute("CREATE TABLE undo_log (change, row, v0)");
        album_->Execute("CREATE TRIGGER undo_log_3 AFTER UPDATE ON Params BEGIN "
                        "INSERT INTO undo_log(change,row) VALUES (1,2); END");
        QVERIFY(ErrorOf([] { SetParam("Title", "2"); }) != 0);
        QCOMPARE(album_->Rows("SELECT * FROM undo_log"), QStringList());
        QCOMPARE(GetParam("Title"), "1");
    }
};

QTEST_MAIN(TestUndo)
#include "test_undo.moc"
