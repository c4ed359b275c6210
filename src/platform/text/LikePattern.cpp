// SPDX-License-Identifier: MIT
#include "platform/text/LikePattern.h"

#include "platform/text/TextFold.h"

#include <algorithm>

namespace {

// Maximum cost of a segment that must be tried at every position of a text: as many characters as
// the longest file name has, each of them listed in both letter cases.
constexpr std::size_t maxAtOnePlace = 255;

bool HasNoCase(char32_t character)
{
    return QChar::toLower(character) == character && QChar::toUpper(character) == character;
}

} // namespace

LikePattern::LikePattern(std::string_view utf8Pattern, Case caseRule)
    : foldsCase_(caseRule == Case::Insensitive)
{
    Parse(utf8Pattern);
    PrepareMiddle();
}

void LikePattern::Parse(std::string_view pattern)
{
    while (!pattern.empty() && valid_) {
        const char32_t character = TakeUtf8(pattern);
        switch (character) {
        case U'*':
            if (segments_.size() == 1 || !segments_.back().empty()) // several runs are one
                segments_.emplace_back();
            break;
        case U'?':
            segments_.back().push_back({Kind::AnyCharacter});
            break;
        case U'#':
            segments_.back().push_back({Kind::Digit});
            break;
        case U'[':
            valid_ = ParseList(pattern);
            break;
        default:
            segments_.back().push_back(
                {Kind::Character, foldsCase_ ? FoldCase(character) : character});
        }
    }
}

// Reads from after the opening bracket up to and including the closing one.
bool LikePattern::ParseList(std::string_view& pattern)
{
    const std::size_t end = pattern.find(']');
    if (end == std::string_view::npos)
        return false;
    std::string_view list = pattern.substr(0, end);
    pattern.remove_prefix(end + 1);
    if (list.empty())
        return true;

    Element element{Kind::List};
    if (list.front() == '!' && list.size() > 1) {
        element.negated = true;
        list.remove_prefix(1);
    }
    while (!list.empty()) {
        const char32_t first = TakeUtf8(list);
        char32_t last = first;
        if (list.size() > 1 && list.front() == '-') {
            list.remove_prefix(1);
            last = TakeUtf8(list);
        }
        if (last < first)
            return false;
        element.ranges.push_back({first, last});
    }
    const Range& only = element.ranges.front();
    if (element.ranges.size() == 1 && only.first == only.last && !element.negated &&
        HasNoCase(only.first)) // a literal wildcard
        element = {Kind::Character, only.first};
    segments_.back().push_back(std::move(element));
    return true;
}

bool LikePattern::Lists(const Element& element, char32_t character)
{
    for (const Range& range : element.ranges) {
        if (character >= range.first && character <= range.last)
            return true;
    }
    return false;
}

bool LikePattern::Fits(const Element& element, char32_t character) const
{
    switch (element.kind) {
    case Kind::Character:
        return element.character == (foldsCase_ ? FoldCase(character) : character);
    case Kind::Digit:
        return character >= U'0' && character <= U'9';
    case Kind::List: {
        const bool listed = Lists(element, character) ||
                            (foldsCase_ && (Lists(element, QChar::toLower(character)) ||
                                            Lists(element, QChar::toUpper(character))));
        return listed != element.negated;
    }
    case Kind::AnyCharacter:
        break;
    }
    return true;
}

// Removes the segment from the text's beginning; when it does not fit, returns false with part of
// the text removed.
bool LikePattern::TakeSegment(const Segment& segment, std::string_view& text) const
{
    for (const Element& element : segment) {
        if (text.empty() || !Fits(element, TakeUtf8(text)))
            return false;
    }
    return true;
}

// Removes the last segment from the text's end. Its length is fixed, so it can fit in only one
// place.
bool LikePattern::TakeTail(std::string_view& text) const
{
    const Segment& tail = segments_.back();
    std::string_view rest = text;
    for (std::size_t i = 0; i < tail.size(); ++i) {
        if (rest.empty())
            return false;
        DropLastUtf8(rest);
    }
    std::string_view end = text.substr(rest.size());
    text = rest;
    return TakeSegment(tail, end);
}

void LikePattern::PrepareMiddle()
{
    overlaps_.resize(segments_.size());
    for (std::size_t i = 1; i + 1 < segments_.size(); ++i) {
        std::size_t cost = 0;
        bool isPlain = true;
        for (const Element& element : segments_[i]) {
            cost += std::max<std::size_t>(1, element.ranges.size() / 2);
            isPlain = isPlain && element.kind == Kind::Character;
        }
        if (isPlain)
            overlaps_[i] = OverlapsOf(segments_[i]);
        else
            tooCostly_ = tooCostly_ || cost > maxAtOnePlace;
    }
}

// For each number of matched characters, how many of the last ones are also the segment's
// beginning.
LikePattern::Overlaps LikePattern::OverlapsOf(const Segment& segment)
{
    Overlaps overlaps(segment.size() + 1);
    for (std::size_t i = 1, same = 0; i < segment.size(); ++i) {
        while (same > 0 && segment[i].character != segment[same].character)
            same = overlaps[same];
        same += segment[i].character == segment[same].character ? 1 : 0;
        overlaps[i + 1] = same;
    }
    return overlaps;
}

bool LikePattern::SkipPlain(const Segment& segment, const Overlaps& overlaps,
                            std::string_view& text) const
{
    std::size_t taken = 0;
    while (taken < segment.size()) {
        if (text.empty())
            return false;
        const char32_t character = TakeUtf8(text);
        while (taken > 0 && !Fits(segment[taken], character))
            taken = overlaps[taken];
        taken += Fits(segment[taken], character) ? 1 : 0;
    }
    return true;
}

// Cuts the text after the first place where the segment fits. That place leaves the longest text
// for the segments that follow.
bool LikePattern::SkipPast(std::size_t number, std::string_view& text) const
{
    const Segment& segment = segments_[number];
    if (!overlaps_[number].empty())
        return SkipPlain(segment, overlaps_[number], text);
    while (!text.empty()) {
        std::string_view rest = text;
        if (TakeSegment(segment, rest)) {
            text = rest;
            return true;
        }
        TakeUtf8(text);
    }
    return false;
}

bool LikePattern::Matches(std::string_view text) const
{
    if (!IsValid() || !TakeSegment(segments_.front(), text))
        return false;
    if (segments_.size() == 1)
        return text.empty();
    if (!TakeTail(text))
        return false;
    for (std::size_t i = 1; i + 1 < segments_.size(); ++i) {
        if (!SkipPast(i, text))
            return false;
    }
    return true;
}

bool IsLike(const QString& text, const char* pattern)
{
    const QByteArray utf8 = text.toUtf8();
    return LikePattern(pattern, LikePattern::Case::Sensitive)
        .Matches({utf8.constData(), std::size_t(utf8.size())});
}

QString EscapedForLike(const QString& text)
{
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar character : text) {
        const bool wildcard = QStringView(u"*?#[").contains(character);
        escaped += wildcard ? QStringLiteral("[%1]").arg(character) : QString(character);
    }
    return escaped;
}
