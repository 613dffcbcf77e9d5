#include "engine/keyword_table.h"

#include <algorithm>
#include <array>

#include "engine/text_fold.h"
#include "engine/word_hash.h"

namespace quorix {
namespace {

constexpr std::array<std::u16string_view, 52> kUpperKeywords = {
    u"SQRT",  u"SIN",  u"COS",   u"TAN",  u"LOG",   u"LN",    u"CTAN",  u"ASIN",  u"ACOS", u"ATAN",  u"ACTAN",
    u"AND",   u"NAND", u"OR",    u"NOR",  u"XOR",   u"EXP",   u"SINH",  u"COSH",  u"TANH", u"CTANH", u"SEC",
    u"CSC",   u"SECH", u"CSCH",  u"ACOT", u"ASINH", u"ACOSH", u"ATANH", u"ACOTH", u"ASEC", u"ACSC",  u"ASECH",
    u"ACSCH", u"INV",  u"TRANS", u"DET",  u"ROOT",  u"RANK",  u"EIGL",  u"EIGV",  u"DIAG", u"ORTH",  u"TRI",
    u"MOD",   u"SHL",  u"SHR",   u"RTL",  u"RTR",   u"INV",   u"CPL",   u"ABS"};

struct WordRow {
    std::u16string_view word;
    TokenRole role;
    std::uint8_t level;
};

// Rows by level. `abs` stands with the logical operators on purpose: it takes in a whole sum. "<<" and ">>"
// are produced by nothing. `lg` is known here and accepted by no tokeniser.
constexpr auto kWordRows = std::to_array<WordRow>({
    {u"(", TokenRole::open, 0},       {u")", TokenRole::close, 0},      {u"<<", TokenRole::operand, 1},
    {u">>", TokenRole::operand, 1},   {u"and", TokenRole::binary, 1},   {u"or", TokenRole::binary, 1},
    {u"nand", TokenRole::binary, 1},  {u"nor", TokenRole::binary, 1},   {u"xor", TokenRole::binary, 1},
    {u"abs", TokenRole::prefix, 1},   {u"+", TokenRole::binary, 2},     {u"-", TokenRole::binary, 2},
    {u"mod", TokenRole::binary, 3},   {u"shl", TokenRole::binary, 3},   {u"shr", TokenRole::binary, 3},
    {u"rtl", TokenRole::binary, 3},   {u"rtr", TokenRole::binary, 3},   {u"*", TokenRole::binary, 4},
    {u"/", TokenRole::binary, 4},     {u"^", TokenRole::binary, 5},     {u"!", TokenRole::postfix, 5},
    {u"%", TokenRole::postfix, 5},    {u"root", TokenRole::binary, 5},  {u"exp", TokenRole::binary, 6},
    {u"sin", TokenRole::prefix, 7},   {u"cos", TokenRole::prefix, 7},   {u"tan", TokenRole::prefix, 7},
    {u"ctan", TokenRole::prefix, 7},  {u"asin", TokenRole::prefix, 7},  {u"acos", TokenRole::prefix, 7},
    {u"atan", TokenRole::prefix, 7},  {u"actan", TokenRole::prefix, 7}, {u"lg", TokenRole::prefix, 7},
    {u"ln", TokenRole::prefix, 7},    {u"log", TokenRole::prefix, 7},   {u"sqrt", TokenRole::prefix, 7},
    {u"sinh", TokenRole::prefix, 7},  {u"cosh", TokenRole::prefix, 7},  {u"tanh", TokenRole::prefix, 7},
    {u"sec", TokenRole::prefix, 7},   {u"csc", TokenRole::prefix, 7},   {u"sech", TokenRole::prefix, 7},
    {u"csch", TokenRole::prefix, 7},  {u"ctanh", TokenRole::prefix, 7}, {u"acot", TokenRole::prefix, 7},
    {u"asinh", TokenRole::prefix, 7}, {u"acosh", TokenRole::prefix, 7}, {u"atanh", TokenRole::prefix, 7},
    {u"acoth", TokenRole::prefix, 7}, {u"asec", TokenRole::prefix, 7},  {u"acsc", TokenRole::prefix, 7},
    {u"asech", TokenRole::prefix, 7}, {u"acsch", TokenRole::prefix, 7}, {u"inv", TokenRole::prefix, 7},
    {u"trans", TokenRole::prefix, 7}, {u"det", TokenRole::prefix, 7},   {u"rank", TokenRole::prefix, 7},
    {u"eigl", TokenRole::prefix, 7},  {u"eigv", TokenRole::prefix, 7},  {u"diag", TokenRole::prefix, 7},
    {u"orth", TokenRole::prefix, 7},  {u"tri", TokenRole::prefix, 7},   {u"cpl", TokenRole::operand, 8},
});

constexpr bool IsKeyword(std::u16string_view word) {
    return std::ranges::any_of(kUpperKeywords,
                               [word](auto keyword) { return EqualsIgnoringCase(keyword, word); });
}

constexpr bool HasRow(std::u16string_view keyword) {
    return std::ranges::any_of(
        kWordRows, [keyword](const WordRow& row) { return EqualsIgnoringCase(row.word, keyword); });
}
static_assert(std::ranges::all_of(kUpperKeywords, HasRow),
              "the compiler must know each word of the tokeniser");

constexpr auto kSyntaxes = [] {
    std::array<TokenSyntax, kWordRows.size()> syntaxes{};
    for (std::size_t i = 0; i < kWordRows.size(); ++i) {
        syntaxes[i] = {kWordRows[i].role, kWordRows[i].level, IsKeyword(kWordRows[i].word)};
    }
    return syntaxes;
}();

constexpr auto kIndex = [] {
    WordHash<256> index;
    for (const WordRow& row : kWordRows) index.Append(row.word);
    return index;
}();

constexpr TokenSyntax kOperand{};

}  // namespace

std::span<const std::u16string_view> UpperKeywords() {
    return kUpperKeywords;
}

TokenSyntax SyntaxOf(std::u16string_view token) {
    const int row = kIndex.Find(token, [](std::size_t i) { return kWordRows[i].word; });
    return row < 0 ? kOperand : kSyntaxes[static_cast<std::size_t>(row)];
}

int OperatorPrecedence(std::u16string_view token) {
    return SyntaxOf(token).level;
}

}  // namespace quorix
