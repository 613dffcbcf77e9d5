#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorix {

/// Pairs of a table written as "text -> result; text -> result".
inline std::vector<std::pair<std::string, std::string>> Rows(std::string_view table) {
    std::vector<std::pair<std::string, std::string>> rows;
    for (std::size_t at = 0; at < table.size();) {
        const std::size_t end = std::min(table.find("; ", at), table.size());
        const std::size_t arrow = table.find(" -> ", at);
        rows.emplace_back(table.substr(at, arrow - at), table.substr(arrow + 4, end - arrow - 4));
        at = end + 2;
    }
    return rows;
}

}  // namespace quorix
