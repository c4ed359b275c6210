// SPDX-License-Identifier: MIT
#include "platform/widgets/LeftOutNames.h"

#include "platform/dialogs/Dialogs.h"
#include "platform/files/FolderListing.h"

#include <QDir>

void LeftOutNames::Tell(const FolderListing& listing, const QString& folder, const QString& text)
{
    if (listing.unusable.isEmpty() || toldOf_.contains(folder))
        return;
    toldOf_.insert(folder);
    ::Tell(text.arg(QString::number(listing.unusable.size()), QDir::toNativeSeparators(folder)),
           Dialogs::Icon::Warning);
}
