#include "engine/eval_complex.h"

#include "engine/compiled_expression.h"
#include "engine/complex_operator_table.h"
#include "engine/euler_number.h"
#include "engine/repeat_registers.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "numerics/qfunctions.h"

namespace quorix {
namespace {

struct ExtendedNumber {
    QReal value;
    /// What the conversion recorded. An underflow stands until the next value and makes an operator fail that
    /// comes before it; an overflow fails at once.
    int numericError = NUMERIC_OK;

    static ExtendedNumber FromText(std::u16string_view text);
};

ExtendedNumber ExtendedNumber::FromText(std::u16string_view text) {
    char narrow[kMaxExpressionLength + 1];
    for (std::size_t i = 0; i < text.size(); ++i) narrow[i] = static_cast<char>(text[i]);
    ExtendedNumber number;
    ClearNumericError();
    asctoq(std::string_view(narrow, text.size()), number.value);
    number.numericError = NumericErrorFlag();
    return number;
}

using ComplexWorkspace = EvaluatorWorkspace<QComplex, ExtendedNumber>;

class ComplexRun {
  public:
    ComplexRun(const CompiledExpression<QComplex, ExtendedNumber>& expression, std::span<QComplex> entries,
               BaseStack& bases, const QReal* boundValue)
        : expression_(expression), stack_{entries}, bases_(bases), boundValue_(boundValue) {
        bases_.Clear();
    }

    std::optional<QComplex> Run() {
        for (const ResolvedToken<QComplex>& token : expression_.Tokens()) {
            switch (token.kind) {
                case ResolvedKind::operation:
                    repeatRegisters().lastOperator = token.row->name;
                    token.row->function(stack_, bases_.Innermost());
                    break;
                case ResolvedKind::open: bases_.Open(stack_.depth); break;
                case ResolvedKind::close: bases_.Close(); break;
                default: PushValue(token); break;
            }
            if (context_.calcError != 0) return std::nullopt;
        }
        // The first entry is the result, whatever the depth: "3 4" is 3.
        return stack_.depth > 0 ? stack_.entries[0] : QComplex{};
    }

  private:
    void PushValue(const ResolvedToken<QComplex>& token) {
        ClearNumericError();
        switch (token.kind) {
            case ResolvedKind::number: return PushNumber(expression_.NumberAt(token.index));
            case ResolvedKind::bound: return PushReal(boundValue_ != nullptr ? *boundValue_ : QReal{});
            case ResolvedKind::pi: return PushReal(constants::kPi);
            case ResolvedKind::e: return PushReal(EulerNumber());
            case ResolvedKind::i: stack_.Push({QReal{}, constants::kOne}); return;
            case ResolvedKind::variable: return PushVariable(Variable(static_cast<int>(token.index)));
            default: context_.calcError = ERROR_SYNTAX;
        }
    }

    void PushReal(const QReal& value) {
        if (stack_.IsFull()) {
            context_.calcError = ERROR_SYNTAX;
            return;
        }
        QComplex& entry = stack_.entries[static_cast<std::size_t>(stack_.depth++)];
        entry.re = value;
        entry.im = QReal{};
    }

    void PushNumber(const ExtendedNumber& number) {
        if (number.numericError == NUMERIC_OVERFLOW) {
            context_.calcError = ERROR_INVALID_PARAMETER;
            return;
        }
        PushReal(number.value);
        if (number.numericError != NUMERIC_OK) mtherr("asctoq", number.numericError);
    }

    void PushVariable(const CalcValue& variable) {
        if (variable.kind == KIND_MATRIX) {
            context_.calcError = ERROR_SYNTAX;
        } else {
            stack_.Push(variable.number);
        }
    }

    const CompiledExpression<QComplex, ExtendedNumber>& expression_;
    OperandStack<QComplex> stack_;
    BaseStack& bases_;
    const QReal* boundValue_;
    CalcContext& context_ = calcContext();
};

}  // namespace

std::optional<QComplex> EvalToComplex(std::u16string_view text, std::u16string_view boundName,
                                      const QReal* boundValue, int radix) {
    if (calcContext().calcError != 0) return std::nullopt;
    const WorkspaceLease<ComplexWorkspace> workspace;
    if (!workspace->expression.Prepare(text, boundName, radix, ComplexOperatorTable())) return std::nullopt;
    return ComplexRun(workspace->expression, workspace->entries, workspace->bases, boundValue).Run();
}

}  // namespace quorix
