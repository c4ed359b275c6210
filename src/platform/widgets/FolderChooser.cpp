// SPDX-License-Identifier: MIT
#include "platform/widgets/FolderChooser.h"

#include "platform/widgets/BusyPointer.h"

FolderChooser::FolderChooser(DriveBox* drives, FolderList* folders, FileList* files)
    : drives_(drives), folders_(folders), files_(files)
{
}

void FolderChooser::FollowDrive() const
{
    folders_->SetPath(drives_->GetDrive());
}

void FolderChooser::FollowFolder() const
{
    const BusyPointer busy; // a folder may hold 100,000 files
    const QString& folder = folders_->GetPath();
    drives_->ShowVolumeOf(folder);
    if (files_)
        files_->SetPath(folder);
}
