// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dialogs/Guard.h"
#include "platform/widgets/DriveBox.h"
#include "platform/widgets/FileList.h"
#include "platform/widgets/FolderList.h"

// The drive list, the folder list and, where a window has one, the file list by which the user
// chooses a folder: whichever of them is changed, the others follow.
class FolderChooser
{
public:
    // The controls must outlive it; files may be null.
    FolderChooser(DriveBox* drives, FolderList* folders, FileList* files);

    // From now on the form's handlers run when the user has chosen a drive or a folder. They call
    // FollowDrive and FollowFolder, and do what else the form has to do then.
    template<typename Form>
    void Connect(Form* form, void (Form::*driveHandler)(), void (Form::*folderHandler)()) const
    {
        QObject::connect(drives_, &DriveBox::DriveChanged, form, Guarded(form, driveHandler));
        QObject::connect(folders_, &FolderList::PathChanged, form, Guarded(form, folderHandler));
    }

    // The folder list goes to the root of the chosen drive. One that cannot be read is told in a
    // message box, and the folder on show stays.
    void FollowDrive() const;
    // The drive list shows the volume of the chosen folder, the file list what lies in it.
    void FollowFolder() const;

private:
    DriveBox* drives_;
    FolderList* folders_;
    FileList* files_;
};
