#include <gmock/gmock.h>

#include "engine/engine_errors.h"
#include "engine/identifiers.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

using Engine = QComplex (*)(std::u16string_view, std::int32_t);

class KeyEngineTest : public EngineTest {
  protected:
    // Presses the tokens of a text that is cut at its blanks. Digits take the radix, as the display sends
    // them; with `puttingBack` the value of a good "=" is put back as the display does.
    QComplex Press(std::string_view keys, Engine engine = KeyEngineStandard, std::int32_t radixId = RADIX_DEC,
                   bool puttingBack = false) {
        QComplex value;
        const std::u16string text = Wide(keys);
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = std::min(text.find(u' ', at), text.size());
            const std::u16string token = text.substr(at, end - at);
            value = engine(token, radixId);
            if (puttingBack && token == u"=") KeyEngineSetResult(value);
            at = end + 1;
        }
        return value;
    }

    std::string Result(std::string_view keys, Engine engine = KeyEngineStandard,
                       std::int32_t radixId = RADIX_DEC, bool puttingBack = false) {
        EngineTest::SetUp();
        const QComplex value = Press(keys, engine, radixId, puttingBack);
        const std::int32_t error = calcContext().calcError;
        return error != 0 ? "error " + std::to_string(error) : TextOf(value);
    }
};

TEST_F(KeyEngineTest, StandardSequencesEndInWhatTheUserExpects) {
    for (const auto& [keys, result] :
         Rows("2 + 3 = -> 5; 2 + 3 * 4 = -> 14; 2 * 3 + 4 = -> 10; "
              "2 * 3 + -> 6; "  // The product is shown before the sum goes on.
              "8 / 2 / 2 = -> 2; ( 2 + 3 ) * 4 = -> 20; "
              "2 * ( 3 + 4 = -> 14; "  // "=" closes what is open.
              "2 + * 3 = -> 6; "       // The second operator replaces the first.
              "1 + 2 * - 3 = -> 0; "
              "+ 5 = -> 5; "  // A zero stands in front.
              "5 - = -> -5; "
              "1 2 . 3 + 4 = -> 7; "  // "." drops the entry.
              "1 2 .. 3 4 = -> 12.34; .. 5 = -> 0.5; 5 .. .. 2 = -> 5.2; 5 + .. 2 5 = -> 5.25; "
              "5 NEG 3 = -> -53; "  // Digits extend the magnitude.
              "5 .. 5 NEG 5 = -> -5.55; NEG -> 0; 200 + 10 % = -> 220; 200 - 10 % = -> 180; PI 2 = -> 2; "
              "PI .. 5 = -> 0.5; 2 * PI = -> 6.28318530717958647692528676655901; 7 + 9 \u2212 = -> 7; "
              "123456789012345678901234567890 * 10 = -> 1.23456789012345678901234567890000E30; "
              "5 + 10 - 3 DoNothing -> 12; "
              "9 + 4 * 5 DoNothing -> 20; "  // One operator alone is applied.
              "12 34 = -> 34; "              // A whole number replaces the entry.
              "4 .. 5 67 = -> 67; 3 + 12.5E1 = -> 128; 1 / 0 = -> error -56; 1 + 2 / 0 = -> error -56; "
              "1 + 2 / 0 * 3 = -> error -56; 2 + )  -> error -8; 2 nosuch -> error -1; "
              "5 sin -> 0.08715574274765817355806427083747; "
              "5 ctan -> error -1; "  // A function that has no row.
              "8 ln = = -> 0.73209936808644536438280607868986; 1e6000 -> error -56; i -> 0")) {
        EXPECT_EQ(Result(keys), result) << keys;
    }
}

TEST_F(KeyEngineTest, EqualsPressedAgainRepeats) {
    for (const auto& [keys, result] :
         Rows("2 + 3 = = -> 8; 2 + 3 = = = -> 11; 5 = -> 5; 5 = = -> 5; 2 + 3 = 10 = -> 10; "
              "2 + 3 = 10 = = -> 13; 9 ^ 2 DoNothing = -> 81; 2 * 3 = = + 1 = -> 19; 2 + 3 = NEG = -> -5; "
              "= -> 0; 2 - 7 = = -> -12")) {
        EXPECT_EQ(Result(keys), result) << keys;
        EXPECT_EQ(Result(keys, KeyEngineStandard, RADIX_DEC, true), result) << "put back: " << keys;
    }
    // A repeat that fails forgets the operation.
    EXPECT_EQ(Result("8 / 0 = ="), "error -56");
    ClearCalcError();
    EXPECT_TRUE(repeatRegisters().lastOperator.empty());
    EXPECT_EQ(TextOf(Press("=")), "0");
    // A value put back that is no result ends the repeat.
    EXPECT_EQ(Result("2 + 3 ="), "5");
    KeyEngineSetResult({Real("40"), {}});
    EXPECT_EQ(TextOf(Press("=")), "40");
}

