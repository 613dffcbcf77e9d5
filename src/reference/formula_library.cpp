#include "reference/formula_library.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <system_error>

#include "platform/files.h"
#include "platform/path.h"
#include "reference/formula_files.h"

namespace quorix {

namespace {

namespace fs = std::filesystem;

constexpr std::u16string_view kIndexFile = u"indexfor.dat";
constexpr std::u16string_view kDescriptionFile = u"fordes.dat";
constexpr std::u16string_view kDetailFile = u"fordetail.dat";
constexpr std::u16string_view kTreeFile = u"fortree.dat";
constexpr std::u16string_view kTemporaryPrefix = u"tmp_";

// The order in which changed files are put in place. The index is last: while its temporary file is there,
// the change is complete on disk and can be finished.
constexpr std::array kChangeOrder = {kDescriptionFile, kDetailFile, kTreeFile, kIndexFile};

constexpr std::string_view kNoFile = "The file cannot be read.";
constexpr std::string_view kEmptyImport = "There is no formula in the file.";
constexpr std::string_view kUnreadable = "The formula library cannot be read.";
constexpr std::string_view kNotWritten = "The formulas cannot be saved.";
constexpr std::string_view kFullLibrary = "The formula library is full.";

std::vector<std::uint8_t> BytesOrNone(const fs::path& path) {
    return ReadWholeFile(path).value_or(std::vector<std::uint8_t>());
}

std::string TextOf(std::span<const std::uint8_t> bytes) {
    return {bytes.begin(), bytes.end()};
}

std::span<const std::uint8_t> BytesOf(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

}  // namespace

FormulaLibrary::FormulaLibrary(fs::path folder) : folder_(std::move(folder)) {
    RemoveAbandonedTemporaries(folder_);
    static_cast<void>(FinishChange());
}

fs::path FormulaLibrary::File(std::u16string_view name) const {
    return ResolvePath(folder_, name);
}

fs::path FormulaLibrary::Temporary(std::u16string_view name) const {
    return folder_ / std::u16string(kTemporaryPrefix).append(name);
}

std::vector<FormulaIndexEntry> FormulaLibrary::ReadIndex() const {
    return ParseFormulaIndex(BytesOrNone(File(kIndexFile))).value_or(std::vector<FormulaIndexEntry>());
}

FormulaTree FormulaLibrary::ReadTree() const {
    return FormulaTree(TextOf(BytesOrNone(File(kTreeFile))));
}

std::optional<FormulaDescription> FormulaLibrary::ReadDescription(FormulaId id, std::uint32_t offset) const {
    return ParseFormulaDescription(BytesOrNone(File(kDescriptionFile)), id, offset);
}

std::optional<FormulaDetail> FormulaLibrary::ReadDetail(FormulaId id, std::uint32_t offset) const {
    return ParseFormulaDetail(BytesOrNone(File(kDetailFile)), id, offset);
}

std::optional<FormulaFiles> FormulaLibrary::Load() const {
    for (const std::u16string_view name : kChangeOrder) {
        std::error_code error;
        if (fs::exists(File(name), error) && !ReadWholeFile(File(name))) {
            return std::nullopt;
        }
    }
    FormulaFiles files;
    files.index = ReadIndex();
    files.descriptions = BytesOrNone(File(kDescriptionFile));
    files.details = BytesOrNone(File(kDetailFile));
    files.tree = TextOf(BytesOrNone(File(kTreeFile)));
    return files;
}

void FormulaLibrary::KeepCopies() const {
    for (const std::u16string_view name : kChangeOrder) {
        fs::path kept = File(name);
        kept += ".bad";
        std::error_code error;
        fs::copy_file(File(name), kept, fs::copy_options::overwrite_existing, error);
    }
}

FormulaImportResult FormulaLibrary::ImportFormulas(const fs::path& path, bool append) {
    const auto bytes = ReadWholeFile(path);
    if (!bytes) {
        return {false, 0, {0, kNoFile}};
    }
    const FormulaImport import = ParseFormulaImport(*bytes);
    if (import.problem) {
        return {false, 0, *import.problem};
    }
    std::error_code error;
    const bool exists = fs::exists(File(kIndexFile), error);
    if (import.nodes.empty() && exists) {
        return {false, 0, {0, kEmptyImport}};
    }
    FormulaFiles files;
    if (append && exists) {
        auto loaded = Load();
        if (!loaded) {
            return {false, 0, {0, kUnreadable}};
        }
        files = std::move(*loaded);
        if (!ParseFormulaIndex(BytesOrNone(File(kIndexFile)))) {
            KeepCopies();
        }
    }
    if (files.tree.empty()) {
        files.tree = kNewFormulaTree;
    }
    AppendImport(files, import);
    if (std::max(files.descriptions.size(), files.details.size()) > kLargestFile) {
        return {false, 0, {0, kFullLibrary}};
    }
    if (!Commit(files)) {
        return {false, 0, {0, kNotWritten}};
    }
    return {true, import.formulas.size(), {}};
}

bool FormulaLibrary::DeleteFormulas(const std::vector<FormulaId>& ids, const std::vector<bool>& marks) {
    std::vector<FormulaId> marked;
    for (std::size_t k = 0; k < ids.size() && k < marks.size(); ++k) {
        if (marks[k]) {
            marked.push_back(ids[k]);
        }
    }
    if (marked.empty()) {
        return true;
    }
    const auto indexBytes = ReadWholeFile(File(kIndexFile));
    auto files = Load();
    if (!files || !indexBytes || !ParseFormulaIndex(*indexBytes)) {
        return false;
    }
    const std::vector<std::uint8_t> entriesFound = FormulaIndexBytes(files->index);
    const bool indexEndsEarly = !std::equal(entriesFound.begin(), entriesFound.end(), indexBytes->begin());
    if (RemoveFormulas(*files, marked) > 0 || indexEndsEarly) {
        KeepCopies();
    }
    return Commit(*files);
}

bool FormulaLibrary::Commit(const FormulaFiles& files) {
    std::error_code error;
    fs::create_directories(folder_, error);
    if (!FinishChange()) {
        return false;
    }
    const std::vector<std::uint8_t> index = FormulaIndexBytes(files.index);
    const std::array<std::span<const std::uint8_t>, kChangeOrder.size()> contents = {
        files.descriptions, files.details, BytesOf(files.tree), index};
    for (std::size_t i = 0; i < kChangeOrder.size(); ++i) {
        if (!WriteFileAtomically(Temporary(kChangeOrder[i]), contents[i])) {
            static_cast<void>(FinishChange());
            return false;
        }
    }
    return FinishChange();
}

bool FormulaLibrary::FinishChange() const {
    std::error_code error;
    const bool complete = fs::exists(Temporary(kIndexFile), error);
    for (const std::u16string_view name : kChangeOrder) {
        const fs::path temporary = Temporary(name);
        if (!fs::exists(temporary, error)) {
            continue;
        }
        if (!complete) {
            fs::remove(temporary, error);
            continue;
        }
        fs::rename(temporary, File(name), error);
        if (error) {
            return false;
        }
    }
    return true;
}

const FormulaIndexEntry* FindFormula(std::span<const FormulaIndexEntry> index, FormulaId id) {
    for (std::size_t i = index.size(); i-- > 0;) {
        if (index[i].id == id) {
            return &index[i];
        }
    }
    return nullptr;
}

}  // namespace quorix
