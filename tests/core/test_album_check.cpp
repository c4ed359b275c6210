// SPDX-License-Identifier: MIT
#include "core/AlbumCheck.h"
#include "core/AlbumPassword.h"
#include "core/EarlierStates.h"
#include "support/AlbumTest.h"

#include <QDirIterator>

using namespace GeneralModule;
using Kind = CheckReport::Kind;

namespace {

bool GoesOn(CheckStep, int)
{
    return true;
}

// "Links 2, Missing 1" and so on, by the number in each finding's text.
QString Summary(const CheckReport& report)
{
    const QStringList names{"Damage", "Links", "LostLinks", "Values", "Twice", "Missing"};
    QStringList found;
    for (const CheckReport::Finding& finding : report.findings) {
        const QString number = QString(finding.text).remove(QRegularExpression("[^0-9]"));
        found += (names[int(finding.kind)] + ' ' + number).trimmed();
    }
    return found.join(", ");
}

} // namespace

class TestAlbumCheck : public AlbumTest
{
    Q_OBJECT

private slots:
    void ASoundAlbumIsInOrder()
    {
        album_->AddThreeChapters({8, 8});
        album_->Execute("INSERT INTO Car0 VALUES ('a'),('b'),('c')");
        for (const QString& password : {QString(), QString("key")}) {
            if (!password.isEmpty())
                SetAlbumPassword(password);
            const QByteArray before = ReadFile(album_->GetAlbum());
            QString during;
            {
                AlbumCheck check(GoesOn);
                QDirIterator copies(StatesFolder(), {".check-*"}, QDir::Files | QDir::Hidden);
                QVERIFY(copies.hasNext());
                during = copies.next();
                QVERIFY(password.isEmpty() || !ReadFile(during).contains("First: "));
                QCOMPARE(DescribeCheck(check.Run(GoesOn)), "The album is in order.");
            }
            QVERIFY(!QFileInfo::exists(during));
            QVERIFY(!QFileInfo::exists(during + "-journal"));
            QCOMPARE(ReadFile(album_->GetAlbum()), before);
        }
    }

    void TellsWhatIsWrong()
    {
        album_->AddThreeChapters({8, 8}); // whose values no table lists
        album_->AddImageRow("/gone/d.jpg", {{"Car7", "Bob"}});
        album_->AddImageRow("/gone/e.jpg", {{"SourceFile", album_->PathOf("a.png")}});
        album_->AddImageRow("/gone/d.jpg", {{"Car4", "bob"}});
        album_->Link(1, "/never/there.jpg");
        album_->Link(99, album_->PathOf("a.png"));
        album_->Link(98, album_->PathOf("b.png"));
        album_->Execute("UPDATE Paragraph SET PreviousParagraph=77 WHERE Id=2");
        album_->Execute("UPDATE Chapter SET NextChapter=0 WHERE Id=2");
        const QStringList rows = album_->Rows("SELECT * FROM Chapter, Paragraph");
        CheckReport report = AlbumCheck(GoesOn).Run(GoesOn);
        QCOMPARE(Summary(report), "Links, LostLinks 2, LostLinks 1, Values 5, Twice 1, Missing 2");
        QVERIFY(report.IsWhole() && !report.IsEmpty());
        const QString text = DescribeCheck(report);
        for (const char* part : {"Tools > Repair Album", "Paragraphs linked anew: 1",
                                 "Chapters linked anew: 1", "/never/there.jpg", "/gone/d.jpg"})
            QVERIFY2(text.contains(part), part);
        QCOMPARE(album_->Rows("SELECT * FROM Chapter, Paragraph"), rows);

        int looks = 0;
        report = AlbumCheck(GoesOn).Run([&looks](CheckStep step, int percent) {
            ++looks;
            return step != CheckStep::Values && percent <= 100;
        });
        QVERIFY(report.isStopped && looks > 2);
        QCOMPARE(Summary(report), "Links, LostLinks 2, LostLinks 1");
    }

    // In the middle of work that is one statement, too, or one page of a tree.
    void HearsTheUserAllAlong()
    {
        album_->AddParagraph(album_->AddChapter("One"), QString(2'000'000, 'x'));
        album_->Execute("INSERT INTO Image (File) WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL "
                        "SELECT i+1 FROM n WHERE i<5000) SELECT '/gone/'||i FROM n");
        for (const CheckStep step : {CheckStep::File, CheckStep::Values}) {
            for (const int most : {100, 1'000'000}) {
                int looks = 0;
                const auto count = [&](CheckStep now, int) {
                    looks += now == step;
                    return looks < most;
                };
                const CheckReport report = AlbumCheck(GoesOn).Run(count);
                QVERIFY2(looks >= 100, qPrintable(QString::number(looks)));
                QVERIFY(report.IsWhole());
                QCOMPARE(report.isStopped, looks == most);
                QCOMPARE(report.isStopped, most == 100);
            }
        }
    }

    void ADamagedFileIsNoted()
    {
        for (int i = 0; i < 300; ++i)
            album_->AddImageRow(QString("/gone/%1.jpg").arg(i));
        ReleaseAlbum();
        QFile file(album_->GetAlbum());
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.seek(file.size() - 4 * 4096);
        file.write(QByteArray(8192, 0));
        file.close();
        const CheckReport report = AlbumCheck(album_->GetAlbum(), {}, GoesOn).Run(GoesOn);
        QVERIFY(!report.IsWhole());
        QVERIFY(!report.findings.front().examples.isEmpty());
        QVERIFY(DescribeCheck(report).contains("Tools > Earlier States"));
        QCOMPARE(ErrorOf([&] { AlbumCheck(album_->PathOf("none.alb"), {}, GoesOn); }), 3024);
    }
};

QTEST_GUILESS_MAIN(TestAlbumCheck)
#include "test_album_check.moc"
