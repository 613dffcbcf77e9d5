#pragma once

// The manual as its tests see it: examples, anchors, links, pictures.

#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "frontends/categories.h"
#include "manual/html_reader.h"

namespace quorix::testing {

/// Anchors of the sections of the categories, by id.
inline constexpr const char* kCategoryAnchors[] = {
    "arithmetic", "trigonometry", "base-conversion", "statistics", "matrix",   "finance",
    "tip",        "units",        "currencies",      "constants",  "biorythm", "macros",
    "equations",  "graph",        "date-time",       "formulas",
};
static_assert(std::size(kCategoryAnchors) == kCategoryCount);

/// One row of an example table (class "ex"): cells of the classes "k" (keys), "l" (line), "r" (result) and
/// "o" (options of quorix-calc).
struct ManualExample {
    std::string keys;
    /// Nothing where the row does not show the line.
    std::string line;
    std::string result;
    /// The attributes data-NAME of the table and the row, by NAME.
    std::map<std::string, std::string> settings;

    [[nodiscard]] std::string Setting(const std::string& name, const std::string& otherwise = {}) const {
        const auto found = settings.find(name);
        return found == settings.end() ? otherwise : found->second;
    }
};

class ManualPage {
  public:
    /// Reads assets/Quorix.htm of the source tree.
    ManualPage();

    [[nodiscard]] const std::vector<HtmlPiece>& Pieces() const { return pieces_; }
    [[nodiscard]] const std::vector<ManualExample>& Examples() const { return examples_; }
    /// Names of anchors, each as often as it stands.
    [[nodiscard]] const std::multiset<std::string>& Anchors() const { return anchors_; }
    [[nodiscard]] const std::vector<std::string>& Links() const { return links_; }
    [[nodiscard]] const std::vector<std::string>& Pictures() const { return pictures_; }
    /// Texts of the elements of class "key" between a heading's anchor and the next heading of that level.
    [[nodiscard]] std::set<std::string> KeysOfSection(const std::string& anchor) const;
    /// Text of the whole page, without tags.
    [[nodiscard]] std::string Text() const;

  private:
    void ReadExamples();

    std::vector<HtmlPiece> pieces_;
    std::vector<ManualExample> examples_;
    std::multiset<std::string> anchors_;
    std::vector<std::string> links_;
    std::vector<std::string> pictures_;
};

}  // namespace quorix::testing
