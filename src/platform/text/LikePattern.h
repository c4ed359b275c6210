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

    // False for a list without its closing bracket or with a range that runs backwards, and for a
    // pattern that is too costly; such a pattern matches nothing.
    bool IsValid() const { return valid_ && !IsTooCostly(); }
    // Whether a part between two runs holds more than plain characters, and too much of it to be
    // looked for at every place of a text.
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

    // Stands for exactly one character.
    struct Element
    {
        Kind kind;
        char32_t character = 0;         // Character: folded when case does not matter
        bool negated = false;           // List
        std::vector<Range> ranges = {}; // List
    };
    using Segment = std::vector<Element>;

    // Plain characters between two runs are looked for in one pass over the text: where one does
    // not fit, so many of those that did are the beginning of the next place.
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

    // What stands between the runs: one segment more than there are runs.
    std::vector<Segment> segments_{1};
    std::vector<Overlaps> overlaps_; // of each segment; none where it is not plain or at an end
    bool foldsCase_;
    bool valid_ = true;
    bool tooCostly_ = false;
};

// The program's own comparison of a text with a fixed pattern; upper and lower case differ.
bool IsLike(const QString& text, const char* pattern);

// The pattern text that matches just this text.
QString EscapedForLike(const QString& text);
