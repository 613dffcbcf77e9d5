#pragma once

// Decimal signs and separators of the display's number locales.

#include <cstdint>
#include <string>
#include <string_view>

namespace quorix {

/// The display's comma: the code point that stands in texts where the painter shows ",".
inline constexpr char16_t kDisplayComma = 0x00B8;

struct NumberSigns {
    char16_t decimal;
    char16_t thousands;
};

/// "European" is decimal U+00B8, thousands "."; "English (US)" and "English (UK)" the reverse. Unknown names
/// are US.
NumberSigns SignsOf(std::u16string_view numberLocale);

/// Exchanges "." and U+00B8: display text of an English locale becomes that of the European one and back.
void ExchangeDecimalSigns(std::u16string& text);

/// Groups the digits left of the decimal point of a decimal number text and puts the locale's signs in; a
/// text that holds a word (a message) stays as it is. `text` has the engine's "." as decimal mark.
void ApplySeparators(std::u16string& text, std::u16string_view numberLocale, std::int32_t radixId);

}  // namespace quorix
