// SPDX-License-Identifier: MIT
#include "catalogue/DescriptionCsv.h"
#include "catalogue/DescriptionSidecars.h"
#include "core/Parameters.h"
#include "platform/text/CsvText.h"
#include "platform/text/QuotedText.h"
#include "support/AlbumTest.h"
#include "support/Rows.h"

using namespace GeneralModule;

namespace {

const QStringList hostileTexts{"=1+1",
                               "-",
                               "-2",
                               "'=x",
                               "''",
                               " =cmd|' /C calc'!A0",
                               "＠x",
                               "a,b;c\td",
                               "\"quoted\"",
                               "line\nline\r\nline\r",
                               QString("zero") + QChar() + "zero",
                               "\x01\x1B[31m",
                               "lang=\"fr\" <b>&amp;]]>",
                               "type=\"Alt\"",
                               "Été 🏔 مرحبا",
                               QString(QChar(0xFFFE)) + QChar(0xFFFF),
                               "   ",
                               QString(40000, 'x')};

// Those that a value may be.
const QStringList hostileValues{"=1+1", "+2",       "@x",   "\"q\"", "a,b", "a\nb", "<b>&",
                                "Été",  "🏔🏔", "(no)", "[4]",   "#1",  "*",    "type=\"Alt\""};

QList<Picture> Records()
{
    QList<Picture> records;
    VisitDescriptions([&records](const DescribedPicture& picture) {
        records += picture.record;
        return true;
    });
    return records;
}

std::optional<ChangeResult> Import(const std::vector<ImportedDescription>& rows)
{
    return ApplyChanges(CompareDescriptions(rows).changes);
}

} // namespace

class TestDescriptions : public AlbumTest
{
    Q_OBJECT

private slots:
    void EverythingComesBackInANewAlbum_data()
    {
        AddRows<bool>({"asSidecars"}, {{"table", false}, {"sidecars", true}});
    }

    void EverythingComesBackInANewAlbum()
    {
        QFETCH(bool, asSidecars);
        QStringList paths;
        for (qsizetype i = 0; i < hostileTexts.size(); ++i) {
            QMap<QString, QString> fields{{"Legend", hostileTexts[i]}};
            for (int column = 0; column < columnCount; ++column)
                fields[CarField(column)] =
                    i == 0 ? "-" : hostileValues[(i * 5 + column) % hostileValues.size()];
            paths += album_->AddPicture(QString("=p'%1, \"é\".jpg").arg(i), fields);
        }
        const QList<Picture> before = Records();
        const QString table = album_->PathOf("all.csv");
        if (asSidecars) {
            SidecarExport work;
            while (work.Work(std::chrono::milliseconds(50)))
                ;
            QCOMPARE(work.GetTroubles(), QStringList());
            QCOMPARE(work.GetWritten(), paths.size());
        } else {
            QCOMPARE(ExportDescriptionTable(table, false), int(paths.size()));
        }

        QVERIFY(CreateAlbumFile(album_->PathOf("second.alb")));
        QVERIFY(OpenAlbum(album_->PathOf("second.alb")));
        for (const QString& path : paths)
            album_->AddImageRow(path);
        std::vector<ImportedDescription> rows;
        if (asSidecars) {
            SidecarImport work;
            while (work.Work(std::chrono::milliseconds(50)))
                ;
            rows = work.GetDescriptions();
        } else {
            rows = ReadDescriptionTable(table).rows;
        }
        QCOMPARE(Import(rows)->pictures, paths.size());
        const QList<Picture> after = Records();
        for (qsizetype i = 0; i < before.size(); ++i) {
            const InRow row(QuotedText(before[i].legend));
            QCOMPARE(after.value(i).legend, before[i].legend);
            QVERIFY(after[i] == before[i]);
        }
        QVERIFY(ValuesOf(7).contains("=1+1"));
        QCOMPARE(Import(rows)->pictures, 0);
    }

