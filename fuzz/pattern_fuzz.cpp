// SPDX-License-Identifier: MIT
// LikePattern against a plain matcher that tries every split, over texts with damaged UTF-8.
#include "fuzz/Trials.h"
#include "platform/text/LikePattern.h"

#include <QChar>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace {

using Case = LikePattern::Case;
using Text = std::vector<char32_t>;

// A lead byte with as many continuation bytes as it announces is one character, and whatever else
// there is counts byte by byte.
Text Decoded(const std::string& bytes)
{
    Text text;
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        const std::size_t length = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t character = lead & (0xFFU >> (length + 1));
        std::size_t k = 1;
        for (; k < length && i + k < bytes.size() && (bytes[i + k] & 0xC0) == 0x80; ++k)
            character = character << 6 | (bytes[i + k] & 0x3F);
        const bool isWhole = length > 1 && lead < 0xF8 && k == length;
        text.push_back(isWhole ? character : lead);
        i += isWhole ? length : 1;
    }
    return text;
}

struct Item
{
    enum Kind { Run, Any, Digit, One, List } kind;
    bool negated = false;
    std::vector<std::pair<char32_t, char32_t>> ranges = {};
};

bool ReadRanges(Text list, Item& item)
{
    while (!list.empty()) {
        const bool isRange = list.size() > 2 && list[1] == U'-';
        item.ranges.emplace_back(list[0], list[isRange ? 2 : 0]);
        if (item.ranges.back().first > item.ranges.back().second)
            return false;
        list.erase(list.begin(), list.begin() + (isRange ? 3 : 1));
    }
    return true;
}

// False for a pattern that is none.
bool ReadPattern(const Text& pattern, std::vector<Item>& items)
{
    for (auto at = pattern.begin(); at != pattern.end(); ++at) {
        if (*at != U'[') {
            const auto kind = *at == U'*'   ? Item::Run
                              : *at == U'?' ? Item::Any
                              : *at == U'#' ? Item::Digit
                                            : Item::One;
            items.push_back({kind, false, {{*at, *at}}});
            continue;
        }
        const auto end = std::find(at, pattern.end(), U']');
        if (end == pattern.end())
            return false;
        Text list(at + 1, end);
        at = end;
        if (list.empty())
            continue;
        Item item{Item::List, list.front() == U'!' && list.size() > 1};
        if (item.negated)
            list.erase(list.begin());
        if (!ReadRanges(list, item))
            return false;
        items.push_back(item);
    }
    return true;
}

bool Fits(const Item& item, char32_t c, Case rule)
{
    if (item.kind == Item::Any)
        return true;
    if (item.kind == Item::Digit)
        return c >= U'0' && c <= U'9';
    const bool folds = rule == Case::Insensitive && c <= 0x10FFFF;
    if (item.kind == Item::One) {
        const char32_t own = item.ranges[0].first;
        return own == c ||
               (folds && own <= 0x10FFFF && QChar::toCaseFolded(own) == QChar::toCaseFolded(c));
    }
    const auto lists = [&item](char32_t character) {
        return std::any_of(item.ranges.begin(), item.ranges.end(), [=](auto range) {
            return character >= range.first && character <= range.second;
        });
    };
    return (lists(c) || (folds && (lists(QChar::toLower(c)) || lists(QChar::toUpper(c))))) !=
           item.negated;
}

// Where in the text each item may stand, one item after the other.
bool PlainMatch(const std::string& pattern, const std::string& bytes, Case rule)
{
    std::vector<Item> items;
    if (!ReadPattern(Decoded(pattern), items))
        return false;
    const Text text = Decoded(bytes);
    std::set<std::size_t> places{0};
    for (const Item& item : items) {
        std::set<std::size_t> after;
        for (const std::size_t place : places) {
            if (item.kind == Item::Run) {
                for (std::size_t end = place; end <= text.size(); ++end)
                    after.insert(end);
            } else if (place < text.size() && Fits(item, text[place], rule)) {
                after.insert(place + 1);
            }
        }
        places = after;
    }
    return places.contains(text.size());
}

// Few different characters, so that many texts nearly fit.
std::string AnyText(Trials& trials, bool isPattern)
{
    static const std::vector<std::string> pieces{"a",
                                                 "b",
                                                 "A",
                                                 "é",
                                                 "É",
                                                 "ß",
                                                 "ſ",
                                                 "0",
                                                 "7",
                                                 "\U0001F305",
                                                 ".",
                                                 "-",
                                                 "]",
                                                 "!",
                                                 "\x80",
                                                 "\xBF",
                                                 "\xC3",
                                                 "\xE2\x82",
                                                 "\xF0\x9F\x8C",
                                                 "\xC0\x80",
                                                 "\xF4\x90\x80\x80",
                                                 "\xFF",
                                                 "\xF8\x88\x80\x80\x80",
                                                 "\xED\xA0\x80",
                                                 std::string(1, '\0')};
    static const std::vector<std::string> wild{"*", "*",     "?",    "#",  "[",   "[!",
                                               "]", "[a-c]", "[!é]", "[]", "a-b", "-"};
    std::string text;
    for (int i = trials.Below(isPattern ? 8 : 12); i > 0; --i)
        text +=
            isPattern && trials.OneIn(2)
                ? trials.AnyOf(wild)
                : pieces[std::size_t(trials.Below(trials.OneIn(2) ? 8 : qsizetype(pieces.size())))];
    return text;
}

} // namespace

int main(int argc, char** argv)
{
    Trials trials(argc, argv, 5);
    while (trials.Next()) {
        const std::string pattern = AnyText(trials, true);
        const std::string text = AnyText(trials, false);
        const Case rule = trials.OneIn(2) ? Case::Sensitive : Case::Insensitive;
        trials.SetInput(QByteArray::fromStdString(pattern) + " | " +
                        QByteArray::fromStdString(text));
        const bool found = LikePattern(pattern, rule).Matches(text);
        if (found != PlainMatch(pattern, text, rule))
            trials.Fault(
                QStringLiteral("%1, where case %2")
                    .arg(found ? QStringLiteral("matches") : QStringLiteral("does not match"),
                         rule == Case::Sensitive ? QStringLiteral("counts")
                                                 : QStringLiteral("does not")));
        if (found)
            trials.CountAccepted();
    }
    return trials.Finish();
}
