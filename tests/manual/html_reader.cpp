#include "manual/html_reader.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <set>

#include "platform/utf8.h"

namespace quorix::testing {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

/// The entities that the manual may use; every other sign stands as itself.
const std::map<std::string_view, std::string_view> kEntities = {
    {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"nbsp", "\u00A0"}};

const std::set<std::string_view> kEmptyElements = {"br", "hr", "img", "meta", "link"};

std::string Resolve(std::string_view text) {
    std::string resolved;
    while (!text.empty()) {
        const std::size_t end = text.front() == '&' ? text.find(';') : text.npos;
        if (end == text.npos) {
            resolved += text.front();
            text.remove_prefix(1);
            continue;
        }
        const std::string_view name = text.substr(1, end - 1);
        if (const auto entity = kEntities.find(name); entity != kEntities.end()) {
            resolved += entity->second;
        } else {
            resolved += text.substr(0, end + 1);
        }
        text.remove_prefix(end + 1);
    }
    return resolved;
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return lower;
}

/// name="value" or name alone.
void ReadAttributes(std::string_view text, HtmlPiece& piece) {
    for (std::size_t at = text.find_first_not_of(kBlanks); at != text.npos;
         at = text.find_first_not_of(kBlanks, at)) {
        const std::size_t nameEnd = std::min(text.find_first_of(" \t\r\n=", at), text.size());
        const std::string name = LowerCase(text.substr(at, nameEnd - at));
        at = nameEnd;
        std::string_view value;
        if (at + 1 < text.size() && text[at] == '=' && text[at + 1] == '"') {
            const std::size_t valueEnd = std::min(text.find('"', at + 2), text.size());
            value = text.substr(at + 2, valueEnd - at - 2);
            at = valueEnd + 1;
        }
        piece.attributes.emplace(name, Resolve(value));
    }
}

HtmlPiece ReadTag(std::string_view tag) {
    HtmlPiece piece;
    piece.kind = HtmlPiece::Kind::open;
    if (tag.starts_with('/')) {
        piece.kind = HtmlPiece::Kind::close;
        tag.remove_prefix(1);
    }
    const std::size_t nameEnd = std::min(tag.find_first_of(kBlanks), tag.size());
    piece.content = LowerCase(tag.substr(0, nameEnd));
    ReadAttributes(tag.substr(nameEnd), piece);
    return piece;
}

}  // namespace

std::vector<HtmlPiece> ReadHtml(std::string_view page) {
    std::vector<HtmlPiece> pieces;
    while (!page.empty()) {
        if (page.starts_with("<!--")) {
            const std::size_t end = page.find("-->");
            page.remove_prefix(end == page.npos ? page.size() : end + 3);
        } else if (page.front() == '<') {
            const std::size_t end = std::min(page.find('>'), page.size());
            if (!page.starts_with("<!")) {
                pieces.push_back(ReadTag(page.substr(1, end - 1)));
            }
            page.remove_prefix(std::min(end + 1, page.size()));
        } else {
            const std::size_t end = std::min(page.find('<'), page.size());
            pieces.push_back({HtmlPiece::Kind::text, Resolve(page.substr(0, end)), {}});
            page.remove_prefix(end);
        }
    }
    return pieces;
}

std::string FindNestingFault(const std::vector<HtmlPiece>& pieces) {
    std::vector<std::string> open;
    for (const HtmlPiece& piece : pieces) {
        if (piece.kind == HtmlPiece::Kind::open && !kEmptyElements.contains(piece.content)) {
            open.push_back(piece.content);
        } else if (piece.kind == HtmlPiece::Kind::close) {
            if (open.empty() || open.back() != piece.content) {
                return "</" + piece.content + "> closes <" + (open.empty() ? "" : open.back()) + ">";
            }
            open.pop_back();
        }
    }
    return open.empty() ? std::string() : "<" + open.back() + "> stays open";
}

std::string Squeeze(std::string_view text) {
    std::string squeezed;
    for (const char c : text) {
        const bool blank = kBlanks.find(c) != kBlanks.npos;
        if (!blank) {
            squeezed += c;
        } else if (!squeezed.empty() && squeezed.back() != ' ') {
            squeezed += ' ';
        }
    }
    if (squeezed.ends_with(' ')) {
        squeezed.pop_back();
    }
    return squeezed;
}

}  // namespace quorix::testing
