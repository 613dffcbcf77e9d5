#include "matrix/matrix_operators.h"

#include "engine/calc_context.h"
#include "matrix/determinant.h"
#include "matrix/eigen.h"
#include "matrix/elimination.h"
#include "matrix/inversion.h"
#include "matrix/matrix_algebra.h"
#include "matrix/matrix_errors.h"
#include "matrix/orthonormalise.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

using Stack = OperandStack<CalcValue>;

void Fail(std::int32_t code) {
    calcContext().calcError = code;
}

/// Replaces the two top entries by a result.
void ReplaceTwo(Stack& stack, CalcValue result) {
    stack.Top(0).Clear();
    stack.Top(1) = std::move(result);
    --stack.depth;
}

/// A failed QReal operation is a failure of the operator.
void CheckNumber() {
    if (NumericErrorFlag() != NUMERIC_OK) {
        Fail(ERROR_INVALID_PARAMETER);
    }
}

/// Element by element; `combine` is for doubles, `combineNumbers` for two numbers. Stores `code` for unlike
/// shapes.
template <class Combine, class CombineNumbers>
void CombineTwo(Stack& stack, std::int32_t code, Combine combine, CombineNumbers combineNumbers) {
    CalcValue& left = stack.Top(1);
    const CalcValue& right = stack.Top(0);
    if (IsMatrix(left) != IsMatrix(right) || left.rows != right.rows || left.cols != right.cols) {
        Fail(code);
        return;
    }
    if (!IsMatrix(left)) {
        CalcValue result;
        combineNumbers(left.number.re, right.number.re, result.number.re);
        ReplaceTwo(stack, std::move(result));
        CheckNumber();
        return;
    }
    for (std::size_t i = 0; i < left.data.size(); ++i) {
        left.data[i] = combine(left.data[i], right.data[i]);
    }
    stack.Top(0).Clear();
    --stack.depth;
}

void Add(Stack& stack, std::int32_t base) {
    if (HasOperands(stack, base, 2)) {
        CombineTwo(
            stack, ERROR_MATRIX_ADDITION, [](double a, double b) { return a + b; },
            [](const QReal& a, const QReal& b, QReal& out) { qadd(b, a, out); });
    }
}

void Negate(CalcValue& value) {
    if (IsMatrix(value)) {
        ScaleMatrix(value, -1.0);
    } else {
        qsub(value.number.re, constants::kZero, value.number.re);
    }
}

void Subtract(Stack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    if (stack.depth - base == 1) {
        Negate(stack.Top());
        return;
    }
    CombineTwo(
        stack, ERROR_MATRIX_SUBTRACTION, [](double a, double b) { return a - b; },
        [](const QReal& a, const QReal& b, QReal& out) { qsub(b, a, out); });
}

void MultiplyTop(Stack& stack) {
    const CalcValue& left = stack.Top(1);
    const CalcValue& right = stack.Top(0);
    CalcValue result;
    if (IsMatrix(left) && IsMatrix(right)) {
        if (left.cols != right.rows) {
            Fail(ERROR_MATRIX_MULTIPLICATION);
            return;
        }
        MatrixMultiply(left, right, result);
    } else if (IsMatrix(left) || IsMatrix(right)) {
        result = IsMatrix(left) ? left : right;
        ScaleMatrix(result, qtoe(IsMatrix(left) ? right.number.re : left.number.re));
    } else {
        qmul(left.number.re, right.number.re, result.number.re);
    }
    ReplaceTwo(stack, std::move(result));
    CheckNumber();
}

void Multiply(Stack& stack, std::int32_t base) {
    if (HasOperands(stack, base, 2)) {
        MultiplyTop(stack);
    }
}

void Invert(Stack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    CalcValue& top = stack.Top();
    if (IsMatrix(top)) {
        if (!IsSquareMatrix(top) || !InvertInPlace(top)) {
            Fail(ERROR_MATRIX_INVERSION);
        }
    } else if (top.number.re.IsZero()) {
        Fail(ERROR_DIVISION);
    } else {
        qdiv(top.number.re, constants::kOne, top.number.re);
        CheckNumber();
    }
}

void Divide(Stack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 2)) {
        return;
    }
    Invert(stack, base);
    if (calcContext().calcError == 0) {
        MultiplyTop(stack);
    }
}

void Transpose(Stack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    if (!IsMatrix(stack.Top())) {
        Fail(ERROR_TRANSPOSITION);
        return;
    }
    stack.Top() = Transposed(stack.Top());
}

void Determinant(Stack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    const double value = DeterminantOf(stack.Top());
    if (calcContext().calcError == 0) {
        stack.Top() = MakeNumber(value);
    }
}

/// A square matrix on top, or -1.
bool HasSquare(const Stack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return false;
    }
    if (!IsSquareMatrix(stack.Top()) || stack.Top().rows == 0) {
        Fail(ERROR_SYNTAX);
        return false;
    }
    return true;
}

void Eigenvalues(Stack& stack, std::int32_t base) {
    if (!HasSquare(stack, base)) {
        return;
    }
    CalcValue& top = stack.Top();
    CalcValue result = MakeMatrix(top.rows, 1);
    result.data = EigenvaluesOf(top.data, top.rows);
    top = std::move(result);
}

void Eigenvectors(Stack& stack, std::int32_t base) {
    if (HasSquare(stack, base)) {
        CalcValue vectors;
        if (EigenvectorsOf(stack.Top(), vectors)) {
            stack.Top() = std::move(vectors);
        }
    }
}

/// A matrix on top, or `code`.
bool HasMatrix(const Stack& stack, std::int32_t base, std::int32_t code) {
    if (!HasOperands(stack, base, 1)) {
        return false;
    }
    if (!IsMatrix(stack.Top())) {
        Fail(code);
        return false;
    }
    return true;
}

void Rank(Stack& stack, std::int32_t base) {
    if (HasMatrix(stack, base, ERROR_RANK)) {
        stack.Top() = MakeNumber(RankOf(stack.Top()));
    }
}

void Diagonalise(Stack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    if (!IsSymmetric(stack.Top())) {
        Fail(ERROR_NOT_SYMMETRIC);
        return;
    }
    CalcValue vectors;
    if (!EigenvectorsOf(stack.Top(), vectors)) {
        return;
    }
    CalcValue rotated;
    MatrixMultiply(stack.Top(), vectors, rotated);
    // The cut-off of the product makes the elements beside the diagonal exact zeros.
    MatrixMultiply(Transposed(vectors), rotated, stack.Top());
}

void Orthonormal(Stack& stack, std::int32_t base) {
    if (HasMatrix(stack, base, ERROR_SYNTAX)) {
        Orthonormalise(stack.Top());
    }
}

void Triangular(Stack& stack, std::int32_t base) {
    if (HasMatrix(stack, base, ERROR_RANK)) {
        Reduce(stack.Top());
    }
}

constexpr OperatorRow<CalcValue> kRows[] = {
    {u"+", 2, Add},           {u"-", 2, Subtract},       {u"*", 2, Multiply},
    {u"/", 2, Divide},        {u"inv", 1, Invert},       {u"trans", 1, Transpose},
    {u"det", 1, Determinant}, {u"eigl", 1, Eigenvalues}, {u"eigv", 1, Eigenvectors},
    {u"rank", 1, Rank},       {u"diag", 1, Diagonalise}, {u"orth", 1, Orthonormal},
    {u"tri", 1, Triangular},
};

}  // namespace

std::span<const OperatorRow<CalcValue>> MatrixOperatorTable() {
    return kRows;
}

}  // namespace quorix
