#pragma once

// Numbers between the fields of the converter and doubles. No text depends on the machine's locale.

#include <optional>
#include <string>
#include <string_view>

namespace quorix {

/// As "%.Nf".
std::string FixedDecimals(double value, int decimals);
/// Drops the trailing zeros of a text with a point, and then the point when nothing is left behind it.
void StripTrailingZeros(std::string& text);

/// A conversion's result: up to 8 decimals with the locale's separators for 0 and magnitudes from 1e-8 to
/// 1e12, as "%.8e" beyond. A value that is not finite has the words of an invalid parameter.
std::u16string ResultFieldText(double value, std::u16string_view numberLocale);

/// A field's text in plain notation: separators removed, "." for the point. A text in the "%.8e" form has no
/// separators and stays.
std::string NormaliseNumber(std::u16string_view shown, std::u16string_view numberLocale);
/// The number that a field shows; nothing for an empty field and for a message. What lies beyond the doubles
/// is infinite or 0.
std::optional<double> NumberShown(std::u16string_view shown, std::u16string_view numberLocale);

/// The number at the start of a typed text, leading blanks skipped; 0 when there is none. At most 128
/// characters count.
double LeadingNumber(std::u16string_view text);

}  // namespace quorix
