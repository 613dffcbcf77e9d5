#include "equations/tex_forms.h"

#include <array>
#include <vector>

namespace quorix {
namespace {

/// In a pattern "#1" is the first argument translated, "@1" the first as a name, "_1" the first translated as
/// an index: in braces unless it is a single character.
struct CallForm {
    NamedFunction row;
    std::size_t arguments;
    std::string_view pattern;
};

// Of several rows of one function the first whose arguments are there is taken. That "sdv" and "ssd" mix N
// and n is intended.
constexpr auto kCallForms = std::to_array<CallForm>({
    {NAMED_RT, 2, R"(\sqrt[#1]{#2})"},
    {NAMED_FN_INT, 4, R"(\int_{#3}^{#4}{\left(#1\right)}\hspace1d@2)"},
    {NAMED_FN_DERIV, 3, R"(\left(#1\right)^{'}_{@2=#3})"},
    {NAMED_FN_EVAL, 3, R"(\left(#1\right)_{@2=#3})"},
    {NAMED_FN_ROOT, 4, R"(\left(#1=0\right)_{#3<=@2<=#4})"},
    {NAMED_FN_SUM, 5, R"(\displaystyle\sum_{@2=#3,\Delta=#5}^{#4}{\left(#1\right)})"},
    {NAMED_FN_SUM, 4, R"(\displaystyle\sum_{@2=#3}^{#4}{\left(#1\right)})"},
    {NAMED_FN_PRODUCT, 5, R"(\displaystyle\prod_{@2=#3,\Delta=#5}^{#4}{\left(#1\right)})"},
    {NAMED_FN_PRODUCT, 4, R"(\displaystyle\prod_{@2=#3}^{#4}{\left(#1\right)})"},
    {NAMED_SUM, 0, R"(\displaystyle\sum_{n=1}^{N}{X[n]})"},
    {NAMED_SSQ, 0, R"(\displaystyle\sum_{n=1}^{N}{X[n]^2})"},
    {NAMED_AVG, 0, R"(\displaystyle\frac{\sum_{n=1}^{N}{X[n]}}{N})"},
    {NAMED_SDV, 0,
     R"(\displaystyle\sqrt{\frac{n*\sum_{n=1}^{N}{X[n]^2}-\left(\sum_{n=1}^{N}{X[n]}\right)^2}{n^2}})"},
    {NAMED_SSD, 0,
     R"(\displaystyle\sqrt{\frac{n*\sum_{n=1}^{N}{X[n]^2}-\left(\sum_{n=1}^{N}{X[n]}\right)^2}{n*(n-1)}})"},
    {NAMED_AVD, 0, R"(\displaystyle\frac{\sum_{n=1}^{N}{\left|X[n]-\bar X\right|}}{n})"},
    {NAMED_DSQ, 0, R"(\displaystyle\sum_{n=1}^{N}{\left(X[n]-\bar X\right)^2})"},
    {NAMED_GM, 0, R"(\displaystyle\sqrt[n]{\prod_{n=1}^{N}{X[n]}})"},
    {NAMED_NCR, 2, R"(C^{#1}__2)"},
    {NAMED_NPR, 2, R"(P^{#1}__2)"},
});
constexpr std::string_view kSquareRoot = R"(\sqrt{#2})";

struct OpenCall {
    NamedFunction row;
    std::string_view text;
};

constexpr auto kOpenCalls = std::to_array<OpenCall>({
    {NAMED_RT, R"(\sqrt[\left(?\right)]{\left(?\right)})"},
    {NAMED_FN_INT, R"(\int\left(?\right))"},
    {NAMED_FN_DERIV, R"(\left(?\right)^{'})"},
    {NAMED_FN_EVAL, R"(\left(?\right))"},
    {NAMED_FN_ROOT, R"(\left(?\right))"},
    {NAMED_GCD, R"(gcd\left(?\right))"},
    {NAMED_LCM, R"(lcm\left(?\right))"},
    {NAMED_FIB, R"(fib\left(?\right))"},
    {NAMED_RAN, R"(ran\left(?\right))"},
    {NAMED_FN_SUM, R"(\sum\left(?\right))"},
    {NAMED_FN_PRODUCT, R"(\prod\left(?\right))"},
    {NAMED_NCR, R"(C\left(?\right))"},
    {NAMED_NPR, R"(P\left(?\right))"},
});

/// The arguments up to the first empty one. Commas within parentheses and braces part none.
std::vector<std::string_view> SplitArguments(std::string_view text) {
    std::vector<std::string_view> arguments;
    int depth = 0;
    std::size_t start = 0;
    for (std::size_t at = 0; at <= text.size(); ++at) {
        const char c = at < text.size() ? text[at] : ',';
        if (c == '(' || c == '{') ++depth;
        if (c == ')' || c == '}') --depth;
        if (at < text.size() && (c != ',' || depth != 0)) continue;
        if (at == start) break;
        arguments.push_back(text.substr(start, at - start));
        start = at + 1;
    }
    return arguments;
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

const CallForm* FindForm(NamedFunction row, std::size_t arguments) {
    for (const CallForm& form : kCallForms) {
        if (form.row == row && form.arguments <= arguments) return &form;
    }
    return nullptr;
}

bool IsMarker(std::string_view pattern, std::size_t at) {
    const char c = pattern[at];
    return (c == '#' || c == '@' || c == '_') && at + 1 < pattern.size() && pattern[at + 1] >= '1' &&
           pattern[at + 1] <= '5';
}

}  // namespace

std::optional<std::string> CallToTeX(NamedFunction row, std::string_view argumentText,
                                     const TranslateArgument& translate) {
    const std::vector<std::string_view> arguments = SplitArguments(argumentText);
    const CallForm* form = FindForm(row, arguments.size());
    if (form == nullptr) return std::nullopt;
    const std::string_view pattern =
        row == NAMED_RT && Trimmed(arguments[0]) == "2" ? kSquareRoot : form->pattern;
    const bool binds = pattern.find("@2") != pattern.npos;
    const std::string_view boundName = binds ? Trimmed(arguments[1]) : std::string_view();
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        if (!IsMarker(pattern, at)) {
            text.push_back(pattern[at]);
            continue;
        }
        const char marker = pattern[at];
        const auto index = static_cast<std::size_t>(pattern[++at] - '1');
        const std::string_view argument = Trimmed(arguments[index]);
        if (marker == '@') {
            text.append(argument);
            continue;
        }
        const std::string translated = translate(argument, index == 0 ? boundName : std::string_view());
        const bool braces = marker == '_' && translated.size() != 1;
        text.append(braces ? "{" : "").append(translated).append(braces ? "}" : "");
    }
    return text;
}

FormHold HoldOf(NamedFunction row) {
    switch (row) {
        case NAMED_FN_PRODUCT: return FormHold::product;
        case NAMED_FN_INT:
        case NAMED_FN_SUM:
        case NAMED_SUM:
        case NAMED_SSQ:
        case NAMED_DSQ: return FormHold::sum;
        case NAMED_RT:
        case NAMED_SDV:
        case NAMED_SSD:
        case NAMED_GM: return FormHold::whole;
        default: return FormHold::script;
    }
}

std::string_view OpenCallToTeX(NamedFunction row) {
    for (const OpenCall& call : kOpenCalls) {
        if (call.row == row) return call.text;
    }
    const CallForm* form = FindForm(row, 0);
    return form != nullptr ? form->pattern : std::string_view();
}

}  // namespace quorix
