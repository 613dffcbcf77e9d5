#include "reference/formula_records.h"

#include <algorithm>
#include <string_view>

namespace quorix {

namespace {

constexpr std::size_t kIntegerSize = 4;
constexpr std::size_t kEntrySize = 3 * kIntegerSize;

constexpr std::string FormulaParameter::*kParameterTexts[] = {
    &FormulaParameter::symbol, &FormulaParameter::description, &FormulaParameter::unit,
    &FormulaParameter::label,  &FormulaParameter::preset,
};

/// Reads on from an offset; once something does not fit, everything that follows fails too.
class RecordReader {
  public:
    RecordReader(std::span<const std::uint8_t> bytes, std::uint32_t offset)
        : rest_(bytes.subspan(std::min<std::size_t>(offset, bytes.size()))) {}

    std::uint32_t Integer() {
        if (!good_ || rest_.size() < kIntegerSize) {
            good_ = false;
            return 0;
        }
        std::uint32_t value = 0;
        for (std::size_t i = kIntegerSize; i-- > 0;) {
            value = value << 8 | rest_[i];
        }
        rest_ = rest_.subspan(kIntegerSize);
        return value;
    }

    /// A count of 32 bits with sign; a negative one reads as a very large one and is refused with those.
    std::size_t Count() {
        const std::uint32_t count = Integer();
        good_ = good_ && count <= kMostFormulaEntries;
        return good_ ? count : 0;
    }

    std::string Text() {
        const std::uint32_t length = Integer();
        if (!good_ || length > kLongestFormulaText || length > rest_.size()) {
            good_ = false;
            return {};
        }
        const std::string text(rest_.begin(), rest_.begin() + static_cast<std::ptrdiff_t>(length));
        rest_ = rest_.subspan(length);
        return text;
    }

    [[nodiscard]] bool IsGood() const { return good_; }

  private:
    std::span<const std::uint8_t> rest_;
    bool good_ = true;
};

void AppendInteger(std::vector<std::uint8_t>& bytes, std::size_t value) {
    for (std::size_t i = 0; i < kIntegerSize; ++i) {
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }
}

void AppendText(std::vector<std::uint8_t>& bytes, std::string_view text) {
    AppendInteger(bytes, text.size());
    bytes.insert(bytes.end(), text.begin(), text.end());
}

}  // namespace

std::optional<std::vector<FormulaIndexEntry>> ParseFormulaIndex(std::span<const std::uint8_t> bytes) {
    RecordReader reader(bytes, 0);
    const auto count = static_cast<std::int32_t>(reader.Integer());
    if (!reader.IsGood() || count < 0) {
        return std::nullopt;
    }
    std::vector<FormulaIndexEntry> entries(
        std::min<std::size_t>(static_cast<std::size_t>(count), (bytes.size() - kIntegerSize) / kEntrySize));
    for (FormulaIndexEntry& entry : entries) {
        entry.id = reader.Integer();
        entry.descriptionOffset = reader.Integer();
        entry.detailOffset = reader.Integer();
    }
    return entries;
}

std::optional<FormulaDescription> ParseFormulaDescription(std::span<const std::uint8_t> bytes, FormulaId id,
                                                          std::uint32_t offset) {
    RecordReader reader(bytes, offset);
    FormulaDescription record;
    record.id = reader.Integer();
    if (!reader.IsGood() || record.id != id) {
        return std::nullopt;
    }
    record.name = reader.Text();
    record.description = reader.Text();
    record.mime = reader.Text();
    const std::size_t imageCount = reader.Count();
    for (std::size_t i = 0; i < imageCount; ++i) {
        if (std::string image = reader.Text(); !image.empty()) {
            record.images.push_back(std::move(image));
        }
    }
    return reader.IsGood() ? std::optional(std::move(record)) : std::nullopt;
}

std::optional<FormulaDetail> ParseFormulaDetail(std::span<const std::uint8_t> bytes, FormulaId id,
                                                std::uint32_t offset) {
    RecordReader reader(bytes, offset);
    FormulaDetail record;
    record.id = reader.Integer();
    if (!reader.IsGood() || record.id != id) {
        return std::nullopt;
    }
    record.parameters.resize(reader.Count());
    for (FormulaParameter& parameter : record.parameters) {
        for (std::string FormulaParameter::*text : kParameterTexts) {
            parameter.*text = reader.Text();
        }
    }
    record.solvedForms.resize(reader.Count());
    for (std::string& form : record.solvedForms) {
        form = reader.Text();
    }
    return reader.IsGood() ? std::optional(std::move(record)) : std::nullopt;
}

std::vector<std::uint8_t> FormulaIndexBytes(std::span<const FormulaIndexEntry> entries) {
    std::vector<std::uint8_t> bytes;
    AppendInteger(bytes, entries.size());
    for (const FormulaIndexEntry& entry : entries) {
        AppendInteger(bytes, entry.id);
        AppendInteger(bytes, entry.descriptionOffset);
        AppendInteger(bytes, entry.detailOffset);
    }
    return bytes;
}

std::uint32_t AppendFormulaDescription(std::vector<std::uint8_t>& bytes, const FormulaDescription& record) {
    const auto offset = static_cast<std::uint32_t>(bytes.size());
    AppendInteger(bytes, record.id);
    AppendText(bytes, record.name);
    AppendText(bytes, record.description);
    AppendText(bytes, record.mime);
    AppendInteger(bytes, record.images.size());
    for (const std::string& image : record.images) {
        AppendText(bytes, image);
    }
    return offset;
}

std::uint32_t AppendFormulaDetail(std::vector<std::uint8_t>& bytes, const FormulaDetail& record) {
    const auto offset = static_cast<std::uint32_t>(bytes.size());
    AppendInteger(bytes, record.id);
    AppendInteger(bytes, record.parameters.size());
    for (const FormulaParameter& parameter : record.parameters) {
        for (std::string FormulaParameter::*text : kParameterTexts) {
            AppendText(bytes, parameter.*text);
        }
    }
    AppendInteger(bytes, record.solvedForms.size());
    for (const std::string& form : record.solvedForms) {
        AppendText(bytes, form);
    }
    return offset;
}

}  // namespace quorix
