// SPDX-License-Identifier: MIT
#include "platform/data/SqlFunctions.h"

#include "platform/data/Statement.h"
#include "platform/text/LikePattern.h"
#include "platform/text/TextFold.h"

#include <sqlcipher/sqlite3.h>

#include <string_view>

namespace {

#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
constexpr auto pathCase = LikePattern::Case::Insensitive;
#else
constexpr auto pathCase = LikePattern::Case::Sensitive;
#endif

std::string_view TextOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text, text ? std::size_t(sqlite3_value_bytes(value)) : 0};
}

void DeletePattern(void* pattern)
{
    delete static_cast<LikePattern*>(pattern);
}

// The compiled pattern is kept beside the statement's argument, so a scan compiles it once.
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

int CompareFoldedTexts(void*, int firstSize, const void* first, int secondSize, const void* second)
{
    return CompareFolded({static_cast<const char*>(first), std::size_t(firstSize)},
                         {static_cast<const char*>(second), std::size_t(secondSize)});
}

} // namespace

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
    add(pathLikeFunction, EngineLike<pathCase>);
    const int code = sqlite3_create_collation_v2(engine, foldedCollation, SQLITE_UTF8, nullptr,
                                                 CompareFoldedTexts, nullptr);
    if (code != SQLITE_OK)
        ThrowEngineError(engine, code);
}
