#pragma once

#include <string>
#include <string_view>

#include "engine/token_list.h"

namespace quorix {

/// Checks the characters of an expression and cuts it into lower-case tokens with a blank between them, in
/// place. In radix 2, 8 and 16 the numbers become signed 32-bit decimal text. Any other radix leaves the text
/// unchecked, merely folded to upper case. boundName: a word that need not be a variable, or empty for none.
/// Result: whether the text is an expression; calcError is read and not set. On failure `text` is not
/// meaningful.
bool TokeniseExpression(std::u16string& text, int radix, std::u16string_view boundName = {});

/// The same into a token list (which is cleared first).
bool TokeniseToList(std::u16string_view text, int radix, std::u16string_view boundName, TokenList& list);

}  // namespace quorix
