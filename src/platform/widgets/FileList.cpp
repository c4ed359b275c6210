// SPDX-License-Identifier: MIT
#include "platform/widgets/FileList.h"

#include "platform/dialogs/Dialogs.h"
#include "platform/files/FilePatterns.h"
#include "platform/files/FolderListing.h"

#include <QStringListModel>

FileList::FileList(QWidget* parent) : QListView(parent), model_(new QStringListModel(this))
{
    setModel(model_);
    // The view must not measure each of 100,000 names.
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
}

void FileList::SetPath(const QString& path)
{
    const FolderListing listing = ListFiles(path);
    path_ = path;
    files_ = listing.names;
    ApplyPattern();
    if (!listing.error.isEmpty())
        Tell(listing.error, Dialogs::Icon::Warning);
    leftOut_.Tell(listing, path,
                  tr("%1 file(s) of the folder '%2' left out: their names are not valid text."));
}

void FileList::SetPattern(const QString& pattern)
{
    pattern_ = pattern;
    ApplyPattern();
}

void FileList::ApplyPattern()
{
    const FilePatterns patterns(pattern_);
    QStringList shown;
    for (const QString& name : std::as_const(files_)) {
        if (patterns.Match(name))
            shown.append(name);
    }
    model_->setStringList(shown);
}

QStringList FileList::GetNames() const
{
    return model_->stringList();
}

QStringList FileList::GetMarked() const
{
    QStringList names;
    for (int row = 0; row < Count(); ++row) {
        const QModelIndex index = model_->index(row);
        if (selectionModel()->isSelected(index))
            names += index.data().toString();
    }
    return names;
}

int FileList::Count() const
{
    return model_->rowCount();
}

void FileList::SelectRow(int row)
{
    setCurrentIndex(model_->index(row));
}
