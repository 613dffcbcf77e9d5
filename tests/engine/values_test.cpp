#include <gmock/gmock.h>

#include "engine/error_table.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

using ValuesTest = EngineTest;

TEST_F(ValuesTest, ErrorTableAnswersByCode) {
    const struct {
        std::int32_t code;
        std::string_view message;
    } rows[] = {{-8, "Syntax error"},    {-9, "Integration error"}, {-41, "Sumation(Product) step error"},
                {-57, "Absolute error"}, {-58, "Unknown error"},    {1, "Unknown error"}};
    for (const auto& row : rows) EXPECT_EQ(Narrow(ErrorMessageFor(row.code)), row.message) << row.code;
}

TEST_F(ValuesTest, VariablesAreFoundByNameInSlotOrder) {
    const struct {
        std::u16string_view name;
        int slot;
    } rows[] = {{u"VVV", 0}, {u"vre", 1},   {u"VA", 2},    {u"vV", 23}, {u"VX", 24}, {u"VZ", 26},
                {u"VW", 27}, {u"VLRE", 28}, {u"list", 29}, {u"V", -1},  {u"", -1},   {u"VAA", -1}};
    for (const auto& row : rows) EXPECT_EQ(FindVariable(row.name), row.slot) << Narrow(row.name);
    EXPECT_EQ(VariableNames().size(), 30U);
}

TEST_F(ValuesTest, StoringAValueReplacesWhatWasThere) {
    const double data[] = {1, 2, 3, 4, 5, 6};
    SetVariableMatrix(SLOT_LIST, 2, 3, data);
    EXPECT_EQ(Variable(SLOT_LIST).kind, KIND_MATRIX);
    EXPECT_THAT(Variable(SLOT_LIST).data, testing::ElementsAre(1, 2, 3, 4, 5, 6));
    // A slot may be stored from itself.
    SetVariableComplex(5, {Real("3"), Real("4")});
    EXPECT_EQ(Variable(5).kind, KIND_COMPLEX);
    SetVariableNumber(5, Variable(5).number);
    EXPECT_EQ(Variable(5).kind, KIND_REAL);
    EXPECT_EQ(TextOf(Variable(5).number), "3");
    SetVariableNumber(SLOT_LIST, {Real("7"), Real("1")});
    EXPECT_EQ(Variable(SLOT_LIST).kind, KIND_REAL);
    EXPECT_TRUE(Variable(SLOT_LIST).data.empty());
    SetVariableMatrix(3, 1, 1, data);
    ClearVariable(3);
    ClearVariable(3);
    EXPECT_EQ(Variable(3).kind, KIND_REAL);
    ClearAllVariables();
    EXPECT_TRUE(Variable(5).number.re.IsZero());
}

}  // namespace
}  // namespace quorix
