#include "engine/real_steps.h"

#include <algorithm>
#include <numbers>
#include <utility>

#include "engine/number_grammar.h"

namespace quorix {
namespace {

class StepList {
  public:
    bool AppendAll(const DoubleExpression& expression) {
        return std::ranges::all_of(expression.Tokens(),
                                   [&](const auto& token) { return Append(token, expression); }) &&
               depth_ == 1;
    }
    std::vector<RealStep> Take() { return std::move(steps_); }

  private:
    bool Append(const ResolvedToken<DComplex>& token, const DoubleExpression& expression) {
        const auto constant = [this](double value) { return AppendOperand({RealStepKind::constant, value}); };
        switch (token.kind) {
            case ResolvedKind::operation: return AppendOperator(*token.row);
            case ResolvedKind::open:
                return bases_.Depth() < static_cast<std::size_t>(kRealDepth) && bases_.Open(depth_);
            case ResolvedKind::close: bases_.Close(); return true;
            case ResolvedKind::number: return constant(expression.NumberAt(token.index).value);
            case ResolvedKind::bound: return AppendOperand({RealStepKind::boundVariable});
            case ResolvedKind::pi: return constant(std::numbers::pi);
            case ResolvedKind::e: return constant(std::numbers::e);
            default: return false;
        }
    }

    bool AppendOperand(const RealStep& step) {
        if (depth_ >= kRealDepth) return false;
        steps_.push_back(step);
        ++depth_;
        return true;
    }

    bool AppendOperator(const OperatorRow<DComplex>& row) {
        const std::int32_t available = depth_ - bases_.Innermost();
        if (row.realOfTwo != nullptr && available >= 2) {
            steps_.push_back({RealStepKind::ofTwo, 0.0, &row});
            --depth_;
        } else if (row.realOfOne != nullptr && available >= 1) {
            steps_.push_back({RealStepKind::ofOne, 0.0, &row});
        } else {
            return false;
        }
        return true;
    }

    std::vector<RealStep> steps_;
    std::int32_t depth_ = 0;
    BaseStack bases_;
};

}  // namespace

DoubleNumber DoubleNumber::FromText(std::u16string_view text) {
    return {NumberToDouble(text)};
}

std::vector<RealStep> RealSteps(const DoubleExpression& expression) {
    StepList steps;
    if (!steps.AppendAll(expression)) return {};
    return steps.Take();
}

}  // namespace quorix
