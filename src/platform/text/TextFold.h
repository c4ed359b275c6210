// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>

#include <string_view>

// Comparing text, ignoring case. Accents matter, and each character is folded by itself (simple
// case folding of Unicode), so that folding never changes a text's length in characters.

inline char32_t FoldCase(char32_t character)
{
    if (character < 0x80)
        return character >= U'A' && character <= U'Z' ? character + 32 : character;
    return QChar::toCaseFolded(character);
}

// TakeUtf8 for a text whose first byte is not ASCII.
char32_t TakeLongUtf8(std::string_view& text);

// Removes and returns the first character of a UTF-8 text, which must not be empty. A byte that
// begins no valid character stands for the character with its number, so that damaged text can be
// compared too.
inline char32_t TakeUtf8(std::string_view& text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead >= 0x80)
        return TakeLongUtf8(text);
    text.remove_prefix(1);
    return lead;
}

// Drops the last character, as TakeUtf8 would see it; the text must not be empty.
void DropLastUtf8(std::string_view& text);

// Negative, zero or positive as first sorts before, with or after second; both UTF-8.
int CompareFolded(std::string_view first, std::string_view second);
