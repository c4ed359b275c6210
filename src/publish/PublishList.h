// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

// The list of what was published into a folder: a JSON file in it.

constexpr char publishListName[] = "lumenark-published.json";

struct PublishedFile
{
    QString name; // in the folder, "/" separates
    QString from; // the fingerprint of what it was made from, which tells nobody about the sender
    qint64 size = 0;
    qint64 time = 0; // last changed, milliseconds since 1970
};

struct PublishList
{
    QString kind;
    std::vector<PublishedFile> files{}; // in the order in which they are put in place
};

QByteArray WritePublishList(const PublishList& list);
// None for something else, for the list of a later version, and where a name could lead out of the
// folder.
std::optional<PublishList> ReadPublishList(const QByteArray& text);

QString FingerprintOf(const QString& madeFrom);
// A path within a folder, without "." and "..".
bool IsInnerName(const QString& name);
// Equal for names that some systems take for one.
QString FoldedName(const QString& name);

// Of the file at that path; none where no file is.
std::optional<PublishedFile> LookAtFile(const QString& path);
// Size and time are those. Times may differ by two seconds, the step of simple file systems.
bool IsAsMade(const PublishedFile& made, const std::optional<PublishedFile>& now);
