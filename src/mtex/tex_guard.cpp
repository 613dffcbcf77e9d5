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

// Words that the rasteriser reads as functions: before a delimiter, and before anything.
constexpr std::array<std::string_view, 6> kFunctions = {"abs", "acos", "asin", "cos", "sin", "sqrt"};
constexpr std::array<std::string_view, 2> kAlwaysFunctions = {"det", "exp"};

constexpr std::string_view kSigns = "\\%,;:! {}|#$&_";

constexpr bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
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
    std::string prepared = "\\nosmash ";  // Without it "=-" runs together.
    for (std::size_t at = 0; at < tex.size();) {
        std::size_t end = at;
        while (end < tex.size() && IsLetter(tex[end])) ++end;
        if (end == at) {
            prepared.push_back(tex[at++]);
            continue;
        }
        const std::string_view word = tex.substr(at, end - at);
        const std::size_t next = std::min(tex.find_first_not_of(' ', end), tex.size());
        const bool isCommand = at > 0 && tex[at - 1] == '\\';
        const bool isFunction = std::ranges::find(kAlwaysFunctions, word) != kAlwaysFunctions.end() ||
                                (std::ranges::find(kFunctions, word) != kFunctions.end() &&
                                 tex.substr(next).starts_with("\\left"));
        if (isFunction && !isCommand) {
            prepared.append("{").append(word).append("}");
        } else {
            prepared.append(word);
        }
        at = end;
    }
    return prepared;
}

}  // namespace quorix::mtex
