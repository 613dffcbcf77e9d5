#pragma once

// Named functions: calls with several arguments, computed and pasted back into the text before it is
// tokenised.

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "numerics/qreal.h"

namespace quorix {

/// Rows of NamedFunctionTable; the index of a row is the value here.
enum NamedFunction : int {
    NAMED_RT,
    NAMED_FN_INT,
    NAMED_FN_DERIV,
    NAMED_FN_EVAL,
    NAMED_GCD,
    NAMED_FN_ROOT,
    NAMED_LCM,
    NAMED_MODULE,
    NAMED_FIB,
    NAMED_RAN,
    NAMED_FN_SUM,
    NAMED_FN_PRODUCT,
    NAMED_SUM,
    NAMED_SSQ,
    NAMED_N,
    NAMED_AVG,
    NAMED_SDV,
    NAMED_SSD,
    NAMED_MIN,
    NAMED_MAX,
    NAMED_AVD,
    NAMED_MEDIAN,
    NAMED_MD,
    NAMED_DSQ,
    NAMED_GM,
    NAMED_NCR,
    NAMED_NPR,
    NAMED_DB,
    NAMED_SYD,
    NAMED_SLN,
    NAMED_PV,
    NAMED_NPER,
    NAMED_RATE,
    NAMED_PMT,
    NAMED_FV,
    NAMED_NOT,
    NAMED_CPL,
    NAMED_FUNCTION_COUNT
};

/// The 37 names in the order in which a text is searched for them: case-sensitive, as plain substrings.
std::span<const std::u16string_view> NamedFunctionTable();

/// Deepest nesting of named functions.
inline constexpr int kDeepestNamedFunction = 64;

/// Computes every named function of `text` and pastes "((mantissa)*10^(exponent))" (radix 10) or digits of
/// the radix in its place, until no name is left; "RT(a,b)" becomes "((a) root (b))". Names in square
/// brackets are variables, and the first argument of fnSum and fnProduct is left to their terms. False with a
/// code in calcError on failure: -8 for parentheses, a missing argument, nesting beyond kDeepestNamedFunction
/// or a text that grows past 4095 characters.
bool ExpandNamedFunctions(std::u16string& text, int radix);

/// Value of row `index` (NamedFunction) for the text between its parentheses. radix: the caller's, read by
/// not and cpl alone. Zero with a code in calcError on failure.
QComplex CallNamedFunction(int index, std::u16string_view argumentText, int radix);

/// The text from `position` to the next comma at parenthesis depth 0, or the end; `position` moves behind the
/// comma. Nothing when no text is left.
std::optional<std::u16string_view> NextArgument(std::u16string_view text, std::size_t& position);

}  // namespace quorix
