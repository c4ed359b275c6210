// SPDX-License-Identifier: MIT
#pragma once

#include "JetFile.h"

#include <string>

// The value of one field, as text.
struct JetValue
{
    enum class State {
        Null,
        Whole,
        Cut,        // the end of a long text is lost
        Unreadable, // damaged, too long, or of a kind that has no text
    };

    State state = State::Null;
    std::string text;
};

// Reads a field of the row at rowStart in the file's current page. No value is longer than
// maxBytes, and a chain of pieces is followed only up to the value's stated size.
JetValue ReadValue(const JetFile& file, const MdbColumn& column, const MdbField& field,
                   int rowStart, int rowSize, std::size_t maxBytes);
