#include "reference/unit_conversion.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace quorix {

namespace {

using Terms = std::vector<std::u16string>;

class Expander {
  public:
    explicit Expander(const UnitTable& table) : table_(table) {}

    bool Expand(UnitRecord& record, int depth) {
        if (depth > kDeepestDefinition) {
            return false;
        }
        // The terms that a side gets from the other one stand behind its own and are expanded already.
        Terms above;
        Terms fromNumerators;
        Terms below;
        Terms fromDenominators;
        const bool expanded = ExpandSide(record, record.numerators, true, depth, above, fromNumerators) &&
                              ExpandSide(record, record.denominators, false, depth, below, fromDenominators);
        std::ranges::move(fromNumerators, std::back_inserter(below));
        std::ranges::move(fromDenominators, std::back_inserter(above));
        record.numerators = std::move(above);
        record.denominators = std::move(below);
        return expanded && record.numerators.size() <= kMostExpandedTerms &&
               record.denominators.size() <= kMostExpandedTerms;
    }

  private:
    // The row that a term is replaced by; a unit with an offset stays whole.
    [[nodiscard]] const UnitRecord* DefinitionOf(std::u16string_view term) const {
        const std::size_t index = table_.FindIndex(term);
        if (index == 0) {
            return nullptr;
        }
        const UnitRecord& record = table_.Records()[index - 1];
        return record.IsBase() || record.offset != 0 ? nullptr : &record;
    }

    bool ExpandSide(UnitRecord& record, Terms& terms, bool multiplies, int depth, Terms& same, Terms& other) {
        for (std::u16string& term : terms) {
            const UnitRecord* definition = DefinitionOf(term);
            if (definition == nullptr) {
                same.push_back(std::move(term));
                continue;
            }
            UnitRecord copy = *definition;
            if (!Expand(copy, depth + 1)) {
                return false;
            }
            record.factor = multiplies ? record.factor * copy.factor : record.factor / copy.factor;
            record.offset = 0;
            std::ranges::move(copy.numerators, std::back_inserter(same));
            std::ranges::move(copy.denominators, std::back_inserter(other));
            if (same.size() > kMostExpandedTerms || other.size() > kMostExpandedTerms) {
                return false;
            }
        }
        return true;
    }

    const UnitTable& table_;
};

// Drops the first `counts[term]` appearances of each term, and every "1".
void DropTerms(Terms& terms, std::map<std::u16string, std::size_t> counts) {
    std::erase_if(terms, [&](const std::u16string& term) {
        const auto found = counts.find(term);
        if (found != counts.end() && found->second > 0) {
            --found->second;
            return true;
        }
        return term == u"1";
    });
}

std::map<std::u16string, std::size_t> CountTerms(const Terms& terms) {
    std::map<std::u16string, std::size_t> counts;
    for (const std::u16string& term : terms) {
        ++counts[term];
    }
    return counts;
}

bool IsOneTerm(const Terms& numerators, const Terms& denominators, std::u16string_view term) {
    return denominators.empty() && numerators.size() == 1 && numerators.front() == term;
}

}  // namespace

bool ExpandUnit(const UnitTable& table, UnitRecord& record) {
    return Expander(table).Expand(record, 1);
}

void SimplifyUnit(UnitRecord& record) {
    auto cancelled = CountTerms(record.numerators);
    const auto below = CountTerms(record.denominators);
    for (auto& [term, count] : cancelled) {
        const auto found = below.find(term);
        count = found == below.end() ? 0 : std::min(count, found->second);
    }
    DropTerms(record.numerators, cancelled);
    DropTerms(record.denominators, std::move(cancelled));
}

const UnitTable::ReducedUnit& UnitTable::Reduced(std::size_t position) {
    auto& reduced = reduced_[position];
    if (!reduced) {
        UnitRecord record = records_[position];
        reduced = std::make_unique<ReducedUnit>();
        reduced->failed = !ExpandUnit(*this, record);
        if (!reduced->failed) {
            SimplifyUnit(record);
            std::ranges::sort(record.numerators);
            std::ranges::sort(record.denominators);
            reduced->factor = record.factor;
            reduced->offset = record.offset;
            reduced->numerators = std::move(record.numerators);
            reduced->denominators = std::move(record.denominators);
        }
    }
    return *reduced;
}

bool UnitTable::GetConversion(std::u16string_view fromName, std::u16string_view toName, double& factor,
                              double& offset) {
    const std::size_t from = FindIndex(fromName);
    const std::size_t to = FindIndex(toName);
    if (from == 0 || to == 0) {
        error_ = UNIT_UNKNOWN;
        return false;
    }
    // A factor of 0 in the divisor relates to nothing.
    if (!Relate(from - 1, to - 1, factor, offset) || !std::isfinite(factor) || !std::isfinite(offset)) {
        error_ = UNITS_NOT_SAME;
        return false;
    }
    offset += 0.0;  // The negative of no offset is no offset.
    return true;
}

bool UnitTable::Relate(std::size_t from, std::size_t to, double& factor, double& offset) {
    const UnitRecord& first = records_[from];
    const UnitRecord& second = records_[to];
    if (first.IsBase() && second.IsBase()) {
        factor = 1;
        offset = 0;
        return first.symbol == second.symbol;
    }
    if (first.IsBase() || second.IsBase()) {
        return RelateByExpansion(from, to, factor, offset);
    }
    if (IsOneTerm(first.numerators, first.denominators, second.symbol)) {
        factor = first.factor;
        offset = first.offset;
        return true;
    }
    if (IsOneTerm(second.numerators, second.denominators, first.symbol)) {
        factor = 1 / second.factor;
        offset = -(second.offset / second.factor);
        return true;
    }
    return RelateByExpansion(from, to, factor, offset);
}

bool UnitTable::RelateByExpansion(std::size_t from, std::size_t to, double& factor, double& offset) {
    if (records_[from].IsBase() || records_[to].IsBase()) {
        const bool toBase = records_[to].IsBase();
        const UnitRecord& base = records_[toBase ? to : from];
        const ReducedUnit& unit = Reduced(toBase ? from : to);
        if (unit.failed || (!IsOneTerm(unit.numerators, unit.denominators, base.name) &&
                            !IsOneTerm(unit.numerators, unit.denominators, base.symbol))) {
            return false;
        }
        factor = toBase ? unit.factor : 1 / unit.factor;
        offset = toBase ? unit.offset : -(unit.offset / unit.factor);
        return true;
    }
    const ReducedUnit& first = Reduced(from);
    const ReducedUnit& second = Reduced(to);
    if (first.failed || second.failed || first.denominators != second.denominators ||
        first.numerators != second.numerators) {
        return false;
    }
    factor = first.factor / second.factor;
    offset = (first.offset - second.offset) / second.factor;
    return true;
}

}  // namespace quorix
