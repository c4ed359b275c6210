// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dialogs/Dialogs.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <variant>

// Answers whatever comes: messages with OK, questions for texts and files with nothing.
class PatientDialogs : public Dialogs
{
public:
    PatientDialogs() { Install(this); }
    ~PatientDialogs() override { Install(nullptr); }

    Answer Ask(const Box&) override { return Answer::Ok; }
    QString AskText(const Input&) override { return {}; }
    QString AskOpenFile(const FileChoice&) override { return {}; }
    QString AskSaveFile(const FileChoice&) override { return {}; }
};

// Answers boxes from a script: each box must be the next one expected, to the letter. A box that
// comes unexpected, differs, or never comes fails the test. Before it answers, every window on the
// screen is resized and painted, and the event loop turns.
class ScriptedDialogs : public Dialogs
{
public:
    ScriptedDialogs();
    ~ScriptedDialogs() override;

    void ExpectBox(const QString& text, Icon icon = Icon::Information,
                   Buttons buttons = Buttons::Ok, Answer answer = Answer::Ok);
    // For boxes whose text holds words of the system: only the beginning is compared.
    void ExpectBoxBeginning(const QString& beginning, Icon icon, Buttons buttons = Buttons::Ok,
                            Answer answer = Answer::Ok);
    void ExpectInput(const QString& prompt, const QString& answer, const QString& proposal = {})
    {
        ExpectText("input", prompt, answer, proposal);
    }
    void ExpectOpenFile(const QString& title, const QString& path)
    {
        ExpectText("open", title, path, {});
    }
    void ExpectSaveFile(const QString& title, const QString& path, const QString& proposal = {})
    {
        ExpectText("save", title, path, proposal);
    }

    void ExpectFolder(const QString& title, const QString& path)
    {
        ExpectText("folder", title, path, {});
    }

    bool IsDone() const { return script_.empty(); }
    // What stood above the prompt of the last input.
    const QString& GetLastNote() const { return lastNote_; }

    Answer Ask(const Box& box) override;
    QString AskText(const Input& input) override;
    QString AskOpenFile(const FileChoice& choice) override;
    QString AskSaveFile(const FileChoice& choice) override;
    QString AskFolder(const FileChoice& choice) override;

private:
    struct Step
    {
        QString shown; // what the box must be, written out
        bool comparesBeginning = false;
        Answer answer = Answer::Ok;
        QString text;
    };

    void ExpectText(const char* kind, const QString& prompt, const QString& answer,
                    const QString& proposal);
    Step Take(const QString& shown);

    std::deque<Step> script_;
    QString lastNote_;
};

// Stops long work once it has asked that often.
class StoppingDialogs : public ScriptedDialogs
{
public:
    explicit StoppingDialogs(int patience) : patience_(patience) {}

    void RunLong(const QString&, bool canStop, const Work& work) override
    {
        work([this, canStop] { return canStop && --patience_ < 0; });
    }

private:
    int patience_;
};
