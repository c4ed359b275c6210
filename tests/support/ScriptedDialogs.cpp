// SPDX-License-Identifier: MIT
#include "support/ScriptedDialogs.h"

#include <QApplication>
#include <QWidget>
#include <QtTest>

namespace {

constexpr int settlingTime = 150; // milliseconds

// What a desktop may do while a box is up: other windows change their size, are painted, and get
// their events.
void DisturbWindows()
{
    static bool isDisturbing = false;
    static bool isWider = false;
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()) || isDisturbing)
        return;
    isDisturbing = true;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        window->resize(window->size() + (isWider ? QSize(-8, -8) : QSize(8, 8)));
        window->repaint();
        QCoreApplication::processEvents();
        // Those that show pictures wait until the size has settled.
        if (window->inherits("frmReelvane") || window->inherits("frmFullScreen"))
            QTest::qWait(settlingTime);
    }
    isWider = !isWider;
    isDisturbing = false;
}

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

void ScriptedDialogs::ExpectBoxBeginning(const QString& beginning, Icon icon, Buttons buttons,
                                         Answer answer)
{
    script_.push_back({Describe(icon, buttons, beginning), true, answer, {}});
}

void ScriptedDialogs::ExpectText(const char* kind, const QString& prompt, const QString& answer,
                                 const QString& proposal)
{
    script_.push_back({Describe(kind, proposal, prompt), false, Answer::Ok, answer});
}

ScriptedDialogs::Step ScriptedDialogs::Take(const QString& shown)
{
    DisturbWindows();
    const Step step = script_.empty() ? Step{"nothing", false, Answer::Ok, {}} : script_.front();
    if (!script_.empty())
        script_.pop_front();
    if (step.comparesBeginning ? shown.startsWith(step.shown) : shown == step.shown)
        return step;
    QTest::qFail(qPrintable("came: " + shown + "\nexpected: " + step.shown), __FILE__, __LINE__);
    return {shown, false, Answer::Cancel, {}};
}

Dialogs::Answer ScriptedDialogs::Ask(const Box& box)
{
    return Take(Describe(box.icon, box.buttons, box.text)).answer;
}

QString ScriptedDialogs::AskText(const Input& input)
{
    lastNote_ = input.note;
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

QString ScriptedDialogs::AskFolder(const FileChoice& choice)
{
    return Take(Describe("folder", {}, choice.title)).text;
}
