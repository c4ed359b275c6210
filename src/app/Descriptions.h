// SPDX-License-Identifier: MIT
#pragma once

class QCommandLineParser;

// lumenark --export-descriptions ALBUM --to FILE.csv|--sidecars, and --import-descriptions ALBUM
// --from FILE.csv|--sidecars: the descriptions of an album's pictures, without needing a display.

bool IsDescriptionTransfer(int argc, char** argv);

// Describes the options to a parser; the program's help shows them too.
void AddDescriptionOptions(QCommandLineParser& parser);

// Returns the exit status: 0 when everything was written or taken, 1 when nothing was, 2 for wrong
// arguments, 3 when something was left out. Errors are written to standard error.
int RunDescriptionTransfer(int& argc, char** argv);
