#include "frontends/type_ahead.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "engine/text_fold.h"
#include "frontends/key_names.h"

namespace quorix {

namespace {

/// e to a power is typed as it is read.
const TypeAhead::Candidate kPowerOfE{u"e^", KEY_E_POWER};
constexpr std::u16string_view kExponentLetter = u"e";
/// Letters of the pad and the variable.
constexpr std::u16string_view kKeyLetters = u"xMR";

bool BeginsWith(std::u16string_view name, std::u16string_view prefix) {
    return EqualsIgnoringCase(name.substr(0, prefix.size()), prefix);
}

}  // namespace

void TypeAhead::SetMacros(std::vector<Macro> macros) {
    Close();
    macros_ = std::move(macros);
}

bool TypeAhead::MayOpen(char16_t character) const {
    if (!IsAsciiLetter(character) && !IsForeignLetter(character)) {
        return false;
    }
    const char16_t upper = FoldUpper(character);
    const bool isHexDigit = editor_.GetBase() == RADIX_HEX && upper >= u'A' && upper <= u'F';
    return editor_.TakesEdits() && !isHexDigit && kKeyLetters.find(character) == kKeyLetters.npos;
}

std::vector<TypeAhead::Candidate> TypeAhead::CandidatesFor(std::u16string_view prefix) const {
    std::vector<Candidate> found;
    const auto take = [&](const Candidate& candidate) {
        if (BeginsWith(candidate.name, prefix)) {
            found.push_back(candidate);
        }
    };
    for (const KeyName& name : KeyNames()) {
        take({name.name, name.key});
    }
    take(kPowerOfE);
    for (const Macro& macro : macros_) {
        if (!macro.name.empty()) {
            take({macro.name, KEY_NONE, macro.call});
        }
    }
    std::stable_sort(found.begin(), found.end(), [prefix](const Candidate& a, const Candidate& b) {
        return std::tuple(!a.name.starts_with(prefix), a.name.size(), a.name) <
               std::tuple(!b.name.starts_with(prefix), b.name.size(), b.name);
    });
    return found;
}

void TypeAhead::SetPrefix(std::u16string prefix) {
    prefix_ = std::move(prefix);
    candidates_ = prefix_.empty() ? std::vector<Candidate>{} : CandidatesFor(prefix_);
    chosen_ = 0;
    if (changed_) {
        changed_();
    }
}

void TypeAhead::Close() {
    if (IsOpen()) {
        SetPrefix({});
    }
}

void TypeAhead::Finish() {
    if (IsOpen() && candidates_.front().name.size() == prefix_.size()) {
        Accept(0);
    } else {
        Close();
    }
}

void TypeAhead::Choose(std::size_t row) {
    if (row < candidates_.size() && row != chosen_) {
        chosen_ = row;
        if (changed_) {
            changed_();
        }
    }
}

void TypeAhead::Insert(const Candidate& candidate) {
    if (candidate.key != KEY_NONE) {
        editor_.Key(candidate.key);
    } else {
        editor_.Paste(candidate.call);
    }
}

void TypeAhead::Accept(std::size_t row) {
    if (row >= candidates_.size()) {
        return;
    }
    const Candidate candidate = candidates_[row];
    Close();
    Insert(candidate);
}

/// A character that no name goes on with.
bool TypeAhead::EndWord(char16_t character) {
    // The first row is the shortest: when any row is the whole prefix, that one is.
    if (candidates_.front().name.size() == prefix_.size()) {
        Accept(0);
        const int before = editor_.Line().Cursor() - 1;
        const std::u16string_view entered = editor_.Line().Token(before);
        const bool brought = entered.size() > 1 || character == u'^';
        return brought && entered.ends_with(character);
    }
    if (EqualsIgnoringCase(prefix_, kExponentLetter) && IsDigit(character)) {
        Close();
        editor_.Key(KEY_EXP);
        return false;
    }
    return true;
}

bool TypeAhead::HandleCharacter(char16_t character) {
    if (!IsOpen()) {
        if (!MayOpen(character) || CandidatesFor({&character, 1}).empty()) {
            return false;
        }
        SetPrefix({character});
        return true;
    }
    std::u16string longer = prefix_ + character;
    if (!CandidatesFor(longer).empty()) {
        SetPrefix(std::move(longer));
        return true;
    }
    if (character < u' ') {
        return false;
    }
    return EndWord(character);
}

bool TypeAhead::HandleKey(TypeAheadKey key) {
    if (!IsOpen()) {
        return false;
    }
    switch (key) {
        case TypeAheadKey::up: Choose((chosen_ + candidates_.size() - 1) % candidates_.size()); break;
        case TypeAheadKey::down: Choose((chosen_ + 1) % candidates_.size()); break;
        case TypeAheadKey::accept: Accept(chosen_); break;
        case TypeAheadKey::backspace: SetPrefix(prefix_.substr(0, prefix_.size() - 1)); break;
        case TypeAheadKey::escape: Close(); break;
    }
    return true;
}

}  // namespace quorix
