#include "engine/postfix_compiler.h"

#include "engine/calc_context.h"
#include "engine/engine_errors.h"

namespace quorix {
namespace {

// Operator precedence with a stack (E. W. Dijkstra's shunting yard).
class ShuntingYard {
  public:
    ShuntingYard(std::u16string_view characters, std::vector<Token>& output, std::vector<Token>& operators)
        : characters_(characters), output_(output), operators_(operators) {
        output_.clear();
        operators_.clear();
    }

    bool Accept(const Token& token) {
        switch (token.syntax.role) {
            case TokenRole::binary: return AcceptBinary(token);
            case TokenRole::open:
                afterOperator_ = false;
                operators_.push_back(token);
                output_.push_back(token);
                return true;
            case TokenRole::close: return AcceptClose(token);
            case TokenRole::prefix:
                afterOperator_ = false;
                operators_.push_back(token);
                return true;
            case TokenRole::postfix:
                if (afterOperator_) return false;
                [[fallthrough]];
            case TokenRole::operand: break;
        }
        afterOperator_ = false;
        output_.push_back(token);
        return true;
    }

    void Finish() {
        while (!operators_.empty()) PopToOutput();
    }

  private:
    bool AcceptBinary(const Token& token) {
        if (afterOperator_) return false;
        while (!operators_.empty()) {
            const std::uint8_t top = operators_.back().syntax.level;
            if (token.syntax.level > top) break;
            if (token.syntax.level == top && IsRightAssociative(token)) break;
            PopToOutput();
        }
        operators_.push_back(token);
        afterOperator_ = true;
        return true;
    }

    bool AcceptClose(const Token& token) {
        while (!operators_.empty() && operators_.back().syntax.role != TokenRole::open) PopToOutput();
        if (operators_.empty()) return false;
        operators_.pop_back();
        output_.push_back(token);
        return true;
    }

    [[nodiscard]] bool IsRightAssociative(const Token& token) const {
        return characters_[token.begin] == u'^';
    }

    void PopToOutput() {
        output_.push_back(operators_.back());
        operators_.pop_back();
    }

    std::u16string_view characters_;
    std::vector<Token>& output_;
    std::vector<Token>& operators_;
    bool afterOperator_ = false;
};

}  // namespace

bool OrderPostfix(const TokenList& list, std::vector<Token>& postfix, std::vector<Token>& operators) {
    ShuntingYard yard(list.characters, postfix, operators);
    for (const Token& token : list.tokens) {
        if (!yard.Accept(token)) {
            calcContext().calcError = ERROR_SYNTAX;
            return false;
        }
    }
    yard.Finish();
    return true;
}

bool CompileToPostfix(std::u16string& text) {
    TokenList list;
    SplitAtBlanks(text, list);
    std::vector<Token> postfix;
    std::vector<Token> operators;
    if (!OrderPostfix(list, postfix, operators)) return false;
    std::u16string result;
    for (const Token& token : postfix) result.append(list.TextOf(token)).push_back(u' ');
    text = std::move(result);
    return true;
}

}  // namespace quorix
