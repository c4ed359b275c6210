// SPDX-License-Identifier: MIT
#pragma once

#include "platform/helper/HelperQueue.h"
#include "platform/metadata/FileMetadata.h"

#include <QStringList>

#include <chrono>
#include <functional>

// Reads what picture files and their sidecars say. The files are not read in this process: one
// program reads them all, under limits of memory and time, and another one goes on after a file
// that ended it.
class MetadataReader
{
public:
    // Gets each file's number among the paths, from 0, in order.
    using Visit = std::function<void(int number, const FileMetadata& metadata)>;

    // A file's path by its number, from 0. May be asked for more than once, during Work.
    using PathOf = std::function<QString(int number)>;

    explicit MetadataReader(const QStringList& paths);
    MetadataReader(int count, const PathOf& pathOf);

    // Reads for about that time; false when all were read. Throws DatabaseError CannotOpen when the
    // program cannot be started, and what visit throws.
    bool Work(std::chrono::milliseconds time, const Visit& visit);

private:
    HelperQueue queue_;
};
