// SPDX-License-Identifier: MIT
#pragma once

#include "core/Album.h"

#include <QCoreApplication>
#include <QHash>
#include <QString>

class QListWidget;

// The chapters of the open album in a list box, in reading order, and what the user does to the
// selected one. The list box and the album say the same, but for what other programs change.
class ChapterList
{
    Q_DECLARE_TR_FUNCTIONS(ChapterList)

public:
    // The list box must outlive it.
    explicit ChapterList(QListWidget* list);

    // Reads the album's chapters and selects the one of that name; without a name the selection
    // stays, by its name. When reading fails the list stays as it was.
    void Fill(const QString& selected = {});
    void Clear();
    // Shows beside each name how many paragraphs the chapter has, as far as the album has changed.
    void ShowParagraphCounts();
    // Empty when none is selected.
    QString Selected() const;

    // They ask the user where there is something to ask, and tell why not when something cannot be
    // done. False when the user gave up or nothing is selected.
    bool Create(); // after the selected one, and selects it
    bool Rename();
    bool Delete();
    // False, and nothing changed, at the top and at the bottom.
    bool MoveUp();
    bool MoveDown();
    // Gives the chapter in that row another one, by single moves.
    bool MoveRow(int from, int to);

private:
    // Asks until the answer is a name that a chapter may get; empty when the user gave up. ownName
    // does not count as taken.
    QString AskName(const QString& prompt, const QString& ownName) const;
    bool IsListed(const QString& name) const;
    void SelectRow(int row);
    void NoteCounts();

    QListWidget* list_;
    QHash<QString, int> counts_; // of paragraphs, by the chapter's name
    GeneralModule::AlbumVersion counted_;
};
