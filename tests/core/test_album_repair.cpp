// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "core/AlbumRepair.h"
#include "core/ChainMending.h"
#include "support/AlbumFixture.h"
#include "support/Rows.h"

#include <random>

using namespace GeneralModule;

namespace {

// Every way in which the chains of the album are not whole; empty when they are.
QString FaultsOf(const AlbumFixture& album)
{
    const auto count = [&album](const QString& sql) { return album.Rows(sql).first().toInt(); };
    const int chapters = count("SELECT count(*) FROM Chapter");
    QString faults;
    int walkedChapters = 0;
    int walkedParagraphs = 0;
    QStringList row = album.Rows("SELECT Id||'|'||NextChapter||'|'||FirstParagraph FROM Chapter "
                                 "WHERE PreviousChapter=0");
    if (row.size() != (chapters > 0 ? 1 : 0))
        faults += QStringLiteral("%1 first chapters; ").arg(row.size());
    QString previousChapter = "0";
    while (row.size() == 1 && ++walkedChapters <= chapters) {
        const QStringList chapter = row.first().split(u'|');
        QString paragraph = chapter[2];
        QString previous = "0";
        while (paragraph != "0" && ++walkedParagraphs < 1000) {
            const QStringList found = album.Rows(
                QStringLiteral(
                    "SELECT NextParagraph FROM Paragraph WHERE Id='%1' AND Chapter=%2 AND "
                    "PreviousParagraph=%3")
                    .arg(paragraph, chapter[0], previous));
            if (found.size() != 1)
                return faults + "paragraph " + paragraph + " is not where its links say; ";
            previous = paragraph;
            paragraph = found.first();
        }
        previousChapter = chapter[0];
        row = album.Rows(QStringLiteral("SELECT Id||'|'||NextChapter||'|'||FirstParagraph FROM "
                                        "Chapter WHERE Id='%1' AND PreviousChapter=%2")
                             .arg(chapter[1], previousChapter));
        if (row.isEmpty() && chapter[1] != "0")
            faults += "chapter " + chapter[1] + " is not where its links say; ";
    }
    if (walkedChapters != chapters)
        faults +=
            QStringLiteral("%1 of %2 chapters in the chain; ").arg(walkedChapters).arg(chapters);
    const int paragraphs = count("SELECT count(*) FROM Paragraph");
    if (walkedParagraphs != paragraphs)
        faults += QStringLiteral("%1 of %2 paragraphs; ").arg(walkedParagraphs).arg(paragraphs);
    return faults;
}

// Two chapters with three and two paragraphs, texts "1" to "5".
void WriteStory(AlbumFixture& album)
{
    const qint32 one = album.AddChapter("One");
    const qint32 two = album.AddChapter("Two");
    for (int i = 1; i <= 5; ++i)
        album.AddParagraph(i <= 3 ? one : two, QString::number(i));
}

QStringList Everything(const AlbumFixture& album)
{
    return album.Rows("SELECT * FROM Paragraph") + album.Rows("SELECT * FROM Chapter");
}

QString StoryOf(const AlbumFixture& album)
{
    QStringList chapters;
    for (const QString& chapter : album.Rows("SELECT Id||'|'||Name FROM Chapter ORDER BY Id")) {
        QString text = chapter.section(u'|', 1) + ':';
        QString next =
            album.Rows("SELECT FirstParagraph FROM Chapter WHERE Id=" + chapter.section(u'|', 0, 0))
                .first();
        while (next != "0") {
            const QString row =
                album.Rows("SELECT Text||'|'||NextParagraph FROM Paragraph WHERE Id=" + next)
                    .first();
            text += row.section(u'|', 0, 0);
            next = row.section(u'|', 1);
        }
        chapters += text;
    }
    return chapters.join(u' ');
}

} // namespace

class TestAlbumRepair : public QObject
{
    Q_OBJECT

private slots:
    void MendsChains()
    {
        using Chain = std::vector<ChainLink>;
        const std::pair<Chain, QString> chains[] = {
            {{}, ""},
            {{{1, 0, 2}, {2, 1, 3}, {3, 2, 0}}, " 1 2 3"},
            {{{1, 0, 2}, {2, 1, 0}, {3, 1, 2}}, " 1 3 2"}, // put in but not linked back
            {{{1, 0, 2}, {2, 1, 0}, {3, 9, 2}}, " 1 3 2"}, // a piece that leads into the chain
            {{{1, 0, 2}, {2, 1, 0}, {3, 0, 4}, {4, 3, 0}}, " 1 2 3 4"}, // two heads
            {{{1, 3, 2}, {2, 1, 3}, {3, 2, 1}}, " 1 2 3"},              // ring
            {{{1, 0, 0}, {2, 3, 3}, {3, 2, 2}}, " 1 2 3"},              // chain and ring
            {{{1, 0, 1}, {2, 2, 2}}, " 1 2"}};                          // self link
        for (const auto& [rows, expected] : chains) {
            QString order;
            qint32 previous = 0;
            for (const ChainLink& link : MendChain(rows)) {
                QCOMPARE(link.previous, previous);
                previous = link.id;
                order += ' ' + QString::number(link.id);
            }
            QCOMPARE(order, expected);
        }
    }

