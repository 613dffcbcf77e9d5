#pragma once

// The words of the expression language and the part each plays in an expression.

#include <cstdint>
#include <span>
#include <string_view>

namespace quorix {

/// What a token does in the postfix compiler.
enum class TokenRole : std::uint8_t {
    operand,  ///< number, constant, variable, or any word the compiler does not know
    binary,
    prefix,
    postfix,
    open,
    close,
};

struct TokenSyntax {
    TokenRole role = TokenRole::operand;
    /// Precedence level; a higher number binds tighter.
    std::uint8_t level = 8;
    /// Whether the tokeniser accepts the word.
    bool isKeyword = false;
};

/// The 52 upper-case words that the tokeniser accepts. INV stands there twice and NOT is absent, both
/// intended.
std::span<const std::u16string_view> UpperKeywords();

/// Syntax of a lower-case token; a token that is neither operator nor function is an operand of level 8.
TokenSyntax SyntaxOf(std::u16string_view token);

/// Precedence level 0 to 8 of a lower-case token.
int OperatorPrecedence(std::u16string_view token);

}  // namespace quorix
