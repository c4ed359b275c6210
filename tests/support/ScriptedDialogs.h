// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dialogs/Dialogs.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <variant>

// Answers boxes from a script: each box must be the next one expected, to the letter. A box that
// comes unexpected, differs, or never comes fails the test.
class ScriptedDialogs : public Dialogs
{
public:
    ScriptedDialogs();
    ~ScriptedDialogs() override;

    void ExpectBox(const QString& text, Icon icon = Icon::Information,
                   Buttons buttons = Buttons::Ok, Answer answer = Answer::Ok);
    // For boxes whose text holds words of the system: only the beginning is compared.
    void ExpectBoxBeginning(const QString& beginning, Icon icon);
    void ExpectInput(const QString& prompt, const QString& answer, const QString& proposal = {});
    void ExpectOpenFile(const QString& title, const QString& path);
    void ExpectSaveFile(const QString& title, const QString& path, const QString& proposal = {});

    bool IsDone() const { return script_.empty(); }

    Answer Ask(const Box& box) override;
    QString AskText(const Input& input) override;
    QString AskOpenFile(const FileChoice& choice) override;
    QString AskSaveFile(const FileChoice& choice) override;

private:
    struct Step
    {
        QString shown; // what the box must be, written out
        bool comparesBeginning = false;
        Answer answer = Answer::Ok;
        QString text;
    };

    Step Take(const QString& shown);

    std::deque<Step> script_;
};
