// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/DatabaseCopy.h"

#include <QCoreApplication>
#include <QString>

namespace GeneralModule {

// What a repair has changed.
struct RepairReport
{
    Q_DECLARE_TR_FUNCTIONS(RepairReport)

public:
    bool isStopped = false;  // by the user; nothing was changed
    QString copy;            // path of the album's copy as it was before; empty when all was well
    int renumbered = 0;      // rows whose identifier no link can hold
    int chapterLinks = 0;    // chapters whose links were wrong
    int firstParagraphs = 0; // chapters that named a wrong first paragraph
    int paragraphLinks = 0;  // paragraphs whose links were wrong
    int adopted = 0;         // paragraphs of no chapter that have one now

    bool IsEmpty() const
    {
        return renumbered + chapterLinks + firstParagraphs + paragraphLinks + adopted == 0;
    }
};

// Checks the chains of chapters and paragraphs of the open album and makes them whole: afterwards
// the chapters are one chain, and each chapter's paragraphs are one. Only links change, and
// identifiers that no link can hold: 0, negative ones, and those above the range of new rows. A
// paragraph without a chapter goes to the chapter of the paragraphs that it is linked with, or else
// to a new one at the end. If anything was wrong, a copy of the unrepaired album is kept beside it.
// Making that takes longest, so it alone calls progress and can be stopped.
// Moves the current rows of ChapterSet and ParagraphSet. Throws DatabaseError, NoAlbum while no
// album is open; then nothing is changed and no copy is left.
RepairReport RepairAlbum(const CopyProgress& progress = [](int) { return true; });

// What a repair of the album in that file would mend. Nothing is changed; nobody else may use the
// file meanwhile. Throws DatabaseError.
RepairReport TryRepair(const QString& album, const QString& password);

// The report as sentences for the user.
QString DescribeRepair(const RepairReport& report);

} // namespace GeneralModule