    void ChangesOnlyWhatDiffers()
    {
        const QString a = album_->AddPicture("a.jpg", {{"Legend", "old"}, {"Car3", "Anna"}});
        const QString b = album_->AddPicture("b.jpg", {{"Car3", "anna"}});
        const DescriptionComparison comparison =
            CompareDescriptions({{a, "new", {}},
                                 {b, std::nullopt, {"", "-", {}, "anna"}},
                                 {"/nowhere.jpg", "x", {}},
                                 {a, "again", {}}});
        QCOMPARE(comparison.same, 1);
        QCOMPARE(comparison.unknown, QStringList("/nowhere.jpg"));
        QCOMPARE(comparison.repeated, QStringList(a));
        const ChangeCounts counts = CountChanges(comparison.changes);
        QCOMPARE(counts.pictures, 1);
        QCOMPARE(counts.legends, 1);

        // Changed elsewhere meanwhile: that stays, and the rest is written.
        std::vector<DescriptionChange> changes = comparison.changes;
        changes[0].edited.values[3] = "Long; O'Neil is above twenty";
        album_->Execute("UPDATE Image SET Legend='theirs' WHERE File LIKE '%a.jpg'");
        const auto result = ApplyChanges(changes);
        QCOMPARE(result->conflicts, 1);
        QCOMPARE(album_->Joined("SELECT Legend, Car3 FROM Image"),
                 "theirs|Long; O'Neil is above twenty; |anna");

        // Stopped or failed: nothing is changed.
        changes[0].shown = Records()[0];
        changes[0].edited.legend = "mine";
        QVERIFY(!ApplyChanges(changes, [](int) { return false; }));
        QCOMPARE(album_->Joined("SELECT Legend FROM Image ORDER BY rowid"), "theirs; ");
        FailAtEachStep(
            1, [] {}, [&changes] { ErrorOf([&changes] { ApplyChanges(changes); }); },
            [this] {
                const QString legends = album_->Joined("SELECT Legend FROM Image ORDER BY rowid");
                QVERIFY2(legends == "theirs; " || legends == "mine; ", qPrintable(legends));
            });
    }

    void ReadsTablesAsSpreadsheetsWriteThem()
    {
        SetColumnLabel(3, "Person");
        SetColumnLabel(4, "Place");
        QCOMPARE(DescriptionTitles().mid(5, 4).join('|'),
                 "Person [4]|Place [5]|Caracteristic [6]|Person [7]");
        const QString path = album_->PathOf("t.csv");
        WriteFile(path, "\xEF\xBB\xBF"
                        "person [7];Legend;FILE;Weather [5];Caracteristic [1];Person\n"
                        "Bob;\"a;\"\"b\"\"\nc\";/a.jpg;x;\xC3\x89t\xC3\xA9;y\n\n;;/b.jpg");
        DescriptionTable table = ReadDescriptionTable(path);
        QCOMPARE(table.leftOut, QStringList({"Weather [5]", "Person"}));
        QCOMPARE(table.rows.size(), 2);
        QCOMPARE(table.rows[0].legend, "a;\"b\"\nc");
        QCOMPARE(table.rows[0].values[6], "Bob");
        QCOMPARE(table.rows[0].values[0], "Été");
        QVERIFY(!table.rows[0].values[3]);
        QCOMPARE(table.rows[1].file, "/b.jpg");
        for (const auto& [text, message] :
             {std::pair<QByteArray, QString>{"File,Legend\na,b\nc,\"d\n", "line 3"},
              {"Legend\nx\n", "\"File\""}}) {
            WriteFile(path, text);
            QString description;
            try {
                ReadDescriptionTable(path);
            } catch (const std::runtime_error& error) {
                description = error.what();
            }
            QVERIFY2(description.contains(message), qPrintable(description));
        }
        for (const QString& text : hostileTexts) {
            const QString cell = SafeCell(text).trimmed();
            QVERIFY2(cell == "-" || !QString("=+-@＠").contains(cell.left(1)) || cell.isEmpty(),
                     qPrintable(text));
            QCOMPARE(CellText(SafeCell(text)), text);
        }
    }

    void AnothersCaptionWins()
    {
        const QString file = album_->AddPicture("a.jpg", {{"Legend", "mine"}});
        SidecarExport work;
        while (work.Work(std::chrono::milliseconds(50)))
            ;
        WriteFile(file + ".xmp", ReadFile(file + ".xmp").replace(">mine<", ">theirs<"));
        SidecarImport reading;
        while (reading.Work(std::chrono::milliseconds(50)))
            ;
        QCOMPARE(reading.GetDescriptions().at(0).legend, "theirs");
    }
};

QTEST_GUILESS_MAIN(TestDescriptions)
#include "test_descriptions.moc"