    void MendsWhatIsBroken_data()
    {
        const QString whole = "One:123 Two:45";
        AddRows<QString, QString>(
            {"damage", "story"},
            {{"no first chapter", "UPDATE Chapter SET PreviousChapter=2 WHERE Id=1", whole},
             {"chapter unreachable", "UPDATE Chapter SET NextChapter=0 WHERE Id=1", whole},
             {"dangling next", "UPDATE Paragraph SET NextParagraph=99 WHERE Id=1", whole},
             {"dangling previous", "UPDATE Paragraph SET PreviousParagraph=99 WHERE Id=2", whole},
             {"cycle", "UPDATE Paragraph SET NextParagraph=1 WHERE Id=3", whole},
             {"into the next chapter", "UPDATE Paragraph SET NextParagraph=4 WHERE Id=3", whole},
             {"wrong first", "UPDATE Chapter SET FirstParagraph=5 WHERE Id=1", whole},
             {"no first paragraph", "UPDATE Chapter SET FirstParagraph=0", whole},
             {"wrong chapter", "UPDATE Paragraph SET Chapter=77 WHERE Id=2", whole},
             {"chapter lost",
              "DELETE FROM Chapter WHERE Id=1; UPDATE Chapter SET PreviousChapter=0",
              "Two:45 Found again:123"},
             {"no chapter at all", "DELETE FROM Chapter", "Found again:12345"},
             {"links of a wrong kind", "UPDATE Paragraph SET NextParagraph='x' WHERE Id=2",
              whole}});
    }

    void MendsWhatIsBroken()
    {
        QFETCH(QString, damage);
        AlbumFixture album;
        WriteStory(album);
        const QStringList sound = Everything(album);
        QVERIFY(RepairAlbum().IsEmpty());
        QCOMPARE(Everything(album), sound);
        album.Execute(damage);
        QVERIFY(!FaultsOf(album).isEmpty());
        const QStringList before = album.Rows("SELECT Id,Text FROM Paragraph");
        const RepairReport report = RepairAlbum();
        QCOMPARE(FaultsOf(album), "");
        QTEST(StoryOf(album), "story");
        QCOMPARE(album.Rows("SELECT Id,Text FROM Paragraph"), before);
        QVERIFY(!report.IsEmpty());
        QCOMPARE(report.copy, album.PathOf("story (before repair 2).alb"));
        QVERIFY(QFileInfo(report.copy).size() > 0);
        QVERIFY(DescribeRepair(report).contains(report.copy));
        QVERIFY(RepairAlbum().IsEmpty()); // and once is enough
    }

    // Albums of random links: whatever they say, the result is whole and nothing is lost.
    void AnyAlbumIsWholeAfterwards()
    {
        std::mt19937 random(17);
        for (int round = 0; round < 60; ++round) {
            AlbumFixture album;
            const int chapters = int(random() % 5);
            const int paragraphs = int(random() % 12);
            const auto any = [&random](int most) { return int(random() % unsigned(most + 3)) - 1; };
            QString sql = "BEGIN;";
            for (int i = 1; i <= chapters; ++i)
                sql += QStringLiteral("INSERT INTO Chapter VALUES (%1,%2,%3,%4,'C%1');")
                           .arg(i)
                           .arg(any(paragraphs))
                           .arg(any(chapters))
                           .arg(any(chapters));
            for (int i = 1; i <= paragraphs; ++i)
                sql += QStringLiteral("INSERT INTO Paragraph (Id,Chapter,PreviousParagraph,"
                                      "NextParagraph,Text) VALUES (%1,%2,%3,%4,'t%1');")
                           .arg(i)
                           .arg(any(chapters))
                           .arg(any(paragraphs))
                           .arg(any(paragraphs));
            album.Execute(sql + "COMMIT");
            const QStringList texts = album.Rows("SELECT Id,Text FROM Paragraph ORDER BY Id");
            RepairAlbum();
            QVERIFY2(FaultsOf(album).isEmpty(),
                     qPrintable(QStringLiteral("round %1: %2").arg(round).arg(FaultsOf(album))));
            QCOMPARE(album.Rows("SELECT Id,Text FROM Paragraph ORDER BY Id"), texts);
        }
    }
};

QTEST_GUILESS_MAIN(TestAlbumRepair)
#include "test_album_repair.moc"
