#include "tools/biorhythm_page.h"

#include "platform/path.h"

namespace quorix {

namespace {

SolarDate TodayOf(Clock& clock) {
    const CalendarDay today = clock.Today();
    return {static_cast<std::int32_t>(today.year), static_cast<std::int32_t>(today.month),
            static_cast<std::int32_t>(today.day)};
}

}  // namespace

BiorhythmPage::BiorhythmPage(Clock& clock, const SolarDate& birth, DateOrder order)
    : biorhythm_(clock), birth_(birth), view_(TodayOf(clock)), order_(order) {}

std::u16string_view BiorhythmPage::Open(const std::filesystem::path& folder) {
    personsPath_ = ResolvePath(folder, kPersonsFileName);
    persons_.Load(personsPath_);
    ShowCurrentPerson();
    return biorhythm_.Load(ResolvePath(folder, kAdviceFileName)) ? std::u16string_view() : kAdviceMissing;
}

bool BiorhythmPage::Close() const {
    return persons_.Save(personsPath_);
}

void BiorhythmPage::SetBirth(const SolarDate& birth) {
    birth_ = birth;
    persons_.SetBirth(birth);
}

std::u16string BiorhythmPage::BirthLabel(bool landscape) const {
    return (landscape ? u"B: " : u"Date of birth: ") + DateText(birth_, order_);
}

std::u16string BiorhythmPage::ViewLabel(bool landscape) const {
    return (landscape ? u"V: " : u"Date to view: ") + DateText(view_, order_);
}

std::u16string BiorhythmPage::Name() const {
    const Person* person = persons_.CurrentPerson();
    return person != nullptr ? person->name : std::u16string();
}

std::vector<std::u16string> BiorhythmPage::PersonItems() const {
    std::vector<std::u16string> items;
    for (const Person& person : persons_.List()) {
        items.push_back(person.name);
    }
    items.emplace_back(kNewPersonItem);
    return items;
}

bool BiorhythmPage::ChoosePersonItem(std::size_t item) {
    const bool isNew = item >= persons_.List().size();
    if (isNew) {
        persons_.AddNew();
    } else {
        persons_.Choose(item);
    }
    ShowCurrentPerson();
    return isNew;
}

void BiorhythmPage::RemovePerson(std::size_t index) {
    persons_.Remove(index);
    ShowCurrentPerson();
}

void BiorhythmPage::ShowCurrentPerson() {
    if (const Person* person = persons_.CurrentPerson(); person != nullptr) {
        birth_ = ReadDateText(person->birth, DateOrder::monthFirst);
    }
}

BiorhythmGraph BiorhythmPage::Draw(const Rect& rectangle) {
    drawn_ = rectangle;
    return biorhythm_.Draw(rectangle, birth_, view_);
}

std::u16string BiorhythmPage::BuildReport() {
    if (drawn_) {
        biorhythm_.Draw(*drawn_, birth_, view_);
    }
    return biorhythm_.BuildReport(DaysSinceBirth(birth_, view_));
}

}  // namespace quorix
