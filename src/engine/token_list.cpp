#include "engine/token_list.h"

namespace quorix {

void SplitAtBlanks(std::u16string_view text, TokenList& list) {
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find(u' ', begin), text.size());
        const std::u16string_view token = text.substr(begin, end - begin);
        if (!token.empty()) list.Append(token, SyntaxOf(token));
        begin = end + 1;
    }
}

std::u16string JoinWithBlanks(const TokenList& list) {
    std::u16string text;
    text.reserve(list.characters.size() + list.tokens.size());
    for (const Token& token : list.tokens) {
        if (!text.empty()) text.push_back(u' ');
        text.append(list.TextOf(token));
    }
    return text;
}

}  // namespace quorix
