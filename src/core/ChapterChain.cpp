// SPDX-License-Identifier: MIT
#include "core/ChapterChain.h"

#include "core/Album.h"
#include "core/TextRoutines.h"
#include "platform/text/LikePattern.h"

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

} // namespace

namespace GeneralModule {

QStringList ChapterNames()
{
    QStringList names;
    QSet<qint32> listed;
    ChapterSet->FindFirst(QStringLiteral("[PreviousChapter]=0"));
    bool found = !ChapterSet->NoMatch();
    while (found) {
        const ChapterLinks links = CurrentLinks();
        if (listed.contains(links.id))
            break;
        listed.insert(links.id);
        names += ChapterSet->TextOrEmpty(u"Name");
        found = FindById(*ChapterSet, links.next);
    }
    return names;
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
        while (!ChapterSet->NoMatch() && ChapterSet->TextOrEmpty(u"Name") != name)
            ChapterSet->FindNext(filter);
        if (!ChapterSet->NoMatch())
            return ChapterSet->Number(u"Id");
    }
    return std::nullopt;
}

qint32 CreateChapter(const QString& name, const QString& after)
{
    qint32 selected = 0;
    qint32 next = 0;
    if (!after.isEmpty() && FindChapter(after)) {
        selected = ChapterSet->Number(u"Id");
        next = ChapterSet->Number(u"NextChapter");
    }
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
    return created;
}

void RenameChapter(const QString& name, const QString& newName)
{
    if (!FindChapter(name))
        return;
    ChapterSet->Edit();
    ChapterSet->Set(u"Name", newName);
    ChapterSet->Update();
}

ChapterDeletion DeleteChapter(const QString& name)
{
    if (!FindChapter(name))
        return ChapterDeletion::NotFound;
    if (ChapterSet->Number(u"FirstParagraph") > 0)
        return ChapterDeletion::HasParagraphs;
    const ChapterLinks gone = CurrentLinks();
    ChapterSet->Delete();
    SetLink(gone.previous, u"NextChapter", gone.next);
    SetLink(gone.next, u"PreviousChapter", gone.previous);
    return ChapterDeletion::Deleted;
}

bool MoveChapterUp(const QString& name)
{
    if (!FindChapter(name))
        return false;
    const ChapterLinks moved = CurrentLinks();
    if (moved.previous == 0 || !FindById(*ChapterSet, moved.previous))
        return false;
    const qint32 beforePrevious = ChapterSet->Number(u"PreviousChapter");
    SetLinks(moved.previous, moved.id, moved.next);
    SetLink(beforePrevious, u"NextChapter", moved.id);
    SetLinks(moved.id, beforePrevious, moved.previous);
    SetLink(moved.next, u"PreviousChapter", moved.previous);
    return true;
}

bool MoveChapterDown(const QString& name)
{
    if (!FindChapter(name))
        return false;
    const ChapterLinks moved = CurrentLinks();
    if (moved.next == 0 || !FindById(*ChapterSet, moved.next))
        return false;
    const qint32 afterNext = ChapterSet->Number(u"NextChapter");
    SetLinks(moved.next, moved.previous, moved.id);
    SetLink(afterNext, u"PreviousChapter", moved.id);
    SetLinks(moved.id, moved.next, afterNext);
    SetLink(moved.previous, u"NextChapter", moved.next);
    return true;
}

} // namespace GeneralModule
