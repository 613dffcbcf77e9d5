#include "mtex/tex_guard.h"

#include <algorithm>
#include <array>

namespace quorix::mtex {
namespace {

// In alphabetical order, capitals first.
constexpr auto kCommands = std::to_array<std::string_view>({
    "Delta",        "Gamma",      "Huge",      "LARGE",
    "Lambda",       "Large",      "Leftarrow", "Leftrightarrow",
    "Omega",        "Phi",        "Pi",        "Psi",
    "Rightarrow",   "Sigma",      "Theta",     "Upsilon",
    "Xi",           "alpha",      "angle",     "approx",
    "arccos",       "arcsin",     "arctan",    "arg",
    "bar",          "begin",      "beta",      "binom",
    "bullet",       "cap",        "cdot",      "cdots",
    "chi",          "circ",       "cos",       "cosh",
    "cot",          "csc",        "cup",       "ddot",
    "deg",          "delta",      "det",       "dim",
    "displaystyle", "div",        "dot",       "dots",
    "ell",          "end",        "epsilon",   "equiv",
    "eta",          "exists",     "exp",       "forall",
    "frac",         "gamma",      "gcd",       "ge",
    "geq",          "hat",        "hbar",      "hspace",
    "huge",         "in",         "inf",       "infty",
    "int",          "iota",       "kappa",     "lambda",
    "langle",       "large",      "lbrace",    "ldots",
    "le",           "left",       "leftarrow", "leftrightarrow",
    "leq",          "lim",        "ln",        "log",
    "max",          "mid",        "min",       "mp",
    "mu",           "nabla",      "ne",        "neg",
    "neq",          "normalsize", "nosmash",   "notin",
    "nu",           "oint",       "omega",     "oplus",
    "otimes",       "over",       "overline",  "parallel",
    "partial",      "perp",       "phi",       "pi",
    "pm",           "prime",      "prod",      "propto",
    "psi",          "qquad",      "quad",      "rangle",
    "rbrace",       "rho",        "right",     "rightarrow",
    "sec",          "sigma",      "sim",       "simeq",
    "sin",          "sinh",       "small",     "sqrt",
    "subset",       "subseteq",   "sum",       "sup",
    "supset",       "tan",        "tanh",      "tau",
    "text",         "textstyle",  "theta",     "tilde",
    "times",        "tiny",       "to",        "underline",
    "upsilon",      "varepsilon", "varphi",    "varsigma",
    "vartheta",     "vec",        "wedge",     "xi",
    "zeta",
});
static_assert(std::ranges::is_sorted(kCommands));

struct FunctionWord {
    std::string_view word;
    std::string_view command;
};

// Operators that are words stand apart from their operands.
constexpr auto kFunctionWords = std::to_array<FunctionWord>({
    {"acos", "\\arccos "},
    {"and", "\\ \\text{and}\\ "},
    {"asin", "\\arcsin "},
    {"atan", "\\arctan "},
    {"cos", "\\cos "},
    {"cosh", "\\cosh "},
    {"csc", "\\csc "},
    {"det", "\\det "},
    {"exp", "\\exp "},
    {"gcd", "\\gcd "},
    {"ln", "\\ln "},
    {"log", "\\log "},
    {"mod", "\\ \\text{mod}\\ "},
    {"nand", "\\ \\text{nand}\\ "},
    {"nor", "\\ \\text{nor}\\ "},
    {"or", "\\ \\text{or}\\ "},
    {"pi", "\\pi "},
    {"root", "\\ \\text{root}\\ "},
    {"rtl", "\\ \\text{rtl}\\ "},
    {"rtr", "\\ \\text{rtr}\\ "},
    {"sec", "\\sec "},
    {"shl", "\\ \\text{shl}\\ "},
    {"shr", "\\ \\text{shr}\\ "},
    {"sin", "\\sin "},
    {"sinh", "\\sinh "},
    {"sqrt", "\\sqrt "},
    {"tan", "\\tan "},
    {"tanh", "\\tanh "},
    {"xor", "\\ \\text{xor}\\ "},
});

constexpr std::string_view kSigns = "\\%,;:! {}|#$&_";

constexpr bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr std::string_view kRoot = "sqrt";
constexpr std::string_view kText = "\\text{";
constexpr std::string_view kLineBreak = "\\\\";
constexpr std::string_view kOpening = "\\left(";
constexpr std::string_view kClosing = "\\right)";
constexpr int kDeepestRoot = 64;

/// The "\right)" that closes a "\left(" at `at`; npos when none stands there or it stays open.
std::size_t ClosingDelimiter(std::string_view tex, std::size_t at) {
    if (!tex.substr(at).starts_with(kOpening)) return tex.npos;
    int depth = 0;
    for (; at < tex.size(); ++at) {
        const std::string_view rest = tex.substr(at);
        if (rest.starts_with(kOpening)) ++depth;
        if (rest.starts_with(kClosing) && --depth == 0) return at;
    }
    return tex.npos;
}

std::string PreparedGroup(std::string_view tex, int depth) {
    std::string prepared;
    for (std::size_t at = 0; at < tex.size();) {
        std::size_t end = at;
        while (end < tex.size() && IsLetter(tex[end])) ++end;
        if (tex.substr(at).starts_with(kLineBreak)) {
            // The rasteriser must not take the second backslash for that of a command.
            prepared.append(kLineBreak).append(" ");
            at += kLineBreak.size();
            continue;
        }
        if (tex.substr(at).starts_with(kText)) {
            // Words within are words.
            const std::size_t close = std::min(tex.find('}', at), tex.size());
            prepared.append(tex, at, close - at);
            at = close;
            continue;
        }
        if (end == at) {
            prepared.push_back(tex[at++]);
            continue;
        }
        const std::string_view word = tex.substr(at, end - at);
        const auto function = std::ranges::find(kFunctionWords, word, &FunctionWord::word);
        const bool isCommand = at > 0 && tex[at - 1] == '\\';
        prepared.append(isCommand || function == kFunctionWords.end() ? word : function->command);
        at = end;
        if (function == kFunctionWords.end() || isCommand || word != kRoot) continue;
        // The argument of a root is a group.
        at = std::min(tex.find_first_not_of(' ', at), tex.size());
        const std::size_t close = depth < kDeepestRoot ? ClosingDelimiter(tex, at) : tex.npos;
        if (close == tex.npos) continue;
        const std::string radicand =
            PreparedGroup(tex.substr(at + kOpening.size(), close - at - kOpening.size()), depth + 1);
        prepared.append("{").append(radicand).append("}");
        at = close + kClosing.size();
    }
    return prepared;
}

}  // namespace

bool IsHarmlessTex(std::string_view tex) {
    if (tex.empty() || tex.size() > kLongestTex) return false;
    for (std::size_t at = 0; at < tex.size(); ++at) {
        const char c = tex[at];
        if (c < ' ' || c > '~') return false;
        // Entities such as "&#92;" could stand for a backslash; between columns a blank follows.
        if (c == '&' && at + 1 < tex.size() && tex[at + 1] != ' ') return false;
        if (c != '\\') continue;
        std::size_t end = ++at;
        while (end < tex.size() && IsLetter(tex[end])) ++end;
        if (end == at) {
            if (at == tex.size() || kSigns.find(tex[at]) == kSigns.npos) return false;
            continue;
        }
        if (!std::ranges::binary_search(kCommands, tex.substr(at, end - at))) return false;
        at = end - 1;
    }
    return true;
}

std::string PreparedTex(std::string_view tex) {
    return "\\nosmash " + PreparedGroup(tex, 0);  // Without it "=-" runs together.
}

}  // namespace quorix::mtex
