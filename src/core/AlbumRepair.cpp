// SPDX-License-Identifier: MIT
#include "core/AlbumRepair.h"

#include "core/AlbumCopy.h"
#include "core/AlbumSets.h"
#include "core/Chain.h"
#include "core/ChainMending.h"
#include "core/Renumbering.h"
#include "core/UndoSteps.h"
#include "platform/data/WriteBatch.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QScopeGuard>
#include <QSet>

#include <algorithm>
#include <deque>

using namespace GeneralModule;

namespace {

// -1 for a value that is neither a link nor 0, so that it is rewritten. A failed read is no broken
// link: it throws.
template<typename Field>
qint32 LinkOrBroken(RecordSet& set, Field field)
{
    try {
        return std::max(set.Number(field), -1);
    } catch (const DatabaseError& error) {
        const int number = error.GetNumber();
        if (number == DatabaseError::InvalidUseOfNull || number == DatabaseError::TypeMismatch ||
            number == DatabaseError::Overflow)
            return -1;
        throw;
    }
}

class Repair
{
public:
    explicit Repair(Album& album) : album_(album) {}

    RepairReport Run()
    {
        report_.renumbered = RenumberRows(album_.database->GetEngine());
        RepairChapters();
        ReadParagraphs();
        AdoptByLinks();
        AdoptTheRest();
        RepairParagraphs();
        return report_;
    }

private:
    void RepairChapters()
    {
        std::vector<ChainLink> links;
        const RecordSet::Walk walk(album_.chapters);
        for (album_.chapters.MoveFirst(); !album_.chapters.AtEnd(); album_.chapters.MoveNext())
            links.push_back({album_.chapters.Number(u"Id"),
                             LinkOrBroken(album_.chapters, u"PreviousChapter"),
                             LinkOrBroken(album_.chapters, u"NextChapter")});
        const std::vector<ChainLink> mended = MendChain(links);
        report_.chapterLinks += WriteLinks(ChapterLinks(), links, mended);
        for (const ChainLink& link : mended)
            chapters_.append(link.id);
    }

    void ReadParagraphs()
    {
        const QSet<qint32> known(chapters_.begin(), chapters_.end());
        const int id = album_.paragraphs.FieldNumber(u"Id");
        const int previous = album_.paragraphs.FieldNumber(u"PreviousParagraph");
        const int next = album_.paragraphs.FieldNumber(u"NextParagraph");
        const int owner = album_.paragraphs.FieldNumber(u"Chapter");
        const RecordSet::Walk walk(album_.paragraphs);
        for (album_.paragraphs.MoveFirst(); !album_.paragraphs.AtEnd();
             album_.paragraphs.MoveNext()) {
            const ChainLink link{album_.paragraphs.Number(id),
                                 LinkOrBroken(album_.paragraphs, previous),
                                 LinkOrBroken(album_.paragraphs, next)};
            const qint32 chapter = LinkOrBroken(album_.paragraphs, owner);
            paragraphs_.push_back(link);
            owners_.insert(link.id, known.contains(chapter) ? chapter : 0);
        }
    }

    // Spreads each chapter to the paragraphs linked with its own, in either direction.
    void AdoptByLinks()
    {
        if (owners_.key(0, 0) == 0)
            return; // every paragraph has a chapter
        QHash<qint32, QList<qint32>> neighbours;
        std::deque<qint32> spreading;
        for (const ChainLink& link : paragraphs_) {
            for (const qint32 other : {link.previous, link.next}) {
                neighbours[link.id].append(other);
                neighbours[other].append(link.id);
            }
            if (owners_.value(link.id) != 0)
                spreading.push_back(link.id);
        }
        for (; !spreading.empty(); spreading.pop_front()) {
            const qint32 chapter = owners_.value(spreading.front());
            for (const qint32 other : neighbours.value(spreading.front())) {
                if (owners_.contains(other) && Adopt(other, chapter))
                    spreading.push_back(other);
            }
        }
    }

    // False when the paragraph has a chapter already.
    bool Adopt(qint32 paragraph, qint32 chapter)
    {
        if (owners_.value(paragraph) != 0)
            return false;
        owners_.insert(paragraph, chapter);
        FindById(album_.paragraphs, paragraph);
        album_.paragraphs.Edit();
        album_.paragraphs.Set(u"Chapter", chapter);
        album_.paragraphs.Update();
        ++report_.adopted;
        return true;
    }

    void AdoptTheRest()
    {
        if (owners_.key(0, 0) == 0)
            return;
        const qint32 chapter = CreateChapterForFound();
        for (const ChainLink& link : paragraphs_)
            Adopt(link.id, chapter);
    }

