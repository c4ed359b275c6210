// SPDX-License-Identifier: MIT
#include "core/ChapterChain.h"

#include "core/AlbumChains.h"
#include "core/AlbumSets.h"
#include "core/TextRoutines.h"
#include "core/UndoSteps.h"
#include "platform/data/WriteBatch.h"
#include "platform/text/LikePattern.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using namespace GeneralModule;

// The current row's name; empty when it is missing or not valid text.
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

std::optional<qint32> FindListed(const QString& title)
{
    for (const Chapter& chapter : Chapters()) {
        if (chapter.title == title)
            return chapter.id;
    }
    return std::nullopt;
}

// The neighbour that a chapter changes places with is the one in reading order: an insertion leaves
// the backward link of the chapter after it as it was. The last chapter may lead back to one
// before it, which is no neighbour.
bool MoveChapter(const QString& name, ChainDirection direction)
{
    const std::optional<qint32> moved = FindChapter(name);
    if (!moved)
        return false;
    const bool isUp = direction == ChainDirection::Previous;
    const qint32 upper = isUp ? ChapterLeadingTo(*moved) : *moved;
    const qint32 lower = isUp ? *moved : NextChapter(*moved);
    if (upper == 0 || lower == 0 || ChapterLeadingTo(lower) != upper)
        return false;
    const qint32 before = ChapterLeadingTo(upper);
    const UndoStep step(StepAbout(UndoStep::tr("Move Chapter"), name));
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    ChainOfChapters().Exchange(before, upper, lower);
    batch.Finish();
    return true;
}

} // namespace

namespace GeneralModule {

std::vector<Chapter> Chapters()
{
    std::vector<Chapter> chapters;
    int unnamed = 0;
    ChainOfChapters().Walk(FirstChapter(), ChainDirection::Next, [&](qint32 chapter) {
        const QString name = StoredName();
        chapters.push_back({chapter, name.isEmpty() ? UnnamedTitle(++unnamed) : name});
        return true;
    });
    return chapters;
}

QStringList ChapterNames()
{
    QStringList names;
    for (const Chapter& chapter : Chapters())
        names += chapter.title;
    return names;
}

QString ChapterTitle(qint32 chapter)
{
    if (!FindById(*ChapterSet, chapter))
        return {};
    const QString title = StoredName();
    if (!title.isEmpty())
        return title;
    for (const Chapter& listed : Chapters()) {
        if (listed.id == chapter)
            return listed.title;
    }
    return UnnamedTitle(1);
}

qint32 FirstChapter()
{
    ChapterSet->FindFirst(QStringLiteral("[PreviousChapter]=0"));
    return ChapterSet->NoMatch() ? 0 : ChapterSet->Number(u"Id");
}

bool HasChapter(qint32 chapter)
{
    return FindById(*ChapterSet, chapter);
}

qint32 ChapterLeadingTo(qint32 chapter)
{
    const Chain chain = ChainOfChapters();
    const Chain::Way way = chain.FindWay(FirstChapter(), chapter);
    return way.isReached ? way.last : chain.Previous(chapter);
}

qint32 NextChapter(qint32 chapter)
{
    return ChainOfChapters().Next(chapter);
}

bool IsChapterName(const QString& name)
{
    return IsLike(name, "[A-Z]*") || IsLike(name, "#*");
}

// The pattern may match another name first, because a wildcard stands for an apostrophe or the name
// itself contains a wildcard. The chapter meant is the one with exactly this name.
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
    const UndoStep step(StepAbout(UndoStep::tr("Create Chapter"), name));
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
    ChainOfChapters().LeadTo(selected, created);
    batch.Finish();
    return created;
}

bool RenameChapter(qint32 chapter, const QString& newName)
{
    const UndoStep step(StepAbout(UndoStep::tr("Rename Chapter to"), newName));
    if (!FindById(*ChapterSet, chapter))
        return false;
    ChapterSet->Edit();
    ChapterSet->Set(u"Name", newName);
    ChapterSet->Update();
    return true;
}

// Both neighbours are looked up first: a dangling link must not send the new links elsewhere.
ChapterDeletion DeleteChapter(const QString& name)
{
    const std::optional<qint32> gone = FindChapter(name);
    if (!gone)
        return ChapterDeletion::NotFound;
    const UndoStep step(StepAbout(UndoStep::tr("Delete Chapter"), name));
    const qint32 previous = ChapterLeadingTo(*gone);
    const qint32 next = NextChapter(*gone);
    if (!FindById(*ChapterSet, *gone))
        return ChapterDeletion::NotFound;
    if (ChapterSet->Number(u"FirstParagraph") > 0)
        return ChapterDeletion::HasParagraphs;
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    ChapterSet->Delete();
    ChainOfChapters().Join(previous, next);
    batch.Finish();
    return ChapterDeletion::Deleted;
}

bool MoveChapterUp(const QString& name)
{
    return MoveChapter(name, ChainDirection::Previous);
}

bool MoveChapterDown(const QString& name)
{
    return MoveChapter(name, ChainDirection::Next);
}

// One walk tells the neighbours of all exchanges; to look for them each time takes seconds in an
// album of many chapters.
bool MoveChapterBy(const QString& name, int places)
{
    const std::optional<qint32> moved = FindChapter(name);
    const Chain chain = ChainOfChapters();
    std::vector<qint32> order = chain.Rows(FirstChapter(), ChainDirection::Next);
    const auto found = std::find(order.begin(), order.end(), moved.value_or(0));
    if (found == order.end())
        return false;
    int place = int(found - order.begin());
    const int target = std::clamp(place + places, 0, int(order.size()) - 1);
    if (target == place)
        return false;
    const int way = target > place ? 1 : -1;
    const UndoStep step(StepAbout(UndoStep::tr("Move Chapter"), name));
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    for (; place != target; place += way) {
        const auto upper = std::size_t(std::min(place, place + way));
        const qint32 before = upper == 0 ? 0 : order[upper - 1];
        chain.Exchange(before, order[upper], order[upper + 1]);
        std::swap(order[upper], order[upper + 1]);
    }
    batch.Finish();
    return true;
}

} // namespace GeneralModule
