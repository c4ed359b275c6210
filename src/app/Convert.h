// SPDX-License-Identifier: MIT
#pragma once

class QCommandLineParser;

// lumenark --convert OLD NEW: makes a new album of one in the former file format, without windows
// and without a display.

bool IsConversion(int argc, char** argv);

// Describes the options to a parser; the program's help shows them too.
void AddConversionOptions(QCommandLineParser& parser);

// Returns the exit status: 0 when everything came over, 1 when no album was made, 2 for a wrong
// call, 3 when the new album lacks something. What went wrong is named on standard error.
int RunConversion(int& argc, char** argv);
