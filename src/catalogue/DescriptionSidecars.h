// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/DescriptionChanges.h"

#include <QStringList>

#include <chrono>
#include <memory>

class MetadataReader;
class SidecarWriter;
struct FileMetadata;

// Descriptions in XMP sidecars beside the pictures. Other programs see the legend as the caption
// and the values as keywords; fields of the program's own hold all of it exactly.

// Writes the sidecars of the album's pictures in slices.
class SidecarExport
{
public:
    // Throws DatabaseError, NoAlbum while no album is open.
    SidecarExport();
    ~SidecarExport();
    Q_DISABLE_COPY_MOVE(SidecarExport)

    int GetCount() const { return int(ids_.size()); }
    int GetDone() const { return done_; }
    int GetWritten() const { return written_; }
    // Why pictures have no new sidecar, with their files.
    const QStringList& GetTroubles() const { return troubles_; }

    // Works for about that time; false when all is done. Throws DatabaseError.
    bool Work(std::chrono::milliseconds time);

private:
    struct Batch;

    bool BeginBatch();
    void Note(int number, const QString& trouble);

    std::vector<qint32> ids_;
    std::unique_ptr<Batch> batch_;
    std::size_t next_ = 0; // the first picture that is in no batch yet
    int done_ = 0;
    int written_ = 0;
    QStringList troubles_;
};

// Reads the sidecars of the album's pictures in slices.
class SidecarImport
{
public:
    // Throws DatabaseError, NoAlbum while no album is open.
    SidecarImport();
    ~SidecarImport();
    Q_DISABLE_COPY_MOVE(SidecarImport)

    int GetCount() const { return int(files_.size()); }
    int GetDone() const { return done_; }
    // Works for about that time; false when all is done. Throws DatabaseError.
    bool Work(std::chrono::milliseconds time);
    // Of the pictures that have a sidecar with a description by this program.
    const std::vector<ImportedDescription>& GetDescriptions() const { return descriptions_; }

private:
    QStringList files_;
    std::unique_ptr<MetadataReader> reader_;
    std::vector<ImportedDescription> descriptions_;
    int done_ = 0;
};

// None when no sidecar of the picture was written by this program. A caption that another program
// has changed since counts as the legend.
std::optional<ImportedDescription> DescriptionFrom(const QString& file,
                                                   const FileMetadata& metadata);
