// SPDX-License-Identifier: MIT
#include "core/AlbumCheck.h"

#include "core/AlbumSets.h"
#include "core/Columns.h"
#include "core/EarlierStates.h"
#include "core/LocalCopy.h"
#include "platform/data/DatabaseCopy.h"
#include "platform/data/EngineCheck.h"
#include "platform/data/ReadLock.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace {

using namespace GeneralModule;
using Kind = CheckReport::Kind;

constexpr int mostExamples = 5;
const QString copyPattern = QStringLiteral(".check-*");

// Where a step begins and ends, in percent of the whole.
struct Share
{
    int begin;
    int end;
};

Share ShareOf(CheckStep step)
{
    switch (step) {
    case CheckStep::Copying:
        return {0, 10};
    case CheckStep::File:
        return {10, 50};
    case CheckStep::Links:
        return {50, 60};
    case CheckStep::Values:
        return {60, 75};
    case CheckStep::Files:
        return {75, 100};
    }
    return {0, 100};
}

struct CheckStopped
{
};

// What a killed program has left.
void RemoveOldCopies(const QDir& folder)
{
    const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
    for (const QFileInfo& file :
         folder.entryInfoList({copyPattern}, QDir::Files | QDir::Hidden | QDir::System))
        if (file.lastModified() < yesterday)
            QFile::remove(file.filePath());
}

QString FolderForCopies()
{
    const QString folder = StatesFolder();
    return QDir().mkpath(folder) && QFileInfo(folder).isWritable() ? folder : QDir::tempPath();
}

class Check
{
public:
    Check(const QString& path, const QString& album, const QString& password,
          const CheckProgress& progress)
        : path_(path), album_(album), password_(password), progress_(progress)
    {
    }

    CheckReport Run()
    {
        try {
            database_ = Database::Open(path_, password_);
            interruption_.emplace(database_->GetEngine(),
                                  [this] { return !progress_(step_, percent_); });
            CheckFile();
            // In a damaged file each may fail for itself.
            Try([this] { CheckChains(); });
            Try([this] { CheckLostLinks(); });
            Try([this] { CheckValues(); });
            Try([this] { CheckPictures(); });
            Try([this] { CheckPictureFiles(); });
        } catch (const CheckStopped&) {
            report_.isStopped = true;
        } catch (const DatabaseError& error) {
            AddDamage({error.GetDescription()});
        }
        return report_;
    }

private:
    void GoOn(CheckStep step, double part)
    {
        const Share share = ShareOf(step);
        step_ = step;
        percent_ = share.begin + int((share.end - share.begin) * part);
        if (!progress_(step_, percent_))
            throw CheckStopped();
    }

    void Try(const std::function<void()>& check)
    {
        try {
            check();
        } catch (const DatabaseError& error) {
            if (interruption_->HasStopped())
                throw CheckStopped();
            if (report_.IsWhole())
                AddDamage({error.GetDescription()});
        }
    }

    // Runs the statement, which returns texts, and keeps the first few. Returns how many there are.
    int Collect(const QByteArray& sql, QStringList& examples) const
    {
        int count = 0;
        Statement rows(database_->GetEngine(), sql);
        while (rows.Step()) {
            const std::string_view text = rows.GetUtf8(0);
            if (count++ < mostExamples)
                examples += QString::fromUtf8(text.data(), qsizetype(text.size()));
        }
        return count;
    }

    void Add(Kind kind, const QString& text, const QString& remedy, const QStringList& examples,
             int count)
    {
        report_.findings.push_back({kind, text, remedy, examples, count > examples.size()});
    }

    void AddDamage(const QStringList& examples)
    {
        Add(Kind::Damage, CheckReport::tr("The album's file is damaged."),
            CheckReport::tr("Take back an earlier state of it (Tools > Earlier States)."), examples,
            int(examples.size()));
    }

