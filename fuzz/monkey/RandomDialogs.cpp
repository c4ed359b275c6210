// SPDX-License-Identifier: MIT
#include "fuzz/monkey/RandomDialogs.h"

#include "fuzz/Trials.h"
#include "fuzz/monkey/MonkeyAlbums.h"
#include "platform/widgets/LongWorkDialog.h"

#include <QApplication>
#include <QDir>

#include <vector>

namespace {

// The errors that windows tell of themselves; any other was caught by nobody.
const QStringList toldErrors{"This chapter contains paragraphs", "Internal Error : Image File "};

bool IsUncaught(const Dialogs::Box& box)
{
    if (box.icon != Dialogs::Icon::Critical)
        return false;
    return std::none_of(toldErrors.begin(), toldErrors.end(),
                        [&box](const QString& told) { return box.text.startsWith(told); });
}

} // namespace

QString AnyText(Trials& trials)
{
    static const QStringList texts{"",
                                   "a",
                                   "Anna",
                                   "New chapter",
                                   "7",
                                   "-3",
                                   "99999999999",
                                   "O'Neil \"x\" [*] #?",
                                   "<<a>> <[0]> <[11]> <<",
                                   "É\u0301ß\U0001F305\u202E",
                                   "a;!;b;*",
                                   "*.jpg;*.png",
                                   "/",
                                   "..",
                                   "%1 &x\t\n",
                                   QString(5000, u'w')};
    return trials.AnyOf(texts);
}

RandomDialogs::RandomDialogs(Trials& trials) : trials_(trials)
{
    Install(this);
}

RandomDialogs::~RandomDialogs()
{
    Install(nullptr);
}

Dialogs::Answer RandomDialogs::Ask(const Box& box)
{
    trials_.AddInput("  box: " + box.text.left(100).toUtf8());
    if (IsUncaught(box))
        trials_.Fault(QStringLiteral("an error that no window caught: ") + box.text);
    static const std::vector<std::vector<Answer>> answers{
        {Answer::Ok},
        {Answer::Ok, Answer::Ok, Answer::Cancel},
        {Answer::Yes, Answer::Yes, Answer::No},
        {Answer::Yes, Answer::Yes, Answer::No, Answer::Cancel}};
    return trials_.AnyOf(answers[std::size_t(box.buttons)]);
}

QString RandomDialogs::AskText(const Input& input)
{
    trials_.AddInput("  asked: " + input.prompt.left(100).toUtf8());
    if (trials_.OneIn(5))
        return {};
    QString text = input.isPassword && !trials_.OneIn(5) ? albumPassword : AnyText(trials_);
    if (!input.proposal.isEmpty() && trials_.OneIn(3))
        text = input.proposal;
    texts_ += text;
    return text.isNull() ? QStringLiteral("") : text;
}

QString RandomDialogs::AskOpenFile(const FileChoice&)
{
    const QStringList files = QDir(folder_).entryList(QDir::Files);
    return files.isEmpty() || trials_.OneIn(6) ? QString() : folder_ + '/' + trials_.AnyOf(files);
}

QString RandomDialogs::AskSaveFile(const FileChoice&)
{
    static const QStringList names{"new.alb", "story.alb", "it's [new] #1 é.alb", "nowhere/a.alb",
                                   ""};
    const QString name = trials_.AnyOf(names);
    return name.isEmpty() ? QString() : folder_ + '/' + name;
}

void RandomDialogs::RunLong(const QString& text, bool canStop, const Work& work)
{
    LongWorkDialog(text, canStop, QApplication::activeWindow()).Run(work);
}
