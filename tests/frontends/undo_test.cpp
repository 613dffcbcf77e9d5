#include <gtest/gtest.h>

#include <random>

#include "frontends/base_conversion.h"
#include "frontends/categories.h"
#include "frontends/display_file.h"
#include "support/calculator_rig.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

using testing::CalculatorRig;

struct Shown {
    std::u16string text;
    std::u16string lengths;
    friend bool operator==(const Shown&, const Shown&) = default;
};

Shown LineOf(const CalculatorRig& rig) {
    return {rig.display->GetLine(), rig.display->GetTokenLengths()};
}

TEST(Undo, WalksBackThroughEveryStepAndForthAgain) {
    CalculatorRig rig;
    std::mt19937 random(7);
    std::vector<Shown> steps{LineOf(rig)};
    constexpr std::int32_t kKeys[] = {KEY_1,      KEY_SIN,   KEY_ASINH,  KEY_SQUARE_ROOT,
                                      KEY_DELETE, KEY_LEFT,  KEY_RIGHT,  KEY_PLUS,
                                      KEY_RECALL, KEY_CLEAR, KEY_EQUALS, KEY_ANGLE};
    while (steps.size() < LineHistory::kMostSteps) {
        switch (random() % 16) {
            case 0: rig.display->Paste(u"12+3"); break;
            case 1: rig.display->InsertTokens(u"cos(8", u"41"); break;
            case 2: rig.display->InsertText(u"-1234.5", true); break;
            default: rig.Key(kKeys[random() % std::size(kKeys)]); break;
        }
        if (LineOf(rig) != steps.back()) {
            steps.push_back(LineOf(rig));
        }
    }
    for (std::size_t at = steps.size() - 1; at > 0; --at) {
        ASSERT_TRUE(rig.display->Undo());
        ASSERT_EQ(LineOf(rig), steps[at - 1]) << at;
    }
    EXPECT_FALSE(rig.display->Undo());
    for (std::size_t at = 1; at < steps.size(); ++at) {
        ASSERT_TRUE(rig.display->Redo());
        ASSERT_EQ(LineOf(rig), steps[at]) << at;
    }
    EXPECT_FALSE(rig.display->Redo());
    rig.display->Undo();
    rig.Type("9");
    EXPECT_FALSE(rig.display->Redo());  // a new edit ends what could be done again
}

TEST(Undo, EveryLineHasItsOwnHistoryWhichMovesWithIt) {
    CalculatorRig rig;
    rig.Type("1+1=c2=");
    EXPECT_EQ(ToUtf8(rig.display->LineAt(0, 2).Text()), "1+1");
    rig.Type("#152");  // line 2, which "=" has filled
    EXPECT_FALSE(rig.display->Undo());
    rig.Type("7#151");
    rig.display->Undo();
    rig.display->Undo();
    EXPECT_EQ(rig.Row(), "1+1");
    rig.Enter(CATEGORY_BASE_CONVERSION);
    rig.Type("255");
    CycleBase(*rig.display);
    EXPECT_EQ(rig.Row(), "FF");
    ASSERT_TRUE(rig.display->Undo());
    EXPECT_EQ(rig.Row(), "255");
    EXPECT_EQ(rig.display->GetBase(), RADIX_DEC);
}

TEST(Undo, IsBoundedAndEndsWithARestoredFileAndInBasicModes) {
    CalculatorRig rig;
    for (int i = 0; i < 300; ++i) {
        rig.display->Paste(u"1");
    }
    int steps = 0;
    while (rig.display->Undo()) {
        ++steps;
    }
    EXPECT_EQ(steps, static_cast<int>(LineHistory::kMostSteps));
    rig.display->SetLine(std::u16string(8000, u'1'), {});
    for (int i = 0; i < 100; ++i) {
        rig.display->Paste(u"1");
    }
    for (steps = 0; rig.display->Undo();) {
        ++steps;
    }
    EXPECT_EQ(steps, static_cast<int>(LineHistory::kMostCharacters / 8000));
    const testing::TemporaryFolder folder;
    const DisplayFile file(folder / "box.dat");
    ASSERT_TRUE(file.Save(*rig.display));
    rig.Type("5");
    file.Restore(*rig.display);
    EXPECT_FALSE(rig.display->Undo());
    rig.Type("5");
    rig.settings.inputMode = kModeBasic;
    EXPECT_FALSE(rig.display->Undo());
}

}  // namespace
}  // namespace quorix
