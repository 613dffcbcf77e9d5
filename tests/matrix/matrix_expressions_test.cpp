#include <gtest/gtest.h>

#include "engine/calc_context.h"
#include "engine/eval_matrix.h"
#include "engine/evaluate.h"
#include "engine/variable_store.h"
#include "matrix/matrix_operators.h"
#include "numerics/qcore.h"
#include "platform/utf8.h"

namespace quorix {
namespace {

class MatrixExpressions : public ::testing::Test {
  protected:
    MatrixExpressions() {
        SetMatrixOperators(MatrixOperatorTable());
        ClearAllVariables();
        Store(u"VA", 2, 2, {1, 2, 3, 4});
        Store(u"VB", 2, 2, {0, 1, 1, 0});
        Store(u"VC", 2, 3, {1, 2, 3, 4, 5, 6});
        Store(u"VD", 2, 2, {2, 1, 1, 2});
        Store(u"VE", 2, 2, {1, 2, 2, 4});
        Store(u"VF", 2, 1, {5, 11});
        Store(u"VG", 3, 3, {2, 1, 1, 1, 2, 1, 1, 1, 2});
    }
    static void Store(std::u16string_view name, int rows, int cols, const std::vector<double>& data) {
        SetVariableMatrix(FindVariable(name), static_cast<std::uint16_t>(rows),
                          static_cast<std::uint16_t>(cols), data);
    }
    static CalcValue Evaluate(const char* text) {
        ClearCalcError();
        return EvaluateExpression(FromUtf8(text), EvaluationMode::matrix, 10);
    }
};

TEST_F(MatrixExpressions, GiveMatricesAndNumbers) {
    const struct {
        const char* text;
        int rows;
        std::vector<double> data;
    } cases[] = {{"[VA]+[VB]", 2, {1, 3, 4, 4}},
                 {"[VA]-[VB]", 2, {1, 1, 2, 4}},
                 {"-[VA]", 2, {-1, -2, -3, -4}},
                 {"[VA]*[VB]", 2, {2, 1, 4, 3}},
                 {"2*[VA]", 2, {2, 4, 6, 8}},
                 {"[VA]*0.5", 2, {0.5, 1, 1.5, 2}},
                 {"[VA]*[VC]", 2, {9, 12, 15, 19, 26, 33}},
                 {"trans([VC])", 3, {1, 4, 2, 5, 3, 6}},
                 {"inv([VB])", 2, {0, 1, 1, 0}},
                 {"[VA]/[VB]", 2, {2, 1, 4, 3}},
                 {"solve([VA],[VF])", 2, {1, 2}},
                 {"tri([VA])", 2, {1, 2, 0, -2}},
                 {"diag([VD])", 2, {3, 0, 0, 1}},
                 {"diag([VG])", 3, {4, 0, 0, 0, 1, 0, 0, 0, 1}},
                 {"(2-1)*[VA]*(1+1)", 2, {2, 4, 6, 8}},
                 {"eigl([VD])", 2, {3, 1}}};
    for (const auto& [text, rows, data] : cases) {
        const CalcValue value = Evaluate(text);
        EXPECT_EQ(calcContext().calcError, 0) << text;
        ASSERT_EQ(value.kind, KIND_MATRIX) << text;
        EXPECT_EQ(value.rows, rows) << text;
        ASSERT_EQ(value.data.size(), data.size()) << text;
        for (std::size_t i = 0; i < data.size(); ++i) {
            EXPECT_NEAR(value.data[i], data[i], 1e-12) << text << " " << i;
        }
    }
    const struct {
        const char* text;
        double number;
    } numbers[] = {{"det([VA])", -2}, {"rank([VE])", 1},   {"2+3*4", 14}, {"inv(4)", 0.25},
                   {"-3", -3},        {"det([VA])*2", -4}, {"[VX]", 0},   {"7/2", 3.5}};
    for (const auto& [text, number] : numbers) {
        const CalcValue value = Evaluate(text);
        EXPECT_EQ(calcContext().calcError, 0) << text;
        EXPECT_EQ(value.kind, KIND_REAL) << text;
        EXPECT_EQ(qtoe(value.number.re), number) << text;
    }
    // The stored matrices are copies of their own.
    Evaluate("tri([VA])");
    EXPECT_EQ(Variable(FindVariable(u"VA")).data[2], 3.0);
}

}  // namespace
}  // namespace quorix
