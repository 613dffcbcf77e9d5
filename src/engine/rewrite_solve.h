#pragma once

#include <string>

namespace quorix {

/// Rewrites "solve(a,b)" to "inv(a)*(b)" in place. The text before the call is kept, the text behind it is
/// lost. A call without a comma or closing parenthesis leaves -1 in calcError and ends the rewriting.
void RewriteSolve(std::u16string& text);

}  // namespace quorix
