// SPDX-License-Identifier: MIT
#pragma once

class QCommandLineParser;

// lumenark --check ALBUM [--password-file FILE]: checks an album, without needing a display.

bool IsCheck(int argc, char** argv);

// Describes the options to a parser; the program's help shows them too.
void AddCheckOptions(QCommandLineParser& parser);

// Returns the exit status: 0 when the album is in order, 1 when it cannot be opened or its file is
// damaged, 2 for wrong arguments, 3 when something else was found. The report goes to standard
// output, errors to standard error.
int RunCheck(int& argc, char** argv);
