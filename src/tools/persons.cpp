#include "tools/persons.h"

#include "platform/archive.h"
#include "platform/files.h"
#include "tools/date_order.h"

namespace quorix {

const Person* Persons::CurrentPerson() const {
    const auto index = static_cast<std::size_t>(current_);
    return current_ >= 0 && index < list_.size() ? &list_[index] : nullptr;
}

void Persons::AddNew() {
    list_.push_back({std::u16string(kNewPersonName), std::u16string(kNewPersonBirth)});
    current_ = static_cast<std::int32_t>(list_.size()) - 1;
}

void Persons::Choose(std::size_t index) {
    if (index < list_.size()) {
        current_ = static_cast<std::int32_t>(index);
    }
}

void Persons::Remove(std::size_t index) {
    if (index >= list_.size()) {
        return;
    }
    list_.erase(list_.begin() + static_cast<std::ptrdiff_t>(index));
    if (current_ >= static_cast<std::int32_t>(index)) {
        --current_;
    }
}

void Persons::Rename(std::u16string_view name) {
    if (CurrentPerson() != nullptr) {
        list_[static_cast<std::size_t>(current_)].name = name;
    }
}

void Persons::SetBirth(const SolarDate& birth) {
    if (CurrentPerson() != nullptr) {
        list_[static_cast<std::size_t>(current_)].birth = DateText(birth, DateOrder::monthFirst);
    }
}

void Persons::Load(const std::filesystem::path& path) {
    list_.clear();
    current_ = -1;
    std::error_code error;
    const auto bytes = ReadWholeFile(path);
    if (!bytes || bytes->size() > kLargestPersonsFile) {
        if (std::filesystem::is_regular_file(path, error)) {
            KeepDamagedFile(path);
        }
        return;
    }
    try {
        ArchiveReader archive(*bytes);
        const std::uint32_t count = archive.ReadU32();
        const std::uint32_t current = archive.ReadU32();
        std::vector<Person> list;
        for (std::uint32_t i = 0; i < count; ++i) {
            std::u16string name = archive.ReadString();
            list.push_back({std::move(name), archive.ReadString()});
        }
        list_ = std::move(list);
        current_ = list_.empty() ? -1 : current < count ? static_cast<std::int32_t>(current) : 0;
    } catch (const ArchiveException&) {
        KeepDamagedFile(path);
    }
}

bool Persons::Save(const std::filesystem::path& path) const {
    ArchiveWriter archive;
    archive.WriteU32(static_cast<std::uint32_t>(list_.size()));
    archive.WriteU32(static_cast<std::uint32_t>(current_));
    for (const Person& person : list_) {
        archive.WriteString(person.name);
        archive.WriteString(person.birth);
    }
    return WriteFileAtomically(path, archive.Bytes());
}

}  // namespace quorix
