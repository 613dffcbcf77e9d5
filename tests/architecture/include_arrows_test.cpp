// The folders of src/ are layers: an include may only point downward, and Qt stands only where windows are.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

/// For each folder the folders that its files may include, besides itself.
const std::map<std::string, std::set<std::string>> kArrows = {
    {"numerics", {}},
    {"platform", {}},
    {"engine", {"numerics"}},
    {"mtex", {"platform"}},
    {"matrix", {"numerics", "engine", "platform"}},
    {"equations", {"numerics", "engine", "matrix", "platform"}},
    {"reference", {"numerics", "engine", "platform"}},
    {"tools", {"numerics", "engine", "platform"}},
    {"frontends", {"numerics", "engine", "platform"}},
    {"shell", {"numerics", "engine", "matrix", "equations", "reference", "tools", "frontends", "platform"}},
    {"console", {"numerics", "engine", "matrix", "equations", "reference", "tools", "frontends", "platform"}},
    {"app",
     {"numerics", "engine", "matrix", "equations", "reference", "tools", "frontends", "platform", "shell"}},
};

struct Include {
    fs::path file;
    std::string target;
    bool system;
};

std::vector<Include> AllIncludes() {
    const std::regex pattern(R"re(^\s*#include ([<"])([^>"]+)[>"])re");
    std::vector<Include> includes;
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(fs::path(QUORIX_SOURCE_DIR) / "src")) {
        const std::string ending = entry.path().extension().string();
        if (ending != ".h" && ending != ".cpp") {
            continue;
        }
        std::ifstream stream(entry.path());
        std::smatch match;
        for (std::string line; std::getline(stream, line);) {
            if (std::regex_search(line, match, pattern)) {
                includes.push_back({fs::relative(entry.path(), fs::path(QUORIX_SOURCE_DIR) / "src"), match[2],
                                    match[1] == "<"});
            }
        }
    }
    return includes;
}

TEST(Architecture, IncludesFollowTheArrows) {
    std::size_t checked = 0;
    for (const Include& include : AllIncludes()) {
        if (include.system) {
            continue;
        }
        const std::string from = include.file.begin()->string();
        const std::string to = fs::path(include.target).begin()->string();
        ASSERT_TRUE(kArrows.contains(from)) << "unknown folder " << from;
        EXPECT_TRUE(from == to || kArrows.at(from).contains(to))
            << include.file << " includes " << include.target;
        EXPECT_TRUE(fs::exists(fs::path(QUORIX_SOURCE_DIR) / "src" / include.target))
            << include.file << " includes " << include.target << " by another path than from src/";
        ++checked;
    }
    EXPECT_GT(checked, 100U);
}

TEST(Architecture, QtStandsInWindowsAndPaintersOnly) {
    std::map<std::string, bool> usesQt;
    for (const Include& include : AllIncludes()) {
        if (include.system && std::regex_match(include.target, std::regex("(Q[A-Z].*|Qt[A-Z].*)"))) {
            usesQt[include.file.string()] = true;
        }
    }
    EXPECT_FALSE(usesQt.empty());
    for (const auto& [file, uses] : usesQt) {
        const bool platform = file.starts_with("platform/qt/");
        const bool window = std::regex_search(file, std::regex("_(wnd|painter|dialog)\\.(h|cpp)$"));
        const bool app = file.starts_with("app/");
        EXPECT_TRUE(platform || window || app) << file;
    }
}

TEST(Architecture, ThereAreNoIncludeCircles) {
    std::map<std::string, std::set<std::string>> graph;
    for (const Include& include : AllIncludes()) {
        if (!include.system) {
            graph[include.file.string()].insert(include.target);
        }
    }
    std::map<std::string, int> state;  // 1 on the way, 2 done
    const std::function<void(const std::string&)> visit = [&](const std::string& file) {
        state[file] = 1;
        for (const std::string& next : graph[file]) {
            ASSERT_NE(state[next], 1) << file << " and " << next << " include each other";
            if (state[next] == 0) {
                visit(next);
            }
        }
        state[file] = 2;
    };
    for (const auto& [file, targets] : std::map(graph)) {
        if (state[file] == 0) {
            visit(file);
        }
    }
}

}  // namespace
