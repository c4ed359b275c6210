// SPDX-License-Identifier: MIT
#include "support/ScriptedDialogs.h"

#include <QtTest>

namespace {

QString Describe(Dialogs::Icon icon, Dialogs::Buttons buttons, const QString& text)
{
    return QString("box, icon %1, buttons %2: %3").arg(int(icon)).arg(int(buttons)).arg(text);
}

// An input or the choice of a file.
QString Describe(const char* kind, const QString& proposal, const QString& prompt)
{
    return QString("%1, proposing '%2': %3").arg(kind, proposal, prompt);
}

} // namespace

ScriptedDialogs::ScriptedDialogs()
{
    Install(this);
}

ScriptedDialogs::~ScriptedDialogs()
{
    Install(nullptr);
    if (!script_.empty())
        QTest::qFail(qPrintable("never came: " + script_.front().shown), __FILE__, __LINE__);
}

void ScriptedDialogs::ExpectBox(const QString& text, Icon icon, Buttons buttons, Answer answer)
{
    script_.push_back({Describe(icon, buttons, text), false, answer, {}});
}

void ScriptedDialogs::ExpectBoxBeginning(const QString& beginning, Icon icon)
{
    script_.push_back({Describe(icon, Buttons::Ok, beginning), true, Answer::Ok, {}});
}

void ScriptedDialogs::ExpectInput(const QString& prompt, const QString& answer,
                                  const QString& proposal)
{
    script_.push_back({Describe("input", proposal, prompt), false, Answer::Ok, answer});
}

void ScriptedDialogs::ExpectOpenFile(const QString& title, const QString& path)
{
    script_.push_back({Describe("open", {}, title), false, Answer::Ok, path});
}

void ScriptedDialogs::ExpectSaveFile(const QString& title, const QString& path,
                                     const QString& proposal)
{
    script_.push_back({Describe("save", proposal, title), false, Answer::Ok, path});
}

ScriptedDialogs::Step ScriptedDialogs::Take(const QString& shown)
{
    const Step step = script_.empty() ? Step{"nothing", false, Answer::Ok, {}} : script_.front();
    if (step.comparesBeginning ? shown.startsWith(step.shown) : shown == step.shown) {
        script_.pop_front();
        return step;
    }
    QTest::qFail(qPrintable("came: " + shown + "\nexpected: " + step.shown), __FILE__, __LINE__);
    if (!script_.empty())
        script_.pop_front();
    return {shown, false, Answer::Cancel, {}};
}

Dialogs::Answer ScriptedDialogs::Ask(const Box& box)
{
    return Take(Describe(box.icon, box.buttons, box.text)).answer;
}

QString ScriptedDialogs::AskText(const Input& input)
{
    return Take(Describe("input", input.proposal, input.prompt)).text;
}

QString ScriptedDialogs::AskOpenFile(const FileChoice& choice)
{
    return Take(Describe("open", {}, choice.title)).text;
}

QString ScriptedDialogs::AskSaveFile(const FileChoice& choice)
{
    return Take(Describe("save", choice.name, choice.title)).text;
}
