#include "engine/named_functions.h"

#include <array>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "engine/derivative.h"
#include "engine/engine_errors.h"
#include "engine/finance_functions.h"
#include "engine/integral.h"
#include "engine/list_statistics.h"
#include "engine/named_arguments.h"
#include "engine/number_theory.h"
#include "engine/paste_number.h"
#include "engine/root_search.h"
#include "engine/series_functions.h"
#include "engine/token_list.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

// In the order of NamedFunction, which is the order of the search.
constexpr std::array<std::u16string_view, NAMED_FUNCTION_COUNT> kNames = {
    u"RT",    u"fnInt",     u"fnDeriv", u"fnEval", u"gcd", u"fnRoot", u"lcm", u"module", u"fib", u"ran",
    u"fnSum", u"fnProduct", u"sum",     u"ssq",    u"N",   u"avg",    u"sdv", u"ssd",    u"min", u"max",
    u"avd",   u"median",    u"md",      u"dsq",    u"gm",  u"ncr",    u"npr", u"db",     u"syd", u"sln",
    u"pv",    u"nper",      u"rate",    u"pmt",    u"fv",  u"not",    u"cpl",
};

bool Fail(std::int32_t code) {
    calcContext().calcError = code;
    return false;
}

/// Index of the ")" that closes the "(" at `open`; npos when there is none.
std::size_t ClosingParenthesis(std::u16string_view text, std::size_t open) {
    int depth = 0;
    for (std::size_t at = open; at < text.size(); ++at) {
        if (text[at] == u'(') {
            ++depth;
        } else if (text[at] == u')' && --depth == 0) {
            return at;
        }
    }
    return std::u16string_view::npos;
}

/// Blanks out what the search for names must not see: variables in brackets and the first arguments of sums
/// and products.
std::u16string Searchable(std::u16string_view text) {
    std::u16string visible(text);
    for (std::size_t at = 0; (at = text.find(u'[', at)) != text.npos; ++at) {
        const std::size_t end = std::min(text.find(u']', at), text.size());
        std::fill(visible.begin() + static_cast<std::ptrdiff_t>(at),
                  visible.begin() + static_cast<std::ptrdiff_t>(end), u'\0');
    }
    for (const NamedFunction row : {NAMED_FN_SUM, NAMED_FN_PRODUCT}) {
        const std::u16string_view name = kNames[static_cast<std::size_t>(row)];
        for (std::size_t at = 0; (at = visible.find(name, at)) != visible.npos; at += name.size()) {
            const std::size_t open = text.find(u'(', at);
            const std::size_t close = open == text.npos ? open : ClosingParenthesis(text, open);
            if (close == text.npos) {
                continue;
            }
            std::size_t first = 0;
            const auto argument = NextArgument(text.substr(open + 1, close - open - 1), first);
            if (argument) {
                std::fill_n(visible.begin() + static_cast<std::ptrdiff_t>(open) + 1, argument->size(), u'\0');
            }
        }
    }
    return visible;
}

struct Hit {
    int row;
    std::size_t at;
};

std::optional<Hit> FindName(std::u16string_view text) {
    const std::u16string visible = Searchable(text);
    for (int row = 0; row < NAMED_FUNCTION_COUNT; ++row) {
        if (const std::size_t at = visible.find(kNames[static_cast<std::size_t>(row)]); at != visible.npos) {
            return Hit{row, at};
        }
    }
    return std::nullopt;
}

/// Whether any name may occur: most texts hold none and are left at once.
bool MayHoldName(std::u16string_view text) {
    for (const char16_t c : text) {
        if ((c >= u'a' && c <= u'z') || c == u'R' || c == u'N') {
            return true;
        }
    }
    return false;
}

/// "((a) root (b))".
std::optional<std::u16string> RootText(std::u16string_view arguments) {
    std::size_t position = 0;
    const auto degree = NextArgument(arguments, position);
    const auto radicand = NextArgument(arguments, position);
    if (!degree || !radicand) {
        Fail(ERROR_PARENTHESIS);
        return std::nullopt;
    }
    std::u16string text = u"((";
    text.append(*degree).append(u") root (").append(*radicand).append(u")) ");
    return text;
}

