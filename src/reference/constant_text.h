#pragma once

#include <string>
#include <string_view>

namespace quorix {

/// A constant's value as the converter shows it: with the locale's decimal sign.
std::u16string ShownConstant(std::u16string_view value, std::u16string_view numberLocale);

/// What is sent to the editor for a shown value: without the unit, "6.67e-11" as '6.67exp(-11)', its decimal
/// sign that of the locale, in whichever locale it was shown. The rows of "Area Formula" and "Volume Formula"
/// (the group in any case) stay as they are but for the cut at the first blank. Empty when there is nothing
/// to send.
std::u16string ConstantForEditor(std::u16string_view shown, std::u16string_view group,
                                 std::u16string_view numberLocale);

}  // namespace quorix
