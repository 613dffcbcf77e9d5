#include "frontends/display_file.h"

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

void DisplayFile::Restore(ExpressionEditor& editor) const {
    const auto bytes = ReadWholeFile(path_);
    if (bytes) {
        try {
            ArchiveReader archive(*bytes);
            for (auto& page : editor.lines_) {
                for (TokenLine& line : page) {
                    const std::u16string text = archive.ReadString();
                    line.Set(text, archive.ReadString());
                }
            }
            for (int page = 0; page < kPageCount; ++page) {
                for (auto& memory : editor.memories_) {
                    memory[ExpressionEditor::Index(page)] = archive.ReadString();
                }
            }
            const std::uint32_t savedBase = archive.ReadU32();
            const std::uint32_t format = archive.ReadU32();
            if (IsBase(savedBase)) {
                editor.savedBase_ = static_cast<std::int32_t>(savedBase);
            }
            editor.format_ = IsFormat(format) ? static_cast<std::int32_t>(format) : std::int32_t{FORMAT_NORM};
        } catch (const ArchiveException&) {
            KeepDamagedFile(path_);
            editor.lines_ = {};
            editor.memories_ = {};
            editor.format_ = FORMAT_NORM;
        }
    }
    editor.histories_ = {};
    editor.Restored();
    editor.currentFormat_ = editor.format_;
    editor.Invalidate();
}

bool DisplayFile::Save(const ExpressionEditor& editor) const {
    ArchiveWriter archive;
    for (const auto& page : editor.lines_) {
        for (const TokenLine& line : page) {
            archive.WriteString(line.Text());
            archive.WriteString(line.TokenLengths());
        }
    }
    for (int page = 0; page < kPageCount; ++page) {
        for (const auto& memory : editor.memories_) {
            archive.WriteString(memory[ExpressionEditor::Index(page)]);
        }
    }
    const std::int32_t base = editor.page_ == 2 ? editor.base_ : editor.savedBase_;
    archive.WriteU32(static_cast<std::uint32_t>(base));
    archive.WriteU32(static_cast<std::uint32_t>(editor.format_));
    return WriteFileAtomically(path_, archive.Bytes());
}

}  // namespace quorix
