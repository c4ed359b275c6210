// SPDX-License-Identifier: MIT
#include "core/oldalbum/OldAlbumConversion.h"

#include "core/oldalbum/OldAlbumTable.h"
#include "platform/data/CipherFile.h"
#include "platform/files/FileReplacement.h"
#include "platform/shell/ProgramFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <system_error>

namespace {

using namespace GeneralModule;

constexpr std::array tableNames{"Params", "Chapter", "Paragraph", "Image", "LinkedImages",
                                "Car0",   "Car1",    "Car2",      "Car3",  "Car4",
                                "Car5",   "Car9",    "Car10",     "Car11"};
constexpr int checkMilliseconds = 100;

[[noreturn]] void Refuse(const QString& description)
{
    throw DatabaseError(DatabaseError::CannotOpen, description);
}

void WriteTemplate(const QString& path)
{
    QFile source(ProgramFile(QStringLiteral("Album.tpl")));
    if (!source.open(QIODevice::ReadOnly))
        Refuse(OldAlbumReport::tr("The template '%1' cannot be read: %2")
                   .arg(source.fileName(), source.errorString()));
    const QByteArray contents = source.readAll();
    QFile target(path);
    if (!target.open(QIODevice::WriteOnly) || target.write(contents) != contents.size() ||
        !target.flush())
        Refuse(OldAlbumReport::tr("The album '%1' cannot be created: %2")
                   .arg(QDir::toNativeSeparators(path), target.errorString()));
}

// An album with a password is never on the disk unencrypted, not even while it is made.
void MakeEmptyAlbum(const FileReplacement& replacement, const QString& password)
{
    if (password.isEmpty())
        return WriteTemplate(replacement.GetPath());
    const QString plain = replacement.GetHelperPath();
    WriteTemplate(plain);
    CopyEncrypted(plain, replacement.GetPath(), password);
}

const OldAlbumFile::Table* FindTable(const OldAlbumFile& old, const QString& name)
{
    const auto& tables = old.GetTables();
    const auto found = std::find_if(tables.begin(), tables.end(), [&name](const auto& table) {
        return table.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == tables.end() ? nullptr : &*found;
}

// Reports to the caller that work goes on.
class CheckedTable : public OldAlbumTable
{
public:
    CheckedTable(std::shared_ptr<Database> database, const QString& table, OldAlbumReport& report,
                 const std::function<void()>& check, Kind kind)
        : OldAlbumTable(std::move(database), table, report, kind), check_(check)
    {
        sinceCheck_.start();
    }

    void TakeRow(const std::vector<OldValue>& values) override
    {
        OldAlbumTable::TakeRow(values);
        if (check_ && sinceCheck_.elapsed() >= checkMilliseconds) {
            sinceCheck_.start();
            check_();
        }
    }

private:
    const std::function<void()>& check_;
    QElapsedTimer sinceCheck_;
};

void ReportOutcome(const QString& name, const OldAlbumFile::Outcome& outcome,
                   OldAlbumReport& report)
{
    if (!outcome.hasFields) {
        report.AddProblem(OldAlbumReport::tr("Table %1 cannot be read.").arg(name));
        return;
    }
    // Rows on pages that are not there any more, or not reached, can only be counted.
    const qint64 missing = std::max(outcome.statedRows - outcome.rows, qint64(outcome.lostRows));
    if (!outcome.isWhole)
        report.AddProblem(
            OldAlbumReport::tr("Table %1 is damaged and came over in part: %2 of %3 rows.")
                .arg(name, QString::number(outcome.rows),
                     QString::number(std::max(outcome.statedRows, outcome.rows))));
    else if (missing > 0)
        report.AddProblem(
            OldAlbumReport::tr("Table %1: %2 of %3 rows cannot be read.")
                .arg(name, QString::number(missing), QString::number(outcome.rows + missing)));
    if (outcome.isWhole && outcome.mapIsDamaged)
        report.AddProblem(OldAlbumReport::tr(
                              "Table %1: its list of pages is damaged; its rows were looked for in "
                              "the whole file.")
                              .arg(name));
}

// Returns the rows that the new table holds.
qint64 CopyTable(OldAlbumFile& old, const OldAlbumFile::Table& source, const QString& name,
                 OldAlbumTable::Kind kind, const std::shared_ptr<Database>& database,
                 const ConversionOrder& order, OldAlbumReport& report)
{
    if (order.check)
        order.check();
    CheckedTable target(database, name, report, order.check, kind);
    const OldAlbumFile::Outcome outcome = old.ReadTable(source, target);
    const qint64 rows = target.Finish();
    ReportOutcome(name, outcome, report);
    return rows;
}

void CopyTables(OldAlbumFile& old, const std::shared_ptr<Database>& database,
                const ConversionOrder& order, OldAlbumReport& report)
{
    for (const char* table : tableNames) {
        const QString name = QString::fromLatin1(table);
        const OldAlbumFile::Table* source = FindTable(old, name);
        if (!source) {
            report.AddProblem(OldAlbumReport::tr("Table %1 is missing.").arg(name));
            continue;
        }
        const qint64 rows =
            CopyTable(old, *source, name, OldAlbumTable::Kind::OfAlbums, database, order, report);
        if (name == u"Chapter")
            report.chapters = rows;
        else if (name == u"Paragraph")
            report.paragraphs = rows;
        else if (name == u"Image")
            report.pictures = rows;
    }
}

// The former engine's own tables, such as what is left of those that were deleted, have no use
// here.
bool IsOfUser(const OldAlbumFile::Table& table)
{
    if (table.name.startsWith(u'~') || table.name.startsWith(QLatin1String("MSys")))
        return false;
    return std::none_of(tableNames.begin(), tableNames.end(), [&table](const char* name) {
        return table.name.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    });
}

void CopyOwnTables(OldAlbumFile& old, const std::shared_ptr<Database>& database,
                   const ConversionOrder& order, OldAlbumReport& report)
{
    if (old.ListIsDamaged())
        report.AddProblem(
            OldAlbumReport::tr("The list of tables is damaged; some may be missing."));
    QSet<quint32> pages; // a damaged list may name a table twice
    for (const OldAlbumFile::Table& table : old.GetTables()) {
        if (!IsOfUser(table) || pages.contains(table.page))
            continue;
        pages.insert(table.page);
        CopyTable(old, table, table.name, OldAlbumTable::Kind::OfUser, database, order, report);
    }
}

void RequireAlbum(const OldAlbumFile& old)
{
    for (const char* name : {"Chapter", "Paragraph", "Image"}) {
        if (FindTable(old, QString::fromLatin1(name)))
            return;
    }
    throw DatabaseError(
        DatabaseError::NotADatabase,
        OldAlbumReport::tr("'%1' is a database of the former kind, but holds no album.")
            .arg(QDir::toNativeSeparators(old.GetPath())));
}

void RequireFreeTarget(const OldAlbumFile& old, const ConversionOrder& order)
{
    const QFileInfo target(order.target);
    const QString shown = QDir::toNativeSeparators(order.target);
    if (target.exists() &&
        target.canonicalFilePath() == QFileInfo(old.GetPath()).canonicalFilePath())
        Refuse(OldAlbumReport::tr("'%1' is the old album itself, which is never written to.")
                   .arg(shown));
    if (target.exists() && !target.isFile())
        Refuse(OldAlbumReport::tr("'%1' is not a file that can be replaced.").arg(shown));
    if (target.exists() && !order.replaces)
        Refuse(OldAlbumReport::tr("'%1' exists already.").arg(shown));
}

OldAlbumReport Fill(const QString& path, OldAlbumFile& old, const ConversionOrder& order)
{
    OldAlbumReport report;
    const std::shared_ptr<Database> database = Database::Open(path, order.password);
    // Nothing of it is kept when the power goes: it has no name yet.
    database->Execute("PRAGMA synchronous=OFF");
    CopyTables(old, database, order, report);
    CopyOwnTables(old, database, order, report);
    report.keepsPassword = !order.password.isEmpty();
    return report;
}

} // namespace

namespace GeneralModule {

OldAlbumReport ConvertOldAlbum(OldAlbumFile& old, const ConversionOrder& order)
{
    RequireAlbum(old);
    RequireFreeTarget(old, order);
    try {
        FileReplacement replacement(order.target);
        MakeEmptyAlbum(replacement, order.password);
        const OldAlbumReport report = Fill(replacement.GetPath(), old, order);
        Database::Open(replacement.GetPath(), order.password); // throws when it does not open
        replacement.Commit(order.replaces ? FileReplacement::Taken::Replace
                                          : FileReplacement::Taken::Refuse);
        return report;
    } catch (const std::system_error& error) {
        Refuse(OldAlbumReport::tr("The album '%1' cannot be created: %2")
                   .arg(QDir::toNativeSeparators(order.target),
                        QString::fromLocal8Bit(error.code().message().c_str())));
    }
}

} // namespace GeneralModule
