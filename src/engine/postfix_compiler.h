#pragma once

#include <string>
#include <vector>

#include "engine/token_list.h"

namespace quorix {

/// Reorders a tokenised expression (tokens with blanks between them) into postfix, in place: the tokens in
/// order, each followed by one blank. Parentheses stay in the postfix; they tell the evaluators which
/// operands belong together. Result: false with -1 in calcError for a parenthesis fault or two operators in a
/// row; `text` is then unchanged.
bool CompileToPostfix(std::u16string& text);

/// The same on a token list: `postfix` receives the tokens in postfix order; they refer to the characters of
/// `list`. `operators` is scratch space that the caller may keep.
bool OrderPostfix(const TokenList& list, std::vector<Token>& postfix, std::vector<Token>& operators);

}  // namespace quorix
