#pragma once

// The evaluator behind graphs, integrals and root searches: thousands of runs of one expression.

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "engine/range_operators.h"
#include "numerics/qreal.h"

namespace quorix {

/// Value of an expression in doubles, or nothing with a code in calcError (which is returned at once when it
/// is set on entry). Words other than boundName, "pi", "e" and "i" fail with -1: stored variables are not
/// read. An expression that equals the one of the call before is not compiled again.
std::optional<DComplex> EvalToDouble(std::u16string_view text, std::u16string_view boundName,
                                     double boundValue, int radix);

/// One expression at many points, compiled once: what EvalToDouble gives, without the look at its text.
class DoubleSampler {
  public:
    /// After a failure (-1 in calcError) every point gives nothing, with -1 again.
    DoubleSampler(std::u16string_view text, std::u16string_view boundName, int radix);
    ~DoubleSampler();
    DoubleSampler(const DoubleSampler&) = delete;
    DoubleSampler& operator=(const DoubleSampler&) = delete;

    std::optional<DComplex> At(double boundValue);
    /// Real values at points in a row, up to the first whose value takes more than real arithmetic, or fails:
    /// how many are stored is returned, and At tells of the next one. y is as long as x. Nothing is stored
    /// while a code stands in calcError.
    std::size_t RealValues(std::span<const double> x, std::span<double> y);
    /// Whether RangeOver can tell anything.
    [[nodiscard]] bool HasRanges() const;
    /// Range of the values between two points, or a wider one; unbounded when a pole may lie there. Nothing
    /// where some values take more than real arithmetic.
    std::optional<ValueRange> RangeOver(const ValueRange& x);

  private:
    struct Workspace;
    std::unique_ptr<Workspace> workspace_;
};

}  // namespace quorix
