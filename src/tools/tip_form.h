#pragma once

// The tip: three fields and a result of two lines, computed anew at every key.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorix {

class TipForm {
  public:
    enum Field : std::uint8_t { PEOPLE, PERCENT, BILL };
    static constexpr std::size_t kFieldCount = 3;

    struct FieldLayout {
        std::u16string_view label;
        /// Stands behind the number.
        char16_t sign;
        /// Characters, the sign included and grouping signs not, from which on no more are taken.
        std::size_t limit;
    };
    static constexpr std::array<FieldLayout, kFieldCount> kFields = {{
        {u"No of people", u'P', 9},
        {u"Percent to tip", u'%', 9},
        {u"Bill Amount", u'$', 16},
    }};
    static constexpr char16_t kTab = 9;
    static constexpr char16_t kEscape = 27;

    explicit TipForm(std::u16string_view numberLocale);

    /// Writes the fields and the result anew with the signs of another number locale.
    void SetNumberLocale(std::u16string_view numberLocale);

    [[nodiscard]] Field Active() const { return active_; }
    void SetActive(Field field) { active_ = field; }
    /// The number with its sign, "1,000$".
    [[nodiscard]] const std::u16string& Text(Field field) const { return texts_[field]; }
    /// "Tip Amount  = 15$" and "Total/Person = 28.75$"; the labels alone while the values allow no result.
    [[nodiscard]] const std::array<std::u16string, 2>& ResultLines() const { return result_; }

    /// A key for the active field: a digit, "." (also as the locale has it), Backspace (8), "C" or Escape
    /// (clear), Tab (next field).
    /// False when it means nothing or the field is full.
    bool Key(char16_t key);

  private:
    [[nodiscard]] std::u16string Number(Field field) const;
    [[nodiscard]] double Value(Field field) const;
    void ShowLabels();
    bool Edit(char16_t key);
    void Recompute();

    std::u16string numberLocale_;
    std::array<std::u16string, kFieldCount> texts_;
    std::array<std::u16string, 2> result_;
    Field active_ = PEOPLE;
};

}  // namespace quorix
