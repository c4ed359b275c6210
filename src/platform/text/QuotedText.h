// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

// Any text as printable ASCII, as JSON writes it: "\u00c9t\u00e9". A half of a surrogate pair comes
// back too.
QString QuotedText(const QString& text);

// None where it is not such a text.
std::optional<QString> UnquotedText(const QString& quoted);
