#include "tools/calendar_names.h"

#include <array>

namespace quorix {

namespace {

using Name = std::u16string_view;
constexpr std::size_t kLanguages = 2;

constexpr std::array<Name, 12> kMonths = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                          u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
constexpr std::array<Name, 7> kWeekDays = {u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat", u"Sun"};

/// A name table of both languages, row behind row.
template <std::size_t kRowSize>
using Rows = std::array<Name, kLanguages * kRowSize>;

constexpr Rows<10> kStems = {u"Giap", u"At",   u"Binh", u"Dinh", u"Mau",
                             u"Ky",   u"Canh", u"Tan",  u"Nham", u"Quy"};
// The first and the sixth differ in their diacritics, which the language drops here.
constexpr Rows<12> kBranches = {u"Ty",  u"Suu", u"Dan",  u"Mao", u"Thin", u"Ty",
                                u"Ngo", u"Mui", u"Than", u"Dau", u"Tuat", u"Hoi"};
constexpr Rows<25> kSolarTerms = {
    u"",        u"Xuan Phan",   u"Thanh minh", u"Coc vu",     u"Lap ha",    u"Tieu man", u"Mang chung",
    u"Ha chi",  u"Tieu thu",    u"Dai thu",    u"Lap thu",    u"Xu thu",    u"Bach lo",  u"Thu phan",
    u"Han lo",  u"Suong giang", u"Lap dong",   u"Tieu tuyet", u"Dai tuyet", u"Dong chi", u"Tieu han",
    u"Dai han", u"Lap xuan",    u"Vu thuy",    u"Kinh chap"};
// "ThursdayFriday" is one entry, so that the row ends a day early; that is intended.
constexpr Rows<7> kLunarWeekDays = {u"Thu hai",        u"Thu ba",   u"Thu tu", u"Thu nam", u"Thu sau",
                                    u"Thu bay",        u"Chu nhat", u"Monday", u"Tuesday", u"Wednesday",
                                    u"ThursdayFriday", u"Saturday", u"Sunday", u""};
constexpr Rows<1> kLeapWords = {u"Nhuan", u""};

template <std::size_t kSize>
Name Entry(const std::array<Name, kSize>& rows, std::int32_t language, std::int64_t index) {
    constexpr auto kRowSize = static_cast<std::int64_t>(kSize / kLanguages);
    if (index < 0) {
        return {};
    }
    const std::int64_t position = language * kRowSize + index;
    return position >= 0 && position < static_cast<std::int64_t>(kSize)
               ? rows[static_cast<std::size_t>(position)]
               : Name();
}

template <std::size_t kSize>
Name FromOne(const std::array<Name, kSize>& names, std::int32_t number) {
    return number >= 1 && number <= static_cast<std::int32_t>(kSize)
               ? names[static_cast<std::size_t>(number - 1)]
               : Name();
}

}  // namespace

std::u16string_view ShortMonthName(std::int32_t month) {
    return FromOne(kMonths, month);
}

std::u16string_view ShortWeekDayName(std::int32_t weekday) {
    return FromOne(kWeekDays, weekday);
}

std::u16string_view StemName(std::int32_t language, std::int64_t index) {
    return Entry(kStems, language, index);
}

std::u16string_view BranchName(std::int32_t language, std::int64_t index) {
    return Entry(kBranches, language, index);
}

std::u16string_view SolarTermText(std::int32_t language, std::int64_t index) {
    return Entry(kSolarTerms, language, index);
}

std::u16string_view WeekDayText(std::int32_t language, std::int64_t index) {
    return Entry(kLunarWeekDays, language, index);
}

std::u16string_view LeapWordText(std::int32_t language) {
    return Entry(kLeapWords, language, 0);
}

}  // namespace quorix
