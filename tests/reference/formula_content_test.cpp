// The formula library as it is shipped.

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <regex>
#include <sstream>

#include "numerics/qcore.h"
#include "platform/files.h"
#include "reference/formula_files.h"
#include "reference/formula_library.h"
#include "reference/formula_sheet.h"
#include "support/engine_fixture.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

namespace fs = std::filesystem;

const fs::path kFolder = fs::path(QUORIX_SOURCE_DIR) / "assets" / "Formulas";
constexpr int kTuplesPerFormula = 8;
constexpr double kTolerance = 1e-9;

/// Values that a parameter is drawn from.
struct Range {
    double low, high;
    bool whole;
};
using Ranges = std::map<std::string, Range>;

/// The lines "# symbol: low to high", optionally with "whole", of each formula in the import text.
std::map<FormulaId, Ranges> RangesOfText(const std::string& text) {
    const std::regex pattern(R"(# (\w+): (\S+) to (\S+)( whole)?)");
    std::map<FormulaId, Ranges> ranges;
    FormulaId id = 0;
    std::istringstream lines(text);
    std::smatch match;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("ForId = ")) {
            id = ParseFormulaId(std::string_view(line).substr(8));
        } else if (std::regex_match(line, match, pattern)) {
            ranges[id][match[1]] = {std::stod(match[2]), std::stod(match[3]), match[4].matched};
        }
    }
    return ranges;
}

class FormulaContentTest : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        const auto bytes = ReadWholeFile(kFolder / "formula.dat");
        ASSERT_TRUE(bytes);
        import_ = ParseFormulaImport(*bytes);
        ASSERT_FALSE(import_.problem) << import_.problem->line << ": " << import_.problem->message;
        ranges_ = RangesOfText({bytes->begin(), bytes->end()});
    }

    /// Text that the engine reads.
    std::u16string Draw(const FormulaParameter& parameter, const Ranges& ranges) {
        if (const auto row = ranges.find(parameter.symbol); row != ranges.end()) {
            const Range& range = row->second;
            if (range.whole) {
                std::uniform_int_distribution<int> whole(static_cast<int>(range.low),
                                                         static_cast<int>(range.high));
                return Wide(std::to_string(whole(random_)));
            }
            return Draw(range.low, range.high);
        }
        if (!parameter.preset.empty()) {
            return Wide(parameter.preset);
        }
        return parameter.unit == "^o" ? Draw(10, 80) : Draw(0.5, 3);
    }
    std::u16string Draw(double low, double high) {
        return Wide(std::to_string(std::uniform_real_distribution<double>(low, high)(random_)));
    }

    FormulaImport import_;
    std::map<FormulaId, Ranges> ranges_;
    std::mt19937 random_{20};
};

TEST_F(FormulaContentTest, TheBuiltFilesAreThoseOfTheText) {
    const testing::TemporaryFolder folder;
    FormulaLibrary library(folder.Path());
    ASSERT_TRUE(library.ImportFormulas(kFolder / "formula.dat", false).done);
    for (const std::string_view name : {"indexfor.dat", "fordes.dat", "fordetail.dat", "fortree.dat"}) {
        EXPECT_EQ(ReadWholeFile(folder / name), ReadWholeFile(kFolder / name))
            << "build the target formulas anew: " << name;
    }
}

TEST_F(FormulaContentTest, EveryFormulaIsComplete) {
    const FormulaLibrary library(kFolder);
    const FormulaTree tree = library.ReadTree();
    EXPECT_GE(library.ReadIndex().size(), 200U);
    EXPECT_EQ(tree.Nodes().size(), import_.nodes.size() + 3) << "an identifier stands twice";
    const std::regex usesAngles(R"re(\ba?(sin|cos|tan)\()re");
    const std::regex bareParenthesis(R"re((^|[^t])[()])re");
    for (const ImportedFormula& formula : import_.formulas) {
        const FormulaDescription& description = formula.description;
        const FormulaDetail& detail = formula.detail;
        SCOPED_TRACE(FormulaIdText(detail.id) + " " + description.name);
        const FormulaNode* parent = tree.Find(ParentFormulaId(detail.id));
        EXPECT_TRUE(parent != nullptr && parent->IsFolder());
        EXPECT_FALSE(description.name.empty() || description.description.empty() || description.mime.empty());
        // The equation view would wrap a bare parenthesis, and does so only when no "t" stands before it.
        EXPECT_FALSE(std::regex_search(description.mime, bareParenthesis));
        EXPECT_EQ(std::count(description.mime.begin(), description.mime.end(), '{'),
                  std::count(description.mime.begin(), description.mime.end(), '}'));
        ASSERT_EQ(detail.solvedForms.size(), detail.parameters.size());
        const FormulaSheet sheet(detail);
        for (std::size_t k = 0; k < detail.parameters.size(); ++k) {
            EXPECT_FALSE(detail.parameters[k].description.empty());
            EXPECT_NE(description.mime.find(detail.parameters[k].label), std::string::npos)
                << detail.parameters[k].label;
            if (std::regex_search(detail.solvedForms[k], usesAngles)) {
                EXPECT_FALSE(sheet.MayChooseAngleUnit()) << detail.solvedForms[k];
            }
        }
    }
}

TEST_F(FormulaContentTest, SolvedFormsAgreeWithEachOther) {
    std::size_t checked = 0;
    for (const ImportedFormula& formula : import_.formulas) {
        const FormulaDetail& detail = formula.detail;
        const auto& parameters = detail.parameters;
        SCOPED_TRACE(FormulaIdText(detail.id) + " " + formula.description.name);
        std::vector<std::u16string> symbols;
        for (const FormulaParameter& parameter : parameters) {
            symbols.push_back(Wide(parameter.symbol));
        }
        const auto evaluate = [&](std::size_t k, const std::vector<std::u16string>& values) {
            SetAngleUnit(UNIT_DEGREES);
            ClearCalcError();
            const std::u16string text = SubstituteSymbols(Wide(detail.solvedForms[k]), symbols, values);
            const CalcValue value = EvaluateExpression(text, EvaluationMode::number, 10);
            EXPECT_EQ(calcContext().calcError, 0) << Narrow(text);
            EXPECT_LT(std::abs(qtoe(value.number.im)), 1e-16) << Narrow(text);
            return value.number.re;
        };
        for (int tuple = 0; tuple < kTuplesPerFormula; ++tuple) {
            std::vector<std::u16string> values(parameters.size(), u"0");
            for (std::size_t k = 1; k < parameters.size(); ++k) {
                values[k] = Draw(parameters[k], ranges_[detail.id]);
            }
            values[0] = ExponentAsPower(Wide(qtoasc(evaluate(0, values), 40)));
            for (std::size_t k = 1; k < parameters.size(); ++k) {
                if (detail.solvedForms[k].empty()) {
                    continue;
                }
                const QReal drawn = EvaluateExpression(values[k], EvaluationMode::number, 10).number.re;
                const double expected = qtoe(drawn);
                EXPECT_NEAR(qtoe(evaluate(k, values)), expected, kTolerance * std::abs(expected))
                    << detail.solvedForms[k];
                ++checked;
            }
        }
    }
    EXPECT_GT(checked, 5000U);
}

}  // namespace
}  // namespace quorix
