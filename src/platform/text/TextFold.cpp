// SPDX-License-Identifier: MIT
#include "platform/text/TextFold.h"

namespace {

constexpr bool IsContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// Number of bytes that a leading byte announces; 1 for any other byte.
constexpr unsigned AnnouncedLength(unsigned char lead)
{
    if (lead >= 0xF0 && lead < 0xF8)
        return 4;
    if (lead >= 0xE0)
        return lead < 0xF0 ? 3 : 1;
    return lead >= 0xC2 ? 2 : 1;
}

} // namespace

char32_t TakeLongUtf8(std::string_view& text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    const unsigned length = AnnouncedLength(lead);
    char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
    unsigned taken = 1;
    while (taken < length && taken < text.size() && IsContinuation(text[taken])) {
        character = character << 6 | (static_cast<unsigned char>(text[taken]) & 0x3FU);
        ++taken;
    }
    if (taken < length) {
        text.remove_prefix(1);
        return lead;
    }
    text.remove_prefix(length);
    return character;
}

void DropLastUtf8(std::string_view& text)
{
    const auto byteAt = [&text](std::size_t fromEnd) { return text[text.size() - 1 - fromEnd]; };
    std::size_t continuations = 0;
    while (continuations < 3 && continuations + 1 < text.size() &&
           IsContinuation(byteAt(continuations)))
        ++continuations;
    const auto lead = static_cast<unsigned char>(byteAt(continuations));
    const bool isWhole = AnnouncedLength(lead) == continuations + 1;
    text.remove_suffix(isWhole ? continuations + 1 : 1);
}

int CompareFolded(std::string_view first, std::string_view second)
{
    while (!first.empty() && !second.empty()) {
        const char32_t a = FoldCase(TakeUtf8(first));
        const char32_t b = FoldCase(TakeUtf8(second));
        if (a != b)
            return a < b ? -1 : 1;
    }
    return int(!first.empty()) - int(!second.empty());
}
