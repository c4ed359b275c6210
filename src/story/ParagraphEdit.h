// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphChain.h"

#include <QCoreApplication>

#include <functional>
#include <optional>

// One window's edit of a paragraph: what the album held when it was loaded, what the window's
// controls made of that, and from both what the user has changed. Asks the user where another
// window has changed the same. Everything that reads or writes the album moves ParagraphSet and
// throws DatabaseError.
class ParagraphEdit
{
    Q_DECLARE_TR_FUNCTIONS(ParagraphEdit)

public:
    // The way to the window's controls.
    struct Controls
    {
        std::function<ParagraphContent()> read;
        std::function<void(const ParagraphContent&)> show;
        std::function<QString(const ParagraphContent&)> describe; // for a person to read
    };

    explicit ParagraphEdit(Controls controls) : controls_(std::move(controls)) {}

    // Shows what the album holds, and takes note of what the controls make of it.
    void Load(const ParagraphContent& content);
    // The controls hold another paragraph, or what must not be saved, until Load.
    void Unload() { isLoaded_ = false; }
    bool IsLoaded() const { return isLoaded_; }

    // What the user has changed. A part that nobody has touched is the same as it was loaded,
    // whatever the controls make of it.
    ParagraphDraft GetDraft() const;

    // Asks about what another window has changed too. False when the user wants to stay: then
    // whatever was to be done with the paragraph must not happen.
    bool SettleConflict(qint32 paragraph);
    // The same, and then saves. Nothing is saved that was not loaded.
    bool Save(const ParagraphPlace& place);
    // Asks whether to leave what cannot be saved. True when the window may be left.
    bool SaveOrGiveUp(const ParagraphPlace& place);
    // Shows what a save has written: what another window has written to other parts is in it.
    void ShowSaved(qint32 paragraph);

    // Asks whether to delete the paragraph, once more where another window has changed it.
    bool ConfirmDeletion(qint32 paragraph) const;

private:
    Controls controls_;
    ParagraphContent loaded_; // as the album held it
    ParagraphContent shown_;  // the same as the controls give it back
    bool isLoaded_ = false;
};
