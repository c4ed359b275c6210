// SPDX-License-Identifier: MIT
#include "platform/widgets/FolderList.h"

#include "platform/dialogs/Dialogs.h"
#include "platform/files/FolderListing.h"
#include "platform/widgets/LiteralText.h"

#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>

namespace {

constexpr int pathRole = Qt::UserRole;

// The folder's ancestors from the root on, then the folder itself.
QStringList Chain(const QString& path)
{
    QStringList chain{path};
    QDir folder(path);
    while (!folder.isRoot() && folder.cdUp())
        chain.prepend(QDir::toNativeSeparators(folder.absolutePath()));
    return chain;
}

} // namespace

FolderList::FolderList(QWidget* parent) : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setExpandsOnDoubleClick(false);
    setIndentation(14);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &FolderList::Open);
}

void FolderList::SetPath(const QString& path)
{
    const QString target = QDir::cleanPath(QDir(path).absolutePath());
    const FolderListing listing = ListFolders(target);
    if (!listing.error.isEmpty())
        return Tell(listing.error, Dialogs::Icon::Warning);
    path_ = QDir::toNativeSeparators(target);
    Fill(listing.names);
    emit PathChanged(path_);
    leftOut_.Tell(listing, target,
                  tr("%1 folder(s) in '%2' left out: their names are not valid text."));
}

void FolderList::Fill(const QStringList& folders)
{
    clear();
    QTreeWidgetItem* row = nullptr;
    for (const QString& path : Chain(path_)) {
        const QString name = QDir(path).dirName();
        row = AddRow(row, name.isEmpty() ? path : name, path);
        row->setIcon(0, style()->standardIcon(QStyle::SP_DirOpenIcon));
    }
    QTreeWidgetItem* here = row;
    const QIcon closed = style()->standardIcon(QStyle::SP_DirIcon);
    QList<QTreeWidgetItem*> rows;
    for (const QString& name : folders) {
        auto* child = new QTreeWidgetItem({name});
        child->setData(0, pathRole, PathIn(path_, name));
        child->setIcon(0, closed);
        rows.append(child);
    }
    here->addChildren(rows);
    expandAll();
    setCurrentItem(here);
    scrollToItem(here, QAbstractItemView::PositionAtCenter);
}

QTreeWidgetItem* FolderList::AddRow(QTreeWidgetItem* above, const QString& text,
                                    const QString& path)
{
    auto* row = new QTreeWidgetItem({text});
    row->setData(0, pathRole, path);
    row->setToolTip(0, AsToolTip(path));
    if (above)
        above->addChild(row);
    else
        addTopLevelItem(row);
    return row;
}

void FolderList::Open(const QTreeWidgetItem* item)
{
    if (item)
        SetPath(item->data(0, pathRole).toString());
}

void FolderList::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Open(currentItem());
    case Qt::Key_Backspace: {
        QDir folder(path_);
        if (folder.cdUp())
            SetPath(folder.absolutePath());
        return;
    }
    default:
        QTreeWidget::keyPressEvent(event);
    }
}
