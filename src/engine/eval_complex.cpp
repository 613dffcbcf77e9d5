#include "engine/eval_complex.h"

#include <algorithm>

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
        const auto end = expression_.Tokens().end();
        for (auto token = expression_.Tokens().begin(); token != end; ++token) {
            switch (token->kind) {
                case ResolvedKind::operation:
                    repeatRegisters().lastOperator = token->row->name;
                    token->row->function(stack_, bases_.Innermost());
                    break;
                case ResolvedKind::open: bases_.Open(stack_.depth); break;
                case ResolvedKind::close: bases_.Close(); break;
                default: PushValue(*token); break;
            }
            if (context_.calcError != 0 && !DividesByFarCosh(token, end)) return std::nullopt;
        }
        // The first entry is the result, whatever the depth: "3 4" is 3.
        return stack_.depth > 0 ? stack_.entries[0] : QComplex{};
    }

  private:
    using TokenIterator = std::vector<ResolvedToken<QComplex>>::const_iterator;

    // 1/cosh of a large argument is 0 without error, as sech is. Moves `token` from the "cosh" that has
    // overflowed to the "/" behind it, when a quotient below the smallest number is all that comes of it.
    bool DividesByFarCosh(TokenIterator& token, TokenIterator end) {
        if (token->kind != ResolvedKind::operation || token->row->name != u"cosh" || stack_.depth < 2)
            return false;
        const bool overflowed = stack_.Top().re.words[1] == QReal::kLargestExponent ||
                                stack_.Top().im.words[1] == QReal::kLargestExponent;
        const auto next = std::find_if(token + 1, end, [](const ResolvedToken<QComplex>& behind) {
            return behind.kind != ResolvedKind::close;
        });
        const bool divides = next != end && next->kind == ResolvedKind::operation && next->row->name == u"/";
        QReal numerator;
        qcabs(stack_.Top(1), numerator);
        if (!overflowed || !divides || numerator.words[1] > QReal::kExponentOfOne) return false;
        for (; token + 1 != next; ++token) bases_.Close();
        if (stack_.depth - bases_.Innermost() < 2) return false;
        token = next;
        --stack_.depth;
        stack_.Top() = {};
        ClearCalcError();
        return true;
    }

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
