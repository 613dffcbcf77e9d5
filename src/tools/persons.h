#pragma once

// The persons of the biorhythm and their file.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tools/solar_date.h"

namespace quorix {

/// The name is appended to the program's folder, whose separator stays.
inline constexpr std::u16string_view kPersonsFileName = u"\\biorythm-users.dat";
inline constexpr std::u16string_view kNewPersonItem = u"New person...";
inline constexpr std::u16string_view kNewPersonName = u"No name";
inline constexpr std::u16string_view kNewPersonBirth = u"1/1/1980";
/// Bytes; a larger file counts as damaged, so that memory stays bounded.
inline constexpr std::size_t kLargestPersonsFile = 2U * 1024U * 1024U;

struct Person {
    std::u16string name;
    /// "month/day/year" without padding, whatever the display order.
    std::u16string birth;
    friend bool operator==(const Person&, const Person&) = default;
};

class Persons {
  public:
    [[nodiscard]] const std::vector<Person>& List() const { return list_; }
    /// Index of the current person; -1 for none.
    [[nodiscard]] std::int32_t Current() const { return current_; }
    /// The current person; null for none.
    [[nodiscard]] const Person* CurrentPerson() const;

    /// Adds "No name", born "1/1/1980", and makes it current.
    void AddNew();
    /// Makes a person current; an index without one is ignored.
    void Choose(std::size_t index);
    /// Lowers the current index if it was at or above the removed one: the one before becomes current, and
    /// none when the first was.
    void Remove(std::size_t index);
    // Of the current person; without one nothing happens.
    void Rename(std::u16string_view name);
    void SetBirth(const SolarDate& birth);

    /// Reads a file. An absent one leaves no persons; so does a damaged one, which is kept as NAME.bad. A
    /// current index without a person becomes that of the first.
    void Load(const std::filesystem::path& path);
    /// False when the disk refuses; the old file then stands untouched.
    [[nodiscard]] bool Save(const std::filesystem::path& path) const;

  private:
    std::vector<Person> list_;
    std::int32_t current_ = -1;
};

}  // namespace quorix
