// SPDX-License-Identifier: MIT
#include "ui/main/ChapterList.h"

#include "core/ChapterChain.h"
#include "core/ParagraphCounts.h"
#include "platform/dialogs/Dialogs.h"
#include "ui/main/ChapterDelegate.h"

#include <QListWidget>
#include <QSignalBlocker>

using namespace GeneralModule;

ChapterList::ChapterList(QListWidget* list) : list_(list)
{
    QFont font = list_->font();
    font.setPointSizeF(font.pointSizeF() * 1.2);
    list_->setFont(font);
    list_->setItemDelegate(new ChapterDelegate(list_));
}

void ChapterList::Fill(const QString& selected)
{
    const QStringList names = ChapterNames();
    const QString kept = selected.isEmpty() ? Selected() : selected;
    const QSignalBlocker quiet(list_);
    list_->clear();
    list_->addItems(names);
    NoteCounts();
    SelectRow(qMax(0, int(names.indexOf(kept))));
}

void ChapterList::Clear()
{
    list_->clear();
    counts_.clear();
    counted_ = {};
}

void ChapterList::ShowParagraphCounts()
{
    const AlbumVersion version = GetAlbumVersion();
    if (version == counted_)
        return;
    counts_ = ParagraphCounts();
    counted_ = version;
    NoteCounts();
}

void ChapterList::NoteCounts()
{
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* item = list_->item(row);
        const auto count = counts_.constFind(item->text());
        const QString note =
            count == counts_.constEnd() ? QString() : tr("%Ln paragraph(s)", nullptr, *count);
        item->setData(Qt::AccessibleDescriptionRole, note);
    }
}

QString ChapterList::Selected() const
{
    const QListWidgetItem* item = list_->currentItem();
    return item ? item->text() : QString();
}

void ChapterList::SelectRow(int row)
{
    if (list_->count() > 0)
        list_->setCurrentRow(row);
}

bool ChapterList::IsListed(const QString& name) const
{
    return !list_->findItems(name, Qt::MatchFixedString).isEmpty();
}

QString ChapterList::AskName(const QString& prompt, const QString& ownName) const
{
    QString name = ownName;
    while (true) {
        // A refused name stays in the box, to be mended.
        name = Dialogs::Door().AskText({.prompt = prompt, .proposal = name});
        if (name.isEmpty())
            return {};
        const bool isOwn = name.compare(ownName, Qt::CaseInsensitive) == 0;
        if (!IsChapterName(name))
            Tell(tr("Chapter Names must begin with a letter or a figure"), Dialogs::Icon::Warning);
        else if (IsListed(name) && !isOwn)
            Tell(tr("This chapter exists already"), Dialogs::Icon::Warning);
        else
            return name;
    }
}

bool ChapterList::Create()
{
    const QString name = AskName(tr("Please Enter Chapter Name"), {});
    if (name.isEmpty())
        return false;
    CreateChapter(name, Selected());
    const int row = list_->currentRow() + 1;
    list_->insertItem(row, name);
    SelectRow(row);
    return true;
}

bool ChapterList::Rename()
{
    const QString name = Selected();
    // Found before the box comes up: another program may give the name to another chapter
    // meanwhile.
    const std::optional<qint32> chapter = name.isEmpty() ? std::nullopt : FindChapter(name);
    if (!chapter)
        return false;
    const QString newName = AskName(tr("Enter new name for chapter '%1'").arg(name), name);
    if (newName.isEmpty())
        return false;
    if (!RenameChapter(*chapter, newName))
        Tell(tr("This chapter is no longer in the album."), Dialogs::Icon::Warning);
    Fill(newName);
    return true;
}

bool ChapterList::Delete()
{
    const QString name = Selected();
    if (name.isEmpty())
        return false;
    switch (DeleteChapter(name)) {
    case ChapterDeletion::HasParagraphs:
        Tell(tr("This chapter contains paragraphs and can't be deleted"), Dialogs::Icon::Critical);
        break;
    case ChapterDeletion::Deleted:
        delete list_->takeItem(list_->currentRow());
        break;
    case ChapterDeletion::NotFound:
        break;
    }
    return true;
}

bool ChapterList::MoveUp()
{
    if (list_->currentRow() < 0 || !MoveChapterUp(Selected()))
        return false;
    Fill();
    return true;
}

bool ChapterList::MoveDown()
{
    if (list_->currentRow() < 0 || !MoveChapterDown(Selected()))
        return false;
    Fill();
    return true;
}

// The list may have been filled anew since the row was dropped.
bool ChapterList::MoveRow(int from, int to)
{
    if (from != list_->currentRow() || !MoveChapterBy(Selected(), to - from))
        return false;
    Fill();
    return true;
}
