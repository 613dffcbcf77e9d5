#include "reference/unit_definition.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quorix {

namespace {

constexpr std::u16string_view kMarks = u"()*/^";

bool IsWhiteSpace(char16_t c) {
    return c == u' ' || (c >= u'\t' && c <= u'\r') || c == u'\u00A0' || c == u'\u3000';
}

class DefinitionParser {
  public:
    DefinitionParser(std::vector<std::u16string>& numerators, std::vector<std::u16string>& denominators)
        : sides_{&numerators, &denominators} {}

    bool Parse(std::u16string_view text) {
        for (std::size_t at = 0; at < text.size(); ++at) {
            const char16_t c = text[at];
            if (IsWhiteSpace(c) || !Fits()) {
                return false;
            }
            if (c == u'^') {
                const std::size_t end = std::min(text.find_first_of(kMarks, at + 1), text.size());
                if (!Power(text.substr(at + 1, end - at - 1))) {
                    return false;
                }
                at = end - 1;
            } else {
                Take(c);
            }
        }
        StoreTerm();
        return Fits();
    }

  private:
    [[nodiscard]] bool Fits() const {
        return sides_[0]->size() <= kMostDefinitionTerms && sides_[1]->size() <= kMostDefinitionTerms;
    }

    void StoreTerm() {
        if (!term_.empty()) {
            sides_[below_ ? 1 : 0]->push_back(std::exchange(term_, {}));
        }
    }

    void Take(char16_t c) {
        if (kMarks.find(c) == kMarks.npos) {
            term_ += c;
            return;
        }
        if (c == u'(') {
            sawGroup_ = true;
            return;
        }
        StoreTerm();
        if (c == u'*' && !sawGroup_) {
            below_ = false;
        } else if (c == u'/') {
            below_ = !below_;
        }
    }

    static std::optional<std::size_t> Exponent(std::u16string_view digits) {
        std::size_t exponent = 0;
        for (const char16_t c : digits) {
            if (c < u'0' || c > u'9') {
                return std::nullopt;
            }
            // Enough to be refused; the rest of the digits is still checked.
            exponent = std::min(exponent * 10 + (c - u'0'), kMostDefinitionTerms + 1);
        }
        return digits.empty() ? std::nullopt : std::optional(exponent);
    }

    bool Power(std::u16string_view digits) {
        const auto exponent = Exponent(digits);
        if (!exponent || term_.empty()) {
            return false;
        }
        auto& side = *sides_[below_ ? 1 : 0];
        side.insert(side.end(), *exponent, term_);
        term_.clear();
        below_ = below_ && sawGroup_;
        return true;
    }

    std::vector<std::u16string>* sides_[2];
    std::u16string term_;
    bool below_ = false;
    bool sawGroup_ = false;
};

}  // namespace

bool ParseUnitDefinition(std::u16string_view text, std::vector<std::u16string>& numerators,
                         std::vector<std::u16string>& denominators) {
    numerators.clear();
    denominators.clear();
    return DefinitionParser(numerators, denominators).Parse(text);
}

}  // namespace quorix
