#include "platform/path.h"
#include "shell/colours.h"
#include "shell/skin.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::uint8_t> text(data, size);
    quorix::SkinColours colours;
    colours.Read(text);
    for (const bool vga : {false, true}) {
        if (const auto value = quorix::FindInSkinText(text, "LargeButtons", vga)) {
            static_cast<void>(quorix::ResolvePath("fuzz-no-such-folder", *value));
        }
    }
    return 0;
}
