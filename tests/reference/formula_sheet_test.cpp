#include "reference/formula_sheet.h"

#include <gtest/gtest.h>

#include "support/engine_fixture.h"

namespace quorix {
namespace {

constexpr std::string_view kKeep =
    "Keep only the edit field you want to calculate empty.\nOnly * parameter is supported.";

/// A sheet of one form for the first of the symbols; the fields behind it are filled in.
class FormulaSheetTest : public EngineTest {
  protected:
    static std::string Solve(std::string_view form, const std::vector<std::string>& symbols,
                             const std::vector<std::string>& values, std::int32_t unit = UNIT_RADIANS,
                             std::string_view angleMark = "") {
        FormulaDetail detail;
        detail.parameters.push_back({"result", "", std::string(angleMark), "", ""});
        for (const std::string& symbol : symbols) {
            detail.parameters.push_back({symbol, "", "", "", ""});
        }
        detail.solvedForms = {std::string(form)};
        FormulaSheet sheet(detail);
        EXPECT_EQ(sheet.MayChooseAngleUnit(), angleMark.empty());
        for (std::size_t i = 0; i < values.size(); ++i) {
            sheet.SetField(i + 1, Wide(values[i]));
        }
        const FormulaOutcome outcome = sheet.Calculate(unit);
        return Narrow(outcome.solved ? sheet.Field(outcome.field) : outcome.message);
    }
};

TEST_F(FormulaSheetTest, ValuesTakeThePlacesOfSymbols) {
    const struct {
        std::string_view form;
        std::vector<std::string> symbols, values;
        std::string_view result;
    } rows[] = {
        {"a+b*c", {"a", "b", "c"}, {"1", "2", "3"}, "7"},
        // Names of functions and constants hold letters that are symbols elsewhere.
        {"sqrt(S)+sqrt(s*q)", {"S", "s", "q"}, {"4", "3", "27"}, "11"},
        {"p*pi/pi+abs(i)", {"p", "i"}, {"2", "-3"}, "5"},
        {"v0+v*V1", {"v", "V1", "v0"}, {"2", "5", "1"}, "11"},
        {"ln(e^n)+log(10)", {"n"}, {"3"}, "4"},
        {"2E+E^2", {"E"}, {"3"}, "15"},
        {"x^2", {"x"}, {"-3"}, "9"},
        {"3*\\alpha", {"\\alpha"}, {"2"}, "6"},
        {"n!/k!", {"n", "k"}, {"5", "3"}, "20"},
        {"m*c", {"m", "c"}, {"1.5E-3", "2e+3"}, "3"},
        {"m*c", {"m", "c"}, {"1/4", "1+1"}, "0.5"},
        // Twelve decimals; beyond them an exponent as the fields take it.
        {"a/b", {"a", "b"}, {"1", "3"}, "0.333333333333"},
        {"a*b", {"a", "b"}, {"2*10^(20)", "4"}, "8.000000000000*10^(20)"},
        {"a*b", {"a", "b"}, {"-2", "10^(-20)"}, "-2.000000000000*10^(-20)"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Solve(row.form, row.symbols, row.values), row.result) << row.form;
    }
}

TEST_F(FormulaSheetTest, WhatCannotBeComputedIsTold) {
    EXPECT_EQ(Solve("a+b", {"a", "b"}, {"1"}), kKeep);
    EXPECT_EQ(Solve("a+b", {"a", "b"}, {"1", "  "}), kKeep);
    EXPECT_EQ(Solve(" ", {"a"}, {"1"}), kKeep);
    EXPECT_EQ(Solve("", {"a"}, {"1"}), kKeep);
    EXPECT_EQ(Solve("1/a", {"a"}, {"0"}), "Invalid parameter(s)");
    EXPECT_EQ(Solve("sqrt(a)", {"a"}, {"-1"}), "Invalid parameter(s)!");
    EXPECT_EQ(Solve("a*unknown", {"a"}, {"1"}), "Syntax error");
    EXPECT_EQ(Solve("a", {"a"}, {std::string(5000, '1')}), "Syntax error");
    // An imaginary part below 1e-16 is noise.
    EXPECT_EQ(Solve("a+i*10^(-17)", {"a"}, {"2"}), "2");
    EXPECT_EQ(Solve("a-i*10^(-15)", {"a"}, {"2"}), "Invalid parameter(s)!");

    FormulaSheet full({0, {{"a", "", "", "", "1"}}, {"2"}});
    EXPECT_EQ(full.Calculate(UNIT_DEGREES).message, Wide(kKeep)) << "no field is empty";
    EXPECT_EQ(full.Field(0), u"1");
    FormulaSheet noForm({0, {{"a", "", "", "", ""}}, {}});
    EXPECT_EQ(noForm.Calculate(UNIT_DEGREES).message, Wide(kKeep));
}

TEST_F(FormulaSheetTest, AnglesFollowTheChoiceUnlessTheFormulaIsInDegrees) {
    EXPECT_EQ(Solve("sin(a)", {"a"}, {"pi/2"}, UNIT_RADIANS), "1");
    EXPECT_EQ(Solve("sin(a)", {"a"}, {"100"}, UNIT_GRADS), "1");
    for (const std::string_view mark : {"^o", "^0"}) {
        EXPECT_EQ(Solve("asin(a)", {"a"}, {"1"}, UNIT_RADIANS, mark), "90");
    }
    SetAngleUnit(UNIT_GRADS);
    calcContext().calcError = -5;
    EXPECT_EQ(Solve("sin(a)", {"a"}, {"30"}, UNIT_DEGREES), "0.5") << "an older error does not matter";
    EXPECT_EQ(calcContext().angleUnit, UNIT_GRADS);
    EXPECT_EQ(calcContext().calcError, -5);
}

}  // namespace
}  // namespace quorix
