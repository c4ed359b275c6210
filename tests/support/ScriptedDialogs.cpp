// SPDX-License-Identifier: MIT
#include "support/ScriptedDialogs.h"

#include <QtTest>

namespace {

QString Describe(Dialogs::Icon icon, Dialogs::Buttons buttons, const QString& text)
{
    return QStringLiteral("box, icon %1, buttons %2: %3")
        .arg(int(icon))
        .arg(int(buttons))
        .arg(text);
}

QString DescribeInput(const QString& prompt, const QString& proposal)
{
    return QStringLiteral("input, proposing '%1': %2").arg(proposal, prompt);
}

QString DescribeSave(const QString& title, const QString& proposal)
{
    return proposal.isEmpty() ? "save file: " + title
                              : "save file, proposing '" + proposal + "': " + title;
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
    script_.push_back({DescribeInput(prompt, proposal), false, Answer::Ok, answer});
}

void ScriptedDialogs::ExpectOpenFile(const QString& title, const QString& path)
{
    script_.push_back({"open file: " + title, false, Answer::Ok, path});
}

void ScriptedDialogs::ExpectSaveFile(const QString& title, const QString& path,
                                     const QString& proposal)
{
    script_.push_back({DescribeSave(title, proposal), false, Answer::Ok, path});
}

ScriptedDialogs::Step ScriptedDialogs::Take(const QString& shown)
{
    if (script_.empty()) {
        QTest::qFail(qPrintable("unexpected " + shown), __FILE__, __LINE__);
        return {shown, false, Answer::Cancel, {}};
    }
    const Step step = script_.front();
    script_.pop_front();
    const bool fits = step.comparesBeginning ? shown.startsWith(step.shown) : shown == step.shown;
    if (!fits) {
        QTest::qFail(qPrintable("came: " + shown + "\nexpected: " + step.shown), __FILE__,
                     __LINE__);
        return {shown, false, Answer::Cancel, {}};
    }
    return step;
}

Dialogs::Answer ScriptedDialogs::Ask(const Box& box)
{
    return Take(Describe(box.icon, box.buttons, box.text)).answer;
}

QString ScriptedDialogs::AskText(const Input& input)
{
    return Take(DescribeInput(input.prompt, input.proposal)).text;
}

QString ScriptedDialogs::AskOpenFile(const FileChoice& choice)
{
    return Take("open file: " + choice.title).text;
}

QString ScriptedDialogs::AskSaveFile(const FileChoice& choice)
{
    return Take(DescribeSave(choice.title, choice.name)).text;
}
