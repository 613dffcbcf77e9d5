#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorix {

/// Open-addressed index over the words of a table, which the table itself keeps. Words are numbered in the
/// order of Append, and Find answers with the first of equal words, as a linear search would. Slots: a power
/// of two, at least twice the number of words; at most 254 words.
template <std::size_t Slots>
class WordHash {
    static_assert((Slots & (Slots - 1)) == 0);

  public:
    constexpr void Append(std::u16string_view word) {
        std::size_t slot = Start(word);
        while (slots_[slot] != 0) slot = (slot + 1) % Slots;
        slots_[slot] = static_cast<std::uint8_t>(++count_);
    }

    /// Index of the first word equal to `word`, or -1. wordAt(i) gives the i-th word.
    template <class WordAt>
    constexpr int Find(std::u16string_view word, WordAt wordAt) const {
        for (std::size_t slot = Start(word); slots_[slot] != 0; slot = (slot + 1) % Slots) {
            const std::size_t index = slots_[slot] - std::size_t{1};
            if (wordAt(index) == word) return static_cast<int>(index);
        }
        return -1;
    }

    [[nodiscard]] constexpr std::size_t Count() const { return count_; }

  private:
    // Equal words meet their earlier twin first, since a later one is stored behind it on the same path.
    static constexpr std::size_t Start(std::u16string_view word) {
        std::size_t hash = word.size();
        for (const char16_t c : word) hash = hash * 31 + c;
        return (hash ^ (hash >> 8)) % Slots;
    }

    std::array<std::uint8_t, Slots> slots_{};
    std::size_t count_ = 0;
};

}  // namespace quorix
