// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphChain.h"

#include <QCoreApplication>

#include <functional>
#include <optional>

// One window's edit of a paragraph: what was loaded from the album, how the window's controls show
// that, and so what the user has changed. Asks the user when another window has changed the same.
// Everything that reads or writes the album moves ParagraphSet and throws DatabaseError.
class ParagraphEdit
{
    Q_DECLARE_TR_FUNCTIONS(ParagraphEdit)

public:
    // Access to the window's controls.
    struct Controls
    {
        std::function<ParagraphContent()> read;
        std::function<void(const ParagraphContent&)> show;
        std::function<QString(const ParagraphContent&)> describe; // as text for a person
    };

    explicit ParagraphEdit(Controls controls) : controls_(std::move(controls)) {}

    // Shows the album's content, and notes how the controls return it.
    void Load(const ParagraphContent& content);
    // Until Load the controls hold another paragraph, or something that must not be saved.
    void Unload() { isLoaded_ = false; }
    bool IsLoaded() const { return isLoaded_; }

    // The user's changes. An untouched part equals what was loaded, even where the controls alter
    // it.
    ParagraphDraft GetDraft() const;

    // Whether the user has changed something that is not saved.
    bool IsEdited() const;

    // Asks about what another window has changed too. False when the user wants to stay: then do
    // not go on with the intended action.
    bool SettleConflict(qint32 paragraph);
    // Does the same, then saves. Saves nothing that was not loaded.
    bool Save(const ParagraphPlace& place);
    // Saves; when that fails, asks whether to leave anyway. True when the window may be left.
    bool SaveOrGiveUp(const ParagraphPlace& place);
    // Shows what is stored after a save, including other parts that another window has changed.
    void ShowSaved(qint32 paragraph);

    // Asks whether to delete the paragraph, and again if another window has changed it.
    bool ConfirmDeletion(qint32 paragraph) const;

private:
    Controls controls_;
    ParagraphContent loaded_; // as read from the album
    ParagraphContent shown_;  // loaded_ as the controls return it
    bool isLoaded_ = false;
};
