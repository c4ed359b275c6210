// SPDX-License-Identifier: MIT
#pragma once

#include "platform/helper/HelperQueue.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

// What a sidecar is to say.
struct SidecarContent
{
    QString picture; // path
    QString caption; // for other programs
    QStringList keywords;
    // The program's own fields by name. Texts must be printable ASCII and not empty.
    QMap<QString, QString> ownFields;
};

// Writes descriptions into sidecars: photo.jpg.xmp where that is there, else photo.xmp where that
// is there and no other picture's, else a new photo.jpg.xmp. What else a sidecar holds stays. Each
// is written beside its place and then takes it; pictures are never touched.
class SidecarWriter
{
public:
    // A description by number, from 0. May be asked for more than once.
    using Content = std::function<SidecarContent(int number)>;
    // Gets each sidecar's path, and why it was not written; empty when it was.
    using Visit = std::function<void(int number, const QString& path, const QString& trouble)>;

    SidecarWriter(int count, const Content& content);

    // Writes for about that time; false when all were. Throws as MetadataReader::Work.
    bool Work(std::chrono::milliseconds time, const Visit& visit);

private:
    HelperQueue queue_;
};
