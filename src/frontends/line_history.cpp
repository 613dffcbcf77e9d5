#include "frontends/line_history.h"

#include <utility>

namespace quorix {

void LineHistory::Push(Steps& steps, LineState state) {
    steps.push_back(std::move(state));
    std::size_t characters = 0;
    std::size_t kept = 0;
    for (auto step = steps.rbegin(); step != steps.rend() && kept < kMostSteps; ++step, ++kept) {
        characters += step->text.size();
        if (characters > kMostCharacters) {
            break;
        }
    }
    while (steps.size() > kept) {
        steps.pop_front();
    }
}

void LineHistory::Record(LineState before) {
    Push(past_, std::move(before));
    future_.clear();
}

std::optional<LineState> LineHistory::Step(Steps& from, Steps& to, LineState now) {
    if (from.empty()) {
        return std::nullopt;
    }
    LineState state = std::move(from.back());
    from.pop_back();
    Push(to, std::move(now));
    return state;
}

}  // namespace quorix
