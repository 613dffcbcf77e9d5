#pragma once

// The form in which an expression goes from the tokeniser to the postfix compiler and on to the evaluators:
// the tokens' characters back to back in one text, and a row for each token. Written with a blank behind each
// token it is the postfix text.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/keyword_table.h"

namespace quorix {

/// Longest text of an expression, in characters.
inline constexpr std::size_t kMaxExpressionLength = 4095;

struct Token {
    std::uint32_t begin;
    std::uint32_t length;
    TokenSyntax syntax;
};

struct TokenList {
    /// Characters of all tokens. Postfix order refers to the same characters.
    std::u16string characters;
    std::vector<Token> tokens;

    void Clear() {
        characters.clear();
        tokens.clear();
    }
    void Append(std::u16string_view token, TokenSyntax syntax) {
        characters.append(token);
        Close(token.size(), syntax);
    }
    /// Makes a token of the last `length` characters.
    void Close(std::size_t length, TokenSyntax syntax) {
        tokens.push_back({static_cast<std::uint32_t>(characters.size() - length),
                          static_cast<std::uint32_t>(length), syntax});
    }
    [[nodiscard]] std::u16string_view TextOf(const Token& token) const {
        return std::u16string_view(characters).substr(token.begin, token.length);
    }
};

/// Appends the tokens of a text that is cut at its blanks.
void SplitAtBlanks(std::u16string_view text, TokenList& list);

/// The tokens with a blank between each two of them.
std::u16string JoinWithBlanks(const TokenList& list);

}  // namespace quorix
