#include "tools/date_ctrl.h"

#include <algorithm>
#include <array>

#include "engine/text_fold.h"
#include "tools/calendar_names.h"
#include "tools/calendar_rules.h"
#include "tools/number_text.h"

namespace quorix {

namespace {

/// A part, what stands before it, and how many digits it has.
struct PartLayout {
    DatePart part;
    std::u16string_view separator;
    std::size_t digits;
};

constexpr std::size_t kPartCount = 7;
using Layout = std::array<PartLayout, kPartCount>;

constexpr Layout kDayFirst = {{
    {DatePart::weekDay, u"", 0},
    {DatePart::day, u"-", 2},
    {DatePart::month, u"/", 2},
    {DatePart::year, u"/", 4},
    {DatePart::hour, u"-", 2},
    {DatePart::minute, u"-", 2},
    {DatePart::second, u"-", 2},
}};

constexpr Layout MonthFirst() {
    Layout layout = kDayFirst;
    std::swap(layout[1].part, layout[2].part);
    return layout;
}
constexpr Layout kMonthFirst = MonthFirst();

constexpr std::int32_t kLastYear = 9999;

const Layout& LayoutOf(DateOrder order) {
    return order == DateOrder::dayFirst ? kDayFirst : kMonthFirst;
}

std::size_t DigitsOf(DatePart part) {
    return std::ranges::find(kDayFirst, part, &PartLayout::part)->digits;
}

std::u16string Padded(std::int32_t value, std::size_t digits) {
    std::u16string text = IntegerText(value);
    text.insert(0, digits - std::min(digits, text.size()), u'0');
    return text;
}

/// The field of a solar or lunar date that holds a part; null for the week day.
template <class Date>
auto FieldOf(Date& date, DatePart part) -> decltype(&date.day) {
    switch (part) {
        case DatePart::day: return &date.day;
        case DatePart::month: return &date.month;
        case DatePart::year: return &date.year;
        case DatePart::hour: return &date.hour;
        case DatePart::minute: return &date.minute;
        case DatePart::second: return &date.second;
        default: return nullptr;
    }
}

}  // namespace

DateCtrl::DateCtrl(CalendarKind kind, DateOrder order)
    : kind_(kind), order_(order), selected_(LayoutOf(order)[1].part) {
    Set(solar_);
}

void DateCtrl::Set(const SolarDate& date) {
    typed_.clear();
    solar_ = date;
    lunar_.Set(date);
}

std::int32_t DateCtrl::Value(DatePart part) const {
    const std::int32_t* field = kind_ == CalendarKind::solar ? FieldOf(solar_, part) : FieldOf(lunar_, part);
    return field != nullptr ? *field : 0;
}

std::u16string DateCtrl::Text() const {
    std::u16string text;
    for (const PartLayout& layout : LayoutOf(order_)) {
        text += layout.separator;
        if (layout.part == DatePart::weekDay) {
            text += ShortWeekDayName(solar_.DayOfWeek(false));
        } else {
            text += Padded(Value(layout.part), layout.digits);
        }
    }
    return text;
}

std::vector<DatePartText> DateCtrl::Parts() const {
    constexpr std::size_t kWeekDayLength = 3;
    std::vector<DatePartText> parts;
    std::size_t position = 0;
    for (const PartLayout& layout : LayoutOf(order_)) {
        position += layout.separator.size();
        const std::size_t length = layout.part == DatePart::weekDay
                                       ? kWeekDayLength
                                       : Padded(Value(layout.part), layout.digits).size();
        parts.push_back({layout.part, position, length});
        position += length;
    }
    return parts;
}

std::u16string DateCtrl::LunarNames() const {
    if (kind_ == CalendarKind::solar) {
        return {};
    }
    std::u16string names = lunar_.YearName() + u", " + lunar_.MonthName();
    if (lunar_.leap != 0) {
        names += u" " + lunar_.LeapWord();
    }
    names += u", " + lunar_.DayName();
    if (lunar_.solarTerm != 0) {
        names += u", " + lunar_.SolarTermName();
    }
    return names;
}

std::vector<DatePart> DateCtrl::EditableParts() const {
    std::vector<DatePart> parts;
    for (const PartLayout& layout : LayoutOf(order_)) {
        if (layout.part != DatePart::weekDay) {
            parts.push_back(layout.part);
        }
    }
    return parts;
}

void DateCtrl::Choose(DatePart part) {
    typed_.clear();
    selected_ = part;
}

void DateCtrl::SelectAt(std::size_t character) {
    DatePart chosen = LayoutOf(order_)[1].part;
    for (const DatePartText& part : Parts()) {
        if (part.position <= character && part.part != DatePart::weekDay) {
            chosen = part.part;
        }
    }
    Choose(chosen);
}

void DateCtrl::SelectNeighbour(int direction) {
    const std::vector<DatePart> parts = EditableParts();
    const auto index = std::ranges::find(parts, selected_) - parts.begin() + direction;
    const auto last = static_cast<std::ptrdiff_t>(parts.size()) - 1;
    Choose(parts[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(index, 0, last))]);
}

