// SPDX-License-Identifier: MIT
// The part of the main window that works on the list of chapters.
#include "ui/main/frmOpenChapter.h"
#include "ui_frmOpenChapter.h"

#include "core/ChapterChain.h"
#include "platform/dialogs/Dialogs.h"
#include "viewer/ViewerFlags.h"
#include "viewer/frmReelvane.h"

using namespace GeneralModule;

QString frmOpenChapter::SelectedChapter() const
{
    const QListWidgetItem* item = ui_->lstChapter->currentItem();
    return item ? item->text() : QString();
}

void frmOpenChapter::SelectRow(int row)
{
    if (ui_->lstChapter->count() > 0)
        ui_->lstChapter->setCurrentRow(row);
}

void frmOpenChapter::cmdReadChapter_Click()
{
    if (!AlbumOpen())
        return;
    const std::optional<qint32> chapter = FindChapter(SelectedChapter());
    if (!chapter)
        return;
    AutoviewOn = false;
    frmReelvane viewer(this);
    viewer.CurrentChapter = *chapter;
    viewer.exec();
    RefreshState();
}

bool frmOpenChapter::IsListed(const QString& name) const
{
    return !ui_->lstChapter->findItems(name, Qt::MatchFixedString).isEmpty();
}

QString frmOpenChapter::AskChapterName(const QString& prompt, const QString& ownName)
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

void frmOpenChapter::cmdCreateChapter_Click()
{
    if (!AlbumOpen())
        return;
    const QString name = AskChapterName(tr("Please Enter Chapter Name"), {});
    if (name.isEmpty())
        return;
    CreateChapter(name, SelectedChapter());
    const int row = ui_->lstChapter->currentRow() + 1;
    ui_->lstChapter->insertItem(row, name);
    SelectRow(row);
    RefreshState();
    cmdReadChapter_Click();
}

void frmOpenChapter::mnuRename_Click()
{
    const QString name = SelectedChapter();
    // Found before the box comes up: another program may give the name to another chapter
    // meanwhile.
    const std::optional<qint32> chapter = name.isEmpty() ? std::nullopt : FindChapter(name);
    if (!chapter)
        return;
    const QString newName =
        AskChapterName(tr("Enter new name for chapter '") + name + QLatin1Char('\''), name);
    if (newName.isEmpty())
        return;
    if (!RenameChapter(*chapter, newName))
        Tell(tr("This chapter is no longer in the album."), Dialogs::Icon::Warning);
    FillChapterList(newName);
    RefreshState();
}

void frmOpenChapter::mnuDeleteChapter_Click()
{
    const QString name = SelectedChapter();
    if (name.isEmpty())
        return;
    switch (DeleteChapter(name)) {
    case ChapterDeletion::HasParagraphs:
        Tell(tr("This chapter contains paragraphs and can't be deleted"), Dialogs::Icon::Critical);
        break;
    case ChapterDeletion::Deleted:
        delete ui_->lstChapter->takeItem(ui_->lstChapter->currentRow());
        break;
    case ChapterDeletion::NotFound:
        break;
    }
    RefreshState();
}

void frmOpenChapter::cmdMoveUp_Click()
{
    if (ui_->lstChapter->currentRow() < 0 || !MoveChapterUp(SelectedChapter()))
        return;
    FillChapterList();
    RefreshState();
}

void frmOpenChapter::cmdMoveDown_Click()
{
    if (ui_->lstChapter->currentRow() < 0 || !MoveChapterDown(SelectedChapter()))
        return;
    FillChapterList();
    RefreshState();
}
