// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>
#include <vector>

// A wildcard pattern: * any run of characters, ? any one, # any digit 0 to 9, [list] any character
// of a list of characters and ranges, [!list] any other character, [] nothing. To match a wildcard
// character itself, list it: [*].
class LikePattern
{
public:
    enum class Case { Sensitive, Insensitive };

    LikePattern(std::string_view utf8Pattern, Case caseRule);

    // False for a list without a closing bracket or with a reversed range, and for a pattern that
    // is too costly; such a pattern matches nothing.
    bool IsValid() const { return valid_ && !IsTooCostly(); }
    // Whether a segment between two * holds more than plain characters, and too much of that to be
    // tried at every position of a text.
    bool IsTooCostly() const { return tooCostly_; }

    // Whether the whole UTF-8 text fits the pattern.
    bool Matches(std::string_view utf8Text) const;

private:
    struct Range
    {
        char32_t first;
        char32_t last;
    };

    enum class Kind { Character, AnyCharacter, Digit, List };

    // Matches exactly one character.
    struct Element
    {
        Kind kind;
        char32_t character = 0;         // Character: folded when case does not matter
        bool negated = false;           // List
        std::vector<Range> ranges = {}; // List
    };
    using Segment = std::vector<Element>;

    // Plain characters between two * are searched in one pass over the text: after a mismatch this
    // many of the matched characters are already a match of the segment's beginning.
    using Overlaps = std::vector<std::size_t>;

    void Parse(std::string_view pattern);
    bool ParseList(std::string_view& pattern);
    bool Fits(const Element& element, char32_t character) const;
    static bool Lists(const Element& element, char32_t character);
    bool TakeSegment(const Segment& segment, std::string_view& text) const;
    bool TakeTail(std::string_view& text) const;
    void PrepareMiddle();
    static Overlaps OverlapsOf(const Segment& segment);
    bool SkipPlain(const Segment& segment, const Overlaps& overlaps, std::string_view& text) const;
    bool SkipPast(std::size_t segment, std::string_view& text) const;

    // The parts between the *, one more than there are *.
    std::vector<Segment> segments_{1};
    std::vector<Overlaps> overlaps_; // of plain segments but the first and the last
    bool foldsCase_;
    bool valid_ = true;
    bool tooCostly_ = false;
};

// Matches a text against a fixed pattern of the program's own; case matters.
bool IsLike(const QString& text, const char* pattern);

// The pattern that matches just this text.
QString EscapedForLike(const QString& text);
