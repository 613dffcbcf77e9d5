#include "engine/rewrite_solve.h"

#include <string_view>

#include "engine/calc_context.h"
#include "engine/engine_errors.h"

namespace quorix {
namespace {

constexpr std::u16string_view kCall = u"solve(";

// Position of `wanted` at parenthesis level 0, seen from `at`; npos when the level is left first.
std::size_t FindAtLevelZero(std::u16string_view text, std::size_t at, char16_t wanted) {
    int level = 0;
    for (; at < text.size(); ++at) {
        if (level == 0 && text[at] == wanted) return at;
        if (text[at] == u'(') ++level;
        if (text[at] == u')' && --level < 0) break;
    }
    return std::u16string_view::npos;
}

}  // namespace

void RewriteSolve(std::u16string& text) {
    for (std::size_t call = text.find(kCall); call != std::u16string::npos; call = text.find(kCall)) {
        const std::size_t first = call + kCall.size();
        const std::size_t comma = FindAtLevelZero(text, first, u',');
        const std::size_t close =
            comma == std::u16string::npos ? comma : FindAtLevelZero(text, comma + 1, u')');
        if (close == std::u16string::npos) {
            calcContext().calcError = ERROR_SYNTAX;
            return;
        }
        text = text.substr(0, call) + u"inv(" + text.substr(first, comma - first) + u")*(" +
               text.substr(comma + 1, close - comma - 1) + u")";
    }
}

}  // namespace quorix
