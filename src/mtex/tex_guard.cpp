#include "mtex/tex_guard.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

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

constexpr auto kFunctionWords = std::to_array<FunctionWord>({
    {"acos", "\\arccos "},
    {"asin", "\\arcsin "},
    {"atan", "\\arctan "},
    {"cos", "\\cos "},
    {"cosh", "\\cosh "},
    {"csc", "\\csc "},
    {"det", "\\det "},
    {"exp", "\\ \\exp\\ "},
    {"gcd", "\\gcd "},
    {"ln", "\\ln "},
    {"log", "\\log "},
    {"pi", "\\pi "},
    {"sec", "\\sec "},
    {"sin", "\\sin "},
    {"sinh", "\\sinh "},
    {"sqrt", "\\sqrt "},
    {"tan", "\\tan "},
    {"tanh", "\\tanh "},
});

// Functions without a command of their own, upright as the others.
constexpr auto kUprightWords = std::to_array<std::string_view>(
    {"abs",   "acosh", "acot", "acoth", "acsc",  "acsch", "actan", "asec", "asech", "asinh",
     "atanh", "cpl",   "csch", "ctan",  "ctanh", "diag",  "eigl",  "eigv", "fib",   "iexp",
     "inv",   "iroot", "lcm",  "not",   "orth",  "ran",   "rank",  "sech", "trans", "tri"});

// Operators that are words stand apart from their operands.
constexpr auto kOperatorWords = std::to_array<std::string_view>(
    {"and", "mod", "nand", "nor", "or", "root", "rtl", "rtr", "shl", "shr", "xor"});

constexpr std::string_view kSigns = "\\%,;:! {}|#$&_";

constexpr bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr bool IsBlank(std::string_view text) {
    return text.find_first_not_of(' ') == text.npos;
}

constexpr bool IsOperandStart(char c) {
    return IsLetter(c) || (c >= '0' && c <= '9');
}

constexpr std::string_view kGap = "\\ ";
constexpr std::string_view kRoot = "sqrt";
constexpr std::string_view kText = "\\text{";
constexpr std::string_view kLineBreak = "\\\\";
constexpr std::string_view kOpening = "\\left(";
constexpr std::string_view kClosing = "\\right)";
constexpr int kDeepestRoot = 64;

/// Where the delimiter that closes a root's argument starts and ends. One that stays open ends with the text
/// or the group around it.
struct Radicand {
    std::size_t close;
    std::size_t end;
};

Radicand FindRadicand(std::string_view tex, std::size_t at) {
    int delimiters = 0;
    int braces = 0;
    for (; at < tex.size(); ++at) {
        const std::string_view rest = tex.substr(at);
        if (rest.starts_with(kOpening)) ++delimiters;
        if (rest.starts_with(kClosing) && --delimiters == 0) return {at, at + kClosing.size()};
        if (rest.front() == '{') ++braces;
        if (rest.front() == '}' && --braces < 0) break;
    }
    return {at, at};
}

/// Writes a text anew for the rasteriser. A line that is being typed keeps its look: roots that stay open are
/// drawn, and delimiters without a partner.
class Preparation {
  public:
    Preparation(std::string_view tex, int depth) : tex_(tex), depth_(depth) {}

    std::string Run() {
        while (at_ < tex_.size()) {
            if (Takes(kLineBreak)) {
                // The rasteriser must not take the second backslash for that of a command.
                prepared_.push_back(' ');
            } else if (Starts(kText)) {
                textEnd_ = std::min(tex_.find('}', at_), tex_.size());
                Takes(kText);
            } else if (Starts(kClosing) && open_.back() == 0) {
                // It would become an arrow.
                prepared_.push_back(')');
                at_ += kClosing.size();
            } else if (IsLetter(tex_[at_])) {
                TakeWord();
            } else {
                TakeSign();
            }
        }
        return std::move(prepared_);
    }

  private:
    [[nodiscard]] bool Starts(std::string_view part) const { return tex_.substr(at_).starts_with(part); }

    bool Takes(std::string_view part) {
        if (!Starts(part)) return false;
        prepared_.append(part);
        at_ += part.size();
        return true;
    }

    void TakeSign() {
        if (tex_[at_] == '\\') {
            const std::string_view command = WordAt(at_ + 1);
            if (command == "left") ++open_.back();
            if (command == "right") --open_.back();
            // An escaped brace is no group.
            if (command.empty() && at_ + 1 < tex_.size()) prepared_.push_back(tex_[at_++]);
        } else if (tex_[at_] == '{') {
            open_.push_back(0);
        } else if (tex_[at_] == '}' && open_.size() > 1) {
            open_.pop_back();
        }
        prepared_.push_back(tex_[at_++]);
    }

    [[nodiscard]] std::string_view WordAt(std::size_t start) const {
        const std::string_view rest = tex_.substr(start);
        return {rest.begin(), std::ranges::find_if_not(rest, IsLetter)};
    }

    /// How a word is drawn; the word itself when it has no form of its own.
    [[nodiscard]] static std::string FormOf(std::string_view word) {
        const auto* function = std::ranges::find(kFunctionWords, word, &FunctionWord::word);
        if (function != kFunctionWords.end()) return std::string(function->command);
        const std::string upright = std::string(kText).append(word).append("}");
        if (std::ranges::find(kOperatorWords, word) != kOperatorWords.end()) {
            return std::string(kGap).append(upright).append(kGap);
        }
        return std::ranges::find(kUprightWords, word) != kUprightWords.end() ? upright : std::string(word);
    }

    void TakeWord() {
        const std::string_view word = WordAt(at_);
        const bool isName = at_ >= textEnd_ && (at_ == 0 || tex_[at_ - 1] != '\\');
        prepared_.append(isName ? FormOf(word) : word);
        at_ += word.size();
        if (isName && word == kRoot) {
            TakeRadicand();
        } else if (isName && word.size() > 1) {
            TakeGap();
        }
    }

    /// The blank between the name of a function and an operand without parentheses is drawn.
    void TakeGap() {
        const std::size_t next = std::min(tex_.find_first_not_of(' ', at_), tex_.size());
        if (next == at_ || next == tex_.size() || !IsOperandStart(tex_[next])) return;
        at_ = next;
        if (!prepared_.ends_with(kGap) && !FormOf(WordAt(next)).starts_with(kGap)) prepared_.append(kGap);
    }

    /// The argument of a root becomes a group.
    void TakeRadicand() {
        at_ = std::min(tex_.find_first_not_of(' ', at_), tex_.size());
        if (depth_ >= kDeepestRoot || !Starts(kOpening)) return;
        const Radicand radicand = FindRadicand(tex_, at_);
        at_ += kOpening.size();
        const std::string_view inside = tex_.substr(at_, radicand.close - at_);
        const std::string drawn = IsBlank(inside) ? "?" : Preparation(inside, depth_ + 1).Run();
        prepared_.append("{").append(drawn).append("}");
        at_ = radicand.end;
    }

    std::string_view tex_;
    int depth_;
    std::size_t at_ = 0;
    std::size_t textEnd_ = 0;      ///< words before it are plain text
    std::vector<int> open_ = {0};  ///< delimiters that are open in each group around the place
    std::string prepared_;
};

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
    return "\\nosmash " + Preparation(tex, 0).Run();  // Without it "=-" runs together.
}

}  // namespace quorix::mtex