    void CheckFile()
    {
        GoOn(CheckStep::File, 0);
        const auto faults = FaultsOfFile(*interruption_);
        if (!faults)
            throw CheckStopped();
        if (!faults->isEmpty())
            AddDamage(faults->mid(0, mostExamples));
        GoOn(CheckStep::File, 1);
    }

    void CheckChains()
    {
        GoOn(CheckStep::Links, 0);
        const RepairReport repair = TryRepair(path_, password_);
        GoOn(CheckStep::Links, 0.7);
        if (repair.IsEmpty())
            return;
        const QStringList lines = DescribeRepair(repair).split(u'\n');
        Add(Kind::Links,
            CheckReport::tr("Chapters or paragraphs do not hang together as they should."),
            CheckReport::tr("Tools > Repair Album mends that. It would change this:"), lines,
            int(lines.size()));
    }

    void CheckLostLinks()
    {
        QStringList files;
        const int withoutParagraph =
            Collect("SELECT File FROM LinkedImages WHERE ParagraphId NOT IN "
                    "(SELECT Id FROM Paragraph)",
                    files);
        if (withoutParagraph > 0)
            Add(Kind::LostLinks,
                CheckReport::tr("%n link(s) to pictures belong to paragraphs that are gone.",
                                nullptr, withoutParagraph),
                CheckReport::tr("Nothing shows them, and nothing has to be done."), files,
                withoutParagraph);
        files.clear();
        const int withoutPicture =
            Collect("SELECT DISTINCT File FROM LinkedImages WHERE ParagraphId IN (SELECT Id FROM "
                    "Paragraph) AND File NOT IN (SELECT File FROM Image WHERE File IS NOT NULL)",
                    files);
        if (withoutPicture > 0)
            Add(Kind::LostLinks,
                CheckReport::tr("Paragraphs are linked with %n picture(s) that the album does not "
                                "hold.",
                                nullptr, withoutPicture),
                CheckReport::tr("Load these pictures (Pictures > Load Picture Files in Album), or "
                                "take the links out in the paragraph's Linked Pictures."),
                files, withoutPicture);
        GoOn(CheckStep::Links, 1);
    }

    // Columns 6 to 8 share the tables of 3 to 5.
    void CheckValues()
    {
        QStringList values;
        int count = 0;
        for (int column = 0; column < columnCount; ++column) {
            const bool isTwin = column >= 2 * columnsPerGroup && column < 3 * columnsPerGroup;
            const QByteArray field = CarField(column).toLatin1();
            const QByteArray table =
                CarField(isTwin ? column - columnsPerGroup : column).toLatin1();
            QStringList ofColumn;
            GoOn(CheckStep::Values, double(column) / columnCount);
            count +=
                Collect("SELECT DISTINCT " + field + " FROM Image WHERE " + field +
                            " NOT IN ('','-') AND " + field + " NOT IN (SELECT \"Name\" FROM " +
                            table + " WHERE \"Name\" IS NOT NULL)",
                        ofColumn);
            for (const QString& value : ofColumn)
                if (values.size() < mostExamples)
                    values += value;
        }
        if (count > 0)
            Add(Kind::Values,
                CheckReport::tr("Pictures have %n value(s) that the tables do not list.", nullptr,
                                count),
                CheckReport::tr(
                    "Add them in Options > Edit Tables if you want them to be offered."),
                values, count);
    }

    void CheckPictures()
    {
        GoOn(CheckStep::Values, 1);
        QStringList files;
        const int count = Collect("SELECT File FROM Image WHERE File IS NOT NULL GROUP BY File "
                                  "HAVING count(*)>1",
                                  files);
        if (count > 0)
            Add(Kind::Twice,
                CheckReport::tr("%n picture(s) are in the album more than once.", nullptr, count),
                CheckReport::tr("They may be shown twice; that does no harm."), files, count);
    }

