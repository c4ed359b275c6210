// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <optional>

// All message boxes, input boxes and file dialogs are opened here. Callers need not know a window;
// tests install a script instead.
class Dialogs
{
public:
    enum class Icon { None, Information, Question, Warning, Critical };
    enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
    enum class Answer { Ok, Cancel, Yes, No };

    struct Box
    {
        QString text; // shown literally, never as markup
        Icon icon = Icon::None;
        Buttons buttons = Buttons::Ok;
        std::optional<Answer> defaultAnswer = {}; // the platform's choice when not given
        QString title = {};                       // the program's name when empty
        // Captions for the buttons Yes and No where other words are clearer.
        QString yes = {};
        QString no = {};
        QString note = {}; // shown smaller below the text; sentences without names of users
    };

    struct Input
    {
        QString prompt;
        QString note = {}; // shown above the prompt: what was wrong with the last answer
        QString proposal = {};
        QString title = {}; // the program's name when empty
        bool isPassword = false;
    };

    struct FileChoice
    {
        QString title;
        QString filter;    // "Album|*.alb": a name, a bar, patterns separated by ";"
        QString folder;    // where to start; the current folder when empty
        QString name = {}; // proposed for a file to save, without its folder
    };

    // Long work; isStopped tells whether the user wants it to end early.
    using Work = std::function<void(const std::function<bool()>& isStopped)>;

    virtual ~Dialogs() = default;

    // Closing the box without a button counts as Cancel, or as No or Ok where there is no Cancel.
    virtual Answer Ask(const Box& box) = 0;
    // Null (and so empty) when the box was cancelled; not null when an empty text was confirmed.
    virtual QString AskText(const Input& input) = 0;
    // The chosen path, empty when cancelled. AskSaveFile asks before it returns an existing file,
    // and adds the filter's extension to a name without it.
    virtual QString AskOpenFile(const FileChoice& choice) = 0;
    virtual QString AskSaveFile(const FileChoice& choice) = 0;
    // The chosen folder, which exists; empty when cancelled. Filter and name count for nothing. The
    // default chooses none.
    virtual QString AskFolder(const FileChoice& choice);

    // Does the work and returns when it is done; throws what the work throws. The text says what is
    // going on. Windows stay alive, but take no keys or clicks. The work runs in its own thread: it
    // must open no boxes and touch nothing that a window shows. The default runs it in the caller's
    // thread.
    virtual void RunLong(const QString& text, bool canStop, const Work& work);

    // The installed dialogs. Install before the first use; the caller keeps them alive.
    static Dialogs& Door();
    static void Install(Dialogs* dialogs);
};

// The same by the installed dialogs; in the caller's thread where none are.
void RunLong(const QString& text, bool canStop, const Dialogs::Work& work);

// A question with Yes and No, of which Yes is proposed.
bool AgreesTo(const QString& question);

// A message with an Ok button.
void Tell(const QString& text, Dialogs::Icon icon = Dialogs::Icon::Information);
