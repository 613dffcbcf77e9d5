// Expressions from the command line's view, against results computed by other programs.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "console/console_session.h"
#include "numerics/qcore.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

using ExpressionsTest = EngineTest;

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find(separator, at), text.size());
        if (separator != ' ' || end > at) parts.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return parts;
}

// |actual - expected| <= 10^-digits |expected|. An expected zero is met by less than 10^-digits.
bool AgreeTo(std::string actual, const std::string& expected, const std::string& digits) {
    std::erase(actual, ',');
    QReal a, b, allowed;
    if (!asctoq(actual, a) || !asctoq(expected, b) || !asctoq("1E-" + digits, allowed)) return false;
    qsub(b, a, a);
    if (!b.IsZero()) qmul(b, allowed, allowed);
    qabs(a);
    qabs(allowed);
    return qcmp(a, allowed) <= 0;
}

// Columns parted by tabulators: options, expression, the text expected or "number~digits".
TEST_F(ExpressionsTest, AgreeWithOtherPrograms) {
    std::ifstream file(std::string(QUORIX_TEST_DATA) + "/expressions.txt");
    std::string line;
    ASSERT_TRUE(std::getline(file, line));
    int count = 0;
    for (; std::getline(file, line); ++count) {
        const std::vector<std::string_view> columns = Split(line, '\t');
        ASSERT_EQ(columns.size(), 3U) << line;
        const ParsedOptions parsed = ParseOptions(Split(columns[0], ' '));
        ASSERT_TRUE(parsed.error.empty()) << parsed.error;
        std::string actual;
        ConsoleSession(parsed.options).Evaluate(columns[1], actual);
        const std::string expected(columns[2]);
        const std::size_t mark = expected.find('~');
        if (mark == std::string::npos) {
            EXPECT_EQ(actual, expected) << line;
        } else {
            EXPECT_TRUE(AgreeTo(actual, expected.substr(0, mark), expected.substr(mark + 1)))
                << line << "\nis " << actual;
        }
    }
    EXPECT_GT(count, 400);
}

}  // namespace
}  // namespace quorix