    void CheckPictureFiles()
    {
        GoOn(CheckStep::Files, 0);
        Statement counting(database_->GetEngine(), "SELECT count(*) FROM Image");
        const double all = counting.Step() ? double(counting.GetInteger(0)) : 0;
        counting.Reset();
        Statement rows(database_->GetEngine(), "SELECT File, SourceFile FROM Image");
        QStringList missing;
        int count = 0;
        for (double seen = 1; rows.Step(); ++seen) {
            const std::string_view file = rows.GetUtf8(0);
            const std::string_view copy = rows.GetUtf8(1);
            const QString path = QString::fromUtf8(file.data(), qsizetype(file.size()));
            GoOn(CheckStep::Files, seen / all);
            if (IsPictureThere(path, QString::fromUtf8(copy.data(), qsizetype(copy.size())),
                               album_))
                continue;
            if (count++ < mostExamples)
                missing += path;
        }
        if (count > 0)
            Add(Kind::Missing,
                CheckReport::tr("The files of %n picture(s) are not where they were.", nullptr,
                                count),
                CheckReport::tr("Plug in the disk, or look for them where they are now (Pictures > "
                                "Missing Pictures)."),
                missing, count);
    }

    QString path_;
    QString album_; // of which it is a copy
    QString password_;
    const CheckProgress& progress_;
    std::shared_ptr<Database> database_;
    std::optional<Interruption> interruption_; // goes before the database
    CheckStep step_ = CheckStep::File;         // with percent_, what was told last
    int percent_ = 0;
    CheckReport report_;
};

} // namespace

namespace GeneralModule {

bool CheckReport::Has(Kind kind) const
{
    return std::any_of(findings.begin(), findings.end(),
                       [kind](const Finding& finding) { return finding.kind == kind; });
}

AlbumCheck::AlbumCheck(const CheckProgress& progress)
    : album_(AlbumDatabase->GetPath()), password_(AlbumDatabase->GetPassword())
{
    Copy(*AlbumDatabase, progress);
}

AlbumCheck::AlbumCheck(const QString& album, const QString& password, const CheckProgress& progress)
    : album_(album), password_(password)
{
    Copy(*Database::Open(album, password, Database::Use::Reading), progress);
}

AlbumCheck::~AlbumCheck()
{
    QFile::remove(copy_.fileName() + QStringLiteral("-journal"));
}

void AlbumCheck::Copy(const Database& album, const CheckProgress& progress)
{
    const QDir folder(FolderForCopies());
    RemoveOldCopies(folder);
    copy_.setFileTemplate(folder.filePath(QStringLiteral(".check-XXXXXX")));
    if (!copy_.open())
        throw DatabaseError(
            DatabaseError::DiskError,
            DatabaseError::tr("The album cannot be copied: %1").arg(copy_.errorString()));
    copy_.close();
    const ReadLock lock(album);
    isCopied_ = CloneDatabaseFile(album, copy_.fileName(), [&progress](int percent) {
        return progress(CheckStep::Copying, percent / ShareOf(CheckStep::Copying).end);
    });
}

CheckReport AlbumCheck::Run(const CheckProgress& progress)
{
    if (!isCopied_) {
        CheckReport stopped;
        stopped.isStopped = true;
        return stopped;
    }
    return Check(copy_.fileName(), album_, password_, progress).Run();
}

QString DescribeCheck(const CheckReport& report)
{
    QStringList parts;
    if (report.isStopped)
        parts += CheckReport::tr("The check was stopped before its end.");
    else if (report.IsEmpty())
        parts += CheckReport::tr("The album is in order.");
    for (const CheckReport::Finding& finding : report.findings) {
        QStringList lines{finding.text, finding.remedy};
        for (const QString& example : finding.examples)
            lines += QStringLiteral("    ") + example;
        if (finding.hasMoreExamples)
            lines += QStringLiteral("    ...");
        parts += lines.join(u'\n');
    }
    return parts.join(QStringLiteral("\n\n"));
}

} // namespace GeneralModule
