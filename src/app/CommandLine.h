// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdio>
#include <functional>
#include <initializer_list>
#include <string_view>

class QCommandLineParser;

// What the ways to use the program without windows share.

enum ExitStatus { Whole = 0, Failed = 1, BadUse = 2, InPart = 3 };

// Whether one of the options is among the arguments.
bool HasOption(int argc, char** argv, std::initializer_list<std::string_view> options);

void Print(std::FILE* stream, const QString& line);
// "lumenark: about: text" on standard error.
void Complain(const QString& about, const QString& text);

// A failure whose text comes from the command, not from a layer below.
struct Trouble
{
    QString about;
    QString text;
};

// The file's first line, without its line end. Throws Trouble.
QString ReadPassword(const QString& path);

// --password-file FILE
void AddPasswordOption(QCommandLineParser& parser);

// Calls open with the password in the file that the option names, empty without one. Throws Trouble
// where there is no such album, where it is one of the former file format, and where the password
// does not fit; and what open throws else.
void OpenWithGivenPassword(const QString& album, const QCommandLineParser& parser,
                           const std::function<void(const QString& password)>& open);

// Thrown by CheckSignals once the user has ended the program, so that what is not complete is
// removed first.
struct Interrupted
{
};

// Runs a command on an album and returns its exit status. What it throws is told on standard error,
// and the status is then Failed; a signal ends the program as it would have. An album that the
// command has opened is closed.
int RunCommand(const QString& album, const std::function<int()>& command);

void CatchSignals();
bool HasSignal();
void CheckSignals();
// Ends the program as the signal would have.
int EndBySignal();
