#include "manual/manual_page.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace quorix::testing {

namespace {

using Kind = HtmlPiece::Kind;

constexpr std::string_view kSettingPrefix = "data-";

void TakeSettings(const HtmlPiece& piece, std::map<std::string, std::string>& settings) {
    for (const auto& [name, value] : piece.attributes) {
        if (name.starts_with(kSettingPrefix)) {
            settings[name.substr(kSettingPrefix.size())] = value;
        }
    }
}

std::string ReadManual() {
    std::ifstream file(std::filesystem::path(QUORIX_SOURCE_DIR) / "assets" / "Quorix.htm", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

ManualPage::ManualPage() : pieces_(ReadHtml(ReadManual())) {
    for (const HtmlPiece& piece : pieces_) {
        if (piece.kind != Kind::open) {
            continue;
        }
        if (piece.content == "a" && piece.attributes.contains("name")) {
            anchors_.insert(piece.Attribute("name"));
        }
        if (piece.content == "a" && piece.attributes.contains("href")) {
            links_.push_back(piece.Attribute("href"));
        }
        if (piece.content == "img") {
            pictures_.push_back(piece.Attribute("src"));
        }
    }
    ReadExamples();
}

void ManualPage::ReadExamples() {
    std::map<std::string, std::string> tableSettings;
    bool inTable = false;
    ManualExample row;
    std::string* cell = nullptr;
    for (const HtmlPiece& piece : pieces_) {
        if (piece.content == "table" && piece.kind != Kind::text) {
            inTable = piece.kind == Kind::open && piece.Attribute("class") == "ex";
            tableSettings.clear();
            TakeSettings(piece, tableSettings);
        } else if (!inTable) {
            continue;
        } else if (piece.kind == Kind::text) {
            if (cell != nullptr) {
                *cell += piece.content;
            }
        } else if (piece.content == "tr" && piece.kind == Kind::open) {
            row = {{}, {}, {}, tableSettings};
            TakeSettings(piece, row.settings);
        } else if (piece.content == "tr") {
            if (!row.keys.empty()) {
                row = {Squeeze(row.keys), Squeeze(row.line), Squeeze(row.result), row.settings};
                examples_.push_back(row);
            }
        } else if (piece.content == "td") {
            const std::string kind = piece.kind == Kind::open ? piece.Attribute("class") : std::string();
            cell = kind == "k"   ? &row.keys
                   : kind == "l" ? &row.line
                   : kind == "r" ? &row.result
                   : kind == "o" ? &row.settings["options"]
                                 : nullptr;
        } else if (piece.content == "br" && cell != nullptr) {
            *cell += ' ';
        }
    }
}

std::set<std::string> ManualPage::KeysOfSection(const std::string& anchor) const {
    std::set<std::string> keys;
    bool inSection = false;
    std::string* key = nullptr;
    std::string text;
    for (const HtmlPiece& piece : pieces_) {
        if (piece.kind == Kind::open && piece.content == "h2") {
            inSection = false;
        } else if (piece.kind == Kind::open && piece.content == "a" && piece.Attribute("name") == anchor) {
            inSection = true;
        } else if (inSection && piece.kind == Kind::open && piece.Attribute("class") == "key") {
            text.clear();
            key = &text;
        } else if (key != nullptr && piece.kind == Kind::text) {
            *key += piece.content;
        } else if (key != nullptr && piece.kind == Kind::close) {
            keys.insert(Squeeze(*key));
            key = nullptr;
        }
    }
    return keys;
}

std::string ManualPage::Text() const {
    std::string text;
    for (const HtmlPiece& piece : pieces_) {
        if (piece.kind == Kind::text) {
            text += piece.content;
        }
    }
    return Squeeze(text);
}

}  // namespace quorix::testing
