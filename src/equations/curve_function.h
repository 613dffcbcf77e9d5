#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "engine/eval_double.h"

namespace quorix {

/// The function behind a curve, compiled once, at many points. No evaluation leaves a code in calcError.
class CurveFunction {
  public:
    /// text: engine notation. Roots and the other named functions are expanded here, once; they cannot depend
    /// on the variable unless they are roots. A text that is no expression gives a function that fails
    /// everywhere.
    CurveFunction(std::u16string_view text, std::u16string_view variableName);

    /// The value, which may be infinite or not a number; nothing where the evaluation fails or the imaginary
    /// part exceeds 1e-8.
    std::optional<double> At(double x) {
        ++evaluations_;
        const std::optional<DComplex> value = sampler_.At(x);
        if (value && std::fabs(value->im) <= kImaginaryTolerance) return value->re;
        ClearError(value.has_value());
        return std::nullopt;
    }
    /// Values at points in a row, up to the first at which At has to tell: how many are stored is returned. y
    /// is as long as x.
    std::size_t Values(std::span<const double> x, std::span<double> y) {
        const std::size_t count = sampler_.RealValues(x, y);
        evaluations_ += count;
        return count;
    }
    /// Whether RangeOver can tell anything of this function.
    [[nodiscard]] bool HasRanges() const { return sampler_.HasRanges(); }
    /// Range of the values over [from, to], or a wider one; unbounded when a pole may lie there. Nothing
    /// where it cannot be told.
    std::optional<ValueRange> RangeOver(double from, double to) { return sampler_.RangeOver({from, to}); }
    /// The text that is evaluated.
    [[nodiscard]] const std::u16string& Text() const { return text_; }
    /// At how many points a value was asked for.
    [[nodiscard]] std::uint64_t Evaluations() const { return evaluations_; }

  private:
    static constexpr double kImaginaryTolerance = 1e-8;

    // Off the way of good samples.
    static void ClearError(bool hasValue);

    std::u16string text_;
    DoubleSampler sampler_;
    std::uint64_t evaluations_ = 0;
};

}  // namespace quorix
