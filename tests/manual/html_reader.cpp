#include "manual/html_reader.h"

#include <algorithm>
#include <regex>
#include <set>
#include <utility>

#include "platform/utf8.h"

namespace quorix::testing {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

/// The entities that the manual may use, the one that others could be made of last; every other sign stands
/// as itself.
constexpr std::pair<std::string_view, std::string_view> kEntities[] = {
    {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&nbsp;", "\u00A0"}, {"&amp;", "&"}};

const std::set<std::string_view> kEmptyElements = {"br", "hr", "img", "meta", "link"};

std::string Resolve(std::string text) {
    for (const auto& [name, sign] : kEntities) {
        for (std::size_t at = 0; (at = text.find(name, at)) != text.npos; at += sign.size()) {
            text.replace(at, name.size(), sign);
        }
    }
    return text;
}

/// name="value" or name alone.
void ReadAttributes(const std::string& text, HtmlPiece& piece) {
    static const std::regex pattern("([^\\s=]+)(=\"([^\"]*)\")?");
    for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at) {
        piece.attributes.emplace(at->str(1), Resolve(at->str(3)));
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
    piece.content = std::string(tag.substr(0, nameEnd));
    ReadAttributes(std::string(tag.substr(nameEnd)), piece);
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
            pieces.push_back({HtmlPiece::Kind::text, Resolve(std::string(page.substr(0, end))), {}});
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