TEST_F(KeyEngineTest, EnteringKeepsItsState) {
    const struct {
        std::string_view keys;
        EntryState state;
        int depth;
    } rows[] = {{"5", ENTRY_INTEGER, 1},       {"5 +", ENTRY_OPERATOR, 1},   {"5 ..", ENTRY_FRACTION, 1},
                {"5 .. 2", ENTRY_FRACTION, 1}, {"PI", ENTRY_CONSTANT, 1},    {"5 =", ENTRY_NONE, 1},
                {"5 + 3 =", ENTRY_NONE, 1},    {"5 = =", ENTRY_NONE, 1},     {"5 (", ENTRY_NONE, 1},
                {"5 Pop", ENTRY_NONE, 0},      {"5 .", ENTRY_NONE, 0},       {"5 + .", ENTRY_NONE, 1},
                {"5 + 3 .", ENTRY_NONE, 1},    {"5 + 3 . .", ENTRY_NONE, 0}, {"i", ENTRY_INTEGER, 0},
                {"i 5", ENTRY_INTEGER, 1}};
    for (const auto& row : rows) {
        Result(row.keys);
        EXPECT_EQ(KeyEngineEntryState(), row.state) << row.keys;
        EXPECT_EQ(KeyEngineDepth(), row.depth) << row.keys;
    }
    Result("1 .. 5 0");
    EXPECT_EQ(KeyEngineFractionDigits(), 2);
}

TEST_F(KeyEngineTest, DigitsFollowTheRadix) {
    EXPECT_EQ(Result("F F", KeyEngineStandard, RADIX_HEX), "255");
    EXPECT_EQ(Result("1 0 1", KeyEngineStandard, RADIX_BIN), "5");
    EXPECT_EQ(Result("7 7", KeyEngineStandard, RADIX_OCT), "63");
    EXPECT_EQ(Result("8", KeyEngineStandard, RADIX_OCT), "error -1");
    EXPECT_EQ(Result("1 A", KeyEngineStandard, RADIX_DEC), "error -1");
}

TEST_F(KeyEngineTest, PolishSequences) {
    for (const auto& [keys, result] :
         Rows("2 ( 3 + -> 5; 2 ( 3 ( 4 * + -> 14; 8 ( 2 / -> 4; "
              "8 ( 2 / 5 -> 45; "  // A digit right behind an operator appends to the result.
              "5 - -> -5; "        // One operand is negated.
              "+ -> error -1; 5 + -> error -1; 5 sin -> 0.08715574274765817355806427083747; 2 ( 3 = -> 3; "
              "1 0 ( 4 DoNothing 5 * -> 20; 5 .. 2 ( PI Pop -> 3.1415926535897932384626433832795; "
              "12 ( 5 . -> 0; 12 ( 5 . ( 2 * -> 24"))
        EXPECT_EQ(Result(keys, KeyEngineRpn), result) << keys;
    // An operator that fails leaves its operands.
    Result("5 ( 7 nosuch", KeyEngineRpn);
    EXPECT_EQ(KeyEngineDepth(), 2);
    EXPECT_EQ(TextOf(KeyEngineTop()), "7");
}

TEST_F(KeyEngineTest, TheOperandStackHas128Places) {
    for (int i = 0; i < 128; ++i) Press("1 (", KeyEngineRpn);
    EXPECT_EQ(calcContext().calcError, 0);
    EXPECT_EQ(KeyEngineDepth(), 128);
    for (const std::string_view key : {"7", "PI", ".."}) {
        ClearCalcError();
        Press(key, KeyEngineRpn);
        EXPECT_EQ(calcContext().calcError, ERROR_SYNTAX) << key;
        EXPECT_EQ(KeyEngineDepth(), 128);
        EXPECT_EQ(KeyEngineEntryState(), ENTRY_NONE);
        EXPECT_EQ(TextOf(KeyEngineTop()), "1");
    }
    ClearCalcError();
    EXPECT_EQ(TextOf(Press("+ +", KeyEngineRpn)), "3");
    // Open parentheses are bounded as well.
    KeyEngineReset();
    for (int i = 0; i < 3000; ++i) Press("(");
    EXPECT_EQ(calcContext().calcError, ERROR_SYNTAX);
    ClearCalcError();
    EXPECT_EQ(TextOf(Press("5 =")), "5");
}

TEST_F(KeyEngineTest, LongEntriesStayFiniteAndExact) {
    std::string keys = "0 ..";
    for (int i = 0; i < 300; ++i) keys += " 0";
    EXPECT_EQ(Result(keys + " 5 ="), "5.00000000000000000000000000000000E-301");
    for (int i = 0; i < 5000; ++i) keys += " 9";
    EXPECT_EQ(Result(keys), "1.00000000000000000000000000000000E-300");
    keys = "9";
    for (int i = 0; i < 5100; ++i) keys += " 9";
    EXPECT_EQ(Result(keys), "error -56");
}

TEST_F(KeyEngineTest, RecallAndRoundingOfImaginaryParts) {
    KeyEnginePush({Real("2"), Real("1e-70")});
    KeyEngineSetEntryState(ENTRY_FRACTION);
    EXPECT_EQ(KeyEngineEntryState(), ENTRY_FRACTION);
    repeatRegisters().right.im = Real("1");
    KeyEngineClearImaginary();
    EXPECT_EQ(KeyEngineTop(), (QComplex{Real("2"), {}}));
    EXPECT_TRUE(repeatRegisters().right.im.IsZero());
    // A percentage of a complex number is refused.
    Press("+");
    KeyEnginePush({Real("2"), Real("1")});
    Press("%");
    EXPECT_EQ(calcContext().calcError, ERROR_COMPLEX_UNSUPPORTED);
}

}  // namespace
}  // namespace quorix