    qint32 CreateChapterForFound()
    {
        const QString base = RepairReport::tr("Found again");
        QString name = base;
        for (int number = 2; IsTaken(name); ++number)
            name = QStringLiteral("%1 %2").arg(base, QString::number(number));
        const qint32 last = chapters_.isEmpty() ? 0 : chapters_.last();
        RecordSet& set = album_.chapters;
        set.AddNew();
        chapters_.append(set.Number(u"Id"));
        set.Set(u"Name", name);
        set.Set(u"PreviousChapter", last);
        set.Update();
        SetLink(set, last, u"NextChapter", chapters_.last());
        return chapters_.last();
    }

    bool IsTaken(const QString& name) const
    {
        Statement taken(album_.database->GetEngine(), "SELECT 1 FROM Chapter WHERE Name=?1");
        taken.Bind(1, name);
        return taken.Step();
    }

    Chain ChapterLinks() const { return {album_.chapters, u"PreviousChapter", u"NextChapter"}; }
    Chain ParagraphLinks() const
    {
        return {album_.paragraphs, u"PreviousParagraph", u"NextParagraph"};
    }

    void RepairParagraphs()
    {
        QHash<qint32, std::vector<ChainLink>> byChapter;
        for (const ChainLink& link : paragraphs_)
            byChapter[owners_.value(link.id)].push_back(link);
        for (const qint32 chapter : std::as_const(chapters_))
            RepairParagraphsOf(chapter, byChapter.value(chapter));
    }

    void RepairParagraphsOf(qint32 chapter, const std::vector<ChainLink>& links)
    {
        FindById(album_.chapters, chapter);
        const qint32 first = LinkOrBroken(album_.chapters, u"FirstParagraph");
        const std::vector<ChainLink> mended = MendChain(links, first);
        const qint32 head = mended.empty() ? 0 : mended.front().id;
        if (first != head) {
            album_.chapters.Edit();
            album_.chapters.Set(u"FirstParagraph", head);
            album_.chapters.Update();
            ++report_.firstParagraphs;
        }
        report_.paragraphLinks += WriteLinks(ParagraphLinks(), links, mended);
    }

    // Writes the rows that differ and returns their number.
    static int WriteLinks(const Chain& chain, const std::vector<ChainLink>& before,
                          const std::vector<ChainLink>& after)
    {
        QHash<qint32, ChainLink> old;
        for (const ChainLink& link : before)
            old.insert(link.id, link);
        int written = 0;
        for (const ChainLink& link : after) {
            if (old.value(link.id) == link)
                continue;
            chain.SetLinks(link.id, link.previous, link.next);
            ++written;
        }
        return written;
    }

    Album& album_;
    RepairReport report_;
    QList<qint32> chapters_; // in their order
    std::vector<ChainLink> paragraphs_;
    QHash<qint32, qint32> owners_; // chapter of each paragraph, 0 for none
};

} // namespace

namespace GeneralModule {

// Tried first and rolled back: a sound album needs no copy, and no copy can be made once changes
// have begun.
RepairReport RepairAlbum(const CopyProgress& progress)
{
    const UndoStep step(UndoStep::tr("Repair Album"));
    {
        const WriteBatch trial(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
        const RepairReport report = Repair(OpenedAlbum()).Run();
        if (report.IsEmpty())
            return report;
    }
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    const QString copy = CopyAlbumBeside(RepairReport::tr("before repair"), progress);
    if (copy.isEmpty()) {
        RepairReport stopped;
        stopped.isStopped = true;
        return stopped;
    }
    auto removeCopy = qScopeGuard([&copy] { QFile::remove(copy); });
    RepairReport report = Repair(OpenedAlbum()).Run();
    batch.Finish();
    removeCopy.dismiss();
    report.copy = copy;
    return report;
}

RepairReport TryRepair(const QString& album, const QString& password)
{
    Album tried(album, password);
    tried.database->SetBeforeChange({}); // nothing stays changed
    const WriteBatch trial(tried.database, WriteBatch::Commits::AtItsEnd);
    return Repair(tried).Run();
}

QString DescribeRepair(const RepairReport& report)
{
    QStringList lines;
    if (report.IsEmpty())
        lines += RepairReport::tr("The links of the album are in order; nothing was changed.");
    if (report.renumbered > 0)
        lines += RepairReport::tr(
                     "Chapters and paragraphs given a new number, theirs being out of range: %1")
                     .arg(report.renumbered);
    if (report.chapterLinks > 0)
        lines += RepairReport::tr("Chapters linked anew: %1").arg(report.chapterLinks);
    if (report.firstParagraphs > 0)
        lines += RepairReport::tr("Chapters given their right first paragraph: %1")
                     .arg(report.firstParagraphs);
    if (report.adopted > 0)
        lines += RepairReport::tr("Paragraphs without a chapter that have one now: %1")
                     .arg(report.adopted);
    if (report.paragraphLinks > 0)
        lines += RepairReport::tr("Paragraphs linked anew: %1").arg(report.paragraphLinks);
    if (!report.copy.isEmpty())
        lines += RepairReport::tr("The album as it was before is kept in '%1'.")
                     .arg(QDir::toNativeSeparators(report.copy));
    return lines.join(u'\n');
}

} // namespace GeneralModule
