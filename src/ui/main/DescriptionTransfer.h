// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/DescriptionChanges.h"

#include <QCoreApplication>

class WorkProgress;

// Descriptions out of the album and back, as the main window offers it: as a table for
// spreadsheets, or as XMP files beside the pictures. Message boxes tell what would change before
// anything does, and what was done. Every way out before leaves all as it was.
class DescriptionTransfer
{
    Q_DECLARE_TR_FUNCTIONS(DescriptionTransfer)

public:
    // The bar must outlive it.
    explicit DescriptionTransfer(WorkProgress* progress) : progress_(progress) {}

    // Throw DatabaseError. A table that cannot be written or read is told in a message box.
    void ExportTable() const;
    void ExportSidecars() const;
    void ImportTable() const;
    void ImportSidecars() const;

private:
    // False when the user stopped it.
    template<typename SidecarWork>
    bool WorkToTheEnd(SidecarWork& work) const;
    // lines: what else the user should know.
    void Import(const std::vector<ImportedDescription>& imported, QStringList lines) const;

    WorkProgress* progress_;
};
