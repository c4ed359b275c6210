// SPDX-License-Identifier: MIT
#include "core/ChapterChain.h"

#include "core/Album.h"
#include "core/TextRoutines.h"
#include "platform/data/WriteBatch.h"
#include "platform/text/LikePattern.h"

#include <QCoreApplication>
#include <QSet>

namespace {

using namespace GeneralModule;

struct ChapterLinks
{
    qint32 id;
    qint32 previous;
    qint32 next;
};

ChapterLinks CurrentLinks()
{
    return {ChapterSet->Number(u"Id"), ChapterSet->Number(u"PreviousChapter"),
            ChapterSet->Number(u"NextChapter")};
}

// Calls visit on each chapter from the first one on, along NextChapter, until it returns false or a
// link leads to no chapter or back; the set stands on the chapter.
template<typename Visit>
void WalkChapters(const Visit& visit)
{
    QSet<qint32> visited;
    ChapterSet->FindFirst(QStringLiteral("[PreviousChapter]=0"));
    bool isFound = !ChapterSet->NoMatch();
    while (isFound) {
        const ChapterLinks links = CurrentLinks();
        if (visited.contains(links.id) || !visit(links))
            return;
        visited.insert(links.id);
        isFound = FindById(*ChapterSet, links.next);
    }
}

// Of the current row; empty where it is missing or no valid text.
QString StoredName()
{
    try {
        const QString name = ChapterSet->TextOrEmpty(u"Name");
        return name.contains(QChar::ReplacementCharacter) ? QString() : name;
    } catch (const DatabaseError& error) {
        if (error.GetNumber() != DatabaseError::TypeMismatch)
            throw;
        return {};
    }
}

QString UnnamedTitle(int number)
{
    return number == 1 ? QCoreApplication::translate("ChapterChain", "(no name)")
                       : QCoreApplication::translate("ChapterChain", "(no name %1)").arg(number);
}

// Calls visit on the identifier and the name as it is listed of each chapter, until it returns
// false; the set stands on the chapter.
template<typename Visit>
void WalkNames(const Visit& visit)
{
    int unnamed = 0;
    WalkChapters([&](const ChapterLinks& links) {
        const QString name = StoredName();
        return visit(links.id, name.isEmpty() ? UnnamedTitle(++unnamed) : name);
    });
}

std::optional<qint32> FindListed(const QString& title)
{
    std::optional<qint32> found;
    WalkNames([&](qint32 chapter, const QString& listed) {
        if (listed == title)
            found = chapter;
        return !found;
    });
    return found;
}

// The links of the chapter of that name as the reading order has them: an insertion leaves the
// backward link of the chapter that follows it as it was.
std::optional<ChapterLinks> FindLinks(const QString& name)
{
    const std::optional<qint32> chapter = FindChapter(name);
    if (!chapter)
        return std::nullopt;
    ChapterLinks links{*chapter, 0, ChapterSet->Number(u"NextChapter")};
    links.previous = ChapterLeadingTo(*chapter);
    return links;
}

// A chapter that is gone needs no links: a dangling one must not send the new links elsewhere.
void SetLink(qint32 id, QStringView field, qint32 value)
{
    if (id <= 0 || !FindById(*ChapterSet, id))
        return;
    ChapterSet->Edit();
    ChapterSet->Set(field, value);
    ChapterSet->Update();
}

void SetLinks(qint32 id, qint32 previous, qint32 next)
{
    if (!FindById(*ChapterSet, id))
        return;
    ChapterSet->Edit();
    ChapterSet->Set(u"PreviousChapter", previous);
    ChapterSet->Set(u"NextChapter", next);
    ChapterSet->Update();
}

// Exchanges two neighbours, after the lower one of which comes next.
void Exchange(qint32 upper, qint32 lower, qint32 next)
{
    const qint32 previous = ChapterLeadingTo(upper);
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    SetLinks(lower, previous, upper);
    SetLinks(upper, lower, next);
    SetLink(previous, u"NextChapter", lower);
    SetLink(next, u"PreviousChapter", upper);
    batch.Finish();
}

} // namespace

