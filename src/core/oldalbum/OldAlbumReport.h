// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QStringList>

namespace GeneralModule {

// What was taken over from an album in the former file format, and what was not.
class OldAlbumReport
{
    Q_DECLARE_TR_FUNCTIONS(OldAlbumReport)

public:
    qint64 chapters = 0;
    qint64 paragraphs = 0;
    qint64 pictures = 0;
    bool keepsPassword = false;

    // A sentence about something that differs from the old album.
    void AddProblem(const QString& problem);
    // A picture's path; those of another system are kept as they are, and their folders named.
    void AddPicturePath(const QString& path);

    bool IsWhole() const { return problems_.isEmpty(); }

    // Sentences, one of a line each; long lists end with how much more there is.
    QString Summary() const; // counts, and the password
    QStringList Problems() const;
    QStringList FolderHint() const; // empty when all paths are of this system

private:
    QStringList problems_; // the first ones
    qint64 furtherProblems_ = 0;
    QSet<QString> folders_;
    QStringList shownFolders_; // the first ones, as they come
    bool hasManyFolders_ = false;
};

} // namespace GeneralModule
