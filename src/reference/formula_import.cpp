#include "reference/formula_import.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/trim.h"
#include "reference/formula_lines.h"

namespace quorix {

namespace {

constexpr std::string_view kFormulaMark = "***";
constexpr std::string_view kFolderMark = "*";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kParameterTexts = 5;

constexpr std::string_view kOverlongLine = "The line is too long.";
constexpr std::string_view kNulByte = "The file is not a text file.";
constexpr std::string_view kFewTexts = "A parameter needs five quoted texts.";
constexpr std::string_view kOpenQuote = "A quotation mark is missing.";
constexpr std::string_view kNoIdentifier = "The identifier is missing.";
constexpr std::string_view kTooMany = "The formula has too many entries.";
constexpr std::string_view kLongName = "The name is too long.";
constexpr std::string_view kLargeFile = "The file is too large.";

/// The texts between pairs of quotation marks; nothing when the last pair is incomplete.
std::optional<std::vector<std::string>> QuotedTexts(std::string_view value) {
    std::vector<std::string> texts;
    for (std::size_t open = 0; (open = value.find('"', open)) != value.npos;) {
        const std::size_t close = value.find('"', open + 1);
        if (close == value.npos) {
            return std::nullopt;
        }
        texts.emplace_back(value.substr(open + 1, close - open - 1));
        open = close + 1;
    }
    return texts;
}

/// Takes the lines one by one. Each handler gives the message of a refusal, or an empty one.
class ImportParser {
  public:
    std::string_view TakeLine(std::string_view line);
    FormulaImport Result() && { return std::move(result_); }

  private:
    enum class State { outside, formula, folder };

    using Handler = std::string_view (ImportParser::*)(std::string_view value);
    struct Tag {
        std::string_view name;
        Handler handler;
    };
    static const Tag kTags[];

    std::string_view TakeId(std::string_view value);
    std::string_view TakeType(std::string_view value);
    std::string_view TakeName(std::string_view value);
    std::string_view TakeDescription(std::string_view value);
    std::string_view TakeMime(std::string_view value);
    std::string_view TakeParameter(std::string_view value);
    std::string_view TakeSolvedForms(std::string_view value);
    std::string_view TakeImages(std::string_view value);
    std::string_view AddNode();
    void Open(State state);

    State state_ = State::outside;
    ImportedFormula open_;
    FormulaNode node_;
    FormulaImport result_;
};

constexpr ImportParser::Tag ImportParser::kTags[] = {
    {"ForId", &ImportParser::TakeId},        {"ForType", &ImportParser::TakeType},
    {"ForName", &ImportParser::TakeName},    {"ForDes", &ImportParser::TakeDescription},
    {"ForMime", &ImportParser::TakeMime},    {"Para", &ImportParser::TakeParameter},
    {"For", &ImportParser::TakeSolvedForms}, {"Image", &ImportParser::TakeImages},
};

void ImportParser::Open(State state) {
    state_ = state;
    open_ = {};
    node_ = {};
    node_.type = state == State::folder ? kFormulaFolderType : 0;
}

std::string_view ImportParser::TakeLine(std::string_view line) {
    if (line == kFormulaMark || line == kFolderMark) {
        Open(line == kFormulaMark ? State::formula : State::folder);
        return {};
    }
    const std::size_t equals = line.find('=');
    if (state_ == State::outside || equals == line.npos) {
        return {};
    }
    const std::string_view name = Trimmed(line.substr(0, equals));
    for (const Tag& tag : kTags) {
        if (EqualsFormulaTag(name, tag.name)) {
            return (this->*tag.handler)(Trimmed(line.substr(equals + 1)));
        }
    }
    return {};
}

std::string_view ImportParser::TakeId(std::string_view value) {
    node_.id = ParseFormulaId(value);
    return {};
}

std::string_view ImportParser::TakeType(std::string_view value) {
    if (state_ == State::formula) {
        node_.type = LeadingFormulaInteger(value);
    }
    return {};
}

std::string_view ImportParser::TakeName(std::string_view value) {
    node_.name = value;
    if (state_ == State::formula) {
        return {};
    }
    state_ = State::outside;
    return AddNode();
}

std::string_view ImportParser::TakeDescription(std::string_view value) {
    open_.description.description = value;
    return {};
}

std::string_view ImportParser::TakeMime(std::string_view value) {
    open_.description.mime = value;
    return {};
}

std::string_view ImportParser::TakeParameter(std::string_view value) {
    // What follows the tenth quotation mark does not count, so an odd number of them is no fault here.
    std::vector<std::string> texts;
    while (texts.size() < kParameterTexts) {
        const std::size_t open = value.find('"');
        const std::size_t close = open == value.npos ? open : value.find('"', open + 1);
        if (close == value.npos) {
            return kFewTexts;
        }
        texts.emplace_back(value.substr(open + 1, close - open - 1));
        value.remove_prefix(close + 1);
    }
    if (open_.detail.parameters.size() == kMostFormulaEntries) {
        return kTooMany;
    }
    open_.detail.parameters.push_back({texts[0], texts[1], texts[2], texts[3], texts[4]});
    return {};
}

std::string_view ImportParser::TakeSolvedForms(std::string_view value) {
    auto texts = QuotedTexts(value);
    if (!texts) {
        return kOpenQuote;
    }
    if (texts->size() == 1 && texts->front().empty()) {
        return {};
    }
    auto& forms = open_.detail.solvedForms;
    if (forms.size() + texts->size() > kMostFormulaEntries) {
        return kTooMany;
    }
    forms.insert(forms.end(), texts->begin(), texts->end());
    return {};
}

std::string_view ImportParser::TakeImages(std::string_view value) {
    if (state_ != State::formula) {
        return {};
    }
    state_ = State::outside;
    auto texts = QuotedTexts(value);
    if (!texts) {
        return kOpenQuote;
    }
    std::erase(*texts, std::string());
    if (texts->size() > kMostFormulaEntries) {
        return kTooMany;
    }
    open_.description.images = std::move(*texts);
    open_.description.name = node_.name;
    open_.description.id = node_.id;
    open_.detail.id = node_.id;
    result_.formulas.push_back(std::move(open_));
    return AddNode();
}

std::string_view ImportParser::AddNode() {
    if (node_.id == 0) {
        return kNoIdentifier;
    }
    if (FormulaTreeLine(node_).size() > kLongestTreeLine) {
        return kLongName;
    }
    result_.nodes.push_back(std::move(node_));
    return {};
}

}  // namespace

FormulaImport ParseFormulaImport(std::span<const std::uint8_t> bytes) {
    const auto refuse = [](std::size_t line, std::string_view message) {
        FormulaImport refused;
        refused.problem = ImportProblem{line, message};
        return refused;
    };
    if (bytes.size() > kLargestImport) {
        return refuse(0, kLargeFile);
    }
    std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    ImportParser parser;
    for (std::size_t number = 1; !text.empty(); ++number) {
        std::string_view line = TakeFormulaLine(text);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (line.size() > kLongestImportLine) {
            return refuse(number, kOverlongLine);
        }
        if (line.find('\0') != line.npos) {
            return refuse(number, kNulByte);
        }
        if (const std::string_view message = parser.TakeLine(Trimmed(line)); !message.empty()) {
            return refuse(number, message);
        }
    }
    return std::move(parser).Result();
}

}  // namespace quorix
