#include "engine/eval_matrix.h"
#include "matrix/matrix_operators.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

class MatrixExpressions : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        SetMatrixOperators(MatrixOperatorTable());
        Store(u"VA", 2, 2, {1, 2, 3, 4});
        Store(u"VB", 2, 2, {0, 1, 1, 0});
        Store(u"VC", 2, 3, {1, 2, 3, 4, 5, 6});
        Store(u"VD", 2, 2, {2, 1, 1, 2});
        Store(u"VE", 2, 2, {1, 2, 2, 4});
        Store(u"VF", 2, 1, {5, 11});
        Store(u"VG", 3, 3, {2, 1, 1, 1, 2, 1, 1, 1, 2});
    }
    void TearDown() override { SetMatrixOperators({}); }
    static void Store(std::u16string_view name, std::uint16_t rows, std::uint16_t cols,
                      const std::vector<double>& data) {
        SetVariableMatrix(FindVariable(name), rows, cols, data);
    }
};

TEST_F(MatrixExpressions, GiveMatricesAndNumbers) {
    for (const auto& [text, value] :
         Rows("[VA]+[VB] -> 2x2: 1 3 4 4; [VA]-[VB] -> 2x2: 1 1 2 4; -[VA] -> 2x2: -1 -2 -3 -4; "
              "[VA]*[VB] -> 2x2: 2 1 4 3; 2*[VA] -> 2x2: 2 4 6 8; [VA]*0.5 -> 2x2: 0.5 1 1.5 2; "
              "[VA]*[VC] -> 2x3: 9 12 15 19 26 33; trans([VC]) -> 3x2: 1 4 2 5 3 6; "
              "[VA]/[VB] -> 2x2: 2 1 4 3; solve([VA],[VF]) -> 2x1: 1 2; tri([VA]) -> 2x2: 1 2 0 -2; "
              "diag([VD]) -> 2x2: 3 0 0 1; diag([VG]) -> 3x3: 4 0 0 0 1 0 0 0 1; "
              "(2-1)*[VA]*(1+1) -> 2x2: 2 4 6 8; eigl([VD]) -> 2x1: 3 1; det([VA]) -> -2; rank([VE]) -> 1; "
              "inv(4) -> 0.25; -3 -> -3; det([VA])*2 -> -4; [VX] -> 0; 7/2 -> 3.5")) {
        EXPECT_EQ(Evaluate(text, 10, EvaluationMode::matrix), value) << text;
    }
    // The stored matrices are copies of their own.
    Evaluate("tri([VA])", 10, EvaluationMode::matrix);
    EXPECT_EQ(Variable(FindVariable(u"VA")).data[2], 3.0);
}

}  // namespace
}  // namespace quorix
