// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dialogs/Dialogs.h"

#include <QStringList>

class Trials;

// Answers every box at random: whatever its buttons allow, a text that fits or is nonsense, a file
// of the folder or none.
class RandomDialogs : public Dialogs
{
public:
    explicit RandomDialogs(Trials& trials);
    ~RandomDialogs() override;

    void SetFolder(const QString& folder) { folder_ = folder; }
    // Every text that was given since the last call; passwords are among them.
    QStringList TakeTexts() { return std::exchange(texts_, {}); }

    Answer Ask(const Box& box) override;
    QString AskText(const Input& input) override;
    QString AskOpenFile(const FileChoice& choice) override;
    QString AskSaveFile(const FileChoice& choice) override;
    void RunLong(const QString& text, bool canStop, const Work& work) override;

private:
    Trials& trials_;
    QString folder_;
    QStringList texts_;
};

// What a person types and what nobody does.
QString AnyText(Trials& trials);
