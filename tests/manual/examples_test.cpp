// Every worked example of the manual, pressed key by key.

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "console/console_session.h"
#include "engine/calc_context.h"
#include "engine/eval_matrix.h"
#include "frontends/macro_file.h"
#include "manual/key_script.h"
#include "manual/manual_page.h"
#include "matrix/matrix_operators.h"

namespace quorix {
namespace {

using testing::FrameRig;
using testing::ManualExample;
using testing::ManualPage;
using testing::PressScript;
using testing::Squeeze;
using testing::TemporaryFolder;

constexpr std::size_t kLeastExamples = 120;

const ManualPage& Manual() {
    static const ManualPage page;
    return page;
}

/// As the display paints it: its decimal comma is one of its own.
std::string Shown(std::string text) {
    constexpr std::string_view kDisplayCommaUtf8 = "\u00B8";
    for (std::size_t at = 0; (at = text.find(kDisplayCommaUtf8, at)) != text.npos;) {
        text.replace(at, kDisplayCommaUtf8.size(), ",");
    }
    return Squeeze(text);
}

std::u16string_view ModeOf(const std::string& name) {
    return name == "Basic-Standard" ? kModeBasic : name == "Basic-RPN" ? kModeRpn : kModeString;
}

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

/// A line of the console calculator puts a list or a matrix where the keys find it.
void Assign(const std::string& line) {
    std::string answer;
    EXPECT_TRUE(ConsoleSession({}).Evaluate(line, answer)) << line << ": " << answer;
}

/// data-list="1 2 4", data-matrix="VA=1 2;3 4".
void SetVariables(const ManualExample& example) {
    if (const std::string list = example.Setting("list"); !list.empty()) {
        Assign("LIST=" + list);
    }
    if (const std::string matrix = example.Setting("matrix"); !matrix.empty()) {
        const std::size_t equals = matrix.find('=');
        Assign('[' + matrix.substr(0, equals) + "]=[" + matrix.substr(equals + 1) + ']');
    }
}

/// data-macro="name|parameters|expression".
void WriteMacro(const std::string& text, const std::filesystem::path& folder) {
    const std::vector<std::string> parts = Split(text, '|');
    Macro macro{.name = FromUtf8(parts.at(0)),
                .parameters = FromUtf8(parts.at(1)),
                .remark = {},
                .expression = FromUtf8(parts.at(2)),
                .tokenLengths = {}};
    macro.parameterCount = static_cast<std::uint8_t>(1 + std::ranges::count(macro.parameters, u','));
    macro.tokenLengths.assign(macro.expression.size(), u'1');
    MacroList macros;
    macros.Store(macro);
    ASSERT_TRUE(MacroFiles(folder).Save(macros));
}

void Prepare(FrameRig& rig, const ManualExample& example) {
    Preferences settings = rig.frame.UserSettings();
    settings.calculator.inputMode = ModeOf(example.Setting("mode"));
    settings.calculator.numberLocale = FromUtf8(example.Setting("locale", "English (US)"));
    settings.calculator.fixDigits = static_cast<std::uint8_t>(std::stoi(example.Setting("fix", "4")));
    settings.calculator.fractionLimit =
        static_cast<std::uint32_t>(std::stoi(example.Setting("fraction", "0")));
    rig.frame.ApplyPreferences(settings);
    rig.frame.SwitchCategory(std::stoi(example.Setting("category", "0")));
}

void CheckOnTheCalculator(const ManualExample& example) {
    ClearAllVariables();
    SetVariables(example);
    const TemporaryFolder folder;
    if (const std::string macro = example.Setting("macro"); !macro.empty()) {
        WriteMacro(macro, folder.Path());
    }
    FrameRig rig(folder.Path());
    Prepare(rig, example);
    EXPECT_EQ(PressScript(rig, example.keys), "");
    EXPECT_EQ(Shown(rig.Result()), Shown(example.result));
    if (!example.line.empty()) {
        EXPECT_EQ(Shown(rig.Row()), Shown(example.line));
    }
}

/// Lines of the console calculator between " ; ".
void CheckOnTheConsole(const ManualExample& example) {
    ClearAllVariables();
    std::vector<std::string> words = Split(example.Setting("options"), ' ');
    const std::vector<std::string_view> arguments(words.begin(), words.end());
    const ParsedOptions parsed = ParseOptions(arguments);
    ASSERT_EQ(parsed.error, "");
    ConsoleSession session(parsed.options);
    std::string output;
    for (const std::string& line : Split(example.keys, '|')) {
        output.clear();
        session.Evaluate(Squeeze(line), output);
    }
    EXPECT_EQ(Shown(output), Shown(example.result));
}

TEST(ManualExamples, ComputeWhatThePageSays) {
    SetMatrixOperators(MatrixOperatorTable());
    std::size_t pressed = 0;
    for (const ManualExample& example : Manual().Examples()) {
        SCOPED_TRACE(example.keys);
        if (example.Setting("program") == "quorix-calc") {
            CheckOnTheConsole(example);
        } else {
            CheckOnTheCalculator(example);
            ++pressed;
        }
    }
    EXPECT_GE(pressed, kLeastExamples);
}

TEST(ManualExamples, AWrongResultOrKeyIsFound) {
    FrameRig rig;
    EXPECT_EQ(PressScript(rig, "1 ÷ 8 ="), "");
    EXPECT_EQ(Shown(rig.Result()), "0.125");
    EXPECT_NE(PressScript(rig, "asin"), "") << "an orange word needs SHIFT or holding";
    EXPECT_NE(PressScript(rig, "[choose Nothing]"), "");
    EXPECT_NE(PressScript(rig, "[tap nothing]"), "");
    EXPECT_NE(PressScript(rig, "[hold log]"), "") << "a plain word is not reached by holding";
}

/// Every function key of the six pages stands in the script of some example of its page.
TEST(ManualExamples, PressEveryFunctionKey) {
    for (int category = 0; category <= kLastPanelCategory; ++category) {
        std::string scripts = " ";
        for (const ManualExample& example : Manual().Examples()) {
            if (example.Setting("category", "0") == std::to_string(category)) {
                scripts += example.keys + ' ';
            }
        }
        for (int cell = CELL_MENU; cell < kUpperCellCount; ++cell) {
            for (const bool orange : {false, true}) {
                const PanelAction action = UpperAction(category, cell, orange, RADIX_HEX);
                const std::string label = testing::PrintedLabel(category, {Panel::upper, cell}, orange);
                const bool hexDigit = action.key >= KEY_HEX_A && action.key <= KEY_HEX_F;
                const bool opensMissingWindow = action.key == KEY_NONE && category >= CATEGORY_STATISTICS;
                if (action == PanelAction{} || hexDigit || opensMissingWindow ||
                    (orange && action == UpperAction(category, cell, false, RADIX_HEX))) {
                    continue;
                }
                if (cell >= CELL_FIRST_GENERAL && category != CATEGORY_ARITHMETIC) {
                    continue;
                }
                EXPECT_TRUE(scripts.find(' ' + label + ' ') != scripts.npos ||
                            scripts.find("[hold " + label + ']') != scripts.npos)
                    << label << " of category " << category;
            }
        }
    }
}

}  // namespace
}  // namespace quorix
