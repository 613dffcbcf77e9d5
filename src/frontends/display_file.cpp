#include "frontends/display_file.h"

#include "engine/key_engine.h"
#include "platform/archive.h"
#include "platform/files.h"

namespace quorix {

namespace {

constexpr bool IsFormat(std::uint32_t id) {
    return id == FORMAT_FIX || id == FORMAT_NORM || id == FORMAT_SCI || id == FORMAT_FRAC;
}
constexpr bool IsBase(std::uint32_t id) {
    return id >= RADIX_BIN && id <= RADIX_HEX;
}

}  // namespace

void DisplayFile::Restore(CLedDisplay& display) const {
    const auto bytes = ReadWholeFile(path_);
    if (bytes) {
        try {
            ArchiveReader archive(*bytes);
            for (auto& page : display.lines_) {
                for (TokenLine& line : page) {
                    const std::u16string text = archive.ReadString();
                    line.Set(text, archive.ReadString());
                }
            }
            for (int page = 0; page < kPageCount; ++page) {
                for (auto& memory : display.memories_) {
                    memory[CLedDisplay::Index(page)] = archive.ReadString();
                }
            }
            const std::uint32_t savedBase = archive.ReadU32();
            const std::uint32_t format = archive.ReadU32();
            if (IsBase(savedBase)) {
                display.savedBase_ = static_cast<std::int32_t>(savedBase);
            }
            display.format_ =
                IsFormat(format) ? static_cast<std::int32_t>(format) : std::int32_t{FORMAT_NORM};
        } catch (const ArchiveException&) {
            KeepDamagedFile(path_);
            display.lines_ = {};
            display.memories_ = {};
            display.format_ = FORMAT_NORM;
        }
    }
    KeyEngineReset();
    display.currentFormat_ = display.format_;
    display.Invalidate();
}

bool DisplayFile::Save(const CLedDisplay& display) const {
    ArchiveWriter archive;
    for (const auto& page : display.lines_) {
        for (const TokenLine& line : page) {
            archive.WriteString(line.Text());
            archive.WriteString(line.TokenLengths());
        }
    }
    for (int page = 0; page < kPageCount; ++page) {
        for (const auto& memory : display.memories_) {
            archive.WriteString(memory[CLedDisplay::Index(page)]);
        }
    }
    const std::int32_t base = display.page_ == 2 ? display.base_ : display.savedBase_;
    archive.WriteU32(static_cast<std::uint32_t>(base));
    archive.WriteU32(static_cast<std::uint32_t>(display.format_));
    return WriteFileAtomically(path_, archive.Bytes());
}

}  // namespace quorix
