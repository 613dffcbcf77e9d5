#include "shell/preferences_pages.h"

#include <algorithm>

#include "platform/directory.h"
#include "platform/path.h"

namespace quorix {

int MoveRow(CategoryOrder& order, int row, RowMove move) {
    constexpr int kLast = kCategoryCount - 1;
    int to = row;
    switch (move) {
        case RowMove::top: to = 0; break;
        case RowMove::up: to = std::max(row - 1, 0); break;
        case RowMove::down: to = std::min(row + 1, kLast); break;
        case RowMove::bottom: to = kLast; break;
    }
    const auto from = order.begin() + row;
    const auto target = order.begin() + to;
    if (to < row) {
        std::rotate(target, from, from + 1);
    } else {
        std::rotate(from, from + 1, target + 1);
    }
    return to;
}

std::vector<FileChoice> FilesIn(const std::filesystem::path& programFolder, std::u16string_view pattern) {
    std::vector<FileChoice> files;
    for (const std::filesystem::path& path : ListFiles(programFolder, pattern)) {
        files.push_back({path.stem().u16string(), path.filename().u16string()});
    }
    return files;
}

std::vector<FileChoice> SkinChoices(const std::filesystem::path& programFolder) {
    std::vector<FileChoice> skins = FilesIn(programFolder, u"Interfaces\\*.inf");
    const auto standard = std::find_if(skins.begin(), skins.end(), [](const FileChoice& skin) {
        return SameFileName(skin.file, u"default.inf");
    });
    if (standard != skins.end()) {
        standard->shown = u"Default";
        std::rotate(skins.begin(), standard, standard + 1);
    }
    return skins;
}

std::vector<FileChoice> SoundChoices(const std::filesystem::path& programFolder) {
    return FilesIn(programFolder, u"Sounds\\*.wav");
}

std::u16string_view InputModeOf(bool basic, bool reversePolish) {
    return !basic ? kModeString : reversePolish ? kModeRpn : kModeBasic;
}

}  // namespace quorix