namespace GeneralModule {

QStringList ChapterNames()
{
    QStringList names;
    WalkNames([&names](qint32, const QString& name) {
        names += name;
        return true;
    });
    return names;
}

QString ChapterTitle(qint32 chapter)
{
    if (!FindById(*ChapterSet, chapter))
        return {};
    QString title = StoredName();
    if (!title.isEmpty())
        return title;
    title = UnnamedTitle(1); // of one that is not listed
    WalkNames([&](qint32 visited, const QString& listed) {
        if (visited == chapter)
            title = listed;
        return visited != chapter;
    });
    return title;
}

qint32 ChapterLeadingTo(qint32 chapter)
{
    qint32 before = 0;
    bool isReached = false;
    WalkChapters([&](const ChapterLinks& links) {
        isReached = links.id == chapter;
        if (!isReached)
            before = links.id;
        return !isReached;
    });
    if (isReached)
        return before;
    const qint32 stored =
        FindById(*ChapterSet, chapter) ? ChapterSet->Number(u"PreviousChapter") : 0;
    return stored != chapter && stored > 0 && FindById(*ChapterSet, stored) ? stored : 0;
}

bool IsChapterName(const QString& name)
{
    return IsLike(name, "[A-Z]*") || IsLike(name, "#*");
}

// The comparison by pattern may meet another name first, where a wildcard stands for an apostrophe
// or the name itself holds a wildcard character; the chapter meant is the one that reads the same.
std::optional<qint32> FindChapter(const QString& name)
{
    const QString like = QStringLiteral("[Name] like '") + LikeSafe(name) + QLatin1Char('\'');
    const QString exact = QStringLiteral("[Name]=") + Quoted(name);
    const bool isPattern =
        LikePattern(name.toStdString(), LikePattern::Case::Insensitive).IsValid();
    const RecordSet::Walk walk(*ChapterSet);
    for (const QString& filter : {isPattern ? like : exact, exact}) {
        ChapterSet->FindFirst(filter);
        while (!ChapterSet->NoMatch() && StoredName() != name)
            ChapterSet->FindNext(filter);
        if (!ChapterSet->NoMatch())
            return ChapterSet->Number(u"Id");
    }
    return FindListed(name);
}

qint32 CreateChapter(const QString& name, const QString& after)
{
    qint32 selected = 0;
    qint32 next = 0;
    if (!after.isEmpty() && FindChapter(after)) {
        selected = ChapterSet->Number(u"Id");
        next = ChapterSet->Number(u"NextChapter");
    }
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    ChapterSet->AddNew();
    ChapterSet->Set(u"Name", name);
    ChapterSet->Set(u"FirstParagraph", 0);
    ChapterSet->Set(u"NextChapter", next);
    ChapterSet->Set(u"PreviousChapter", selected);
    const qint32 created = ChapterSet->Number(u"Id");
    ChapterSet->Update();
    // The chapter that followed keeps its backward link on purpose; albums are made this way, and
    // the repair of an album sets it right.
    SetLink(selected, u"NextChapter", created);
    batch.Finish();
    return created;
}

bool RenameChapter(qint32 chapter, const QString& newName)
{
    if (!FindById(*ChapterSet, chapter))
        return false;
    ChapterSet->Edit();
    ChapterSet->Set(u"Name", newName);
    ChapterSet->Update();
    return true;
}

ChapterDeletion DeleteChapter(const QString& name)
{
    const std::optional<ChapterLinks> gone = FindLinks(name);
    if (!gone || !FindById(*ChapterSet, gone->id))
        return ChapterDeletion::NotFound;
    if (ChapterSet->Number(u"FirstParagraph") > 0)
        return ChapterDeletion::HasParagraphs;
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    ChapterSet->Delete();
    SetLink(gone->previous, u"NextChapter", gone->next);
    SetLink(gone->next, u"PreviousChapter", gone->previous);
    batch.Finish();
    return ChapterDeletion::Deleted;
}

bool MoveChapterUp(const QString& name)
{
    const std::optional<ChapterLinks> moved = FindLinks(name);
    if (!moved || moved->previous == 0)
        return false;
    Exchange(moved->previous, moved->id, moved->next);
    return true;
}

bool MoveChapterDown(const QString& name)
{
    const std::optional<ChapterLinks> moved = FindLinks(name);
    // The last chapter may lead nowhere, or back to one before it.
    if (!moved || moved->next == 0 || ChapterLeadingTo(moved->next) != moved->id ||
        !FindById(*ChapterSet, moved->next))
        return false;
    Exchange(moved->id, moved->next, ChapterSet->Number(u"NextChapter"));
    return true;
}

} // namespace GeneralModule
