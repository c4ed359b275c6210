// SPDX-License-Identifier: MIT
#pragma once

class QCommandLineParser;

// lumenark --publish ALBUM --as web|page|pdf|album --to PLACE [--chapter NAME]... [--size N]
//          [--most N] [--password-file FILE] [--force]: publishes a story, without needing a
// display.

bool IsPublishing(int argc, char** argv);

// Describes the options to a parser; the program's help shows them too.
void AddPublishOptions(QCommandLineParser& parser);

// Returns the exit status: 0 when all was published, 1 when nothing was, 2 for wrong arguments, 3
// when the result lacks pictures. The report goes to standard output, errors and, on a terminal,
// progress to standard error.
int RunPublishing(int& argc, char** argv);
