// Lines of the console calculator: assignments, matrix literals, lists and whatever else a line may hold. The
// first byte picks the settings; the lines of the rest share one session.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "console/console_options.h"
#include "console/console_session.h"
#include "engine/eval_matrix.h"
#include "engine/variable_store.h"
#include "matrix/matrix_operators.h"

namespace {

using namespace quorix;

constexpr std::size_t kLongestInput = 512;
constexpr std::size_t kMostLines = 8;

constexpr std::array<std::array<std::string_view, 2>, 6> kSettings = {{{"--locale", "us"},
                                                                       {"--locale", "european"},
                                                                       {"--format", "frac"},
                                                                       {"--base", "16"},
                                                                       {"--angle", "rad"},
                                                                       {"--fixed", "3"}}};

// A series of millions of terms is slow by design; the named functions have a target of their own.
bool HoldsSeries(std::string_view text) {
    return text.find("fnSum") != std::string_view::npos || text.find("fnProduct") != std::string_view::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2 || size > kLongestInput) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    if (HoldsSeries(text)) return 0;
    ClearAllVariables();
    SetMatrixOperators(MatrixOperatorTable());
    ConsoleSession session(ParseOptions(kSettings[data[0] % kSettings.size()]).options);
    std::string output;
    std::size_t at = 0;
    for (std::size_t lines = 0; lines < kMostLines && at < text.size(); ++lines) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        session.Evaluate(text.substr(at, end - at), output);
        at = end + 1;
    }
    return 0;
}