/// Counts the nesting of calls for its life.
class NestingGuard {
  public:
    NestingGuard() { ++depth_; }
    ~NestingGuard() { --depth_; }
    NestingGuard(const NestingGuard&) = delete;
    NestingGuard& operator=(const NestingGuard&) = delete;
    [[nodiscard]] static bool IsTooDeep() { return depth_ > kDeepestNamedFunction; }

  private:
    static inline int depth_ = 0;
};

}  // namespace

std::span<const std::u16string_view> NamedFunctionTable() {
    return kNames;
}

std::optional<std::u16string_view> NextArgument(std::u16string_view text, std::size_t& position) {
    if (position >= text.size()) {
        return std::nullopt;
    }
    const std::size_t start = position;
    int depth = 0;
    for (; position < text.size(); ++position) {
        const char16_t c = text[position];
        if (c == u'(') {
            ++depth;
        } else if (c == u')') {
            --depth;
        } else if (c == u',' && depth == 0) {
            break;
        }
    }
    const std::u16string_view argument = text.substr(start, position - start);
    ++position;
    if (argument.empty()) {
        return std::nullopt;
    }
    return argument;
}

bool ExpandNamedFunctions(std::u16string& text, int radix) {
    if (calcContext().calcError != 0) {
        return false;
    }
    if (!MayHoldName(text)) {
        return true;
    }
    const NestingGuard guard;
    if (NestingGuard::IsTooDeep()) {
        return Fail(ERROR_PARENTHESIS);
    }
    while (const std::optional<Hit> hit = FindName(text)) {
        const std::size_t open = text.find(u'(', hit->at);
        const std::size_t close = open == text.npos ? open : ClosingParenthesis(text, open);
        if (close == text.npos) {
            return Fail(ERROR_PARENTHESIS);
        }
        const std::u16string arguments = text.substr(open + 1, close - open - 1);
        std::u16string pasted;
        if (hit->row == NAMED_RT) {
            auto root = RootText(arguments);
            if (!root) {
                return false;
            }
            pasted = std::move(*root);
        } else {
            const QComplex value = CallNamedFunction(hit->row, arguments, radix);
            if (calcContext().calcError != 0) {
                return false;
            }
            pasted = PastedNumber(value.re, radix);
        }
        text.replace(hit->at, close + 1 - hit->at, pasted);
        if (text.size() > kMaxExpressionLength) {
            return Fail(ERROR_PARENTHESIS);
        }
    }
    return true;
}

QComplex CallNamedFunction(int index, std::u16string_view argumentText, int radix) {
    if (calcContext().calcError != 0) {
        return {};
    }
    NamedArguments arguments(argumentText);
    QComplex result;
    switch (index) {
        case NAMED_FN_INT: result.re = CallIntegral(arguments); break;
        case NAMED_FN_DERIV: result.re = CallDerivative(arguments); break;
        case NAMED_FN_EVAL: result.re = CallEvaluation(arguments); break;
        case NAMED_FN_ROOT: result.re = CallRootSearch(arguments); break;
        case NAMED_FN_SUM: result.re = CallSeries(arguments, Series::sum); break;
        case NAMED_FN_PRODUCT: result.re = CallSeries(arguments, Series::product); break;
        case NAMED_GCD: result.re = CallGcd(arguments); break;
        case NAMED_LCM: result.re = CallLcm(arguments); break;
        case NAMED_FIB: result.re = CallFibonacci(arguments); break;
        case NAMED_RAN: result.re = CallRandom(arguments); break;
        case NAMED_NCR: result.re = CallCombinations(arguments); break;
        case NAMED_NPR: result.re = CallPermutations(arguments); break;
        case NAMED_NOT: result.re = CallComplement(arguments, radix, Complement::ones); break;
        case NAMED_CPL: result.re = CallComplement(arguments, radix, Complement::twos); break;
        default:
            if (index >= NAMED_SUM && index <= NAMED_GM) {
                result.re = ListStatistic(static_cast<NamedFunction>(index));
            } else if (index >= NAMED_DB && index <= NAMED_FV) {
                result.re = CallFinance(static_cast<NamedFunction>(index), arguments);
            }
            break;  // "module" has no operation and yields 0; this is intended
    }
    if (calcContext().calcError != 0) {
        return {};
    }
    return result;
}

}  // namespace quorix
