#pragma once

// Arguments of a named function, taken one after the other.

#include <optional>
#include <string>
#include <string_view>

#include "numerics/qreal.h"

namespace quorix {

/// Every call stores its failure in calcError and gives zero or nothing: -8 for a missing argument, -54 for
/// an imaginary part, else the code of the evaluation. After a failure all further calls give nothing.
class NamedArguments {
  public:
    explicit NamedArguments(std::u16string_view text) : text_(text) {}

    /// The next argument as text, blanks trimmed at both ends.
    std::u16string_view Text();
    /// The next argument as text with its named functions computed.
    std::u16string ExpandedText();
    /// The real value of the next argument, in radix 10.
    QReal Value() { return Value(10); }
    QReal Value(int radix);
    double Double();
    /// Whether another argument follows.
    [[nodiscard]] bool HasMore() const;
    /// The value of an optional argument.
    std::optional<QReal> OptionalValue();
    double OptionalDouble(double fallback);

  private:
    std::u16string_view text_;
    std::size_t position_ = 0;
};

/// The real value of a text in a radix, its named functions included; -54 for an imaginary part.
QReal EvaluateRealText(std::u16string_view text, int radix);

}  // namespace quorix
