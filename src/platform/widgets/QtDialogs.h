// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dialogs/Dialogs.h"

// The dialogs of the running program: the toolkit's message boxes, input boxes and file dialogs,
// modal to the front window.
class QtDialogs : public Dialogs
{
public:
    Answer Ask(const Box& box) override;
    QString AskText(const Input& input) override;
    QString AskOpenFile(const FileChoice& choice) override;
    QString AskSaveFile(const FileChoice& choice) override;
    QString AskFolder(const FileChoice& choice) override;
    void RunLong(const QString& text, bool canStop, const Work& work) override;
};
