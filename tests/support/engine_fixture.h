#pragma once

// Ground for tests of the engine: a clean process-wide state, and texts that tables can be written in.

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <ostream>
#include <string>
#include <string_view>

#include "engine/calc_context.h"
#include "engine/evaluate.h"
#include "engine/format_value.h"
#include "engine/key_engine.h"
#include "engine/repeat_registers.h"
#include "engine/variable_store.h"
#include "numerics/qcore.h"
#include "platform/utf8.h"
#include "support/text_rows.h"

namespace quorix {

inline std::u16string Wide(std::string_view utf8) {
    return FromUtf8(utf8);
}
inline std::string Narrow(std::u16string_view text) {
    return ToUtf8(text);
}

/// NORM text with 32 digits.
inline std::string TextOf(const QReal& value) {
    const FormattedValue formatted = FormatValue(value, {});
    return Narrow(formatted.mantissa + formatted.exponent);
}

/// "3", "1+2i", "2x3 matrix".
inline std::string TextOf(const QComplex& value) {
    if (value.im.IsZero()) return TextOf(value.re);
    return TextOf(value.re) + (value.im.IsNegative() ? "" : "+") + TextOf(value.im) + "i";
}
inline std::string TextOf(const CalcValue& value) {
    if (value.kind != KIND_MATRIX) return TextOf(value.number);
    std::string text = std::to_string(value.rows) + "x" + std::to_string(value.cols) + ":";
    for (const double element : value.data) {
        std::array<char, 32> digits{};
        std::snprintf(digits.data(), digits.size(), " %.12g", element);
        text += digits.data();
    }
    return text;
}

inline void PrintTo(const CalcValue& value, std::ostream* out) {
    *out << "kind " << int{value.kind} << " " << TextOf(value);
}

inline QReal Real(std::string_view text) {
    QReal value;
    asctoq(text, value);
    return value;
}

/// Value or "error CODE"; the error is cleared before and behind.
inline std::string Evaluate(std::string_view text, int radix = 10,
                            EvaluationMode mode = EvaluationMode::number) {
    ClearCalcError();
    const CalcValue value = EvaluateExpression(Wide(text), mode, radix);
    const std::int32_t error = calcContext().calcError;
    ClearCalcError();
    return error != 0 ? "error " + std::to_string(error) : TextOf(value);
}

class EngineTest : public testing::Test {
  protected:
    void SetUp() override {
        ClearCalcError();
        calcContext() = {};
        ClearAllVariables();
        KeyEngineReset();
        repeatRegisters().Clear();
    }
};

}  // namespace quorix
