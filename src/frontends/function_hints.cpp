#include "frontends/function_hints.h"

#include <algorithm>

namespace quorix {

namespace {

// The root's row takes the root sign, as its key does.
constexpr std::u16string_view kHints[] = {
    u"ran(lower, upper)",
    u"gcd(number1, number2)",
    u"lcm(number1, number2)",
    u"mod(dividend, divisor)",
    u"fib(number)",
    u"log(x)",
    u"sinh(x)",
    u"asinh(x)",
    u"cosh(x)",
    u"acosh(x)",
    u"tanh(x)",
    u"atanh(x)",
    u"sin(x)",
    u"asin(x)",
    u"cos(x)",
    u"acos(x)",
    u"tan(x)",
    u"atan(x)",
    u"csc(x)",
    u"acsc(x)",
    u"sec(x)",
    u"asec(x)",
    u"ncr(n, k)",
    u"npr(n, k)",
    u"\u2211(expression, variable, start, end, [step])",
    u"\u220F(expression, variable, start, end, [step])",
    u"\u0192(expression, variable, value)",
    u"\u03B4(expression, variable, value)",
    u"\u222B(expression, variable, lower, upper)",
    u"fnRoot(expression, variable, lower, upper)",
    u"db(cost, salvalge, life, period, month=12)",
    u"syd(cost, salvalge, life, period)",
    u"sln(cost, salvalge, life)",
    u"rate(nper, pmt, pv, fv, p/y, type=0)",
    u"nper(rate, pmt, pv, fv, p/y, type=0)",
    u"pmt(rate, nper, pv, fv, p/y, type=0)",
    u"pv(rate, nper, pmt, fv, p/y, type=0)",
    u"fv(rate, nper, pmt, pv, p/y, type=0)",
    u"\u221A(x)",
    u"det(square matrix)",
    u"inv(square matrix)",
    u"eigv(matrix)",
    u"eigl(matrix)",
    u"orth(symetric matrix)",
    u"rank(matrix)",
    u"trans(matrix)",
    u"diag(matrix)",
    u"tri(matrix)",
    u"solve(Ax matrix, B matrix)",
    u"ln(x)",
};

constexpr std::u16string_view kModToken = u" mod ";
constexpr std::u16string_view kModName = u"mod";

constexpr std::u16string_view NameOf(std::u16string_view row) {
    return row.substr(0, row.find(u'('));
}

constexpr bool IsNameCharacter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'_' ||
           (c >= 0x0370 && c <= 0x03FF);
}

/// `text` ends with `name`. A name of one character alone (a sign, a macro) must not end a longer word, so
/// that "is" is no call of "s".
bool EndsWithName(std::u16string_view text, std::u16string_view name) {
    if (name.empty() || !text.ends_with(name)) {
        return false;
    }
    text.remove_suffix(name.size());
    return name.size() > 1 || text.empty() || !IsNameCharacter(name.front()) || !IsNameCharacter(text.back());
}

template <class Rows>
std::u16string_view LongestRow(const Rows& rows, std::u16string_view text) {
    std::u16string_view found;
    for (const std::u16string_view row : rows) {
        if (EndsWithName(text, NameOf(row)) && NameOf(row).size() > NameOf(found).size()) {
            found = row;
        }
    }
    return found;
}

/// A parenthesis that is open: where it stands, and the commas so far.
struct OpenCall {
    std::size_t parenthesis;
    int commas = 0;
};

}  // namespace

std::span<const std::u16string_view> FunctionHints() {
    return kHints;
}

bool TakesSeveralArguments(std::u16string_view name) {
    return std::any_of(std::begin(kHints), std::end(kHints), [name](std::u16string_view row) {
        return NameOf(row) == name && row.find(u',') != row.npos;
    });
}

std::pair<std::size_t, std::size_t> ArgumentSpan(std::u16string_view row, int argument) {
    std::size_t start = row.find(u'(') + 1;
    if (start == 0 || !row.ends_with(u')')) {
        return {row.size(), 0};
    }
    const std::size_t close = row.size() - 1;
    for (std::size_t comma = row.find(u','); argument > 0 && comma < close; comma = row.find(u',', start)) {
        start = comma + 1;
        --argument;
    }
    while (start < close && row[start] == u' ') {
        ++start;
    }
    return {start, std::min(row.find(u',', start), close) - start};
}

std::u16string_view HintTable::RowOfCall(std::u16string_view text) const {
    const std::u16string_view macro = LongestRow(macros_, text);
    const std::u16string_view own = LongestRow(kHints, text);
    return NameOf(macro).size() >= NameOf(own).size() ? macro : own;
}

std::optional<FunctionHint> HintTable::FindHint(std::u16string_view line, std::u16string_view tokenLengths,
                                                int cursor) const {
    const std::size_t at = std::min(static_cast<std::size_t>(std::max(cursor, 0)), tokenLengths.size());
    std::size_t offset = 0;
    for (const char16_t length : tokenLengths.substr(0, at)) {
        offset += static_cast<std::size_t>(length - u'0');
    }
    offset = std::min(offset, line.size());
    const std::size_t width =
        at < tokenLengths.size() ? static_cast<std::size_t>(tokenLengths[at] - u'0') : 0;
    const std::u16string_view token = line.substr(offset, width);
    if (token.size() > 1 && token.ends_with(u'(')) {
        if (const auto row = RowOfCall(token.substr(0, token.size() - 1)); !row.empty()) {
            return FunctionHint{std::u16string(row), 0};
        }
    }
    const bool onMod = token == kModToken;
    if (onMod || line.substr(0, offset).ends_with(kModToken)) {
        return FunctionHint{std::u16string(RowOfCall(kModName)), onMod ? 0 : 1};
    }
    std::vector<OpenCall> open;
    for (std::size_t i = 0; i < offset; ++i) {
        if (line[i] == u'(') {
            open.push_back({i});
        } else if (open.empty()) {
            continue;
        } else if (line[i] == u')') {
            open.pop_back();
        } else if (line[i] == u',') {
            ++open.back().commas;
        }
    }
    for (; !open.empty(); open.pop_back()) {
        if (const auto row = RowOfCall(line.substr(0, open.back().parenthesis)); !row.empty()) {
            return FunctionHint{std::u16string(row), open.back().commas};
        }
    }
    return std::nullopt;
}

}  // namespace quorix
