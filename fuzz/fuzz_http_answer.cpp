// Feeds bytes as an HTTP answer. Whole and byte by byte it must come to the same.

#include <cstddef>
#include <cstdint>

#include "platform/http_exchange.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorix;
    constexpr std::size_t kMostBytes = 512;
    const std::size_t wanted = size > 0 ? data[0] % 32 : 0;
    HttpAnswer whole(wanted, kMostBytes);
    whole.Take({data, size});
    whole.Close();
    HttpAnswer pieces(wanted, kMostBytes);
    for (std::size_t i = 0; i < size; ++i) {
        pieces.Take({data + i, 1});
    }
    pieces.Close();
    if (whole.Current() != pieces.Current() || whole.Body().size() > kMostBytes ||
        (whole.Current() == HttpAnswer::State::done && whole.Body() != pieces.Body())) {
        __builtin_trap();
    }
    return 0;
}
