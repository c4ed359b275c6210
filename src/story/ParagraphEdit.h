// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphChain.h"

#include <functional>
#include <optional>

// One window's edit of a paragraph: what the album held when it was loaded, what the window's
// controls made of that, and from both what the user has changed. The album's part is read and
// written; every routine moves ParagraphSet and throws DatabaseError.
class ParagraphEdit
{
public:
    // Nothing is edited until Load; nothing is saved then.
    bool IsLoaded() const { return isLoaded_; }
    void Unload() { isLoaded_ = false; }
    // loaded is what the album holds and shown the same as the controls give it back.
    void Load(const ParagraphContent& loaded, const ParagraphContent& shown);

    // A part that nobody has touched is the same as it was loaded, whatever the controls make of
    // it.
    ParagraphDraft GetDraft(const ParagraphContent& inControls) const;

    // What another window has written meanwhile, where the same was changed here too.
    std::optional<ParagraphContent> FindConflict(qint32 paragraph,
                                                 const ParagraphDraft& draft) const;

    // Takes note of what a save has written, and returns what the controls should show now: what
    // another window has written to other parts is in it. A filter that waits for its first value
    // goes on waiting.
    ParagraphContent TakeSaved(qint32 paragraph, const ParagraphContent& inControls);
    void SetShown(const ParagraphContent& shown) { shown_ = shown; }

    // Whether the album still holds what was loaded.
    bool IsUnchanged(const ParagraphContent& stored) const { return stored == loaded_; }

private:
    ParagraphContent loaded_;
    ParagraphContent shown_;
    bool isLoaded_ = false;
};
