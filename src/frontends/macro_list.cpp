#include "frontends/macro_list.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "engine/calc_context.h"
#include "engine/number_locale.h"
#include "frontends/token_line.h"
#include "platform/trim.h"

namespace quorix {

namespace {

constexpr int kDeepestCall = 64;

char16_t Folded(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c - u'A' + u'a') : c;
}

bool SortsBelow(std::u16string_view a, std::u16string_view b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char16_t x, char16_t y) { return Folded(x) < Folded(y); });
}

bool SameName(std::u16string_view a, std::u16string_view b) {
    return !SortsBelow(a, b) && !SortsBelow(b, a);
}

void ReplaceAll(std::u16string& text, std::u16string_view what, std::u16string_view by) {
    for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
        if (text.size() > kLongestLine) {
            return;
        }
    }
}

/// Position behind the ")" that closes the "(" at `open`, or npos.
std::size_t EndOfCall(std::u16string_view line, std::size_t open) {
    int depth = 0;
    for (std::size_t at = open; at < line.size(); ++at) {
        if (line[at] == u'(') {
            ++depth;
        } else if (line[at] == u')' && --depth == 0) {
            return at + 1;
        }
    }
    return line.npos;
}

/// The next argument; it and its comma leave `rest`. Nothing when the call has too few.
std::optional<std::u16string> TakeArgument(std::u16string_view& rest, bool last) {
    int depth = 0;
    for (std::size_t at = 0; at < rest.size(); ++at) {
        if (rest[at] == u'(') {
            ++depth;
        } else if (rest[at] == u')') {
            --depth;
        } else if (rest[at] == u',' && depth == 0 && at > 0) {
            std::u16string argument(Trimmed(rest.substr(0, at)));
            rest.remove_prefix(at + 1);
            return argument;
        } else if (rest[at] == u',' && depth == 0) {
            break;
        }
    }
    if (!last || rest.empty()) {
        return std::nullopt;
    }
    return std::u16string(Trimmed(std::exchange(rest, {})));
}

std::optional<std::u16string> TakeParameter(std::u16string_view& names, bool last) {
    const std::size_t comma = names.find(u',');
    if (comma == names.npos && (!last || names.empty())) {
        return std::nullopt;
    }
    std::u16string name(Trimmed(names.substr(0, comma)));
    names.remove_prefix(comma == names.npos ? names.size() : comma + 1);
    if (name.empty()) {
        return std::nullopt;
    }
    return name;
}

/// The body with the arguments in place of the parameters. Plain text replacement, which runs over what
/// earlier parameters have put in; this is intended.
std::optional<std::u16string> Substitute(const Macro& macro, std::u16string_view arguments) {
    std::u16string body = macro.expression;
    std::u16string_view names = macro.parameters;
    for (int i = 0; i < macro.parameterCount; ++i) {
        const bool last = i + 1 == macro.parameterCount;
        const auto argument = TakeArgument(arguments, last);
        const auto name = argument ? TakeParameter(names, last) : std::nullopt;
        if (!name) {
            return std::nullopt;
        }
        ReplaceAll(body, *name, u"(" + *argument + u")");
    }
    return body;
}

struct FoundCall {
    const Macro* macro = nullptr;
    std::size_t at = 0;
    std::size_t open = 0;
};

/// The earliest call at or behind `from`: a name with a "(" right behind it.
FoundCall FindCall(const MacroList& macros, std::u16string_view line, std::size_t from) {
    FoundCall found{nullptr, line.npos, 0};
    for (const Macro& macro : macros.All()) {
        for (std::size_t at = line.find(macro.name, from); at < found.at;
             at = line.find(macro.name, at + 1)) {
            if (const std::size_t open = at + macro.name.size(); open < line.size() && line[open] == u'(') {
                found = {&macro, at, open};
            }
        }
    }
    return found;
}

bool Expand(const MacroList& macros, std::u16string& line, int depth) {
    std::size_t from = 0;
    while (line.size() <= kLongestLine) {
        const FoundCall call = FindCall(macros, line, from);
        if (call.macro == nullptr) {
            return true;
        }
        const std::size_t end = EndOfCall(line, call.open);
        if (end == line.npos || depth == kDeepestCall) {
            return false;
        }
        std::u16string arguments = line.substr(call.open + 1, end - call.open - 2);
        if (!Expand(macros, arguments, depth + 1)) {
            return false;
        }
        const auto body = Substitute(*call.macro, arguments);
        if (!body) {
            return false;
        }
        line.replace(call.at, end - call.at, u"(" + *body + u")");
        // A body is not searched again.
        from = call.at + body->size() + 2;
    }
    return true;
}

}  // namespace

const Macro* MacroList::Find(std::u16string_view name) const {
    const auto found = std::find_if(macros_.begin(), macros_.end(),
                                    [name](const Macro& m) { return SameName(m.name, name); });
    return found == macros_.end() ? nullptr : &*found;
}

void MacroList::Store(Macro macro) {
    // They part the records of a file.
    for (std::u16string* const field : {&macro.name, &macro.parameters, &macro.remark, &macro.expression}) {
        std::erase_if(*field, [](char16_t c) { return c < u' '; });
    }
    if (macro.name.empty()) {
        return;
    }
    const auto place =
        std::lower_bound(macros_.begin(), macros_.end(), macro.name,
                         [](const Macro& m, const std::u16string& name) { return SortsBelow(m.name, name); });
    if (place != macros_.end() && SameName(place->name, macro.name)) {
        *place = std::move(macro);
    } else {
        macros_.insert(place, std::move(macro));
    }
}

void MacroList::Remove(std::u16string_view name) {
    std::erase_if(macros_, [name](const Macro& m) { return SameName(m.name, name); });
}

void MacroList::ExchangeDecimalSigns() {
    for (Macro& macro : macros_) {
        quorix::ExchangeDecimalSigns(macro.expression);
    }
}

bool MacroList::Merge(Macro macro) {
    if (macro.name.empty()) {
        return false;
    }
    if (const Macro* const same = Find(macro.name)) {
        if (*same == macro) {
            return true;
        }
        macro.name = u"M?";
        for (char16_t letter = u'a'; letter <= u'z'; ++letter) {
            macro.name.back() = letter;
            const Macro* const taken = Find(macro.name);
            if (taken == nullptr) {
                break;
            }
            // Merged under this very name before.
            if (*taken == macro) {
                return true;
            }
        }
        if (Find(macro.name) != nullptr) {
            return false;
        }
    }
    Store(std::move(macro));
    return true;
}

std::u16string CallTextOf(const Macro& macro) {
    std::u16string parameters = macro.parameters;
    ReplaceAll(parameters, u",", u", ");
    return macro.name + u"(" + parameters + u")";
}

CallTokens CallTokensOf(const Macro& macro) {
    CallTokens call{macro.name + (macro.parameterCount == 0 ? u"()" : u"("), {}};
    for (std::size_t at = 0; at < call.text.size(); at += kLongestToken) {
        call.lengths += static_cast<char16_t>(u'0' + std::min(kLongestToken, call.text.size() - at));
    }
    return call;
}

bool ExpandMacros(const MacroList& macros, std::u16string& line) {
    if (Expand(macros, line, 0)) {
        return true;
    }
    calcContext().calcError = kInvalidMacro;
    return false;
}

}  // namespace quorix
