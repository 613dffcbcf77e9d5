#include "frontends/macro_file.h"

#include <array>
#include <optional>

#include "platform/directory.h"
#include "platform/files.h"
#include "platform/path.h"

namespace quorix {

namespace {

constexpr char16_t kSeparator = 6;
constexpr std::size_t kFieldCount = 6;
constexpr char16_t kByteOrderMark = 0xFEFF;

std::optional<Macro> ParseRecord(std::u16string_view line) {
    std::array<std::u16string, kFieldCount> fields;
    for (std::u16string& field : fields) {
        const std::size_t end = line.find(kSeparator);
        if (end == line.npos) {
            return std::nullopt;
        }
        field = line.substr(0, end);
        line.remove_prefix(end + 1);
    }
    unsigned count = 0;
    for (const char16_t digit : fields[1]) {
        if (digit < u'0' || digit > u'9') {
            break;
        }
        count = (count * 10 + (digit - u'0')) & 0xFFFFU;
    }
    if (fields[0].empty()) {
        return std::nullopt;
    }
    return Macro{.name = fields[0],
                 .parameters = fields[2],
                 .parameterCount = static_cast<std::uint8_t>(count),
                 .remark = fields[3],
                 .expression = fields[4],
                 .tokenLengths = fields[5]};
}

std::u16string FromBytes(const std::vector<std::uint8_t>& bytes) {
    std::u16string text(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char16_t>(bytes[2 * i] | bytes[2 * i + 1] << 8);
    }
    if (!text.empty() && text.front() == kByteOrderMark) {
        text.erase(0, 1);
    }
    return text;
}

std::vector<std::uint8_t> ToBytes(std::u16string_view text) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(2 * text.size());
    for (const char16_t c : text) {
        bytes.push_back(static_cast<std::uint8_t>(c & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>(c >> 8));
    }
    return bytes;
}

}  // namespace

std::vector<Macro> ParseMacroText(std::u16string_view text, bool& complete) {
    std::vector<Macro> macros;
    while (!text.empty()) {
        const std::size_t end = text.find(u'\n');
        const std::u16string_view line = text.substr(0, end);
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        if (auto macro = ParseRecord(line)) {
            macros.push_back(*std::move(macro));
        } else if (line.find_first_not_of(u" \r\t") != line.npos) {
            complete = false;
        }
    }
    return macros;
}

std::u16string MacroText(const MacroList& macros) {
    std::u16string text;
    for (const Macro& macro : macros.All()) {
        if (!text.empty()) {
            text += u"\r\n";
        }
        std::u16string count;
        for (const char digit : std::to_string(macro.parameterCount)) {
            count += static_cast<char16_t>(digit);
        }
        for (const std::u16string_view field :
             {std::u16string_view(macro.name), std::u16string_view(count),
              std::u16string_view(macro.parameters), std::u16string_view(macro.remark),
              std::u16string_view(macro.expression), std::u16string_view(macro.tokenLengths)}) {
            text += field;
            text += kSeparator;
        }
    }
    return text;
}

void MacroFiles::Load(MacroList& macros) {
    for (const std::filesystem::path& path : ListFiles(folder_, u"*.mcr")) {
        const auto bytes = ReadWholeFile(path);
        if (!bytes) {
            continue;
        }
        bool whole = bytes->size() % 2 == 0;
        for (Macro& macro : ParseMacroText(FromBytes(*bytes), whole)) {
            whole = macros.Merge(std::move(macro)) && whole;
        }
        loaded_.push_back({path, whole});
    }
}

bool MacroFiles::Save(const MacroList& macros) {
    const std::filesystem::path target = ResolvePath(folder_, kMacroFileName);
    if (loaded_.empty() && macros.All().empty()) {
        return true;
    }
    for (const LoadedFile& file : loaded_) {
        if (file.path == target && !file.whole) {
            std::error_code error;
            std::filesystem::copy_file(target, target.string() + ".bad",
                                       std::filesystem::copy_options::overwrite_existing, error);
        }
    }
    const std::vector<std::uint8_t> bytes = ToBytes(MacroText(macros));
    if (ReadWholeFile(target) != bytes && !WriteFileAtomically(target, bytes)) {
        return false;
    }
    bool removed = true;
    for (const LoadedFile& file : loaded_) {
        if (file.path != target) {
            std::error_code error;
            removed = (file.whole ? std::filesystem::remove(file.path, error) || !error
                                  : KeepDamagedFile(file.path)) &&
                      removed;
        }
    }
    loaded_ = {{target, true}};
    return removed;
}

}  // namespace quorix
