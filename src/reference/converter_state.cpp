#include "reference/converter_state.h"

#include "platform/archive.h"
#include "platform/files.h"

namespace quorix {

namespace {

using enum ConverterField;

/// No text of a field is longer; a file that says so is damaged.
constexpr std::size_t kLongestText = 4096;

constexpr ConverterField kConstantFields[] = {constGroup, constItem, constSubGroup, constSubItem, constValue};

class Reading {
  public:
    explicit Reading(std::span<const std::uint8_t> bytes) : archive_(bytes) {}
    void Text(std::u16string& text) {
        text = archive_.ReadString();
        if (text.size() > kLongestText) {
            throw ArchiveException("a text too long for a field");
        }
    }
    void Index(int& index) { index = archive_.ReadU8(); }
    void Mode(ConverterMode& mode) {
        constexpr auto kNested = ConverterMode::nestedConstants;
        mode = archive_.ReadU8() == static_cast<std::uint8_t>(kNested) ? kNested : ConverterMode::constants;
    }

  private:
    ArchiveReader archive_;
};

class Writing {
  public:
    void Text(const std::u16string& text) { archive_.WriteString(text.substr(0, kLongestText)); }
    void Index(int index) {
        archive_.WriteU8(index >= 0 && index <= 255 ? static_cast<std::uint8_t>(index) : std::uint8_t{0});
    }
    void Mode(ConverterMode mode) { archive_.WriteU8(static_cast<std::uint8_t>(mode)); }
    [[nodiscard]] const std::vector<std::uint8_t>& Bytes() const { return archive_.Bytes(); }

  private:
    ArchiveWriter archive_;
};

/// The order of the file, one for both directions.
template <class Archive, class State>
void Walk(Archive& archive, State& state) {
    const auto field = [&](ConverterField which) {
        archive.Text(state.Field(which).value);
        archive.Text(state.Field(which).label);
    };
    const auto sides = [&](auto& pair) {
        archive.Text(pair[0].name);
        archive.Text(pair[1].name);
        archive.Index(pair[0].index);
        archive.Index(pair[1].index);
    };
    archive.Text(state.Field(catField).label);
    field(unitFrom);
    field(unitTo);
    sides(state.units);
    field(curFrom);
    field(curTo);
    sides(state.currencies);
    for (const ConverterField constant : kConstantFields) {
        field(constant);
    }
    archive.Index(state.constGroupIndex);
    archive.Index(state.constSubGroupIndex);
    archive.Index(state.constItemIndex);
    archive.Mode(state.lastConstMode);
}

}  // namespace

void ReadConverterState(const std::filesystem::path& path, ConverterState& state) {
    const auto bytes = ReadWholeFile(path);
    if (!bytes) {
        return;
    }
    try {
        Reading reading(*bytes);
        Walk(reading, state);
    } catch (const ArchiveException&) {
        KeepDamagedFile(path);
        state = {};
        state.currencies[1].index = 0;
    }
}

bool WriteConverterState(const std::filesystem::path& path, const ConverterState& state) {
    Writing writing;
    Walk(writing, state);
    return WriteFileAtomically(path, writing.Bytes());
}

}  // namespace quorix
