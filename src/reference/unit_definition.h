#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// Terms that one side of a definition may have; one that asks for more fails.
inline constexpr std::size_t kMostDefinitionTerms = 1000;

/// Takes a definition such as 'kg*m/s^2' or 'J/(kg*K)' apart. The lists are filled anew, a term with exponent
/// n standing n times.
///
/// "*" and a power go back above the line unless a "(" came before; the effect of "(" lasts to the end; a
/// second "/" goes back above the line ('a/b/c' is a times c over b). All of this is intended.
///
/// False for white space, for an exponent that is not made of digits or has no term before it, and for too
/// many terms; the lists are then unspecified.
bool ParseUnitDefinition(std::u16string_view text, std::vector<std::u16string>& numerators,
                         std::vector<std::u16string>& denominators);

}  // namespace quorix
