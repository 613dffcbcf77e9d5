#pragma once

// An expression on real values alone, step by step: what the programs over points and over ranges are built
// from.

#include <cstdint>
#include <string_view>
#include <vector>

#include "engine/compiled_expression.h"
#include "numerics/qreal.h"

namespace quorix {

struct DoubleNumber {
    double value = 0.0;

    static DoubleNumber FromText(std::u16string_view text);
};

using DoubleExpression = CompiledExpression<DComplex, DoubleNumber>;

/// Deeper expressions have no steps.
inline constexpr std::int32_t kRealDepth = 64;

enum class RealStepKind : std::uint8_t { boundVariable, constant, ofOne, ofTwo };

struct RealStep {
    RealStepKind kind;
    double constant = 0.0;
    /// Of the kinds ofOne and ofTwo; it has the real form for as many operands.
    const OperatorRow<DComplex>* row = nullptr;
};

/// Operand counts follow from the tokens alone, so that each operator's form is settled here. Empty for an
/// expression that fails by its form, leaves more than its result, is deeper than kRealDepth, or has an
/// operator or a value that is not real.
std::vector<RealStep> RealSteps(const DoubleExpression& expression);

}  // namespace quorix
