// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>
#include <vector>

// A wildcard pattern: * any run of characters, ? any one, # any digit 0 to 9, [list] one of the
// listed characters or ranges, [!list] one that is not listed, [] nothing. To match a wildcard
// character itself, list it: [*].
class LikePattern
{
public:
    enum class Case { Sensitive, Insensitive };

    LikePattern(std::string_view utf8Pattern, Case caseRule);

    // False for a list without its closing bracket or with a range that runs backwards; such a
    // pattern matches nothing.
    bool IsValid() const { return valid_; }

    // Whether the whole UTF-8 text fits the pattern.
    bool Matches(std::string_view utf8Text) const;

private:
    struct Range
    {
        char32_t first;
        char32_t last;
    };

    enum class Kind { Character, AnyCharacter, Digit, List };

    // Stands for exactly one character.
    struct Element
    {
        Kind kind;
        char32_t character = 0;         // Character: folded when case does not matter
        bool negated = false;           // List
        std::vector<Range> ranges = {}; // List
    };
    using Segment = std::vector<Element>;

    void Parse(std::string_view pattern);
    bool ParseList(std::string_view& pattern);
    bool Fits(const Element& element, char32_t character) const;
    static bool Lists(const Element& element, char32_t character);
    bool TakeSegment(const Segment& segment, std::string_view& text) const;
    bool TakeTail(std::string_view& text) const;
    bool SkipBehind(const Segment& segment, std::string_view& text) const;

    // What stands between the runs: one segment more than there are runs.
    std::vector<Segment> segments_{1};
    bool foldsCase_;
    bool valid_ = true;
};

// The program's own comparison of a text with a fixed pattern; upper and lower case differ.
bool IsLike(const QString& text, const char* pattern);

// The pattern text that matches just this text.
QString EscapedForLike(const QString& text);
