// SPDX-License-Identifier: MIT
#include "platform/data/SqlFunctions.h"

#include "platform/data/Statement.h"
#include "platform/text/LikePattern.h"
#include "platform/text/TextFold.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::string_view TextOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text, text ? std::size_t(sqlite3_value_bytes(value)) : 0};
}

void DeletePattern(void* pattern)
{
    delete static_cast<LikePattern*>(pattern);
}

// The compiled pattern is stored with the statement's argument, so a scan compiles it once.
template<LikePattern::Case caseRule>
void EngineLike(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    const auto* pattern = static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 0));
    if (!pattern) {
        sqlite3_set_auxdata(context, 0, new LikePattern(TextOf(arguments[0]), caseRule),
                            DeletePattern);
        pattern = static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 0));
        if (!pattern)
            return sqlite3_result_error_nomem(context);
    }
    sqlite3_result_int(context, pattern->Matches(TextOf(arguments[1])));
}

// The values of a list made by JoinedForAnyOf, sorted for look-up.
class ValueSet
{
public:
    explicit ValueSet(std::string_view joined) : joined_(joined)
    {
        std::string_view rest = joined_;
        for (std::size_t end = rest.find(':'); end != std::string_view::npos;
             end = rest.find(':')) {
            std::size_t size = 0;
            std::from_chars(rest.data(), rest.data() + end, size);
            values_.push_back(rest.substr(end + 1, size));
            rest.remove_prefix(std::min(end + 1 + size, rest.size()));
        }
        std::sort(values_.begin(), values_.end(), IsBefore);
    }
    ValueSet(const ValueSet&) = delete;
    ValueSet& operator=(const ValueSet&) = delete;

    bool Holds(std::string_view text) const
    {
        return std::binary_search(values_.begin(), values_.end(), text, IsBefore);
    }

private:
    static bool IsBefore(std::string_view first, std::string_view second)
    {
        return CompareFolded(first, second) < 0;
    }

    std::string joined_;
    std::vector<std::string_view> values_; // views of joined_
};

// The set stored with the statement's first argument, made from it at first use, so that a scan
// makes it once. Null when memory is short.
const ValueSet* KeptValues(sqlite3_context* context, sqlite3_value* argument)
{
    if (const void* kept = sqlite3_get_auxdata(context, 0))
        return static_cast<const ValueSet*>(kept);
    sqlite3_set_auxdata(context, 0, new ValueSet(TextOf(argument)),
                        [](void* kept) { delete static_cast<ValueSet*>(kept); });
    return static_cast<const ValueSet*>(sqlite3_get_auxdata(context, 0));
}

void EngineAnyOf(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    const auto* values = KeptValues(context, arguments[0]);
    if (!values)
        return sqlite3_result_error_nomem(context);
    sqlite3_result_int(context, values->Holds(TextOf(arguments[1])));
}

int CompareFoldedTexts(void*, int firstSize, const void* first, int secondSize, const void* second)
{
    return CompareFolded({static_cast<const char*>(first), std::size_t(firstSize)},
                         {static_cast<const char*>(second), std::size_t(secondSize)});
}

} // namespace

// Each value follows its length in bytes: "4:Anna3:Bob". No character could separate them, since a
// value may contain any.
QString JoinedForAnyOf(const QStringList& values)
{
    QString joined;
    for (const QString& value : values)
        joined += QString::number(value.toUtf8().size()) + QLatin1Char(':') + value;
    return joined;
}

void RegisterSqlFunctions(sqlite3* engine)
{
    const auto add = [engine](const char* name, auto function) {
        const int code =
            sqlite3_create_function_v2(engine, name, 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                       function, nullptr, nullptr, nullptr);
        if (code != SQLITE_OK)
            ThrowEngineError(engine, code);
    };
    add(likeFunction, EngineLike<LikePattern::Case::Insensitive>);
    add(pathLikeFunction, EngineLike<LikePattern::Case::Sensitive>);
    add(anyOfFunction, EngineAnyOf);
    const int code = sqlite3_create_collation_v2(engine, foldedCollation, SQLITE_UTF8, nullptr,
                                                 CompareFoldedTexts, nullptr);
    if (code != SQLITE_OK)
        ThrowEngineError(engine, code);
}
