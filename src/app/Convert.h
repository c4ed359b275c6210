// SPDX-License-Identifier: MIT
#pragma once

class QCommandLineParser;

// lumenark --convert OLD NEW: converts an album of the former file format to a new one, without
// needing a display.

bool IsConversion(int argc, char** argv);

// Describes the options to a parser; the program's help shows them too.
void AddConversionOptions(QCommandLineParser& parser);

// Returns the exit status: 0 when everything was converted, 1 when no album was made, 2 for wrong
// arguments, 3 when the new album lacks something. Errors are written to standard error.
int RunConversion(int& argc, char** argv);
