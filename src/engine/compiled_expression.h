#pragma once

// An expression compiled once: its postfix tokens resolved to operator rows, converted numbers and variable
// slots, so that an evaluator walks an array instead of cutting and searching text. Walking it gives what
// walking the postfix text gives: whatever fails is kept as a token that fails when it is reached.

#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/number_grammar.h"
#include "engine/operator_table.h"
#include "engine/postfix_compiler.h"
#include "engine/text_fold.h"
#include "engine/token_list.h"
#include "engine/tokeniser.h"
#include "engine/variable_store.h"

namespace quorix {

enum class ResolvedKind : std::uint8_t {
    operation,  ///< row
    open,
    close,
    number,  ///< index into the numbers
    bound,   ///< the bound variable
    pi,
    e,
    i,
    variable,  ///< index is the slot
    unknown,   ///< a word that is none of these: fails when reached
};

template <class Value>
struct ResolvedToken {
    ResolvedKind kind = ResolvedKind::unknown;
    std::uint32_t index = 0;
    const OperatorRow<Value>* row = nullptr;
};

/// Numbers: what a number token is converted to; it has `static Number FromText(std::u16string_view)`.
template <class Value, class Number>
class CompiledExpression {
  public:
    /// Compiles unless `text`, radix and boundName are those of the last successful call. On failure leaves
    /// -1 in calcError.
    bool Prepare(std::u16string_view text, std::u16string_view boundName, int radix,
                 const OperatorTable<Value>& table) {
        if (isValid_ && radix == radix_ && IsSameText(text, text_) && IsSameText(boundName, boundName_))
            return true;
        isValid_ = false;
        if (!TokeniseToList(text, radix, boundName, list_) || !OrderPostfix(list_, postfix_, operators_)) {
            calcContext().calcError = ERROR_SYNTAX;
            return false;
        }
        lowerBoundName_.assign(boundName);
        for (char16_t& c : lowerBoundName_) c = FoldLower(c);
        tokens_.clear();
        numbers_.clear();
        for (const Token& token : postfix_) tokens_.push_back(Resolve(token, table));
        JoinDividedFunctions(table);
        text_.assign(text);
        boundName_.assign(boundName);
        radix_ = radix;
        isValid_ = true;
        ++version_;
        return true;
    }

    [[nodiscard]] const std::vector<ResolvedToken<Value>>& Tokens() const { return tokens_; }
    /// Another number after each compilation; 0 before the first.
    [[nodiscard]] unsigned Version() const { return version_; }
    [[nodiscard]] const Number& NumberAt(std::uint32_t index) const { return numbers_[index]; }

  private:
    // In bytes: the comparison of 16-bit characters one by one would take a quarter of an evaluation.
    static bool IsSameText(std::u16string_view a, const std::u16string& b) {
        return a.size() == b.size() &&
               (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0);
    }

    // The order of the tests is the order of meanings: operators first, then numbers, then names.
    ResolvedToken<Value> Resolve(const Token& token, const OperatorTable<Value>& table) {
        const std::u16string_view word = list_.TextOf(token);
        if (!IsDigit(word[0])) {
            if (const OperatorRow<Value>* row = table.Find(word)) return {ResolvedKind::operation, 0, row};
        }
        if (token.syntax.role == TokenRole::open) return {ResolvedKind::open};
        if (token.syntax.role == TokenRole::close) return {ResolvedKind::close};
        if (IsNumber(word)) {
            numbers_.push_back(Number::FromText(word));
            return {ResolvedKind::number, static_cast<std::uint32_t>(numbers_.size() - 1)};
        }
        if (!lowerBoundName_.empty() && word == lowerBoundName_) return {ResolvedKind::bound};
        if (word == u"pi") return {ResolvedKind::pi};
        if (word == u"e") return {ResolvedKind::e};
        if (word == u"i") return {ResolvedKind::i};
        const int slot = FindVariable(word);
        if (slot >= 0) return {ResolvedKind::variable, static_cast<std::uint32_t>(slot)};
        return {ResolvedKind::unknown};
    }

    // A function and the "/" that has nothing but closing parentheses before it.
    void JoinDividedFunctions(const OperatorTable<Value>& table) {
        ResolvedToken<Value>* function = nullptr;
        for (ResolvedToken<Value>& token : tokens_) {
            if (token.kind == ResolvedKind::close) continue;
            const bool isOperation = token.kind == ResolvedKind::operation;
            if (function != nullptr && isOperation && token.row->name == u"/") {
                const DividedFunction<Value>* divided = table.FindDivided(function->row->name);
                function->row = &divided->function;
                token.row = &divided->divide;
            }
            function = isOperation && table.FindDivided(token.row->name) != nullptr ? &token : nullptr;
        }
    }

    bool isValid_ = false;
    unsigned version_ = 0;
    int radix_ = 0;
    std::u16string text_;
    std::u16string boundName_;
    std::u16string lowerBoundName_;
    TokenList list_;
    std::vector<Token> postfix_;
    std::vector<Token> operators_;
    std::vector<ResolvedToken<Value>> tokens_;
    std::vector<Number> numbers_;
};

/// Depths at the open parentheses of a running evaluation, at most 1024.
class BaseStack {
  public:
    void Clear() { bases_.clear(); }
    /// Base of the innermost open parenthesis, 0 when none is open.
    [[nodiscard]] std::int32_t Innermost() const { return bases_.empty() ? 0 : bases_.back(); }
    [[nodiscard]] std::size_t Depth() const { return bases_.size(); }
    /// Leaves -1 in calcError when too many parentheses are open.
    bool Open(std::int32_t depth) {
        if (bases_.size() >= static_cast<std::size_t>(kEvaluatorStackDepth)) {
            calcContext().calcError = ERROR_SYNTAX;
            return false;
        }
        bases_.push_back(depth);
        return true;
    }
    void Close() {
        if (!bases_.empty()) bases_.pop_back();
    }

  private:
    std::vector<std::int32_t> bases_;
};

/// What one run of an evaluator needs; kept between runs, so that no buffer is made or zeroed for each.
template <class Value, class Number>
struct EvaluatorWorkspace {
    CompiledExpression<Value, Number> expression;
    std::vector<Value> entries = std::vector<Value>(static_cast<std::size_t>(kEvaluatorStackDepth));
    BaseStack bases;
};

/// Borrows a workspace of a pool for the time of a scope. A run that starts inside another gets its own.
template <class Workspace>
class WorkspaceLease {
  public:
    WorkspaceLease() : workspace_(Acquire()) {}
    ~WorkspaceLease() { --InUse(); }
    WorkspaceLease(const WorkspaceLease&) = delete;
    WorkspaceLease& operator=(const WorkspaceLease&) = delete;
    Workspace* operator->() const { return &workspace_; }
    Workspace& operator*() const { return workspace_; }

  private:
    static std::size_t& InUse() {
        static std::size_t inUse = 0;
        return inUse;
    }
    static Workspace& Acquire() {
        static std::vector<std::unique_ptr<Workspace>> pool;
        if (InUse() == pool.size()) pool.push_back(std::make_unique<Workspace>());
        return *pool[InUse()++];
    }

    Workspace& workspace_;
};

}  // namespace quorix
