#include "equations/tex_for_copy.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "equations/tex_translation.h"

namespace quorix {

namespace {

constexpr std::string_view kOpen = "\\left(";
constexpr std::string_view kClose = "\\right)";
constexpr std::string_view kText = "\\text{";
/// The gap before a differential has a form that only the rasteriser reads.
constexpr std::string_view kDifferential = "\\hspace1d";
constexpr std::string_view kCopiedDifferential = "\\,d ";

/// Words with a command of their own; other words become \operatorname.
constexpr std::pair<std::string_view, std::string_view> kCommands[] = {
    {"acos", "\\arccos"}, {"asin", "\\arcsin"}, {"atan", "\\arctan"}, {"cos", "\\cos"},   {"cosh", "\\cosh"},
    {"csc", "\\csc"},     {"det", "\\det"},     {"gcd", "\\gcd"},     {"ln", "\\ln"},     {"log", "\\log"},
    {"max", "\\max"},     {"min", "\\min"},     {"mod", "\\bmod"},    {"pi", "\\pi"},     {"sec", "\\sec"},
    {"sin", "\\sin"},     {"sinh", "\\sinh"},   {"tan", "\\tan"},     {"tanh", "\\tanh"},
};

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsDigit(char c) {
    return (c >= '0' && c <= '9') || c == '.';
}

/// Takes what an operator behind the reading point applies to: a parenthesis without its delimiters, or a
/// number.
std::string_view TakeOperand(std::string_view& rest) {
    const std::string_view start = rest.substr(std::min(rest.find_first_not_of(' '), rest.size()));
    if (start.starts_with(kOpen)) {
        int depth = 0;
        for (std::size_t at = 0; at < start.size(); ++at) {
            depth += start.substr(at).starts_with(kOpen) ? 1 : 0;
            if (start.substr(at).starts_with(kClose) && --depth == 0) {
                rest = start.substr(at + kClose.size());
                return start.substr(kOpen.size(), at - kOpen.size());
            }
        }
        return {};
    }
    const auto* const end = std::find_if_not(start.begin(), start.end(), IsDigit);
    const auto length = static_cast<std::size_t>(end - start.begin());
    if (length > 0) {
        rest = start.substr(length);
    }
    return start.substr(0, length);
}

/// Whether what stands before `text` is only a part of an operand.
bool ContinuesOperand(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.starts_with('!') || text.starts_with("\\%") || text.starts_with('_') || text.starts_with('^');
}

std::string Commands(std::string_view rest);

/// A word of more than one letter, with its operand where the command takes that as an argument.
std::string CommandOf(std::string_view word, std::string_view& rest) {
    if (word == "sqrt") {
        return "\\sqrt{" + Commands(TakeOperand(rest)) + "}";
    }
    if (word == "exp") {
        std::string_view behind = rest;
        const std::string_view exponent = TakeOperand(behind);
        if (!exponent.empty() && !ContinuesOperand(behind)) {
            rest = behind;
            return "\\cdot 10^{" + Commands(exponent) + "}";
        }
    }
    const auto* const known = std::find_if(std::begin(kCommands), std::end(kCommands),
                                           [word](const auto& row) { return row.first == word; });
    return known != std::end(kCommands) ? std::string(known->second) + ' '
                                        : "\\operatorname{" + std::string(word) + "}";
}

std::string Commands(std::string_view rest) {
    std::string result;
    while (!rest.empty()) {
        if (rest.starts_with(kDifferential)) {
            result += kCopiedDifferential;
            rest.remove_prefix(kDifferential.size());
        } else if (rest.front() == '\\') {
            // A command, or an escaped sign.
            std::size_t length = 1;
            while (length < rest.size() && IsLetter(rest[length])) {
                ++length;
            }
            length = std::max<std::size_t>(length, std::min<std::size_t>(2, rest.size()));
            result += rest.substr(0, length);
            rest.remove_prefix(length);
        } else if (IsLetter(rest.front())) {
            const auto length =
                static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), IsLetter) - rest.begin());
            const std::string_view word = rest.substr(0, length);
            rest.remove_prefix(length);
            result += length == 1 ? std::string(word) : CommandOf(word, rest);
        } else {
            result += rest.front() == '*' ? std::string("\\cdot ") : std::string(1, rest.front());
            rest.remove_prefix(1);
        }
    }
    return result;
}

}  // namespace

std::string TexForCopy(std::u16string_view engineText) {
    const std::string text = ExpressionToTeX(engineText);
    return text.find(kText) == text.npos ? Commands(text) : text;
}

}  // namespace quorix