void DateCtrl::SelectNext() {
    SelectNeighbour(1);
}

void DateCtrl::SelectPrevious() {
    SelectNeighbour(-1);
}

bool DateCtrl::Type(char16_t key) {
    if (key == u'.' && kind_ == CalendarKind::lunar) {
        typed_.clear();
        LunarDate changed = lunar_;
        changed.leap = changed.leap == 0 ? 1 : 0;
        ShowLunar(changed);
        return true;
    }
    if (key != kBackspaceKey && !IsDigit(key)) {
        return false;
    }
    if (typed_.size() == DigitsOf(selected_) && key != kBackspaceKey) {
        typed_.clear();
    }
    if (typed_.empty()) {
        solarBefore_ = solar_;
        lunarBefore_ = lunar_;
    }
    if (key != kBackspaceKey) {
        typed_.push_back(key);
    } else {
        if (typed_.empty()) {
            typed_ = Padded(Value(selected_), DigitsOf(selected_));
        }
        typed_.pop_back();
    }
    Put(static_cast<std::int32_t>(ReadInteger(typed_)));
    return true;
}

std::int32_t DateCtrl::HighestDay() const {
    constexpr std::int32_t kLongestLunarMonth = 30;
    return kind_ == CalendarKind::lunar ? kLongestLunarMonth : DaysInMonth(solar_.year, solar_.month);
}

void DateCtrl::Step(int direction) {
    typed_.clear();
    solarBefore_ = solar_;
    lunarBefore_ = lunar_;
    // A computed date may lie far behind the years that are stepped through.
    const std::int32_t value = std::clamp(Value(selected_), -1, kLastYear) + (direction < 0 ? -1 : 1);
    const auto around = [value](std::int32_t low, std::int32_t high) {
        return value < low ? high : value > high ? low : value;
    };
    switch (selected_) {
        case DatePart::day: Put(around(1, HighestDay())); break;
        case DatePart::month: Put(around(1, 12)); break;
        case DatePart::year: Put(std::clamp(value, 1, kLastYear)); break;
        case DatePart::hour: Put(around(0, 23)); break;
        default: Put(around(0, 59)); break;
    }
}

void DateCtrl::Put(std::int32_t value) {
    if (kind_ == CalendarKind::solar) {
        PutSolar(value);
    } else {
        PutLunar(value);
    }
}

void DateCtrl::PutSolar(std::int32_t value) {
    solar_ = solarBefore_;
    if (std::int32_t* field = FieldOf(solar_, selected_); field != nullptr) {
        *field = value;
    }
    solar_.Normalise();
    lunar_.Set(solar_);
}

void DateCtrl::PutLunar(std::int32_t value) {
    LunarDate changed = lunarBefore_;
    if (std::int32_t* field = FieldOf(changed, selected_); field != nullptr) {
        *field = value;
    }
    ShowLunar(changed);
}

void DateCtrl::ShowLunar(LunarDate lunar) {
    const SolarDate time(1, 1, 1, lunar.hour, lunar.minute, lunar.second);
    lunar_ = LunarDate(std::max(lunar.year, 1), lunar.month, lunar.day, lunar.leap);
    lunar_.hour = time.hour;
    lunar_.minute = time.minute;
    lunar_.second = time.second;
    solar_ = LunarToSolar(lunar_);
    const LunarDate shown = SolarToLunar(solar_);
    lunar_.weekDay = shown.weekDay;
    lunar_.solarTerm = shown.solarTerm;
}

}  // namespace quorix
