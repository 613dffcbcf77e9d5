#pragma once

// As much HTML as the manual is written in: tags with attributes, text and entities.

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quorix::testing {

/// A piece of a page, in the order of the text.
struct HtmlPiece {
    enum class Kind { open, close, text };
    Kind kind = Kind::text;
    /// Name of the tag, or the text with its entities resolved and its white space kept.
    std::string content;
    std::map<std::string, std::string> attributes;

    [[nodiscard]] std::string Attribute(const std::string& name) const {
        const auto found = attributes.find(name);
        return found == attributes.end() ? std::string() : found->second;
    }
};

/// Comments and declarations are left out. Text is UTF-8.
std::vector<HtmlPiece> ReadHtml(std::string_view page);

/// What is wrong with the nesting of the tags, or an empty text. Elements without content have no end tag.
std::string FindNestingFault(const std::vector<HtmlPiece>& pieces);

/// Leading, trailing and repeated white space goes; a non-breaking blank is a blank of its own.
std::string Squeeze(std::string_view text);

}  // namespace quorix::testing
